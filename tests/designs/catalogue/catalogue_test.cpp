#include "designs/catalogue/catalogue.h"

#include "support/platform_error.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

struct catalogue_test : testing::Test {
    temporary_folder folder;
    scripted_desktop desk;
    frmMain main{desk, listed({})};

    catalogue_test() { main.data_folder = folder.path(); }
    void write(std::string_view text) const { folder.write("designs.ini", text); }
    std::string walked()
    {
        std::string names;
        bool more = read_design(main, catalogue_start::first);
        for (;; more = read_design(main, catalogue_start::next)) {
            names += main.design_record.section + "/" + main.design_record.name + " ";
            if (!more)
                return names;
        }
    }
};

std::string saved_designs(int first, int last)
{
    std::string text;
    for (int number = first; number <= last; ++number)
        text += "[Design" + std::to_string(number) + "]\r\nName=n" + std::to_string(number) + "\r\n";
    return text;
}

}  // namespace

TEST_F(catalogue_test, a_walk_gives_the_sections_in_the_order_of_the_file)
{
    write("[Design020]\r\nName=b\r\n[Design003]\r\nName=a\r\n\r\n[Design600]\r\nName=c\r\n");
    EXPECT_EQ(walked(), "Design020/b Design003/a Design600/c ");
}

TEST_F(catalogue_test, line_feeds_alone_and_a_last_line_without_one_are_read)
{
    write("[Design001]\nName=a\n[Design002]\nName=b");
    EXPECT_EQ(walked(), "Design001/a Design002/b ");
}

TEST_F(catalogue_test, a_single_section_comes_with_a_false_result)
{
    write("[Design001]\r\nName=a\r\n");
    EXPECT_FALSE(read_design(main, catalogue_start::first));
    EXPECT_EQ(main.design_record.section, "Design001");
    EXPECT_EQ(main.design_record.name, "a");
    EXPECT_FALSE(main.catalogue.catalogue_at_end);
}

TEST_F(catalogue_test, the_last_section_comes_with_a_false_result)
{
    write("[Design001]\r\nName=a\r\n[Design002]\r\nName=b\r\n");
    EXPECT_TRUE(read_design(main, catalogue_start::first));
    EXPECT_TRUE(main.catalogue.catalogue_at_end);
    EXPECT_FALSE(read_design(main, catalogue_start::next));
    EXPECT_EQ(main.design_record.name, "b");
}

TEST_F(catalogue_test, a_header_in_the_last_line_is_not_read_ahead)
{
    write("[Design001]\r\nName=a\r\n[Design002]\r\n");
    EXPECT_FALSE(read_design(main, catalogue_start::first));
    EXPECT_EQ(main.design_record.name, "a");
    EXPECT_EQ(main.catalogue.next_section, "");
}

TEST_F(catalogue_test, no_value_of_the_section_before_survives)
{
    write("[Design001]\r\nName=a\r\nHelp Tip=tip\r\nCaption=a=b\r\n[Design002]\r\nname=b\r\n");
    read_design(main, catalogue_start::first);
    EXPECT_EQ(main.design_record.caption, "a=b");
    EXPECT_EQ(main.design_record.help_tip, "tip");
    read_design(main, catalogue_start::next);
    EXPECT_EQ(main.design_record.section, "Design002");
    EXPECT_EQ(main.design_record.name, "");
    EXPECT_EQ(main.design_record.help_tip, "No information available");
}

TEST_F(catalogue_test, a_walk_that_stopped_early_begins_anew)
{
    write("[Design001]\r\nName=a\r\n[Design002]\r\nName=b\r\n[Design003]\r\nName=c\r\n");
    read_design(main, catalogue_start::first);
    read_design(main, catalogue_start::next);
    EXPECT_EQ(main.catalogue.next_section, "Design003");
    EXPECT_EQ(walked(), "Design001/a Design002/b Design003/c ");
}

TEST_F(catalogue_test, closing_forgets_the_section_read_ahead)
{
    write("[Design001]\r\nName=a\r\n[Design002]\r\nName=b\r\n");
    read_design(main, catalogue_start::first);
    close_catalogue(main);
    EXPECT_FALSE(main.catalogue.catalogue_at_end);
    EXPECT_FALSE(main.catalogue.catalogue_at_end);
    EXPECT_EQ(main.catalogue.next_section, "");
}

