#pragma once

#include <QWidget>

/// Marks the button of a dialog that Enter presses: the default one of its Designer file, and where that is
/// hidden the only one that shows. To be told when a button was shown or hidden.
void mark_primary(QWidget & window);
