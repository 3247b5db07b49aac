#pragma once

#include "batch/arguments.h"
#include "engine/output/flurn_file.h"
#include "session/frmMain.h"

#include <functional>
#include <string>

/// A poster that is made, in the size in which it is wanted.
struct made_poster {
    picture_size size;
    std::function<std::string()> jpeg;
    std::function<std::string(const picture_encoder &)> encoded;  ///< what the encoder makes of its pixels
};

/// The bytes of the file that the job asks for: the poster as JPEG, PNG or TIFF, or on the page of a PDF.
std::string poster_file(frmMain & main, const batch_arguments & arguments, const made_poster & poster);
