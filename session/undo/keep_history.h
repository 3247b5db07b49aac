#pragma once

#include "session/frmMain.h"
#include "session/undo/moment.h"
#include "session/undo/step_history.h"

/// Undo and redo in the finishing stage.

/// What was changed in the finishing stage of the collage that is being made.
struct change_history {
    step_history<moment> steps;
    int actions = 0;                     ///< of the user, one inside the other
    const control * typed_in = nullptr;  ///< where the user is typing: what follows there is the same step
};

/// From now on each action of the user in the finishing stage is a step, and `mnuUndo` and `mnuRedo` go back
/// and forth between them; they are enabled while there is something to go to. A run of typing in one box is
/// one step. Turning the preview on or off and a full-size run are none: they go with the step before.
/// Another collage begins another history. To be called when all handlers are hooked; `history` has to
/// outlive the window.
void keep_history(frmMain & main, change_history & history);

/// Runs `step` as an action of the user's that no handler answers: what it changes is a step.
void act_as_user(frmMain & main, change_history & history, const std::function<void()> & step);
