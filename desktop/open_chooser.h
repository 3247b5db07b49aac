#pragma once

#include <QFileDialog>

/// The toolkit's chooser for what is there already, which takes a path as it was typed. While it still reads
/// the folders of that path, the toolkit marks others of them in its list, and would give the first one
/// marked.
class open_chooser : public QFileDialog {
    Q_OBJECT

public:
    explicit open_chooser(QWidget * parent);

protected:
    void accept() override;
};
