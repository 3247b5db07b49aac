#pragma once

#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>

/// The classic numbers of the platform's run-time errors, as far as the system meets them.
enum class error_number {
    invalid_call = 5,
    overflow = 6,
    out_of_memory = 7,
    subscript = 9,
    file_not_found = 53,
    file_exists = 58,
    disk_full = 61,
    past_end_of_file = 62,
    permission_denied = 70,
    path_access = 75,
    path_not_found = 76,
};

/// What the platform would raise. `what()` says what failed, `path` on which file (empty when no file is
/// involved).
struct platform_error : std::runtime_error {
    platform_error(error_number raised, const std::string & what_failed, std::string on_file = {})
        : std::runtime_error(what_failed), number(raised), path(std::move(on_file))
    {}
    error_number number;
    std::string path;
};

/// Leaves the program at once: thrown by start-up after its message has been shown, caught by `main` alone.
struct end_of_program {
    int status = 1;
};

/// The number as the user reads it.
int code(const platform_error & error);

/// What failed and, in a line of its own, on which file: the part of a box that says what to mend.
std::string told(const platform_error & error);

/// The error that the system's own number (errno) stands for, with the path it happened on.
platform_error from_system(int system_number, const std::string & path);

/// Runs `step`; what libraries throw (memory, file system) comes out as a platform_error, our own bugs as
/// they are.
template <typename Step>
auto with_platform_errors(Step step)
{
    try {
        return step();
    } catch (const std::bad_alloc &) {
        throw platform_error(error_number::out_of_memory, "Out of memory");
    } catch (const std::filesystem::filesystem_error & error) {
        throw from_system(error.code().value(), error.path1().string());
    }
}

/// True when `step` went through. What the platform raises in it is let go without a word: for steps that
/// nothing depends on, such as a clean-up.
template <typename Step>
bool tried(Step step)
{
    try {
        step();
        return true;
    } catch (const platform_error &) {
        return false;
    }
}
