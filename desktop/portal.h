#pragma once

/// Where the user's desktop has choosers of files of its own behind a portal, has the toolkit take those; it
/// reads this once, when the QApplication is made, so this comes before. Gives whether it was done. What
/// QT_QPA_PLATFORMTHEME says already stays, an empty one too.
bool take_choosers_of_desktop();

/// Takes that back, for the programs that this one starts. To be called when the QApplication is there.
void forget_choosers_of_desktop();
