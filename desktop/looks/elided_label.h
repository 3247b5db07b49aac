#pragma once

#include <QLabel>

/// A label for a text of any length: what doesn't fit is left out in its middle, and the whole text is its
/// tool tip.
class elided_label : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent * event) override;
    bool event(QEvent * event) override;
};
