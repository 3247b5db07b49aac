#include "recipes/recipe_text.h"

#include "recipes/read_recipe.h"
#include "support/files/text_file.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

const known_folders text_folders{
    .here = "/home/anna/holiday", .program = "/opt/tessaloom", .data = "/home/anna/data"};

control_state odd_caption()
{
    return {.caption = "tab\there",
            .tool_tip = "two\r\nlines",
            .tag = "100",
            .value = "back\\slash \\t and \xC3\xBC",
            .place = {.left = -3, .top = 4, .width = 5, .height = 6},
            .back_color = 0xFFFFFF,
            .fore_color = 1,
            .visible = false,
            .enabled = true,
            .font = {.name = "Sans", .size = 10.1, .bold = true, .underline = true}};
}

recipe some_recipe()
{
    control_state background;
    background.value = "/home/anna/data/user_images/x.jpg";
    return {
        .program = "1.2.3",
        .made = "2026-11-22 15:30:11",
        .design = "Mosaic wall",
        .photos = {{.path = "/photos/a.jpg", .bytes = 12, .changed = -5},
                   {.path = "/home/anna/holiday/b.jpg",
                    .bytes = std::numeric_limits<std::uint64_t>::max(),
                    .changed = std::numeric_limits<std::int64_t>::max(),
                    .moves_along = true},
                   {.path = "/photos/a.jpg", .bytes = 12, .changed = -5},
                   {.path = "/home/anna/data/prepared/0/c.jpg",
                    .bytes = 13,
                    .changed = 6,
                    .original = recipe_original{.path = "/home/anna/holiday/c.heic",
                                                .bytes = 9,
                                                .changed = -7,
                                                .moves_along = true}}},
        .settings = {{.name = "one", .value = ""}, {.name = "two", .value = "a=b\tc"}},
        .controls = {{.name = "txtCaption", .state = odd_caption()},
                     {.name = "txtBGimage", .state = background}},
        .forces = {{.by = recipe_force::source::style,
                    .kind = 2,
                    .control = "optNone",
                    .before = "",
                    .forced = "",
                    .option_before = "optTiny"}},
        .templates = {{.name = "__quick", .text = "1:2:3\r\n# [a]\r\n"}, {.name = "__matrix", .text = ""}},
        .chance = chance_position{.seed = ~0ULL, .reseeds = 3, .draws = 4},
        .pictures_preview = true};
}

std::string fault_in(const std::string & text)
{
    try {
        recipe_of_text(text, text_folders);
    } catch (const recipe_fault & fault) {
        return fault.what;
    }
    return {};
}

std::string with_row(const std::string & row)
{
    return "Tessaloom flurn\t1\r\n" + row + "\r\nend\r\n";
}

}  // namespace

TEST(recipe_text, comes_back_as_it_was)
{
    const recipe held = some_recipe();
    EXPECT_EQ(recipe_of_text(recipe_text(held, text_folders), text_folders), held);
    EXPECT_EQ(recipe_of_text(recipe_text({}, text_folders), text_folders), recipe{});
}

TEST(recipe_text, is_lines_of_tabs_that_tell_paths_from_their_folder)
{
    const std::string text = recipe_text(some_recipe(), text_folders);
    EXPECT_TRUE(text.starts_with("Tessaloom flurn\t2\r\nprogram\t1.2.3\r\nmade\t2026-11-22 15:30:11\r\n"));
    EXPECT_NE(text.find("\r\nphoto\there:b.jpg\t"), std::string::npos);
    EXPECT_NE(text.find("\r\noriginal\there:c.heic\t9\t-7\r\n"), std::string::npos);
    EXPECT_NE(text.find("data:user_images/x.jpg"), std::string::npos);
    EXPECT_EQ(text.find("/home/anna"), std::string::npos);
    EXPECT_TRUE(text.ends_with("\r\nend\r\n"));
}

// What an older program can follow stays open to it.
TEST(recipe_text, is_of_the_second_version_where_it_tells_of_originals)
{
    recipe held = some_recipe();
    held.photos.pop_back();
    EXPECT_TRUE(recipe_text(held, text_folders).starts_with("Tessaloom flurn\t1\r\n"));
    EXPECT_NE(fault_in(with_row("original\t/a.heic\t1\t2")), "");
    const std::string photo = "photo\t/a.jpg\t1\t2\r\n", original = "original\t/a.heic\t1\t2";
    EXPECT_EQ(fault_in(with_row(photo + original)), "");
    EXPECT_NE(fault_in(with_row(photo + original + "\r\n" + original)), "");
    EXPECT_NE(fault_in(with_row(photo + "original\t/../a.heic\t1\t2")), "");
    EXPECT_NE(fault_in(with_row(photo + "original\t/a.heic\t1")), "");
}

