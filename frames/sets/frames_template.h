#pragma once

#include "session/frmMain.h"

#include <optional>
#include <string>

/// The orientation letters, "l" and "p", of the photos of the list that the set `main.collage.frame_set_name`
/// is tied to; empty for a set without a list. Nothing, after a message, when the list is missing. Raises
/// 53, 70.
std::optional<std::string> photo_order_of_set(frmMain & main);

/// Turns the design `main.design_record`, one of the style "Frame", into the template `designs/__frames`,
/// with frames of the set `main.collage.frame_set_name`. False, after a message, when the set's photo list is
/// missing or has no photo of an orientation that the design asks for; the template then stays as it was. A
/// design that isn't found is told as well and gives an empty template. Raises 53 for a set without its
/// settings, 61, 70, 75, 76.
bool build_frames_template(frmMain & main);

/// Makes the photo list of the set `main.collage.frame_set_name`, if it is tied to one that is there, the
/// source of photos that the photo chooser opens with.
void offer_list_of_frame_set(frmMain & main);
