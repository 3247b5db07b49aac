#include "photos/left_out.h"

#include "session/windows.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

struct left_out_test : testing::Test {
    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
    frmMain & main = all.main;

    void use(const std::vector<std::string> & photos)
    {
        std::ranges::copy(photos, main.table.photos.begin());
        main.table.last_photo = narrow(static_cast<long>(photos.size()) - 1);
    }
};

}  // namespace

TEST_F(left_out_test, a_photo_is_noted_once_by_its_own_path_with_what_is_wrong)
{
    const std::string damaged = folder.write("a.jpg", "no picture"), gone = folder.at("b.jpg");
    use({folder.at("sample_thumbs/a.jpg"), gone, "c.jpg"});
    leave_out(main, main.table[0]);
    leave_out(main, damaged);
    leave_out(main, gone);
    leave_out(main, "c.jpg", photo_fault::too_long);
    EXPECT_EQ(main.left_out.photos,
              (std::vector<left_out_photo>{{.path = damaged, .fault = photo_fault::unreadable},
                                           {.path = gone, .fault = photo_fault::gone},
                                           {.path = "c.jpg", .fault = photo_fault::too_long}}));
    EXPECT_TRUE(is_left_out(main, 0)) << "its thumbnail stands in the table";
    EXPECT_FALSE(has_usable_photo(main));
}

TEST_F(left_out_test, each_is_named_once_until_photos_are_chosen_anew)
{
    use({"a.jpg", "b.jpg", "c.jpg"});
    tell_left_out(main);
    leave_out(main, "a.jpg", photo_fault::too_long);
    tell_left_out(main);
    EXPECT_EQ(desk.next_message(),
              "This photo was left out:\r\na.jpg: it is too long for its width\r\n\r\n"
              "Cut what is too long in two.\r\nThen choose your photos again.");
    main.left_out.in_this_run.clear();
    leave_out(main, "a.jpg", photo_fault::too_long);
    tell_left_out(main);
    leave_out(main, "b.jpg", photo_fault::gone);
    tell_left_out(main);
    EXPECT_EQ(desk.next_message(),
              "This photo was left out:\r\nb.jpg: it isn't there any more\r\n\r\n"
              "Put what is missing back in its place.\r\nThen choose your photos again.");
    forget_left_out(main);
    leave_out(main, "a.jpg", photo_fault::too_long);
    tell_left_out(main);
    EXPECT_TRUE(desk.next_message().starts_with("This photo was left out:\r\na.jpg"));
}

TEST_F(left_out_test, a_box_names_twenty_and_counts_the_rest)
{
    for (int i = 0; i < 23; ++i)
        leave_out(main, "/p/" + std::to_string(i) + ".jpg", photo_fault::gone);
    tell_left_out(main);
    const std::string text = desk.next_message();
    EXPECT_TRUE(text.starts_with("None of your photos can be used:\r\n/p/0.jpg"));
    EXPECT_NE(text.find("\r\n/p/19.jpg: it isn't there any more\r\nand 3 more\r\n\r\n"), std::string::npos);
    EXPECT_EQ(main.left_out.photos.size(), 23U) << "all of them can be asked for";
}

TEST_F(left_out_test, a_caller_that_names_them_itself_gets_no_box)
{
    main.left_out.told_by = left_out_photos::teller::caller;
    leave_out(main, "/p/a\nb.jpg", photo_fault::gone);
    tell_left_out(main);
    EXPECT_TRUE(desk.messages.empty());
    EXPECT_EQ(line_of(main.left_out.photos.front()), "/p/a?b.jpg: it isn't there any more");
    forget_left_out(main);
    EXPECT_EQ(main.left_out.told_by, left_out_photos::teller::caller);
    EXPECT_TRUE(main.left_out.photos.empty());
}

TEST_F(left_out_test, that_none_is_left_is_said_unless_this_run_has_named_them_all)
{
    use({"a.jpg", "b.jpg"});
    leave_out(main, "a.jpg", photo_fault::cut_short);
    tell_left_out(main);
    EXPECT_EQ(desk.next_message(),
              "This photo was left out:\r\na.jpg: it was cut short or is still being copied\r\n\r\nCopy what "
              "was cut "
              "short to its place again, or wait until it is there.\r\nThen choose your photos again.");
    leave_out(main, "b.jpg", photo_fault::too_long);
    tell_none_usable(main);
    const std::string all = desk.next_message();
    EXPECT_TRUE(
        all.starts_with("None of your photos can be used:\r\na.jpg: it was cut short or is still being "
                        "copied\r\nb.jpg: "))
        << all;
    tell_none_usable(main);
    EXPECT_TRUE(desk.messages.empty());
    main.left_out.told_in_this_run = false;
    tell_none_usable(main);
    EXPECT_EQ(desk.next_message(), all);
}

TEST_F(left_out_test, one_that_is_closed_to_the_user_is_told_so_with_what_helps)
{
    namespace fs = std::filesystem;
    const std::string closed = folder.write("a.jpg", "x"), inside = folder.write("kept/b.jpg", "x"),
                      gone = folder.at("c.jpg");
    fs::permissions(folder.path(), fs::perms{0755});
    fs::permissions(closed, fs::perms::none);
    fs::permissions(folder.at("kept"), fs::perms::none);
    {
        const as_ordinary_user user;
        for (const std::string & photo : {closed, inside})
            EXPECT_EQ(fault_of(photo), photo_fault::closed) << photo;
        EXPECT_EQ(fault_of(gone), photo_fault::gone);
    }
    fs::permissions(folder.at("kept"), fs::perms{0777});
    use({"a.jpg", "b.jpg"});
    leave_out(main, "a.jpg", photo_fault::closed);
    tell_left_out(main);
    EXPECT_EQ(desk.next_message(),
              "This photo was left out:\r\na.jpg: there is no permission to read it\r\n\r\n"
              "Allow what is closed to be read.\r\nThen choose your photos again.");
}
