#pragma once

#include "intake/intake_photo.h"
#include "session/frmMain.h"

#include <optional>
#include <string>
#include <vector>

/// Photos that a collage can't take as they are: in the window a copy of each is offered.

/// Whether the user is asked before copies are made.
enum class copies_wanted { asked, anyway };

/// The files that a collage takes for these photos, in their order: the photo itself, or its copy. Nothing
/// where all is to be as without copies: none of them needs one, the user said no or closed the small window
/// that tells how far it is, or the data folder can't be written, which is told. Photos that no copy can be
/// made of are told of; those that the collage would look at itself are left to it.
std::optional<std::vector<std::string>> photos_with_copies(frmMain & main, std::vector<intake_photo> seen,
                                                           copies_wanted wanted);

/// The same for files that were chosen; without copies the files themselves.
std::vector<std::string> chosen_files_with_copies(frmMain & main, const std::vector<std::string> & files);

/// Copies of photos that had some already, in their order, without a question and without a word of those
/// that none can be made of; these aren't `ready`. Nothing where the user closed the small window.
std::optional<std::vector<intake_photo>> copies_made_again(frmMain & main, std::vector<intake_photo> seen);

/// The shelf of copies that this session uses, made when it is asked for first. Raises 61, 70, 75, 76.
prepared_shelf & copies_of_session(frmMain & main);

/// What is asked: "12 of the 40 photos are turned or in another format. Prepare copies that fit?"
std::string question_of_copies(std::size_t needing, std::size_t all);