TEST(recipe_text, reads_line_ends_of_either_kind)
{
    std::string text = recipe_text(some_recipe(), text_folders);
    std::erase(text, '\r');
    EXPECT_EQ(recipe_of_text(text, text_folders), some_recipe());
}

TEST(recipe_text, of_a_newer_program_is_refused_with_the_remedy)
{
    EXPECT_EQ(fault_in("Tessaloom flurn\t3\r\nwhatever\r\nend\r\n"),
              "It was made by a newer Tessaloom. Open it with that one, or bring this one up to date.");
}

TEST(recipe_text, cut_short_anywhere_is_refused)
{
    const std::string text = recipe_text(some_recipe(), text_folders);
    for (std::size_t length = 0; length + 2 < text.size(); ++length)
        EXPECT_FALSE(fault_in(text.substr(0, length)).empty()) << length;
    EXPECT_EQ(fault_in(text.substr(0, text.size() - 6)), "It was cut short.");
}

TEST(recipe_text, of_another_kind_is_refused)
{
    using namespace std::string_literals;
    for (const std::string & text :
         {""s, "\xFF\xD8\xFF\xE0"s, "[Design001]\r\n"s, "Tessaloom flurn\r\nend\r\n"s,
          "Tessaloom flurn\t0\r\nend\r\n"s, "Tessaloom flurn\t-1\r\nend\r\n"s,
          "Tessaloom flurn\t99999999999999\r\nend\r\n"s, "Tessaloom flurn\tone\r\nend\r\n"s,
          "Tessaloom flurn\t1\r\nprogram\t1\0\r\nend\r\n"s, std::string(largest_recipe + 1, 'a')})
        EXPECT_FALSE(fault_in(text).empty()) << text.substr(0, 40);
}

TEST(recipe_text, with_a_row_that_no_recipe_has_is_refused)
{
    for (const char * row : {"",
                             "unknown\tx",
                             "photo\t/a.jpg",
                             "photo\t/a.jpg\t-1\t0",
                             "photo\t/a.jpg\t1\tx",
                             "photo\ta.jpg\t1\t1",
                             "photo\t../a.jpg\t1\t1",
                             "photo\there:../a.jpg\t1\t1",
                             "setting\tone",
                             "setting\t\tx",
                             "program",
                             "setting\tone\tx\r\nsetting\tone\ty",
                             "line\tx",
                             "template\t../x",
                             "template\tdesigns.ini",
                             "template\t__quick\r\ntemplate\t__quick",
                             "template\t__quick\r\nline\ta\\nb",
                             "chance\t1\t2",
                             "chance\t1\t99999999999\t0",
                             "chance\t-1\t0\t0",
                             "forced\tnobody\t0\ta\tb\tc\td",
                             "forced\tstyle\t4\ta\tb\tc\td",
                             "setting\tone\t\\",
                             "setting\tone\t\\q",
                             "preview\t1",
                             "control\tx\t\t\t\t\t0\t0\t0\t99999\t0\t0\t1\t1\t\t8\t0\t0\t0\t0",
                             "control\tx\t\t\t\t\t0\t0\t0\t0\t0\t0\t2\t1\t\t8\t0\t0\t0\t0",
                             "control\tx\t\t\t\t\t0\t0\t0\t0\t0\t0\t1\t1\t\tnan\t0\t0\t0\t0",
                             "control\tx\t\t\t\t\t0\t0\t0\t0\t0\t0\t1\t1\t\t1e9\t0\t0\t0\t0",
                             "control\tx",
                             "end\r\nprogram\t1"})
        EXPECT_FALSE(fault_in(with_row(row)).empty()) << row;
    EXPECT_EQ(fault_in(with_row("control\tx\t\t\t\t\t0\t0\t0\t0\t0\t0\t1\t1\t\t8\t0\t0\t0\t0")), "");
}

TEST(recipe_text, with_more_than_a_recipe_may_have_is_refused)
{
    std::string photos, lines = "template\t__quick\r\n", settings;
    for (int i = 0; i < 1002; ++i) {
        photos += "photo\t/a.jpg\t1\t1\r\n";
        lines += "line\t0:0:1:1\r\n";
        settings += "setting\tx" + std::to_string(i) + "\t1\r\n";
    }
    for (const std::string & rows : {photos, lines, settings})
        EXPECT_FALSE(fault_in("Tessaloom flurn\t1\r\n" + rows + "end\r\n").empty()) << rows.substr(0, 20);
    EXPECT_FALSE(fault_in(with_row("setting\tone\t" + std::string(200'000, 'a'))).empty());
}

TEST(recipe_text, holds_a_background_that_leads_elsewhere_for_none)
{
    const recipe read = recipe_of_text(
        with_row("control\ttxtBGimage\t\t\t\tdata:../../x.jpg\t0\t0\t0\t0\t0\t0\t1\t1\t\t8\t0\t0\t0\t0"),
        text_folders);
    EXPECT_EQ(control_in(read, "txtBGimage")->state.value, "");
}
