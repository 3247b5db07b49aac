#pragma once

#include "engine/photo/known_files.h"
#include "session/frmMain.h"

/// What the files of the photos are, each looked at once a round, by another core: however slow the disk that
/// they lie on, the window lets events through.

/// Begins another round: what was known is asked for anew. A header is only read when its file has changed.
void look_anew(frmMain & main);

/// The photo's file. With one of the table those behind it that weren't looked at yet are looked at as well.
/// Raises run_cancelled, here and below.
const known_file & file_of(frmMain & main, const std::string & path);

/// Forgets the file in this round: it has changed since.
void forget_file(frmMain & main, const std::string & path);

/// The size of a photo, nothing for one that is gone or no photo.
std::optional<picture_size> size_of_photo(frmMain & main, const std::string & path);
