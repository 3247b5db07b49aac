#pragma once

#include "support/MFreeImage.h"
#include "support/profile.h"

#include <cstdint>
#include <optional>
#include <string>

/// What the white sheet tells: a mask takes its size and, where it isn't white all over, its pixels.
struct white_sheet {
    picture_size size;  ///< 0 by 0 when the file is missing
    bool plain = true;  ///< white all over
};

/// The two files that every tilted photo needs, kept between photos as long as the files stay as they were.
struct rotation_files {
    std::string table_path, sheet_path;
    std::int64_t table_stamp = 0, sheet_stamp = 0;
    std::optional<profile> table;
    std::optional<white_sheet> sheet;
};
