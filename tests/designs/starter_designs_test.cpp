// What every supplied design has to be, table by table.
#include "tests/designs/supplied_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

using namespace supplied;

TEST(starter_designs, blank_lines_stand_only_between_the_sections_of_the_catalogue)
{
    for (const char * name : {"design_list", "description_list"})
        for (const std::string & line : lines_of(name))
            EXPECT_FALSE(line.empty()) << name;
    const std::vector<std::string> lines = lines_of("designs.ini");
    EXPECT_FALSE(lines.back().empty());
    for (std::size_t i = 0; i + 1 < lines.size(); ++i)
        if (lines[i].empty()) {
            EXPECT_TRUE(lines[i + 1].starts_with("[Design")) << "line " << i + 1;
        }
}

TEST(starter_designs, every_line_of_the_catalogue_is_a_header_or_a_key_that_is_read)
{
    const std::set<std::string> known{
        "Name",        "File",         "Style",    "Design",      "Background",    "Ratio",
        "Distort",     "Sample",       "Help Tip", "Description", "System",        "Count",
        "Turn BG",     "BG Image",     "BG Color", "Match",       "Resize",        "Caption",
        "Frames",      "Shadows",      "Block",    "Soft Edge",   "Caption Color", "Caption Clear",
        "Frame Color", "Shadow Color", "Flip",     "Borders",     "Quick Shape"};
    for (const design & one : all_designs()) {
        EXPECT_EQ(one.section.size(), 9u) << one.section;
        for (const auto & [key, value] : one.keys) {
            EXPECT_TRUE(known.contains(key)) << one.section << ": " << key;
            EXPECT_FALSE(value.empty() || value.starts_with(' ') || value.ends_with(' '))
                << one.section << ": " << key;
        }
    }
}

TEST(starter_designs, the_reserved_entries_are_there_under_their_exact_names)
{
    std::map<std::string, std::string> files;
    for (const design & one : all_designs())
        if (one.reserved())
            files[one["Name"]] = one["File"];
    const std::map<std::string, std::string> wanted{
        {"Match", "__match"},         {"Quick matrix", "__quick"},  {"Matrix grid", "__matrix"},
        {"Frame_matrix", "__matrix"}, {"Lettering", "__lettering"}, {"Puzzle", "__puzzle"}};
    EXPECT_EQ(files, wanted);
}

TEST(starter_designs, names_and_files_are_each_used_once)
{
    std::set<std::string> names, files;
    for (const design & one : all_designs()) {
        EXPECT_TRUE(names.insert(one["Name"]).second) << one["Name"];
        EXPECT_TRUE(one.reserved() || files.insert(one["File"]).second) << one["File"];
    }
}

TEST(starter_designs, supplied_designs_stand_below_the_numbers_of_saved_ones_and_say_so)
{
    for (const design & one : all_designs()) {
        EXPECT_LT(std::stoi(one.section.substr(6)), 500) << one.section;
        EXPECT_EQ(one["System"], "Yes") << one.section;
        EXPECT_EQ(one["Ratio"], "2x3") << one.section;
    }
}

TEST(starter_designs, each_has_a_template_and_a_description_and_none_is_left_over)
{
    std::set<std::string> files, templates, descriptions;
    for (const design & one : starters()) {
        files.insert(one["File"]);
        EXPECT_EQ(one["Description"], one["File"]);
        EXPECT_FALSE(one["Help Tip"].empty()) << one["Name"];
    }
    for (const auto & [name, lines] : sections_of("design_list"))
        templates.insert(name);
    for (const auto & [name, lines] : sections_of("description_list"))
        descriptions.insert(name);
    EXPECT_EQ(files, templates);
    EXPECT_EQ(files, descriptions);
}

TEST(starter_designs, every_location_line_has_nine_fields_and_eight_whole_numbers)
{
    for (const auto & [name, lines] : sections_of("design_list"))
        for (const std::string & line : lines) {
            EXPECT_EQ(std::ranges::count(line, ':'), 8) << name << ": " << line;
            const fields f = split_at_colons(line);
            for (std::size_t i = 0; i < 8; ++i)
                EXPECT_TRUE(whole_number(f.at(i))) << name << ": " << line;
        }
}

TEST(starter_designs, a_template_holds_three_locations_at_least_and_no_more_lines_than_are_read)
{
    for (const design & one : starters()) {
        const std::size_t lines = places_of(one).size();
        EXPECT_LE(lines, 1001u) << one["Name"];
        EXPECT_GE(lines, one.grid() ? 2u : 3u) << one["Name"];
        if (one.grid()) {
            EXPECT_EQ(lines % 2, 0u) << one["Name"];
        }
    }
}

