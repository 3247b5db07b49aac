#pragma once

#include "session/frmMain.h"

#include <string>
#include <vector>

/// The working table of photos, filled from a list, a folder or a selection.

/// Reads the list at the tag of `txtPhotos`: at most 1001 lines, the first two characters of each cut off. A
/// list that isn't there leaves `last_photo` at 0 and entry 0 as it is. Raises 70, 75.
void get_photos(frmMain & main);

/// The ".jpg" files of a folder, in either case of the letters, with their paths and in the order of their
/// names. Raises 70, 76.
std::vector<std::string> photos_in(const std::string & folder);

/// Most photos that are taken from a folder.
inline constexpr std::size_t folder_limit = 499;

/// The photos of a folder that the user has chosen: its ".jpg" files, or, where some of its photos need a
/// copy and the user wants them, all of its photos. Raises 70, 76.
std::vector<std::string> photos_of_chosen_folder(frmMain & main, const std::string & folder);

/// Fills the table with the ".jpg" files of a folder, the first 499 at most. `last_photo` is -1 for a folder
/// without any. Raises 70, 76.
void photos_of_folder(frmMain & main, const std::string & folder);

/// Lets the user choose a folder and fills the table from it, with copies of photos that need one where the
/// user wants them. A cancel leaves `last_photo` at `folder_cancelled`. Gives the folder.
std::string get_photo_folder(frmMain & main);

/// Looks at the folder of the photos in use again, without a question: photos that came are in the table,
/// those that went are not, copies that were wanted are wanted for new photos too. A table that has the same
/// photos keeps their order; a folder that is gone leaves all to the counting.
void look_again_at_folder(frmMain & main, const std::string & folder);

/// Lets the user choose image files, where the last ones came from, and gives them, or copies of those that
/// need one where the user wants them; none after a cancel.
std::vector<std::string> choose_photos(frmMain & main);

/// Lets the user choose files and appends them to the list at the tag of `txtPhotos`, which becomes
/// `last_photos.pls` when it is empty. A cancel sets `photo_choice_cancelled`.
void get_selected_photos(frmMain & main);

/// Appends photos to the working list as a selection does, raises `selected_count` and keeps it as text in
/// the tag of `cmdPhotos`. Raises 61, 70, 75, 76.
void append_to_list(frmMain & main, const std::vector<std::string> & photos);

/// Adds a line for each photo at the end of a list, which is made when it is missing. All lines or none:
/// raises 61, 70, 75, 76.
void append_photos(const std::string & list, const std::vector<std::string> & photos);

/// `piclists/last_photos.pls`, the list that a selection writes.
std::string last_photos_path(const frmMain & main);

/// True when there is a working list; otherwise the user is told.
bool check_last_list(frmMain & main);

/// Saves the working list at `target`, every line with its photo's orientation, and ends the selection: the
/// working list is deleted. A line whose photo can't be loaded is kept as landscape. Tells the user when
/// there is no working list. Raises 61, 70, 75, 76; the working list then stays.
void save_last_list(frmMain & main, const std::string & target);

/// Takes one entry out, moving the later ones down. The caller lowers `last_photo`.
void remove_photo(frmMain & main, int index);

/// Checks every entry, swaps it for its thumbnail and counts the orientations; missing photos are dropped,
/// those that can't be read stay and count as neither, both are noted as left out. Shows its progress in
/// `frmPhotoCnt`, which the caller has shown.
void count_photos(frmMain & main);

/// Puts the table in a random order.
void shuffle_photos(frmMain & main);

/// Called when the photos have run out: asks, once a selection, whether to shuffle them, and shuffles on a
/// yes.
void ask_reshuffle(frmMain & main);
