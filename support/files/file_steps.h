#pragma once

#include <functional>
#include <string>

/// Every step by which the program changes the disk goes by here, so that a test can make each of them fail,
/// or end the process in front of it, in turn. Outside tests nothing is asked.

/// `flush_all` is one flush for all that lies below a folder.
enum class file_step { make, write, flush, rename, remove, make_folder, flush_all };

/// Asked in front of each step, with the path that it changes (of a rename: the new name). 0 lets it happen,
/// a number of the system's (ENOSPC, EACCES …) makes it fail so.
using file_gate = std::function<int(file_step, const std::string & path)>;

/// Puts a gate into force while it lives; one at a time.
class gated_files {
public:
    explicit gated_files(file_gate gate);
    gated_files(const gated_files &) = delete;
    gated_files & operator=(const gated_files &) = delete;
    ~gated_files();

private:
    file_gate held;
};

/// What the gate in force says, 0 without one.
int asked_gate(file_step step, const std::string & path);

/// Raises the error that the gate in force answers with, if it does.
void pass_gate(file_step step, const std::string & path);
