#pragma once

#include "session/undo/keep_history.h"
#include "tests/quick/quick_session.h"

#include <string>
#include <vector>

/// What a user has before him.
struct sight {
    std::vector<control_state> controls;
    std::vector<std::string> photos;
    std::string picture, shown_file;
    bool operator==(const sight &) const = default;
};

/// A session that keeps its history, in the finishing stage of a quick collage.
struct undo_session : quick_session {
    undo_session();

    sight seen() const;
    bool undo();  ///< false when there is nothing to undo, here and below
    bool redo();

    change_history history;
};
