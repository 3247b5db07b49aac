#include "photos/thumbnails/thumbnails.h"

#include "photos/thumbnails/found_thumbnail.h"
#include "photos/thumbnails/thumbnail_mark.h"
#include "support/files/file_steps.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/small_files.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

constexpr rgb_triple red{.red = 200, .green = 10, .blue = 10};

struct thumbnails_test : testing::Test {
    temporary_folder folder;
    scripted_desktop desk;
    frmMain main{desk, listed({})};

    std::string photo(std::string_view name, int width, int height)
    {
        const std::string path = folder.at(name);
        save_jpeg(plain(width, height, red), path);
        return path;
    }
    static std::string size_of(const std::string & path)
    {
        const std::optional<picture_size> size = jpeg_size(path);
        return size ? std::to_string(size->width) + "x" + std::to_string(size->height) : "none";
    }
    static void age(const std::string & path, int seconds)
    {
        fs::last_write_time(path, fs::last_write_time(path) - std::chrono::seconds(seconds));
    }
    static void same_age(const std::string & path, const std::string & other)
    {
        fs::last_write_time(path, fs::last_write_time(other));
    }
};

}  // namespace

TEST_F(thumbnails_test, one_is_made_beside_the_photo)
{
    const std::string path = photo("a.jpg", 400, 300);
    EXPECT_EQ(chk_sample_thumb(main, path), folder.at("sample_thumbs/a.jpg"));
    EXPECT_EQ(size_of(folder.at("sample_thumbs/a.jpg")), "200x150");
    EXPECT_EQ(seen(load_picture(picture_format::jpeg, folder.at("sample_thumbs/a.jpg")), 100, 75).red, 200);
}

TEST_F(thumbnails_test, its_size_is_fixed_whatever_the_proportions)
{
    EXPECT_EQ(size_of(chk_sample_thumb(main, photo("high.jpg", 100, 101))), "150x200");
    EXPECT_EQ(size_of(chk_sample_thumb(main, photo("square.jpg", 100, 100))), "200x150");
    EXPECT_EQ(size_of(chk_sample_thumb(main, photo("wide.jpg", 16000, 200))), "200x150");
    EXPECT_EQ(size_of(chk_sample_thumb(main, photo("tiny.jpg", 1, 1))), "200x150");
}

TEST_F(thumbnails_test, a_photo_that_is_gone_has_none)
{
    EXPECT_EQ(chk_sample_thumb(main, folder.at("gone.jpg")), "");
    EXPECT_EQ(chk_sample_thumb(main, ""), "");
    EXPECT_EQ(chk_sample_thumb(main, folder.path()), "");
    EXPECT_FALSE(folder_exists(joined(folder.path(), "sample_thumbs")));
}

TEST_F(thumbnails_test, one_that_is_there_stays_as_it_is)
{
    const std::string path = photo("a.jpg", 400, 300);
    age(path, 10);
    const std::string thumbnail = chk_sample_thumb(main, path);
    EXPECT_EQ(stamp_of(thumbnail)->changed, stamp_of(path)->changed);
    const auto before = stamp_of(thumbnail);
    EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
    EXPECT_EQ(stamp_of(thumbnail), before);
}

// Those of earlier versions have the time at which they were made, and no mark.
TEST_F(thumbnails_test, one_without_a_mark_that_is_younger_is_made_anew_once_and_without_a_word)
{
    const std::string path = photo("a.jpg", 400, 300);
    age(path, 10);
    const std::string thumbnail = folder.write("sample_thumbs/a.jpg", "mine");
    EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
    EXPECT_EQ(size_of(thumbnail), "200x150");
    const auto made = stamp_of(thumbnail);
    EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
    EXPECT_EQ(stamp_of(thumbnail), made);
}

TEST_F(thumbnails_test, one_without_a_mark_is_used_where_no_other_can_be_made)
{
    const std::string path = photo("a.jpg", 400, 300);
    age(path, 10);
    const std::string thumbnail = photo("sample_thumbs/a.jpg", 20, 10);
    ::chmod(folder.at("sample_thumbs").c_str(), 0555);
    const as_ordinary_user user;
    EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
}

TEST_F(thumbnails_test, an_older_photo_in_the_place_of_another_gets_one_of_its_own)
{
    const std::string path = photo("a.jpg", 400, 300);
    const std::string thumbnail = chk_sample_thumb(main, path);
    photo("a.jpg", 300, 400);
    age(path, 1000);
    EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
    EXPECT_EQ(size_of(thumbnail), "150x200");
    EXPECT_TRUE(desk.messages.empty());
}

TEST_F(thumbnails_test, a_photo_of_the_same_time_and_another_size_gets_one_of_its_own)
{
    const std::string path = photo("a.jpg", 400, 300);
    const std::string thumbnail = chk_sample_thumb(main, path);
    save_jpeg(noise(300, 400), path);
    ASSERT_NE(read_file(path).size(), marked_bytes(read_file(thumbnail)));
    same_age(path, thumbnail);
    chk_sample_thumb(main, path);
    EXPECT_EQ(size_of(thumbnail), "150x200");
    EXPECT_TRUE(desk.messages.empty());
}

