#pragma once

#include <functional>
#include <string>

/// Copies one file, overwriting. Raises 53, 61, 70, 75. The copy is whole or not there.
void copy_file(const std::string & from, const std::string & to);

/// Fills a folder that nobody uses yet, with all that lies in another one: the disk has the files for sure
/// only after `flush_below`. `copied` is told of each. Raises as copy_file.
void fill_folder(const std::string & from, const std::string & to, const std::function<void()> & copied);

/// Copies a folder with all that lies in it, overwriting files of the same name. Raises as copy_file.
void copy_folder(const std::string & from, const std::string & to);
