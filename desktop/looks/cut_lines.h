#pragma once

class QApplication;

/// From now on each line of text that has more letters than room shows so while it hasn't the keyboard: an
/// ellipsis stands at its end, or in the middle of what can't be changed, and the tip is the whole text.
void mark_cut_lines(QApplication & application);
