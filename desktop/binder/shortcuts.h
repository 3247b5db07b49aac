#pragma once

#include <QAction>
#include <QKeyEvent>
#include <QWidget>

/// Keys that are heard in the whole window.

/// Gives a menu entry the keys that its property `keys` names. It hears them by way of the window, since its
/// menu may stand in no bar.
void give_keys(QAction & entry, QWidget & window);

/// True when a box, or a list with one, would swallow the keys of undo or redo without a use for them.
bool has_no_use_for(const QObject & box, const QKeyEvent & pressed);
