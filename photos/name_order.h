#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The order in which a folder shows its files: by name, capitals beside their small letters, numbers as
/// numbers ("2.jpg" before "10.jpg"). It is the same on every machine, whatever its language and file system.

/// True when `name` stands in front of `other`. Names that differ in case or in leading zeros alone stand in
/// the order of their bytes, so that no two are equal but a name and itself.
bool stands_before(std::string_view name, std::string_view other);

/// The names in their order.
std::vector<std::string> in_name_order(std::vector<std::string> names);
