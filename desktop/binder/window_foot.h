#pragma once

#include <QLayout>
#include <QWidget>

/// What a window is left by: the row or panel of buttons that stays below what is scrolled.

bool is_main_window(const QWidget & window);

/// The row of buttons that a dialog ends with; none where its layout ends otherwise.
QLayout * last_row(const QWidget & window);

/// The panel of the default button, of a main window or of a dialog whose form places its widgets.
QWidget * panel_of_buttons(const QWidget & window);

/// That row taken out of the window's layout, in a widget of its own with the window's margins.
QWidget * taken_row(QWidget & window, QLayout & row);

/// That panel in a widget of its own. The panel comes and goes with the stage, and its foot with it.
QWidget * foot_around(QWidget & window, QWidget & panel);

/// The view above the foot, in one widget.
QWidget * stacked(QWidget & window, QWidget & view, QWidget & foot);
