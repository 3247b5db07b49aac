#include "desktop/binder/focus_keeper.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QLineEdit>

namespace {

bool takes_text(const QWidget * widget)
{
    const auto * const list = qobject_cast<const QComboBox *>(widget);
    return qobject_cast<const QLineEdit *>(widget) || (list && list->isEditable());
}

}  // namespace

void focus_keeper::before_loss(QWidget & lost)
{
    QWidget * const focus = window.focusWidget();
    if (!focus || focus == &window || (focus != &lost && !lost.isAncestorOf(focus)))
        return;
    lost_focus = focus;
    stand_in = nullptr;
    focus->clearFocus();
}

void focus_keeper::after_return()
{
    const QWidget * const now = window.focusWidget();
    if (!lost_focus || (now && now != stand_in) || !lost_focus->isEnabled() ||
        !lost_focus->isVisibleTo(&window))
        return;
    QWidget * const back = lost_focus;
    lost_focus = nullptr;
    back->setFocus(Qt::OtherFocusReason);
    for (std::unique_ptr<QEvent> & event : waiting)
        QCoreApplication::postEvent(back, event.release());
    waiting.clear();
}

// A key that was given back while the box is disabled once more would go up to the group around it, which
// takes every blank for a press of its own.
bool focus_keeper::waits_for_text(const QObject * watched) const
{
    if (!takes_text(lost_focus) || lost_focus->isEnabled())
        return false;
    return watched == lost_focus || (watched == &window && !window.focusWidget());
}

bool focus_keeper::eventFilter(QObject * watched, QEvent * event)
{
    // A window that comes to the front gives its focus to the first widget that can take it.
    if (event->type() == QEvent::FocusIn && lost_focus && watched != lost_focus &&
        static_cast<QFocusEvent *>(event)->reason() == Qt::ActiveWindowFocusReason)
        stand_in = qobject_cast<QWidget *>(watched);
    const bool is_key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!is_key || !waits_for_text(watched))
        return QObject::eventFilter(watched, event);
    waiting.emplace_back(event->clone());
    return true;
}