TEST(starter_designs, no_product_of_a_turn_leaves_sixteen_bits)
{
    for (const design & one : starters())
        for (const place & spot : places_of(one)) {
            // Grown by what soft edges and frames may add.
            EXPECT_LE((spot.height + 200) * std::abs(spot.rotation), 32767) << one["Name"];
            EXPECT_LE((spot.width + 200) * std::abs(spot.rotation), 32767) << one["Name"];
        }
}

TEST(starter_designs, tilts_are_those_that_the_rotation_table_knows)
{
    for (const design & one : starters())
        for (const place & spot : places_of(one)) {
            if (one.grid())
                continue;
            EXPECT_EQ(spot.rotation % 5, 0) << one["Name"];
            EXPECT_LE(std::abs(spot.rotation), 35) << one["Name"];
        }
}

TEST(starter_designs, nothing_hangs_over_the_poster_by_more_than_a_preview_can_show)
{
    for (const design & one : starters()) {
        if (one.grid())
            continue;
        const bool wide = one["Background"] == "Landscape";
        for (const place & spot : places_of(one)) {
            const bounds taken = bounds_of(spot);
            EXPECT_GE(std::min(taken.top, taken.left), -140) << one["Name"];
            EXPECT_LE(taken.right, (wide ? 3000 : 2000) + 140) << one["Name"];
            EXPECT_LE(taken.bottom, (wide ? 2000 : 3000) + 140) << one["Name"];
        }
    }
}

TEST(starter_designs, the_cells_of_a_grid_stay_on_the_poster)
{
    for (const design & one : starters()) {
        if (!one.grid())
            continue;
        const bool wide = one["Background"] == "Landscape";
        const std::vector<place> rows = places_of(one);
        for (std::size_t i = 0; i < rows.size(); i += 2) {
            const place & first = rows[i];
            const place & cell = rows[i + 1];
            EXPECT_GT(first.height * first.width, 0) << one["Name"];
            EXPECT_LE(first.left + first.width * (cell.width + cell.left) - cell.left, wide ? 3000 : 2000);
            EXPECT_LE(first.top + first.height * (cell.height + cell.top) - cell.top, wide ? 2000 : 3000);
        }
    }
}

TEST(starter_designs, a_count_is_the_number_of_photos_that_the_design_takes)
{
    for (const design & one : starters())
        EXPECT_EQ(one["Count"], std::to_string(photos_taken(one))) << one["Name"];
}

TEST(starter_designs, grids_do_not_turn)
{
    for (const design & one : starters())
        if (one.grid()) {
            EXPECT_EQ(one["Turn BG"], "No") << one["Name"];
        }
}

TEST(starter_designs, a_fixed_shadow_is_as_large_as_the_fixed_frame)
{
    for (const design & one : all_designs())
        if (whole_number(one["Shadows"])) {
            EXPECT_EQ(one["Shadows"], one["Frames"]) << one["Name"];
        }
}

TEST(starter_designs, a_caption_preset_is_a_text_that_may_be_printed)
{
    for (const design & one : all_designs())
        for (const char * word : {"None", "Top", "Bottom"})
            EXPECT_NE(one["Caption"], word) << one["Name"];
}

TEST(starter_designs, shapes_are_upright_square_and_never_framed_or_softened)
{
    for (const design & one : starters()) {
        const std::vector<place> places = places_of(one);
        if (one.grid() || std::ranges::none_of(places, &place::shape))
            continue;
        EXPECT_EQ(one["Background"], "Portrait") << one["Name"];
        EXPECT_EQ(one["Frames"], "None") << one["Name"];
        EXPECT_EQ(one["Match"], "No") << one["Name"];
        EXPECT_EQ(one["Design"], "Block") << one["Name"];  // it alone unticks the captions
        for (const place & spot : places) {
            EXPECT_EQ(spot.height, 0) << one["Name"];
            EXPECT_EQ(spot.rotation, 0) << one["Name"];
            EXPECT_TRUE(spot.spare >= 0 && spot.spare <= 7) << one["Name"];
        }
    }
}

TEST(starter_designs, every_picture_that_is_named_is_drawn_by_us)
{
    for (const design & one : starters()) {
        if (const std::string ground = one["BG Image"]; ground.ends_with(".jpg")) {
            EXPECT_TRUE(std::filesystem::exists(art("backgrounds", ground))) << ground;
        }
        for (const place & spot : places_of(one)) {
            if (spot.file.empty() || spot.file.starts_with('@'))
                continue;
            EXPECT_EQ(spot.shape(), !spot.file.starts_with("images/")) << spot.file;
            EXPECT_TRUE(std::filesystem::exists(art(spot.shape() ? "masks" : "pictures", spot.file)))
                << spot.file;
        }
    }
}

