#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// What the decoder, a process of its own, says of a file: two letters, and the picture where there is one.
/// Neither the letters nor the picture are trusted.

/// Why there is no picture.
enum class decode_fault : std::uint8_t {
    damaged = 'd',
    too_large = 'l',  ///< more pixels than a collage takes
    not_known = 'k',  ///< a kind of picture that the decoder doesn't read
    no_memory = 'm',
    too_slow = 't',     ///< it had to be ended
    broken_down = 'b',  ///< the decoder itself failed on the file
    no_decoder = 'n',   ///< there is no such program
    stopped = 's'       ///< by the user
};

/// What keeps the decoder from what it has no business with.
enum class sandbox : std::uint8_t {
    none = 'n',   ///< the system offers nothing of the kind
    files = 'f',  ///< no file can be opened
    calls = 'c',  ///< only calls of the system that a decoder needs are answered
    all = 'a'     ///< both
};

struct decoder_answer {
    std::optional<decode_fault> fault{};
    sandbox kept_by = sandbox::none;
    std::string jpeg{};
};

/// The letter in front of a picture.
inline constexpr char picture_follows = 'p';

/// The answer that was read; one that was cut short or makes no sense says that the decoder broke down.
decoder_answer answer_of(const std::string & read);

/// For people: "it is damaged".
std::string told(decode_fault fault);
