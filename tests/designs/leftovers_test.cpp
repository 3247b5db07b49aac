#include "designs/templates/unfinished.h"
#include "tests/designs/package_session.h"

#include <filesystem>

TEST(leftovers, a_start_removes_what_was_under_construction_and_says_nothing)
{
    own_designs_session session;
    session.folder.write("data/frames/mine/captions", "x");
    session.folder.write("data/frames/mine.part/captions", "a set may be named so");
    const folder_image before = image_of(session.at(""));
    for (const char * name :
         {"designs.ini.part", "designs.new", "tmp/designs.ini", "icons/icons.new", "icons/icons.part",
          "designs/saved600.part", "samples/saved600.jpg.part", "descriptions/saved600.part",
          "piclists/summer.pls.part", "frames/mine/design.ini.part", "frames/mine.part/captions.part",
          "user_images/a.jpg.part", "tmp/replaced/inner/a", "icons.part/icons", "frames.part/a/b",
          "alpha.part/a", "puzzle.part/a"})
        session.folder.write(std::string("data/") + name, "x");
    remove_leftovers(session.main);
    EXPECT_EQ(image_of(session.at("")), before);
}

TEST(leftovers, folders_of_a_broken_off_import_come_back)
{
    own_designs_session session;
    session.folder.write("data/frames/mine/captions", "x");
    session.folder.write("data/frames/mine/inner/a", "y");
    const folder_image before = image_of(session.at(""));
    set_aside(session.main, "frames/none");
    set_aside(session.main, "frames/mine");
    session.folder.write("data/frames/mine/inner/b", "new");
    set_aside(session.main, "frames/mine/inner");
    session.folder.write("data/frames/mine/inner/c", "newer");
    remove_leftovers(session.main);
    EXPECT_EQ(image_of(session.at("")), before);
}

TEST(leftovers, noted_files_go_unless_a_design_names_them)
{
    own_designs_session session;
    session.catalogue("[Design600]\nName=a\nFile=saved600\n");
    for (const char * name :
         {"designs/saved600", "designs/saved601", "samples/saved601.jpg", "tmp/finished.jpg"})
        session.folder.write(std::string("data/") + name, "x");
    session.folder.write("precious", "x");
    note_unfinished(session.main,
                    {"designs/saved600", "designs/saved601", "samples/saved601.jpg", "descriptions/none",
                     "tmp/finished.jpg", "../precious", "designs/../../precious", "designs.ini"});
    remove_leftovers(session.main);
    EXPECT_TRUE(session.has("designs/saved600"));
    EXPECT_FALSE(session.has("designs/saved601") || session.has("samples/saved601.jpg"));
    EXPECT_TRUE(session.has("tmp/finished.jpg") && session.has("designs.ini"));
    EXPECT_TRUE(file_exists(session.folder.at("precious")));
    EXPECT_FALSE(session.has("tmp/unfinished"));
}

TEST(leftovers, a_folder_that_can_t_be_changed_or_isn_t_there_fails_no_start)
{
    own_designs_session session;
    session.folder.write("data/designs/x.part", "x");
    session.folder.write("data/samples/y.part", "x");
    std::filesystem::permissions(session.folder.at("data/designs"), std::filesystem::perms{0555});
    std::filesystem::permissions(session.folder.at("data/samples"), std::filesystem::perms{0777});
    std::filesystem::remove_all(session.at("piclists"));
    {
        const as_ordinary_user user;
        remove_leftovers(session.main);
    }
    EXPECT_TRUE(session.has("designs/x.part"));
    EXPECT_FALSE(session.has("samples/y.part"));
    std::filesystem::permissions(session.folder.at("data/designs"), std::filesystem::perms{0777});
}
