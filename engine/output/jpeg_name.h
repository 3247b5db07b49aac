#pragma once

#include <optional>
#include <string>

/// The path under which a JPEG goes that the user named so: a name without an ending gets ".jpg". Nothing for
/// a name with another ending than ".jpg" or ".jpeg", in either case. An ending is what follows the last
/// point that isn't the name's first letter, if it has no blank in it: "St. Moritz" has none.
std::optional<std::string> jpeg_path(const std::string & named);
