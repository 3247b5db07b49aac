#pragma once

#include <QApplication>

/// The looks of all windows, the same on every machine: the toolkit's own style in dark, calm colours with
/// one that stands out. Texts keep a contrast of 4.5 to 1 or more.
void apply_looks(QApplication & application);

/// The icon of the windows.
QIcon application_icon();
