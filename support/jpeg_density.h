#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The size on paper that a JPEG tells in its JFIF header.

/// The JPEG with so many pixels an inch, 1 to 65535; one without that header, right at its start, stays as it
/// is.
std::string with_density(std::string jpeg, int dpi);

/// The pixels an inch that its header tells, across; nothing where it tells none.
std::optional<int> density_of(std::string_view jpeg);