TEST_F(thumbnails_test, its_mark_changes_no_pixel)
{
    const std::string path = photo("a.jpg", 400, 300);
    save_jpeg(noise(400, 300), path);
    const std::string bytes = read_file(chk_sample_thumb(main, path));
    EXPECT_EQ(marked_bytes(bytes), read_file(path).size());
    const std::string plain = jpeg_bytes(rescaled(load_picture(picture_format::jpeg, path), 200, 150));
    EXPECT_EQ(bytes, marked_thumbnail(plain, read_file(path).size()));
    EXPECT_TRUE(same(load_picture(picture_format::jpeg, thumbnail_path(path)),
                     load_picture(picture_format::jpeg, folder.write("plain.jpg", plain))));
}

TEST(thumbnail_mark, is_read_back_from_the_beginning)
{
    const std::string jpeg = jpeg_bytes(plain(20, 10, red));
    for (const std::uint64_t size : {0ULL, 1ULL, 4'294'967'296ULL, ~0ULL}) {
        const std::string marked = marked_thumbnail(jpeg, size);
        EXPECT_EQ(marked_bytes(marked), size);
        EXPECT_EQ(marked_bytes(marked.substr(0, room_of_mark)), size);
        for (std::size_t length = 0; length < 50; ++length)
            EXPECT_FALSE(marked_bytes(marked.substr(0, length)).has_value()) << length;
    }
    EXPECT_FALSE(marked_bytes(jpeg).has_value());
    EXPECT_EQ(marked_thumbnail("no picture", 7), "no picture");
}

TEST_F(thumbnails_test, one_of_the_same_age_is_not_outdated)
{
    const std::string path = photo("a.jpg", 400, 300);
    const std::string thumbnail = photo("sample_thumbs/a.jpg", 20, 10);
    same_age(thumbnail, path);
    chk_sample_thumb(main, path);
    EXPECT_EQ(size_of(thumbnail), "20x10");
}

TEST_F(thumbnails_test, one_that_was_cut_short_or_damaged_is_made_anew_without_a_word)
{
    const std::string path = photo("a.jpg", 400, 300), thumbnail = chk_sample_thumb(main, path);
    const std::string whole = read_file(thumbnail);
    for (const std::string & bytes : {std::string(), whole.substr(0, 10), whole.substr(0, whole.size() / 2),
                                      whole.substr(0, whole.size() - 1), std::string("no picture")}) {
        write_file(thumbnail, bytes);
        same_age(thumbnail, path);
        EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
        EXPECT_TRUE(read_file(thumbnail) == whole) << bytes.size();
    }
    EXPECT_TRUE(desk.messages.empty());
}

TEST_F(thumbnails_test, an_outdated_one_is_told_and_made_anew)
{
    const std::string path = photo("a.jpg", 400, 300);
    const std::string thumbnail = folder.write("sample_thumbs/a.jpg", "old");
    age(thumbnail, 10);
    ::chmod(thumbnail.c_str(), 0444);
    EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
    EXPECT_EQ(desk.next_message(), path + " IS NEWER");
    EXPECT_EQ(size_of(thumbnail), "200x150");
}

TEST_F(thumbnails_test, a_photo_that_is_not_a_jpeg_gets_none_but_its_path)
{
    const std::string thumbnail = joined(folder.path(), "sample_thumbs/a.jpg");
    save_bmp(plain(40, 30, red), folder.at("a.jpg"));
    EXPECT_EQ(chk_sample_thumb(main, folder.at("a.jpg")), thumbnail);
    for (const std::string & bytes : {std::string(), std::string("a text, no picture"), small_png()}) {
        folder.write("a.jpg", bytes);
        age(folder.at("a.jpg"), 3600);
        EXPECT_EQ(chk_sample_thumb(main, folder.at("a.jpg")), thumbnail);
        EXPECT_FALSE(file_exists(thumbnail));
    }
}

TEST_F(thumbnails_test, a_photo_that_is_still_being_copied_gets_none_until_it_is_there)
{
    const std::string path = photo("a.jpg", 400, 300), thumbnail = folder.at("sample_thumbs/a.jpg");
    const std::string whole = jpeg_bytes(noise(300, 400));
    chk_sample_thumb(main, path);
    for (const std::size_t bytes : {std::size_t{0}, std::size_t{300}, whole.size() / 2}) {
        write_file(path, whole.substr(0, bytes));
        const small_photo coming = small_photo_of(main, path);
        EXPECT_TRUE(is_still_coming(coming));
        EXPECT_EQ(coming.path, path);
        EXPECT_EQ(coming.size, std::nullopt);
        EXPECT_FALSE(file_exists(thumbnail)) << "of what was there before";
    }
    write_file(path, whole);
    EXPECT_FALSE(is_still_coming(small_photo_of(main, path)));
    EXPECT_EQ(size_of(thumbnail), "150x200");
    EXPECT_TRUE(desk.messages.empty());
}

TEST_F(thumbnails_test, in_a_closed_folder_the_photo_stands_in)
{
    const std::string path = photo("closed/a.jpg", 400, 300);
    ::chmod(folder.at("closed").c_str(), 0555);
    const as_ordinary_user user;
    EXPECT_EQ(chk_sample_thumb(main, path), path);
    EXPECT_FALSE(folder_exists(joined(folder.path(), "closed/sample_thumbs")));
}

TEST_F(thumbnails_test, in_a_closed_thumbnail_folder_the_photo_stands_in)
{
    const std::string path = photo("a.jpg", 400, 300);
    const std::string other = photo("b.jpg", 400, 300);
    const std::string thumbnail = chk_sample_thumb(main, other);
    ::chmod(folder.at("sample_thumbs").c_str(), 0555);
    const as_ordinary_user user;
    EXPECT_EQ(chk_sample_thumb(main, path), path);
    EXPECT_EQ(chk_sample_thumb(main, other), thumbnail);
}

TEST_F(thumbnails_test, an_outdated_one_that_can_not_be_deleted_is_not_used)
{
    const std::string path = photo("a.jpg", 400, 300);
    age(folder.write("sample_thumbs/a.jpg", "old"), 10);
    ::chmod(folder.at("sample_thumbs").c_str(), 0555);
    const as_ordinary_user user;
    EXPECT_EQ(chk_sample_thumb(main, path), path);
    EXPECT_EQ(desk.next_message(), path + " IS NEWER");
}

TEST_F(thumbnails_test, on_a_full_disk_the_photo_stands_in)
{
    const std::string path = photo("a.jpg", 400, 300);
    {
        const full_disk full(100);
        EXPECT_EQ(chk_sample_thumb(main, path), path);
    }
    EXPECT_TRUE(files_in(folder.at("sample_thumbs")).empty());
}

TEST_F(thumbnails_test, where_a_file_has_the_name_of_their_folder_the_photo_stands_in)
{
    const std::string path = photo("a.jpg", 400, 300);
    folder.write("sample_thumbs", "a file");
    EXPECT_EQ(chk_sample_thumb(main, path), path);
}

TEST_F(thumbnails_test, the_table_turns_into_photos_and_back)
{
    const std::string first = photo("a.jpg", 400, 300), second = photo("b.jpg", 300, 400);
    main.table[0] = chk_sample_thumb(main, first);
    main.table[1] = second;
    main.table[2] = "/behind/sample_thumbs/the_last.jpg";
    main.table.last_photo = 1;
    chk_sample_thumb(main, second);
    photos_from_thumbnails(main);
    EXPECT_EQ(main.table[0], first);
    EXPECT_EQ(main.table[1], second);
    EXPECT_EQ(main.table[2], "/behind/sample_thumbs/the_last.jpg");
    thumbnails_from_photos(main);
    EXPECT_EQ(main.table[0], folder.at("sample_thumbs/a.jpg"));
    EXPECT_EQ(main.table[1], folder.at("sample_thumbs/b.jpg"));
    thumbnails_from_photos(main);
    EXPECT_EQ(main.table[0], folder.at("sample_thumbs/a.jpg"));
}

TEST_F(thumbnails_test, a_photo_that_stands_in_stays_in_the_table)
{
    const std::string path = photo("closed/a.jpg", 400, 300);
    main.table[0] = path;
    main.table.last_photo = 0;
    photos_from_thumbnails(main);
    thumbnails_from_photos(main);
    EXPECT_EQ(main.table[0], path);
}

TEST_F(thumbnails_test, a_newer_photo_takes_the_place_of_its_thumbnail_which_is_there_all_the_time)
{
    const std::string path = photo("a.jpg", 400, 300);
    const std::string thumbnail = chk_sample_thumb(main, path);
    age(thumbnail, 10);
    const gated_files gate([&](file_step step, const std::string & changed) {
        EXPECT_TRUE(file_exists(thumbnail)) << changed;
        EXPECT_TRUE(step != file_step::remove || changed != thumbnail);
        return 0;
    });
    EXPECT_EQ(chk_sample_thumb(main, path), thumbnail);
    desk.next_message();
    EXPECT_FALSE(is_newer(path, thumbnail));
}

TEST_F(thumbnails_test, what_a_killed_program_left_beside_them_goes)
{
    main.table[0] = photo("a.jpg", 400, 300);
    main.table.last_photo = 0;
    const std::string left = folder.write("sample_thumbs/a.jpg.2b-0.part", "half");
    age(left, 100);
    clear_thumbnail_places(main);
    EXPECT_FALSE(file_exists(left));
}
