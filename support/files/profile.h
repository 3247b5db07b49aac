#pragma once

#include <map>
#include <string>
#include <string_view>

/// Values of a sectioned text file, read as the platform's private-profile call reads them: sections and keys
/// without case, blanks around "=" passed over, one pair of quotes taken off, lines that start with ";" are
/// comments, and of two sections with one name the first counts, of two keys likewise.
class profile {
public:
    /// Reads the file; a missing or unreadable one has no sections.
    explicit profile(const std::string & path);

    /// The value, cut to `limit` - 1 bytes, or `fallback` when section or key is missing.
    std::string value(std::string_view section, std::string_view key, std::string_view fallback = "",
                      std::size_t limit = 255) const;

private:
    std::map<std::string, std::map<std::string, std::string>> sections;  // names in lower case
};

/// The text behind "=" as such a file gives it: without blanks at its ends, without one pair of quotes, cut
/// to `limit` - 1 bytes.
std::string profile_text(std::string_view written, std::size_t limit = 255);

/// The text of such a file with that value: put in the place of the one that the key has in the first section
/// of the name, else added at that section's end; a section that isn't there is added at the end of the text.
/// A line end inside the value becomes a blank.
std::string with_profile_value(std::string_view text, std::string_view section, std::string_view key,
                               std::string_view value);
