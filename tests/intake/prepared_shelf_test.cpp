#include "intake/prepared_shelf.h"

#include "support/files/file_steps.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/temporary_folder.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

photo_identity photo_at(const std::string & path)
{
    return identity_of(path).value();
}

std::size_t copies_in(const temporary_folder & folder)
{
    return folders_in(folder.at("prepared")).size();
}

// Each was used a minute after the one before.
void use_in_turn(const std::vector<std::string> & copies)
{
    auto time = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const std::string & copy : copies)
        fs::last_write_time(folder_of(copy), time += std::chrono::minutes(1));
}

}  // namespace

TEST(prepared_shelf, finds_a_copy_by_the_state_of_its_photo)
{
    const temporary_folder folder;
    const std::string photo = folder.write("my photos/IMG_1.HEIC", "as the phone made it");
    prepared_shelf shelf(folder.path());
    EXPECT_FALSE(shelf.found(photo_at(photo)));
    const std::string copy = shelf.put(photo_at(photo), "upright");
    EXPECT_EQ(name_of(copy), "IMG_1.jpg");
    EXPECT_EQ(read_file(copy), "upright");
    EXPECT_EQ(fs::last_write_time(copy), fs::last_write_time(photo));
    EXPECT_EQ(prepared_shelf(folder.path()).found(photo_at(photo)), copy);
}

TEST(prepared_shelf, finds_none_of_a_photo_that_was_changed_or_moved)
{
    const temporary_folder folder;
    const std::string photo = folder.write("a.heic", "one");
    prepared_shelf shelf(folder.path());
    shelf.put(photo_at(photo), "upright");
    fs::last_write_time(photo, fs::last_write_time(photo) + std::chrono::nanoseconds(1));
    EXPECT_FALSE(shelf.found(photo_at(photo)));
    EXPECT_FALSE(shelf.found(photo_at(folder.write("b.heic", "one"))));
}

TEST(prepared_shelf, takes_no_copy_that_was_cut_short)
{
    const temporary_folder folder;
    const std::string photo = folder.write("a.heic", "one");
    prepared_shelf shelf(folder.path());
    const std::string copy = shelf.put(photo_at(photo), "upright");
    fs::resize_file(copy, 3);
    EXPECT_FALSE(shelf.found(photo_at(photo)));
}

TEST(prepared_shelf, keeps_photos_of_one_name_apart)
{
    const temporary_folder folder;
    prepared_shelf shelf(folder.path());
    const std::string one = shelf.put(photo_at(folder.write("x/a.heic", "1")), "one");
    const std::string other = shelf.put(photo_at(folder.write("y/a.heic", "1")), "other");
    EXPECT_EQ(read_file(one), "one");
    EXPECT_EQ(read_file(other), "other");
}

TEST(prepared_shelf, clears_what_was_used_last_the_longest_ago)
{
    const temporary_folder folder;
    std::vector<std::string> copies;
    {
        prepared_shelf shelf(folder.path());
        for (const char * name : {"a.heic", "b.heic", "c.heic"})
            copies.push_back(shelf.put(photo_at(folder.write(name, name)), std::string(100'000, 'x')));
    }
    use_in_turn({copies[1], copies[2], copies[0]});
    prepared_shelf(folder.path()).clear_to(150'000);
    EXPECT_TRUE(file_exists(copies[0]));
    EXPECT_FALSE(file_exists(copies[1]));
    EXPECT_FALSE(file_exists(copies[2]));
    EXPECT_EQ(copies_in(folder), 1U);
}

TEST(prepared_shelf, has_room_for_two_gibibytes_unless_told_otherwise)
{
    const temporary_folder folder;
    std::vector<std::string> copies;
    {
        prepared_shelf shelf(folder.path());
        for (const char * name : {"a.heic", "b.heic", "c.heic"})
            copies.push_back(shelf.put(photo_at(folder.write(name, name)), name));
    }
    for (const std::string & copy : copies)
        fs::resize_file(copy, 700'000'000);  // which takes no room on the disk
    use_in_turn(copies);
    prepared_shelf(folder.path()).clear_to(usual_room);
    EXPECT_EQ(copies_in(folder), 3U);
    fs::resize_file(copies[2], 800'000'000);
    use_in_turn(copies);
    prepared_shelf(folder.path()).clear_to(usual_room);
    EXPECT_FALSE(file_exists(copies[0]));
    EXPECT_TRUE(file_exists(copies[1]));
    EXPECT_TRUE(file_exists(copies[2]));
}

TEST(prepared_shelf, tells_what_a_copy_was_made_of_and_nothing_of_any_other_file)
{
    const temporary_folder folder;
    const std::string photo = folder.write("my photos/two\nlines.HEIC", "as the phone made it");
    prepared_shelf shelf(folder.path());
    const std::string copy = shelf.put(photo_at(photo), "upright");
    const auto origin = origin_of_copy(folder.path(), copy);
    ASSERT_TRUE(origin);
    EXPECT_EQ(origin->path, photo);
    EXPECT_EQ(origin->stamp.bytes, photo_at(photo).stamp.bytes);
    EXPECT_EQ(origin->stamp.changed, photo_at(photo).stamp.changed);
    EXPECT_EQ(shelf.found(*origin), copy);
    EXPECT_FALSE(origin_of_copy(folder.path(), photo));
    EXPECT_FALSE(origin_of_copy(folder.path() + "/other", copy));
    EXPECT_FALSE(origin_of_copy(folder.path(), joined(folder_of(copy), "other.jpg")));
    for (const char * text : {"", "1\n2\n", "1\nx\n3\n4\n/a/two\n", "1\n2\n3\n4\n/a/two"}) {
        write_file(joined(folder_of(copy), "origin"), text);
        EXPECT_FALSE(origin_of_copy(folder.path(), copy)) << text;
    }
}

TEST(prepared_shelf, clears_nothing_that_anyone_uses)
{
    const temporary_folder folder;
    prepared_shelf in_use(folder.path());
    const std::string copy = in_use.put(photo_at(folder.write("a.heic", "1")), "one");
    prepared_shelf(folder.path()).clear_to(0);
    in_use.clear_to(0);
    EXPECT_TRUE(file_exists(copy));
}

TEST(prepared_shelf, lets_a_thumbnail_go_with_its_photo)
{
    const temporary_folder folder;
    std::string copy;
    {
        prepared_shelf shelf(folder.path());
        copy = shelf.put(photo_at(folder.write("a.heic", "1")), "one");
    }
    make_folder(joined(folder_of(copy), "sample_thumbs"));
    write_file(joined(folder_of(copy), "sample_thumbs/a.jpg"), "small");
    prepared_shelf(folder.path()).clear_to(0);
    EXPECT_EQ(copies_in(folder), 0U);
}

TEST(prepared_shelf, leaves_nothing_on_a_disk_that_is_full)
{
    const temporary_folder folder;
    prepared_shelf shelf(folder.path());
    const photo_identity photo = photo_at(folder.write("a.heic", "1"));
    {
        const gated_files full(
            [](file_step step, const std::string &) { return step == file_step::write ? ENOSPC : 0; });
        EXPECT_THROW(shelf.put(photo, "one"), platform_error);
    }
    EXPECT_EQ(copies_in(folder), 0U);
    EXPECT_FALSE(shelf.found(photo));
}

TEST(prepared_shelf, is_closed_to_other_users)
{
    const temporary_folder folder;
    const prepared_shelf shelf(folder.path());
    EXPECT_EQ(fs::status(folder.at("prepared")).permissions(), fs::perms::owner_all);
}
