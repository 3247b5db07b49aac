#pragma once

#include <QFileDialog>
#include <QLineEdit>

/// The toolkit's chooser for what is there already, which takes a path as it was typed: quotes in it mean
/// themselves. While it still reads the folders of that path, the toolkit marks others of them in its list,
/// and would give the first one marked.
class open_chooser : public QFileDialog {
    Q_OBJECT

public:
    explicit open_chooser(QWidget * parent);

    /// What was accepted, empty before.
    QStringList paths() const;

protected:
    void accept() override;

private:
    void offer_choosing();
    QString typed_path() const;
    QLineEdit * name_box() const;
    QString chosen;
};
