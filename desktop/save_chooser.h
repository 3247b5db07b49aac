#pragma once

#include <QFileDialog>
#include <QLineEdit>

#include <string>

/// The toolkit's own chooser for a file to be written, which takes a name as it was typed: quotes, a tilde or
/// blanks in it mean themselves, and it lies in the folder that is shown. A path, absolute or by way of
/// folders, is taken as one; with a separator at its end, or as "..", it is a folder to go to.
class save_chooser : public QFileDialog {
    Q_OBJECT

public:
    /// `ending` is added to a name without a point; `name` stands in the box at first.
    save_chooser(QWidget * parent, QString ending, const QString & name);

    /// The path that was accepted, empty before.
    const QString & path() const { return chosen; }

protected:
    void accept() override;

private:
    void offer_saving();
    QString path_of(const QString & typed) const;
    QLineEdit * name_box() const;
    QString added_ending;
    QString chosen;
};
