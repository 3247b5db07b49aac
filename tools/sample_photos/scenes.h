#pragma once

#include "canvas.h"

#include <string>
#include <vector>

enum class format { landscape, portrait };

/// A sample photo: its file name without ending, its format and who draws it.
struct scene {
    std::string name;
    format held;
    void (*draw)(canvas & photo);
};

/// All of them, in the order of their names' numbers.
std::vector<scene> all_scenes();
