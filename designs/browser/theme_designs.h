#pragma once

#include <string>

/// One design of the browser's listing.
struct theme_designs {
    std::string Name;    ///< as it is shown
    std::string Number;  ///< the section of the catalogue
    std::string Help_Tip;
    std::string own_name{};  ///< as it stands in the catalogue, where others may have the same
    std::string sample{};    ///< the file of its sample, empty where it has none
    bool operator==(const theme_designs &) const = default;
};

/// The slots of a page stand in two columns, 0 to 6 and 8 to 14; slot 7 ends neither.
inline constexpr int designs_on_page = 14, slot_count = 15, right_column = 8;
