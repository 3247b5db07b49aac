#include "desktop/binder/control_pairs.h"

#include <QMenu>

QObject * widget_of(const control & held, const QWidget & window)
{
    const QString name = QString::fromStdString(held.name());
    if (auto * const menu = window.findChild<QMenu *>(name))
        return menu->menuAction();
    if (auto * const action = window.findChild<QAction *>(name))
        return action;
    return window.findChild<QWidget *>(name);
}

int selected_row(const QListWidget & list)
{
    const QList<QListWidgetItem *> selected = list.selectedItems();
    return selected.isEmpty() ? -1 : list.row(selected.front());
}
