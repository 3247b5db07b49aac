#pragma once

#include <string>
#include <string_view>

/// A fresh folder that goes with all it holds at the end of the test.
class temporary_folder {
public:
    temporary_folder();
    temporary_folder(const temporary_folder &) = delete;
    temporary_folder & operator=(const temporary_folder &) = delete;
    ~temporary_folder();

    const std::string & path() const { return folder; }
    /// The path of `name` in the folder; folders on the way are made.
    std::string at(std::string_view name) const;
    /// Writes a file and gives its path.
    std::string write(std::string_view name, std::string_view bytes) const;

private:
    std::string folder;
};

/// Puts a program folder there as `from` has it; what is large and only read, the pictures, by a link.
void stage_program(const std::string & from, const std::string & to);

/// An ordinary user while it lives, so that write protection counts for a suite that runs as root. Folders of
/// the test that this user has to reach have to be opened to everyone first.
class as_ordinary_user {
public:
    as_ordinary_user();
    as_ordinary_user(const as_ordinary_user &) = delete;
    as_ordinary_user & operator=(const as_ordinary_user &) = delete;
    ~as_ordinary_user();
};

/// No file of this process can grow beyond `bytes` while it lives: a disk that is full.
class full_disk {
public:
    explicit full_disk(unsigned long bytes);
    full_disk(const full_disk &) = delete;
    full_disk & operator=(const full_disk &) = delete;
    ~full_disk();

private:
    unsigned long before;
};
