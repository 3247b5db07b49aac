#pragma once

#include "desktop/binder/control_pairs.h"

/// From control to widget. The Designer file may say more about a widget than a control knows, by properties
/// of these names:
///   mnemonic   letters of which the first that stands in the caption becomes the shortcut
///   placed     true: the widget stands where the control's `place` says
///   leftEdge   pixels, with rightEdge on what is placed: it begins there, whatever `place` says,
///   rightEdge  and ends where the widget of that name ends
///   sized      true: the widget keeps the size of the control's `place` inside its layout
///   shrink     text is shown at one n-th of the size that the control holds
///   announced  true: a reader of the screen is told each new text; `announcements` counts them
///   coveredBy  the name of a control behind which this one disappears
///   divider    true: an entry of the menu bar that can't be chosen
///   verbatim   true: the caption is a text of the user's, shown with any "&" that it holds
///   oneStop    true: of the options of its set the Tab key stops at the selected one alone
///   keepsRoom  true: while hidden it keeps its room in the layout
///   hidesEmpty on a frame around widgets: true: it goes with the last of them that shows
///   grows      on the window: the name of a widget with a size of its own that takes more where its content
///   needs
///              it (larger letters); what is placed right of it or below it moves, and the window grows with
///              it
///   keys       on a menu entry: its keys in the whole window, "Ctrl+Shift+Z; Ctrl+Y"
///   beside     on a picture: true: it is pressed by the mouse alone, as what stands beside it is by keys too
///   largest    pixels: the greatest height of letters that its box has room for

/// Brings the widget to the state of its control; fires none of the signals that a user's action fires.
void display(control & held, QObject & widget);

/// True while `display` is at work on it.
bool is_being_shown(const QObject & widget);
