#pragma once

#include <QWidget>

/// The mouse wheel changes what has the keyboard and nothing else: over any other list or scale it scrolls
/// what lies beneath, and doesn't take the keyboard there.
void leave_wheel_to_focus(QWidget & widget);
