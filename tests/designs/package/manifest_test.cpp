#include "designs/package/manifest.h"

#include "support/files/text_file.h"

#include <gtest/gtest.h>

namespace {

std::vector<manifest_command> commands(const std::string & text)
{
    return commands_of_manifest(lines_of_text(text));
}

}  // namespace

TEST(manifest, knows_each_command_by_the_start_of_its_line)
{
    const auto read = commands(
        "a note\n$$$ MSG Hearts\n$$$ NEW  frames\\heart\n$$$ NAME abcdef designs\\heart\n$$$ icons\nsun "
        "sun.bmp\n"
        "$$$ designs.ini 650\n[Design650]\nName=Heart\n$$$\nanother note\n");
    ASSERT_EQ(read.size(), 5U);
    EXPECT_EQ(read[0].step, manifest_step::title);
    EXPECT_EQ(read[0].text, "Hearts");
    EXPECT_EQ(read[1].step, manifest_step::new_folder);
    EXPECT_EQ(read[1].target, "frames\\heart");
    EXPECT_EQ(read[2].step, manifest_step::payload);
    EXPECT_EQ(read[2].text, "abcdef");
    EXPECT_EQ(read[2].target, "designs\\heart");
    EXPECT_EQ(read[3].step, manifest_step::icon);
    EXPECT_EQ(read[3].lines, text_lines{"sun sun.bmp"});
    EXPECT_EQ(read[4].step, manifest_step::section);
    EXPECT_EQ(read[4].number, 650);
    EXPECT_EQ(read[4].lines, (text_lines{"[Design650]", "Name=Heart"}));
}

TEST(manifest, passes_over_lines_that_only_look_like_commands)
{
    for (const char * line : {"$$$", "$$$ MSG", "$$$ NEW frames\\one_blank", "$$$ msg x", " $$$ MSG x",
                              "$$$ NAME", "$$$ designs", "[Design600]", ""})
        EXPECT_TRUE(commands(line).empty()) << line;
}

TEST(manifest, a_short_name_misreads_the_columns)
{
    const auto read = commands("$$$ NAME abc designs\\heart\n$$$ NAME ab\n$$$ NAME abcdef\n");
    ASSERT_EQ(read.size(), 3U);
    EXPECT_EQ(read[0].text, "abc de");
    EXPECT_EQ(read[0].target, "igns\\heart");
    EXPECT_EQ(read[1].text, "ab");
    EXPECT_EQ(read[1].target, "");
    EXPECT_EQ(read[2].text, "abcdef");
    EXPECT_EQ(read[2].target, "");
}

TEST(manifest, an_icon_takes_the_next_line_whatever_it_says)
{
    const auto read = commands("$$$ icons\n$$$ MSG x\n$$$ icons");
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(read[0].lines, text_lines{"$$$ MSG x"});
    EXPECT_TRUE(read[1].lines.empty());
}

TEST(manifest, a_section_ends_at_three_dollars_alone_or_at_the_end)
{
    const auto read = commands("$$$ designs.ini 7\na\n$$$ \n$$$ MSG x\n$$$\n$$$ designs.ini\nb");
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(read[0].lines, (text_lines{"a", "$$$ ", "$$$ MSG x"}));
    EXPECT_EQ(read[1].lines, text_lines{"b"});
    EXPECT_EQ(read[1].number, 0);
}

TEST(manifest, a_number_beyond_all_numbers_stands_behind_all_sections)
{
    EXPECT_EQ(commands("$$$ designs.ini 1e999\n")[0].number, 999);
}

TEST(manifest, a_byte_order_mark_is_no_part_of_the_first_line)
{
    EXPECT_EQ(manifest_lines("\xEF\xBB\xBF$$$ MSG Hearts\r\nx"), (text_lines{"$$$ MSG Hearts", "x"}));
    EXPECT_EQ(manifest_lines("x\n\xEF\xBB\xBFy"), (text_lines{"x", "\xEF\xBB\xBFy"}));
    EXPECT_EQ(manifest_lines(""), text_lines{});
}

