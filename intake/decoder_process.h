#pragma once

#include "intake/decoder_answer.h"
#include "intake/picture_kind.h"

#include <atomic>
#include <chrono>

/// Starts decoders, each for one file. Several threads may do so at once.
struct decoder {
    std::string program;  ///< path of tessaloom-decode
    std::chrono::milliseconds patience = std::chrono::seconds(120);
    std::size_t largest_answer = std::size_t{1} << 30U;
};

/// The decoder's program lies in the folder of the others.
decoder decoder_in(const std::string & program_folder);

/// What it makes of the file; waits for it. A decoder that is too slow, or that `stop` comes to, is ended.
/// Raises 53, 70, 75 for a file that can't be opened.
decoder_answer answer_for(const decoder & used, const std::string & path, picture_kind kind,
                          const std::atomic<bool> & stop);
