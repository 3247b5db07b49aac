#include "desktop/binder/main_keys.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

namespace {

bool opened_menu_bar(const QMainWindow & window)
{
    QMenuBar & bar = *window.menuBar();
    for (QAction * entry : bar.actions())
        if (bar.isVisible() && entry->isVisible() && entry->isEnabled()) {
            bar.setActiveAction(entry);
            return true;
        }
    return false;
}

bool is_typed_into(const QWidget * widget)
{
    const auto * const list = qobject_cast<const QComboBox *>(widget);
    return qobject_cast<const QLineEdit *>(widget) || (list && list->isEditable());
}

QPushButton * default_button(const QMainWindow & window)
{
    for (QPushButton * each : window.findChildren<QPushButton *>())
        if (each->isDefault() && each->isVisible())
            return each;
    return nullptr;
}

bool pressed_button(const QMainWindow & window)
{
    QWidget * const focus = window.focusWidget();
    auto * const focused = qobject_cast<QPushButton *>(focus);
    QPushButton * const asked = focused ? focused : default_button(window);
    if (!asked || is_typed_into(focus))
        return false;
    asked->click();
    return true;
}

}  // namespace

bool pressed_in_main(QMainWindow & window, const QKeyEvent & pressed)
{
    if (pressed.key() == Qt::Key_F10 && pressed.modifiers() == Qt::NoModifier)
        return opened_menu_bar(window);
    if (pressed.key() == Qt::Key_Return || pressed.key() == Qt::Key_Enter)
        return pressed_button(window);
    const bool quits = pressed.key() == Qt::Key_Q && pressed.modifiers() == Qt::ControlModifier;
    if (quits)
        window.close();
    return quits;
}
