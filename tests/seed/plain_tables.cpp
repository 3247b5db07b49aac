#include "tests/seed/plain_tables.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

double plain::cell::ratio() const
{
    return static_cast<double>(std::max(height, width)) / std::min(height, width);
}

std::vector<std::string> plain::lines_of(const std::string & name)
{
    std::ifstream file(SEED_FOLDER "/" + name, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << name << ": " << line;
        EXPECT_FALSE(file.eof()) << name << ": the last line has no end";
        lines.push_back(line.substr(0, line.size() - 1));
    }
    return lines;
}

std::vector<std::string> plain::split(const std::string & line)
{
    std::vector<std::string> fields;
    std::istringstream text(line);
    for (std::string field; std::getline(text, field, ':');)
        fields.push_back(field);
    return fields;
}

int plain::number(const std::string & text)
{
    std::size_t used = 0;
    const int value = std::stoi(text, &used);
    EXPECT_EQ(used, text.size()) << text;
    return value;
}

std::vector<std::string> plain::section(const std::vector<std::string> & lines, const std::string & name)
{
    auto line = std::ranges::find(lines, "[" + name + "]");
    std::vector<std::string> found;
    for (line += line != lines.end(); line != lines.end() && !line->starts_with('['); ++line)
        if (!line->starts_with('#'))
            found.push_back(*line);
    return found;
}

bool plain::tiles(const std::vector<cell> & cells, int width, int height)
{
    const auto inside = [&](const cell & one) {
        return one.top >= 0 && one.left >= 0 && one.height > 0 && one.width > 0 &&
               one.top + one.height <= height && one.left + one.width <= width;
    };
    const auto apart = [](const cell & one, const cell & other) {
        return one.top + one.height <= other.top || other.top + other.height <= one.top ||
               one.left + one.width <= other.left || other.left + other.width <= one.left;
    };
    int area = 0;
    for (auto one = cells.begin(); one != cells.end(); ++one) {
        area += one->height * one->width;
        if (!inside(*one) ||
            !std::all_of(one + 1, cells.end(), [&](const cell & other) { return apart(*one, other); }))
            return false;
    }
    return area == width * height;
}
