#include "recipes/kept_path.h"

#include <gtest/gtest.h>

namespace {

const known_folders path_folders{
    .here = "/home/anna/holiday", .program = "/opt/tessaloom", .data = "/home/anna/data"};

}  // namespace

TEST(kept_path, tells_what_lies_below_a_known_folder_from_there)
{
    EXPECT_EQ(kept_path("/home/anna/holiday/a/b.jpg", path_folders), "here:a/b.jpg");
    EXPECT_EQ(kept_path("/opt/tessaloom/images/x.jpg", path_folders), "program:images/x.jpg");
    EXPECT_EQ(kept_path("/home/anna/data/user_images/x.jpg", path_folders), "data:user_images/x.jpg");
    EXPECT_EQ(kept_path("/home/anna/holidays/a.jpg", path_folders), "/home/anna/holidays/a.jpg");
}

TEST(kept_path, comes_back_as_it_was)
{
    for (const char * path : {"/home/anna/holiday/a/b.jpg", "/opt/tessaloom/images/x.jpg",
                              "/home/anna/data/user_images/x.jpg", "/elsewhere/a..b/...jpg", "/a.jpg"})
        EXPECT_EQ(path_named(kept_path(path, path_folders), path_folders), path);
}

TEST(kept_path, follows_a_folder_that_has_moved)
{
    known_folders moved = path_folders;
    moved.here = "/mnt/stick";
    EXPECT_EQ(path_named(kept_path("/home/anna/holiday/a.jpg", path_folders), moved), "/mnt/stick/a.jpg");
}

TEST(kept_path, leads_nowhere_else)
{
    for (const char * text :
         {"", "a.jpg", "../a.jpg", "here:../a.jpg", "here:a/../../b.jpg", "here:/etc/passwd", "data:..",
          "data:.", "program:images/../../x", "here:", "/a/../b.jpg", "//host/share/a.jpg", "/a/./b.jpg",
          "/a\nb.jpg", "/a\tb.jpg", "file:///a.jpg", "there:a.jpg"})
        EXPECT_FALSE(path_named(text, path_folders)) << text;
}

TEST(kept_path, knows_no_folder_that_is_not_named)
{
    EXPECT_FALSE(path_named("here:a.jpg", {.here = "", .program = "/p", .data = "/d"}));
    EXPECT_EQ(kept_path("/a.jpg", {}), "/a.jpg");
}