TEST(manifest, six_characters_of_a_name_may_be_more_bytes)
{
    struct row {
        const char *line, *name, *target;
    };
    for (const row & each :
         {row{"\xC3\xA4\xC3\xB6\xC3\xBC.jp designs\\x", "\xC3\xA4\xC3\xB6\xC3\xBC.jp", "designs\\x"},
          row{"\xE4\xF6\xFC.jp designs\\x", "\xE4\xF6\xFC.jp", "designs\\x"},  // no UTF-8: bytes
          row{"\xE2\x82\xAC"
              "bcdef designs\\x",
              "\xE2\x82\xAC"
              "bcdef",
              "designs\\x"},
          row{"abcde\xC3", "abcde\xC3", ""}}) {
        const auto read = commands(std::string("$$$ NAME ") + each.line + "\n");
        EXPECT_EQ(read.at(0).text, each.name);
        EXPECT_EQ(read.at(0).target, each.target);
    }
}

TEST(manifest, each_command_knows_its_line)
{
    const auto read =
        commands("a note\n$$$ icons\nsun sun.bmp\n\n$$$ designs.ini 1\nName=x\nFile=..\\x\n$$$\n$$$ MSG x\n");
    ASSERT_EQ(read.size(), 3U);
    EXPECT_EQ(read[0].line, 2U);
    EXPECT_EQ(read[1].line, 5U);
    EXPECT_EQ(read[2].line, 9U);
    EXPECT_EQ(way_out(read[1]), (numbered_line{.line = 7, .text = "..\\x"}));
    EXPECT_EQ(unknown_commands(lines_of_text("x\n$$$ what\n")),
              (std::vector<numbered_line>{{.line = 2, .text = "$$$ what"}}));
}

TEST(payload_place, is_a_file_in_a_folder_that_packages_use)
{
    EXPECT_EQ(payload_place("designs\\heart", {}), "designs/heart");
    EXPECT_EQ(payload_place("Frames/My set/pframe00.jpg", {}), "frames/My set/pframe00.jpg");
    EXPECT_EQ(payload_place("icons\\sun.bmp", {}), "icons/sun.bmp");
    EXPECT_EQ(payload_place("hearts\\a.jpg", {}), std::nullopt);
    EXPECT_EQ(payload_place("hearts\\a.jpg", {"hearts"}), "hearts/a.jpg");
    for (const char * text :
         {"designs.ini", "heart", "designs", "tmp\\finished.jpg", "images\\white.jpg", "help\\x.htm",
          "bin\\tessaloom", "icons\\icons", "icons\\ICONS.NEW", "icons\\icons.bbb", "designs\\__quick",
          "designs\\x.part", "piclists\\__last__.pls", "piclists\\last_photos.pls", "samples\\not_yet.jpg",
          "frames\\_named_.not", "frames\\_named_.not\\captions"})
        EXPECT_EQ(payload_place(text, {}), std::nullopt) << text;
}

TEST(folder_place, is_below_such_a_folder_or_beside_them)
{
    EXPECT_EQ(folder_place("frames\\heart"), "frames/heart");
    EXPECT_EQ(folder_place("user_images/a/b"), "user_images/a/b");
    EXPECT_EQ(folder_place("hearts"), "hearts");
    for (const char * text :
         {"", ".", "..", "frames", "Designs", "icons", "tmp", "tmp\\x", "TMP\\x", "images", "bin", "help\\x",
          "frames\\_named_.not", "designs\\__x", "icons.part"})
        EXPECT_EQ(folder_place(text), std::nullopt) << text;
    EXPECT_TRUE(stands_beside_ours("hearts/inner"));
    EXPECT_FALSE(stands_beside_ours("frames/heart"));
}