TEST_F(catalogue_test, a_catalogue_without_sections_gives_a_blank_record)
{
    for (const char * text : {"", "\r\n", "; nothing\r\nhere\r\n"}) {
        write(text);
        EXPECT_FALSE(read_design(main, catalogue_start::first));
        EXPECT_EQ(main.design_record, ::design_record{});
    }
}

TEST_F(catalogue_test, a_missing_catalogue_is_raised_to_the_caller)
{
    try {
        read_design(main, catalogue_start::first);
        FAIL() << "nothing was raised";
    } catch (const platform_error & error) {
        EXPECT_EQ(code(error), 53);
        EXPECT_EQ(error.path, folder.at("designs.ini"));
    }
    EXPECT_FALSE(main.catalogue.catalogue_at_end);
}

TEST_F(catalogue_test, a_design_is_found_by_its_name)
{
    write("[Design001]\r\nName=a\r\n[Design002]\r\nName=b\r\nFile=f\r\n[Design003]\r\nName=b\r\n");
    EXPECT_TRUE(find_design(main, "b"));
    EXPECT_EQ(main.design_record.file, "f");
    EXPECT_TRUE(find_design(main, "a"));
    EXPECT_EQ(main.design_record.section, "Design001");
    EXPECT_FALSE(find_design(main, "B"));
}

TEST_F(catalogue_test, a_design_is_found_by_what_lists_show_of_it)
{
    write(
        "[Design001]\r\nName=a\r\n[Design600]\r\nName=b\r\n[Design602]\r\nName=b\r\n"
        "[Design603]\r\nName=Design001\r\n");
    struct row {
        const char *text, *section;
    };
    for (const row & each : {row{"a", "Design001"}, row{"b (600)", "Design600"}, row{"b (602)", "Design602"},
                             row{"Design602", "Design602"}, row{"Design001", "Design603"}}) {
        EXPECT_EQ(find_shown_design(main, each.text), found_design::one) << each.text;
        EXPECT_EQ(main.design_record.section, each.section) << each.text;
    }
    EXPECT_EQ(find_shown_design(main, "b"), found_design::several);
    for (const char * text : {"", "B", "b (601)", "a (001)", "Design601"})
        EXPECT_EQ(find_shown_design(main, text), found_design::none) << text;
}

TEST_F(catalogue_test, the_next_design_is_the_first_free_one)
{
    write(saved_designs(600, 601) + saved_designs(603, 604));
    EXPECT_EQ(GetNextDesign(main), "Design602");
    EXPECT_EQ(main.next_design_number, 602);
}

TEST_F(catalogue_test, a_section_without_a_name_is_free)
{
    write("[Design600]\r\nName=\r\nFile=x\r\n[Design601]\r\nFile=x\r\n");
    EXPECT_EQ(GetNextDesign(main), "Design600");
}

TEST_F(catalogue_test, the_last_usable_design_is_998)
{
    write(saved_designs(600, 997));
    EXPECT_EQ(GetNextDesign(main), "Design998");
    write(saved_designs(600, 998));
    EXPECT_EQ(GetNextDesign(main), "");
    EXPECT_EQ(main.next_design_number, 998);
}

TEST_F(catalogue_test, a_value_is_asked_for_without_regard_to_case)
{
    write("[Design600]\r\nName=a name\r\nFile= \"x y\" \r\n");
    EXPECT_EQ(GetDesignString(main, "design600", "NAME"), "a name");
    EXPECT_EQ(GetDesignString(main, "Design600", "File"), "x y");
    EXPECT_EQ(GetDesignString(main, "Design600", "Style"), "");
    EXPECT_EQ(GetDesignString(main, "Design601", "Name"), "");
}

TEST_F(catalogue_test, a_long_name_is_cut_by_the_single_value_and_whole_in_the_record)
{
    const std::string name(300, 'n');
    write("[Design600]\r\nName=" + name + "\r\n");
    EXPECT_EQ(GetDesignString(main, "Design600", "Name"), std::string(254, 'n'));
    read_design(main, catalogue_start::first);
    EXPECT_EQ(main.design_record.name, name);
}

TEST_F(catalogue_test, a_value_asked_for_in_between_leaves_the_walk_where_it_stands)
{
    write("[Design001]\r\nName=a\r\n[Design002]\r\nName=b\r\n");
    read_design(main, catalogue_start::first);
    EXPECT_EQ(GetDesignString(main, "Design001", "Name"), "a");
    EXPECT_FALSE(read_design(main, catalogue_start::next));
    EXPECT_EQ(main.design_record.name, "b");
}
