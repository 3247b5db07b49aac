#pragma once

#include "photos/lists/photo_table.h"
#include "session/frmMain.h"

#include <string>

/// The small pictures of the list editor. They lie beside the photos in folders `__thumbs`, are made once and
/// kept.

enum class bad_file { silent, told };

/// The image library's format code of a file, by its name, -1 when there is none: then `base` is empty and
/// the user is told if that is wanted. `base` takes the path without its extension.
int chk_imagefile(frmMain & main, const std::string & path, std::string & base, bad_file report);

/// A photo as a cell shows it.
struct edit_thumbnail {
    std::string file;  ///< the photo itself where no thumbnail can be written
    orientation shape = orientation::portrait;
};

/// "…/__thumbs/a.jpg" for "…/a.jpg".
std::string edit_thumbnail_path(const std::string & photo);

/// Makes the folder of a photo's thumbnail. False when a file of its name is in the way.
bool make_thumbnail_folder(const std::string & photo);

/// The photo's thumbnail, made if it isn't there: 68 by 51 pixels when the photo is wider than high, else 51
/// by 68. The window stays alive meanwhile. Raises 53, 5 for a file that can't be loaded, 6 for a photo of
/// 32,768 pixels or more in one direction.
edit_thumbnail thumbnail_for_editing(frmMain & main, const std::string & photo);
