#include "recipes/kept_copies.h"

#include "intake/look.h"
#include "intake/prepared_shelf.h"
#include "photos/prepared_photos.h"
#include "support/files/text_file.h"
#include "tests/jpeg_files.h"
#include "tests/recipes/flurn_session.h"

#include <filesystem>

namespace {

namespace fs = std::filesystem;

std::string on_its_side(int quality)
{
    const std::string block("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0", 26);
    return jpeg_of(
        {.quality = quality, .markers = {{.code = 0xE1, .bytes = std::string("Exif\0\0", 6) + block}}}, 48,
        32);
}

void let_decode(const frmMain & main)
{
    const fs::path beside_tests = fs::read_symlink("/proc/self/exe").parent_path() / "tessaloom-decode";
    fs::create_symlink(beside_tests, main.install_folder + "/tessaloom-decode");
}

/// A flurn of two photos as they are and two copies, opened in the program started again.
struct flurn_of_copies : flurn_session {
    flurn_of_copies()
    {
        let_decode(main);
        make_photos(2, 0);
        paint();
        phone = {folder.write("phone/1.jpg", on_its_side(80)), folder.write("phone/2.jpg", on_its_side(40))};
        std::string lines;
        for (const std::string & photo : photos)
            lines += "U " + photo + "\r\n";
        const auto prepared = copies_made_again(main, {looked_at(phone[0]), looked_at(phone[1])});
        for (const intake_photo & each : prepared.value()) {
            copies.push_back(each.ready);
            lines += "U " + each.ready + "\r\n";
        }
        write_file(list, lines);
        start();
        poster = make();
        file = kept();
        main.copies.reset();
        again = std::make_unique<started_again>(*this);
    }

    void clear_copies() const { prepared_shelf(main.data_folder).clear_to(0); }

    std::string opened()
    {
        again->open(file);
        return again->make();
    }

    std::vector<std::string> phone, copies;
    std::string poster, file;
    std::unique_ptr<started_again> again;
};

bool tells(const std::string & text, const std::string & part)
{
    return text.find(part) != std::string::npos;
}

// Two photos are too few for the style, which says so first.
std::string told_behind_the_style(scripted_desktop & desk)
{
    EXPECT_TRUE(tells(desk.next_message(), "Can't find a collage template"));
    return desk.next_message();
}

}  // namespace

TEST(kept_copies, are_noted_with_what_they_were_prepared_from)
{
    const flurn_of_copies session;
    const recipe held = read_recipe(session.main, session.file);
    ASSERT_EQ(held.photos.size(), 4U);
    for (const recipe_photo & photo : held.photos) {
        const auto copy = std::ranges::find(session.copies, photo.path);
        ASSERT_EQ(photo.original.has_value(), copy != session.copies.end()) << photo.path;
        if (!photo.original)
            continue;
        const std::string & original = session.phone[static_cast<std::size_t>(copy - session.copies.begin())];
        EXPECT_EQ(photo.original->path, original);
        EXPECT_EQ(photo.original->bytes, fs::file_size(original));
        EXPECT_EQ(photo.original->changed, stamp_of(original)->changed);
    }
    EXPECT_TRUE(read_file(session.file).starts_with("Tessaloom flurn\t2\r\n"));
}

TEST(kept_copies, that_were_cleared_are_prepared_anew_without_a_word)
{
    flurn_of_copies session;
    session.clear_copies();
    ASSERT_FALSE(file_exists(session.copies[0]));
    EXPECT_TRUE(session.opened() == session.poster);
    EXPECT_TRUE(session.again->desk.messages.empty());
    EXPECT_TRUE(session.again->desk.questions.empty());
    EXPECT_TRUE(file_exists(session.copies[0]));
    EXPECT_EQ(std::ranges::count(session.again->desk.shown_windows, "frmPhotoCnt"),
              std::ranges::count(session.again->desk.hidden_windows, "frmPhotoCnt"));
}

TEST(kept_copies, of_a_flurn_that_is_open_are_cleared_by_nobody)
{
    flurn_of_copies session;
    session.again->open(session.file);
    session.clear_copies();
    EXPECT_TRUE(file_exists(session.copies[0]));
    EXPECT_TRUE(session.again->make() == session.poster);
}

TEST(kept_copies, serve_when_their_originals_are_gone)
{
    flurn_of_copies session;
    fs::remove_all(folder_of(session.phone[0]));
    EXPECT_TRUE(session.opened() == session.poster);
    EXPECT_TRUE(session.again->desk.messages.empty());
}

