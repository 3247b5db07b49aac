#pragma once

#include "desktop/guarded.h"
#include "support/forms.h"

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

/// What a bound window asks of its surroundings.
struct window_hooks {
    error_report report;             ///< shows an error that got out of a handler
    std::function<void()> unloaded;  ///< the form has gone: take the window down, but don't delete it at once
    std::function<QSize()> room = {};  ///< pixels that the screen has for the window; none: any number
};

/// Keeps a window and its form in step, until the window is deleted. Widgets are found by the names of the
/// controls; a control without a widget is not shown. From user to control only such signals count as code
/// never fires, so nothing echoes; from control to widget each change is shown at once. Properties of the
/// Designer file are listed in control_display.h; two more belong to the window: `stage`, true when it wears
/// the form's back colour, and `firstFocus`, the name of the control that has the keyboard at first. The form
/// has to outlive the window's last event.
void bind(form & its_form, QWidget & window, window_hooks hooks);

/// A line for each control without a widget of its kind and each named widget without a control. Helpers of
/// the layout are known by a name that ends in "_area".
std::vector<std::string> binding_faults(const form & its_form, const QWidget & window);
