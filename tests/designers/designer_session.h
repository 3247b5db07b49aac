#pragma once

#include "tests/session/opened_session.h"

#include <string>
#include <vector>

/// A loaded session with the supplied catalogue and a list of two small photos, one of either orientation.
struct designer_session : opened_session {
    designer_session();

    void will_cancel_photos();

    /// The lines of a template below `designs`; none when it isn't there.
    std::vector<std::string> lines_of(const std::string & name) const;

    /// A frame set without a photo list.
    void make_frame_set(const std::string & name, int captions) const;

    std::string list;
};
