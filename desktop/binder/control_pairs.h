#pragma once

#include "desktop/binder/picture_view.h"
#include "support/list_controls.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

/// Which widget shows which control: the widget, or the action of a menu, with the control's name.

/// What shows the control in that window; nullptr when nothing has its name. A menu with entries is found by
/// the name of the menu.
QObject * widget_of(const control & held, const QWidget & window);

/// The row of the selected entry, -1 when there is none.
int selected_row(const QListWidget & list);

template <typename Control, typename Widget, typename Visit>
bool visit_as(control & held, QObject & widget, const Visit & visit)
{
    auto * const wanted_control = dynamic_cast<Control *>(&held);
    auto * const wanted_widget = qobject_cast<Widget *>(&widget);
    if (!wanted_control || !wanted_widget)
        return false;
    visit(*wanted_control, *wanted_widget);
    return true;
}

/// Calls `visit(control, widget)` with both in their own types. False when the widget is none of the kind
/// that can show the control.
template <typename Visit>
bool visit_pair(control & held, QObject & widget, const Visit & visit)
{
    return visit_as<button, QPushButton>(held, widget, visit) ||
           visit_as<check_box, QCheckBox>(held, widget, visit) ||
           visit_as<option_button, QRadioButton>(held, widget, visit) ||
           visit_as<combo_box, QComboBox>(held, widget, visit) ||
           visit_as<text_box, QLineEdit>(held, widget, visit) ||
           visit_as<text_box, QPlainTextEdit>(held, widget, visit) ||
           visit_as<list_box, QListWidget>(held, widget, visit) ||
           visit_as<slider, QSlider>(held, widget, visit) ||
           visit_as<progress_bar, QProgressBar>(held, widget, visit) ||
           visit_as<label, QLabel>(held, widget, visit) ||
           visit_as<picture, picture_view>(held, widget, visit) ||
           visit_as<menu_entry, QAction>(held, widget, visit) ||
           visit_as<group, QWidget>(held, widget, visit);
}
