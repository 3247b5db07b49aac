#include "desktop/open_chooser.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QPushButton>

open_chooser::open_chooser(QWidget * parent) : QFileDialog(parent)
{
    if (const QLineEdit * const box = name_box())
        connect(box, &QLineEdit::textChanged, this, &open_chooser::offer_choosing);
}

// The toolkit reads quotes as marks round several names, and finds nothing where they are part of one.
void open_chooser::offer_choosing()
{
    const auto * const buttons = findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QPushButton * const choose = buttons == nullptr ? nullptr : buttons->button(QDialogButtonBox::Open);
    if (choose != nullptr && !typed_path().isEmpty())
        choose->setEnabled(true);
}

QStringList open_chooser::paths() const
{
    return chosen.isEmpty() ? selectedFiles() : QStringList{chosen};
}

QLineEdit * open_chooser::name_box() const
{
    return findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

// Empty where the box names nothing that may be chosen, or several files; two points lead to the folder
// above.
QString open_chooser::typed_path() const
{
    const QString typed = name_box() == nullptr ? QString() : name_box()->text();
    if (typed.isEmpty() || typed == QLatin1String(".."))
        return {};
    const QFileInfo named(directory().absoluteFilePath(typed));
    const bool is_wanted = fileMode() == Directory ? named.isDir() : named.isFile();
    return is_wanted ? QDir::cleanPath(named.filePath()) : QString();
}

// Without a mark in the list the toolkit takes what the box says. Names of the list have no separator.
void open_chooser::accept()
{
    chosen = typed_path();
    if (!chosen.isEmpty()) {
        done(Accepted);
        return;
    }
    if (name_box() != nullptr && name_box()->text().contains(QLatin1Char('/')))
        for (const char * list : {"listView", "treeView"})
            if (auto * const shown = findChild<QAbstractItemView *>(QLatin1String(list)))
                shown->clearSelection();
    QFileDialog::accept();
}
