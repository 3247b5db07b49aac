#pragma once

#include "desktop/binder/control_pairs.h"

#include <functional>

/// Runs a user's action in safety and brings the widget back in step with its control afterwards.
using user_action = std::function<void(const std::function<void()> & step)>;

/// From widget to control, for as long as `owner` lives. It hears only signals that code never fires.
void listen(control & held, QObject & widget, QObject & owner, const user_action & act);
