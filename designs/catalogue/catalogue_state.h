#pragma once

#include "support/files/text_file.h"

#include <string>

/// Where a walk over the design catalogue stands.
struct catalogue_state {
    line_source catalogue_stream;
    bool catalogue_at_end = false;  ///< true while the stream is open: tells `close_catalogue` to work
    std::string next_section;       ///< a section name read ahead, of the next record
};
