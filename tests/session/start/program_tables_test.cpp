#include "session/start/program_tables.h"

#include "session/windows.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/jpeg_files.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

const std::vector<std::string> tables{"designs.ini",       "design_list",      "description_list",
                                      "block_templates",   "quick_block.ini",  "scatter_templates",
                                      "quick_scatter.ini", "quick_matrix.ini", "rotate.ini"};

struct supplied_program {
    supplied_program()
    {
        main.install_folder = folder.at("program");
        make_folders(main.install_folder);
        for (const std::string & name : tables)
            copy_file(joined(SEED_FOLDER, name), joined(main.install_folder, name));
        folder.write("program/images/white.jpg", jpeg_of({}, 8, 8));
        for (const char * name :
             {"circle", "star", "heart", "oval", "cloud", "stripes", "target", "polka_dots", "stamp"})
            add_shape(name);
        for (const char * stem : {"puzzle_", "leaf_"})
            for (int drawn = 1; drawn <= 6; ++drawn)
                add_shape(stem + std::to_string(drawn));
    }
    void add_shape(const std::string & name) const
    {
        folder.write("program/images/" + name + ".gif", "GIF89a and so on;");
    }
    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
    frmMain & main = all.main;
};

}  // namespace

TEST(program_tables, as_they_are_supplied_are_sound)
{
    supplied_program program;
    tell_spoiled_tables(program.main);
    EXPECT_TRUE(program.desk.messages.empty());
}

TEST(program_tables, are_named_each_when_missing_empty_cut_or_something_else)
{
    supplied_program program;
    for (const std::string & name : tables) {
        const std::string path = joined(program.main.install_folder, name), whole = read_file(path);
        for (const std::string & bytes :
             {std::string(), std::string("junk\n"), whole.substr(0, whole.size() - 3),
              whole + std::string(2, '\0') + "\n"}) {
            write_file(path, bytes);
            EXPECT_EQ(spoiled_tables(program.main), std::vector{path}) << name << bytes.size();
        }
        delete_file(path);
        EXPECT_EQ(spoiled_tables(program.main), std::vector{path}) << name;
        write_file(path, whole);
    }
}

TEST(program_tables, have_shapes_beside_them)
{
    supplied_program program;
    for (const char * name : {"images/white.jpg", "images/heart.gif", "images/leaf_6.gif"}) {
        const std::string path = joined(program.main.install_folder, name), whole = read_file(path);
        for (const std::string & bytes :
             {std::string(), std::string("junk"), whole.substr(0, whole.size() - 1)}) {
            write_file(path, bytes);
            EXPECT_EQ(spoiled_tables(program.main), std::vector{path}) << name << bytes.size();
        }
        write_file(path, whole);
    }
    remove_tree(joined(program.main.install_folder, "images"));
    EXPECT_EQ(spoiled_tables(program.main).size(), 22u);
    tell_spoiled_tables(program.main);
    EXPECT_NE(program.desk.next_message().find("and 12 more\r\n"), std::string::npos);
}

TEST(program_tables, are_told_of_in_one_message_with_what_helps)
{
    supplied_program program;
    for (const char * name : {"design_list", "rotate.ini"})
        delete_file(joined(program.main.install_folder, name));
    tell_spoiled_tables(program.main);
    EXPECT_EQ(program.desk.next_message(),
              "These files of the program are missing or damaged:\r\n" +
                  joined(program.main.install_folder, "design_list") + "\r\n" +
                  joined(program.main.install_folder, "rotate.ini") +
                  "\r\n\r\nSome collages can't be made without them. Install Tessaloom again to bring them "
                  "back;\r\nyour own designs, lists and photos stay as they are.");
}
