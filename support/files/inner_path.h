#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Names that came from elsewhere (an archive, a manifest, a catalogue that others wrote) and are to lead to
/// a place below a folder of ours.

/// True for a name that is one file or folder on every system: not empty, at most 200 bytes, no separator, no
/// control character or one of `:*?"<>|`, not "." or "..", no dot or blank at its end, not a device's name
/// ("con", "lpt1.txt").
bool is_plain_name(std::string_view name);

/// The path with "/" between its names, when each of them is a plain one: at most eight of them, separators
/// of either kind, none in front. Nothing for any other text.
std::optional<std::string> inner_path(std::string_view text);

/// The text fit for a message of one line: control characters shown as "?", cut at 120 bytes.
std::string shown_in_message(std::string_view text);
