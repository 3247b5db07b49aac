#include "tests/designs/supplied_tables.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <numbers>
#include <sstream>

namespace supplied {

std::string bytes_of(const std::string & name)
{
    std::ifstream file(std::string(SEED_FOLDER "/") + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    std::ostringstream all;
    all << file.rdbuf();
    return all.str();
}

std::vector<std::string> lines_of(const std::string & name)
{
    std::vector<std::string> lines;
    std::istringstream text(bytes_of(name));
    for (std::string line; std::getline(text, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << name << ": " << line;
        line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

section_lines sections_of(const std::string & name)
{
    section_lines sections;
    std::string header;
    for (const std::string & line : lines_of(name)) {
        if (line.starts_with('[')) {
            header = line.substr(1, line.size() - 2);
            EXPECT_FALSE(sections.contains(header)) << name << ": " << header << " comes twice";
            sections[header];
        } else {
            sections[header].push_back(line);
        }
    }
    return sections;
}

std::vector<design> all_designs()
{
    std::vector<design> found;
    for (const auto & [section, lines] : sections_of("designs.ini")) {
        found.push_back({section, {}});
        for (const std::string & line : lines)
            if (const auto sign = line.find('='); sign != std::string::npos) {
                EXPECT_TRUE(found.back().keys.emplace(line.substr(0, sign), line.substr(sign + 1)).second)
                    << line;
            }
    }
    return found;
}

std::vector<design> starters()
{
    std::vector<design> found = all_designs();
    std::erase_if(found, [](const design & one) { return one.reserved(); });
    return found;
}

fields split_at_colons(const std::string & line)
{
    fields found;
    std::istringstream text(line + ":");
    for (std::string field; std::getline(text, field, ':');)
        found.push_back(field);
    return found;
}

std::vector<place> places_of(const design & one)
{
    static const section_lines templates = sections_of("design_list");
    std::vector<place> places;
    for (const std::string & line : templates.at(one["File"])) {
        const fields f = split_at_colons(line);
        const auto n = [&](std::size_t i) { return std::stoi(f.at(i)); };
        places.push_back({n(0), n(1), n(2), n(3), n(4), n(5), n(6), n(7), f.at(8)});
    }
    return places;
}

bounds bounds_of(const place & one)
{
    const double c = std::cos(one.rotation * std::numbers::pi / 180);
    const double s = std::sin(one.rotation * std::numbers::pi / 180);
    const int width = one.width ? one.width : one.height;
    const int height = one.height ? one.height : one.width;
    bounds found;
    for (const auto & [x, y] : {std::pair{0, 0}, {width, 0}, {0, height}, {width, height}}) {
        found.left = std::min(found.left, one.left + x * c - y * s);
        found.right = std::max(found.right, one.left + x * c - y * s);
        found.top = std::min(found.top, one.top + x * s + y * c);
        found.bottom = std::max(found.bottom, one.top + x * s + y * c);
    }
    return found;
}

int photos_taken(const design & one)
{
    const std::vector<place> places = places_of(one);
    if (!one.grid())
        return static_cast<int>(std::ranges::count_if(places, &place::takes_photo));
    int cells = 0;
    for (std::size_t i = 0; i < places.size(); i += 2)
        cells += places[i].height * places[i].width;
    return cells;
}

bool whole_number(const std::string & text)
{
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    return text.size() > sign && text.find_first_not_of("0123456789", sign) == std::string::npos;
}

std::string art(const std::string & kind, const std::string & file)
{
    return std::string(SEED_FOLDER "/art/") + kind + "/" + std::filesystem::path(file).stem().string() +
           ".svg";
}

}  // namespace supplied
