#pragma once

#include <QWidget>

/// Narrows the picture that the window's property `narrows` names, in its proportions, where content of
/// `wanted` pixels has no room in `most`, and moves what `belowNarrowed` names along. Where that leaves too
/// little of it, the growing widget beside it gives up width as well. Gives the width that the content then
/// has, `most` without the bar that scrolls it down; `wanted` where it has room, where there is no such
/// picture, and where too little of it would be left all the same.
int narrowed_width(const QWidget & window, int wanted, int most, int bar);

/// Where the form has it, to which it goes back.
void note_form_place(QWidget & widget, const QRect & place);

/// In a row again, if it was narrowed so far that its parts stand below each other: as its form measures it.
void lay_as_drawn(QWidget & widget);
