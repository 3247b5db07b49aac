#pragma once

#include "intake/intake_photo.h"

#include <vector>

/// How far down folders are walked.
enum class walk : std::uint8_t { one_folder, all_folders };

/// The photos behind the paths that a user names, in that order: files, photo lists and folders. Of a folder
/// they are its photos in the order of their names, then, walking all, those of the folders in it, but for
/// hidden ones and for thumbnails; links to folders aren't followed. A path that can't be read is there as a
/// refused photo.
std::vector<intake_photo> gathered(const std::vector<std::string> & paths, walk how);

/// Files with the same bytes.
struct double_photo {
    std::string path, first;  ///< the one that came later, and the one that it equals
};

/// Takes those photos out that have the same bytes as one before them, and tells of them.
std::vector<double_photo> taken_out_doubles(std::vector<intake_photo> & photos);
