#pragma once

#include "support/forms.h"

#include <QRadioButton>
#include <QWidget>

#include <optional>

/// Keys by which the keyboard moves about, for forms that have a use of their own for them.

/// What the toolkit's key is to a form, nothing for any other key.
std::optional<move_key> move_key_of(int toolkit_key);

/// Where an option has the keyboard, moves it on to the selected one among its neighbours.
void follow_selection(QWidget * had_keyboard);

/// Up, down, left and right select the neighbour of an option: with exclusion left to the session the
/// toolkit's arrow keys would only wander. False for any other key.
bool moved_to_neighbour(QRadioButton & option, int pressed);
