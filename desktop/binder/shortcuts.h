#pragma once

#include <QAction>
#include <QKeyEvent>
#include <QWidget>

/// Keys that are heard in the whole window.

/// Gives a menu entry the keys that its property `keys` names. It hears them by way of the window, since its
/// menu may stand in no bar.
void give_keys(QAction & entry, QWidget & window);

/// Leaves the keys of undo and redo to the window where a box, or a list with one, would swallow them without
/// a use for them. False when it didn't.
bool left_to_window(const QObject & box, QKeyEvent & pressed);
