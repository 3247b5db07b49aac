#pragma once

#include "support/cores.h"

#include <future>
#include <map>
#include <string>

/// The thumbnails that other cores make while the photos before them in the table are looked at.
struct thumbnails_ahead {
    int at_once = usable_cores();
    int next = 0;  ///< of the table: the first photo that wasn't looked at yet
    /// By photo, what chk_sample_thumb is to give.
    std::map<std::string, std::future<std::string>> begun{};
};
