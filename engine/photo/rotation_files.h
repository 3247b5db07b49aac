#pragma once

#include "support/MFreeImage.h"
#include "support/files/paths.h"
#include "support/files/profile.h"

#include <optional>
#include <string>

/// What is kept of the white sheet: its pixels are loaded again in the odd case that it isn't white all over.
struct white_sheet {
    picture_size size;  ///< 0 by 0 when the file is missing
    bool plain = true;  ///< white all over
};

/// The two files that every tilted photo needs, kept between photos as long as the files stay as they were.
struct rotation_files {
    std::string table_path, sheet_path;
    std::optional<file_stamp> table_stamp, sheet_stamp;
    std::optional<profile> table;
    std::optional<white_sheet> sheet;
};
