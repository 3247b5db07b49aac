#pragma once

#include <cstdint>
#include <string>
#include <utility>

/// Marks on the things in a folder that several programs share, each known by a number: while anyone uses
/// one, nobody takes it away. The marks lie in a file of the folder, which holds nothing; the system takes
/// back those of a program that ends, however it ends. Where the file system knows no locks, nothing is
/// marked and everything may be claimed.
class use_marks {
public:
    /// Marks nothing.
    use_marks() = default;
    /// Opens the file of that name in a folder that is there. Raises 70, 75, 76.
    use_marks(const std::string & folder, const std::string & name);
    use_marks(use_marks && other) noexcept : descriptor(std::exchange(other.descriptor, none)) {}
    use_marks & operator=(use_marks && other) noexcept;
    ~use_marks();

    explicit operator bool() const { return descriptor != none; }

    /// Marks one as used, until this goes; waits for whoever is just taking it away.
    void use(std::uint64_t number) const;

    /// True when nobody else uses it. From then on it is this program's alone, until `release`.
    bool claim(std::uint64_t number) const;
    void release(std::uint64_t number) const;

private:
    static constexpr int none = -1;
    int descriptor = none;
};