TEST(starter_designs, mosaics_cover_the_poster_once_and_leave_no_hole)
{
    for (const design & one : starters()) {
        if (one["File"] != "mosaic_wall" && one["File"] != "panorama")
            continue;
        const std::vector<place> places = places_of(one);
        int area = 0;
        for (const place & spot : places)
            area += spot.height * spot.width;
        EXPECT_EQ(area, 2000 * 3000) << one["Name"];
        const int wide = one["Background"] == "Landscape" ? 3000 : 2000;
        for (int y = 5; y < 5000 - wide; y += 10)
            for (int x = 5; x < wide; x += 10)
                ASSERT_EQ(std::ranges::count_if(places,
                                                [&](const place & spot) {
                                                    return x >= spot.left && x < spot.left + spot.width &&
                                                           y >= spot.top && y < spot.top + spot.height;
                                                }),
                          1)
                    << one["Name"] << " at " << x << ", " << y;
    }
}

TEST(starter_designs, together_they_reach_every_road_of_the_engine)
{
    std::map<std::string, std::set<std::string>> values;
    std::set<int> colors;
    std::set<std::size_t> layers;
    int scatters = 0;
    for (const design & one : starters()) {
        for (const auto & [key, value] : one.keys)
            values[key].insert(value);
        const std::vector<place> places = places_of(one);
        std::set<int> tilts;
        for (const place & spot : places) {
            if (!one.grid() && spot.shape())
                colors.insert(spot.spare);
            tilts.insert(spot.rotation);
        }
        if (one.grid())
            layers.insert(places.size() / 2);
        scatters += one["Design"] == "Scatter" && places.size() >= 20 && tilts.size() >= 14;
    }
    // The seven raw colours of a shape stay the user's choice: beside photos they look like toys.
    EXPECT_EQ(colors, (std::set{0}));
    EXPECT_EQ(layers, (std::set<std::size_t>{1, 3}));
    EXPECT_GE(scatters, 2);
    EXPECT_EQ(values["Style"], (std::set<std::string>{"Place", "Fill", "Matrix"}));
    EXPECT_EQ(values["Design"], (std::set<std::string>{"Block", "Scatter", "Theme", "Frame"}));
    EXPECT_EQ(values["Background"], (std::set<std::string>{"Portrait", "Landscape"}));
    // Every key of the catalogue but "Caption Color": its red has no contrast of 4.5 to any ground but black.
    EXPECT_EQ(values.size(), 28u);
    EXPECT_FALSE(values.contains("Caption Color"));
    for (const char * size : {"Adjust", "45", "Color", "None"})
        EXPECT_TRUE(values["Frames"].contains(size)) << size;
    EXPECT_TRUE(values["Soft Edge"].contains("Yes"));
    EXPECT_TRUE(values["Block"].contains("Yes"));
}

TEST(starter_designs, every_family_offers_a_choice)
{
    std::map<std::string, int> members;
    std::set<std::string> counts;
    for (const design & one : starters()) {
        ++members[one["Design"]];
        counts.insert(one["Count"]);
    }
    EXPECT_GE(members["Block"], 20);
    EXPECT_GE(members["Scatter"], 20);
    EXPECT_GE(members["Theme"], 16);
    EXPECT_GE(members["Frame"], 8);
    EXPECT_TRUE(counts.contains("3"));
    EXPECT_TRUE(counts.contains("60"));
}

TEST(starter_designs, those_of_custom_frames_come_last_and_offer_both_orientations)
{
    bool framed = false;
    std::set<std::string> orientations;
    for (const design & one : starters()) {
        EXPECT_FALSE(framed && one["Design"] != "Frame") << one["Name"];
        framed = one["Design"] == "Frame";
        if (framed)
            orientations.insert(one["Background"]);
    }
    EXPECT_EQ(orientations, (std::set<std::string>{"Portrait", "Landscape"}));
}

TEST(starter_designs, a_photo_in_a_custom_frame_lies_within_it_and_has_its_orientation)
{
    for (const design & one : starters()) {
        if (one["Design"] != "Frame")
            continue;
        const std::vector<place> places = places_of(one);
        ASSERT_EQ(places.size() % 2, 0u) << one["Name"];
        for (std::size_t i = 0; i < places.size(); i += 2) {
            const place & frame = places[i];
            const place & photo = places[i + 1];
            EXPECT_EQ(frame.file, frame.height > frame.width ? "@/pframe" : "@/lframe") << one["Name"];
            EXPECT_EQ(frame.height > frame.width, photo.height > photo.width) << one["Name"];
            EXPECT_TRUE(photo.file.empty()) << one["Name"];
            EXPECT_TRUE(frame.top < photo.top && frame.left < photo.left &&
                        photo.top + photo.height < frame.top + frame.height &&
                        photo.left + photo.width < frame.left + frame.width)
                << one["Name"];
        }
    }
}
