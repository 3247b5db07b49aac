#include "desktop/binder/move_keys.h"

#include <QRadioButton>

std::optional<move_key> move_key_of(int toolkit_key)
{
    switch (toolkit_key) {
        case Qt::Key_PageUp:
            return move_key::page_up;
        case Qt::Key_PageDown:
            return move_key::page_down;
        case Qt::Key_Left:
            return move_key::left;
        case Qt::Key_Up:
            return move_key::up;
        case Qt::Key_Right:
            return move_key::right;
        case Qt::Key_Down:
            return move_key::down;
        default:
            return std::nullopt;
    }
}

void follow_selection(QWidget * had_keyboard)
{
    if (!qobject_cast<QRadioButton *>(had_keyboard))
        return;
    for (QRadioButton * option :
         had_keyboard->parentWidget()->findChildren<QRadioButton *>(Qt::FindDirectChildrenOnly))
        if (option->isChecked() && option->isVisible())
            option->setFocus(Qt::OtherFocusReason);
}

bool moved_to_neighbour(QRadioButton & option, int pressed)
{
    const bool forward = pressed == Qt::Key_Down || pressed == Qt::Key_Right;
    const bool backward = pressed == Qt::Key_Up || pressed == Qt::Key_Left;
    if (!forward && !backward)
        return false;
    auto options = option.parentWidget()->findChildren<QRadioButton *>(Qt::FindDirectChildrenOnly);
    options.removeIf([&](const QRadioButton * other) { return !other->isEnabled() || !other->isVisible(); });
    const qsizetype count = options.size();
    QRadioButton * const next = options[(options.indexOf(&option) + (forward ? 1 : count - 1)) % count];
    next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    next->click();
    return true;
}
