#include "desktop/open_chooser.h"

#include <QAbstractItemView>
#include <QLineEdit>

open_chooser::open_chooser(QWidget * parent) : QFileDialog(parent) {}

// Names of the list have no separator. Without a mark in the list the toolkit takes what the box says.
void open_chooser::accept()
{
    const auto * const box = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (box != nullptr && box->text().contains(QLatin1Char('/')))
        for (const char * list : {"listView", "treeView"})
            if (auto * const shown = findChild<QAbstractItemView *>(QLatin1String(list)))
                shown->clearSelection();
    QFileDialog::accept();
}
