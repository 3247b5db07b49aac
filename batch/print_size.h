#pragma once

#include "batch/arguments.h"
#include "engine/render_scale.h"

#include <cstdint>
#include <string>

/// Posters for print: drawn finer than the full size, with a file that tells how large it is on paper.

/// How finely the poster is to be drawn.
render_scale drawn_scale(const batch_arguments & arguments);

/// Bytes that a poster of full size takes at that scale, roughly: the canvas with its bleed, the finished
/// poster beside it, its file, and the photos that are read meanwhile.
std::uint64_t memory_for(const render_scale & scale);

/// Raises out_of_memory (7), in words for the caller, for a larger scale than 1 that would take more than
/// `available` bytes.
void check_memory(const render_scale & scale, std::uint64_t available);

/// The pixels an inch that are asked for: 300 for a scale without them.
std::optional<int> asked_dpi(const batch_arguments & arguments);

/// The file with the pixels an inch that are asked for; one for which nothing was asked stays as
/// it is.
std::string with_asked_dpi(std::string jpeg, const batch_arguments & arguments);
