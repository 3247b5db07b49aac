#pragma once

#include <cstdint>
#include <string>

struct batch_arguments;

/// The kind of a file, as the ending of its name tells it; standard output gets a JPEG.
enum class output_kind : std::uint8_t { jpeg, png, tiff, pdf };

/// By .jpg, .jpeg, .png, .tif, .tiff or .pdf, in either case of the letters. Throws bad_arguments for a name
/// with none of them.
output_kind kind_of_output(const std::string & out);

/// Throws bad_arguments for such a name too, and for what is said of the page of a file that has none.
void check_output_kind(const batch_arguments & arguments);
