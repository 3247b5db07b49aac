#pragma once

#include <QRadioButton>

/// An option with a text of any length: what doesn't fit is left out at its end and stands above the tool tip
/// instead.
class elided_option : public QRadioButton {
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent * event) override;
    bool event(QEvent * event) override;

private:
    QString fitting_text() const;
};
