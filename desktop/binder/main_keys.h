#pragma once

#include <QKeyEvent>
#include <QMainWindow>

/// Keys that the toolkit knows in dialogs, or not at all, for a main window: F10 opens the menu bar, Enter
/// presses the button that has the keyboard, else the default one, and Ctrl+Q closes the window where the
/// menu entry with that key isn't shown. In a field that is typed into Enter presses nothing. True when the
/// key was one of them.
bool pressed_in_main(QMainWindow & window, const QKeyEvent & pressed);