TEST(kept_copies, are_gone_by_the_names_of_their_originals)
{
    flurn_of_copies session;
    session.clear_copies();
    delete_file(session.phone[1]);
    session.again->desk.will_answer(answer::no);
    session.again->open(session.file);
    EXPECT_EQ(session.again->desk.questions.front().text,
              "1 of the 4 photos of this flurn is not where it was:\r\n" + session.phone[1] +
                  "\r\n\r\nDo you want to look for it in another folder?");
    EXPECT_TRUE(tells(session.again->desk.next_message(), "left out:\r\n" + session.phone[1] + "\r\n"));
    EXPECT_EQ(session.again->main.table.last_photo, 2);
}

TEST(kept_copies, are_prepared_from_originals_that_moved)
{
    flurn_of_copies session;
    session.clear_copies();
    const std::string moved = session.folder.path() + "/elsewhere";
    fs::rename(folder_of(session.phone[0]), moved);
    session.again->desk.will_answer(answer::yes);
    session.again->desk.will_choose_folder(moved);
    EXPECT_TRUE(session.opened() == session.poster);
    EXPECT_TRUE(session.again->desk.messages.empty());
    EXPECT_TRUE(tells(read_file(session.kept()), "original\t" + moved + "/1.jpg\t"));
}

TEST(kept_copies, of_an_original_that_was_changed_are_prepared_anew_and_named)
{
    flurn_of_copies session;
    session.clear_copies();
    write_file(session.phone[0], on_its_side(60));
    session.again->open(session.file);
    EXPECT_EQ(session.again->desk.next_message(),
              laid_out_anew("These photos have changed since the flurn was made:\r\n" + session.phone[0]));
    EXPECT_EQ(session.again->main.table.last_photo, 3);
}

TEST(kept_copies, that_can_not_be_made_any_more_are_named_with_the_reason)
{
    flurn_of_copies session;
    session.clear_copies();
    write_file(session.phone[0], "no picture any more");
    session.again->open(session.file);
    EXPECT_EQ(session.again->desk.next_message(),
              laid_out_anew("No copy can be made any more of these photos; they were left out:\r\n" +
                            session.phone[0] + ": it is no picture"));
    EXPECT_EQ(session.again->main.table.last_photo, 2);
}

TEST(kept_copies, without_a_place_for_them_are_left_out_with_the_reason)
{
    flurn_of_copies session;
    fs::remove_all(session.main.data_folder + "/prepared");
    write_file(session.main.data_folder + "/prepared", "a file in the folder's place");
    session.again->open(session.file);
    const std::string told = told_behind_the_style(session.again->desk);
    EXPECT_TRUE(tells(told, session.phone[0] + ": its copy can't be made: ")) << told;
    EXPECT_EQ(session.again->main.table.last_photo, 1);
}

TEST(kept_copies, open_nothing_when_the_user_does_not_wait_for_them)
{
    flurn_of_copies session;
    session.clear_copies();
    session.again->desk.on_breath = [&session] {
        if (const auto & close = session.again->all.photo_count.on_query_unload)
            close();
    };
    session.again->open(session.file);
    EXPECT_TRUE(session.again->main.menus_shown);
    EXPECT_TRUE(session.again->desk.questions.empty());
    EXPECT_TRUE(session.again->desk.messages.empty());
}

// A recipe as it was written before it told of originals.
TEST(kept_copies, of_an_older_recipe_open_as_long_as_they_are_there)
{
    flurn_of_copies session;
    std::string text;
    for (const std::string & line : lines_of_file(session.file))
        if (!line.starts_with("original\t"))
            text += (line.starts_with("Tessaloom flurn") ? "Tessaloom flurn\t1" : line) + "\r\n";
    const std::string older = session.folder.write("older.flurn", text);
    session.again->open(older);
    session.clear_copies();  // they are in use
    EXPECT_TRUE(session.again->make() == session.poster);
    EXPECT_TRUE(session.again->desk.messages.empty());
    EXPECT_TRUE(read_file(session.kept()).starts_with("Tessaloom flurn\t2\r\n"));

    started_again third(session);
    session.again.reset();
    session.clear_copies();
    third.desk.will_answer(answer::no);
    third.open(older);
    EXPECT_TRUE(tells(told_behind_the_style(third.desk), "\r\n" + session.copies[0] + "\r\n"));
}
