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

bool has_no_use_for(const QObject & box, const QKeyEvent & pressed)
{
    const QLineEdit * const line = line_of(box);
    return line && ((pressed.matches(QKeySequence::Undo) && !line->isUndoAvailable()) ||
                    (pressed.matches(QKeySequence::Redo) && !line->isRedoAvailable()));
}
