#pragma once

#include <string>

/// Copies one file, overwriting. Raises 53, 61, 70, 75. The copy is whole or not there.
void copy_file(const std::string & from, const std::string & to);

/// Copies a folder with all that lies in it, overwriting files of the same name. Raises as copy_file.
void copy_folder(const std::string & from, const std::string & to);
