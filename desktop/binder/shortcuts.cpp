#include "desktop/binder/shortcuts.h"

#include <QComboBox>
#include <QLineEdit>
#include <QVariant>

namespace {

const QLineEdit * line_of(const QObject & box)
{
    const auto * const list = qobject_cast<const QComboBox *>(&box);
    return list ? list->lineEdit() : qobject_cast<const QLineEdit *>(&box);
}

}  // namespace

void give_keys(QAction & entry, QWidget & window)
{
    const QString keys = entry.property("keys").toString();
    if (keys.isEmpty())
        return;
    entry.setShortcuts(QKeySequence::listFromString(keys));
    window.addAction(&entry);
}

bool left_to_window(const QObject & box, QKeyEvent & pressed)
{
    const QLineEdit * const line = line_of(box);
    const bool is_left = line && ((pressed.matches(QKeySequence::Undo) && !line->isUndoAvailable()) ||
                                  (pressed.matches(QKeySequence::Redo) && !line->isRedoAvailable()));
    if (is_left)
        pressed.ignore();
    return is_left;
}
