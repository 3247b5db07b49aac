#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// An advisory lock on a folder: one program at a time holds it, among those that ask. The system takes it
/// back when the program ends, however it ends; programs that it starts don't inherit it.
class folder_lock {
public:
    /// Holds nothing.
    folder_lock() = default;
    folder_lock(folder_lock && other) noexcept : descriptor(std::exchange(other.descriptor, none)) {}
    folder_lock & operator=(folder_lock && other) noexcept;
    ~folder_lock();

    /// Takes the lock `name` of a folder that is there; nothing while somebody else holds it. It is a file of
    /// that name, which holds nothing and stays. Where no file can be made, or the file system knows no
    /// locks, nobody can hold one: there it always succeeds. Raises 70, 75, 76 for anything else.
    static std::optional<folder_lock> taken(const std::string & folder, std::string_view name);

private:
    static constexpr int none = -1;
    explicit folder_lock(int opened) : descriptor(opened) {}

    int descriptor = none;
};
