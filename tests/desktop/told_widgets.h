#pragma once

#include "support/forms.h"

#include <QWidget>

#include <string>
#include <vector>

/// A line for each widget that a reader of the screen is told of otherwise than its control is: by another
/// role, without a name or one that is spelt, with another value or another state. `window` shows the form.
std::vector<std::string> told_otherwise(const form & shown, const QWidget & window);

/// How many of the form's controls told_otherwise looks at.
int told_widgets(const form & shown, const QWidget & window);
