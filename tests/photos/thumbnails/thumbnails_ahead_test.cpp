#include "photos/thumbnails/thumbnails_ahead.h"

#include "photos/thumbnails/thumbnails.h"
#include "support/files/text_file.h"
#include "tests/photos/photo_list_fixture.h"
#include "tests/pictures.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

struct thumbnails_ahead_test : photo_list_test {
    std::vector<std::string> many(int count, const std::string & inside)
    {
        std::vector<std::string> paths;
        for (int i = 0; i < count; ++i) {
            const std::string name = inside + std::to_string(i) + ".jpg";
            save_jpeg(noise(300 + 7 * i, i % 3 == 0 ? 500 : 200), folder.at(name));
            paths.push_back(folder.at(name));
        }
        return paths;
    }

    void fill(const std::vector<std::string> & paths)
    {
        std::ranges::copy(paths, main.table.photos.begin());
        main.table.last_photo = narrow(static_cast<long>(paths.size()) - 1);
    }

    /// What the walk through the table left behind: table, counts, and every thumbnail's bytes.
    std::string outcome()
    {
        std::string text = table() + counted() + "\n";
        for (int i = 0; i <= main.table.last_photo; ++i)
            if (file_exists(main.table[i]))
                text += std::to_string(std::hash<std::string>()(read_file(main.table[i]))) + "\n";
        return text;
    }
};

}  // namespace

TEST_F(thumbnails_ahead_test, any_number_of_cores_leaves_the_same_table_counts_and_bytes)
{
    std::vector<std::string> outcomes;
    for (const int cores : {1, 2, 3, 8}) {
        const std::string inside = std::to_string(cores) + "/";
        std::vector<std::string> paths = many(30, inside);
        folder.write(inside + "5.jpg", "a text, no picture");
        fs::remove(folder.at(inside + "9.jpg"));
        paths.push_back(paths[3]);  // one photo twice
        fill(paths);
        main.workers.set_count(cores);
        count_photos(main);
        outcomes.push_back(outcome());
        EXPECT_EQ(outcomes.back(), outcomes.front()) << cores;
        EXPECT_TRUE(main.thumbnails.begun.empty());
    }
    EXPECT_EQ(main.table.last_photo, 29) << "one of 31 is gone";
}

TEST_F(thumbnails_ahead_test, begins_a_few_for_each_worker_and_leaves_those_that_are_there)
{
    fill(many(12, "some/"));
    fs::create_directories(folder.at("some/sample_thumbs"));
    const std::string mine = photo("some/sample_thumbs/0.jpg", 20, 10), bytes = read_file(mine);
    fs::last_write_time(mine, fs::last_write_time(folder.at("some/0.jpg")));
    main.workers.set_count(2);
    begin_thumbnails(main, 0);
    EXPECT_EQ(main.thumbnails.begun.size(), 4U);
    finish_thumbnails(main);
    EXPECT_TRUE(main.thumbnails.begun.empty());
    EXPECT_TRUE(file_exists(folder.at("some/sample_thumbs/1.jpg")));
    EXPECT_TRUE(read_file(mine) == bytes);
}

TEST_F(thumbnails_ahead_test, what_was_begun_is_given_when_its_photo_is_asked_for)
{
    fill(many(2, "two/"));
    begin_thumbnails(main, 0);
    EXPECT_EQ(chk_sample_thumb(main, folder.at("two/1.jpg")), folder.at("two/sample_thumbs/1.jpg"));
    EXPECT_FALSE(main.thumbnails.begun.contains(folder.at("two/1.jpg")));
    finish_thumbnails(main);
}

TEST_F(thumbnails_ahead_test, a_photo_that_vanishes_meanwhile_is_left_out)
{
    fill(many(3, "gone/"));
    bool removed = false;
    desk.on_pump(1, [&] {
        removed = true;
        fs::remove(folder.at("gone/2.jpg"));
    });
    count_photos(main);
    EXPECT_TRUE(removed);
    EXPECT_EQ(main.table.last_photo, 1);
    EXPECT_TRUE(main.thumbnails.begun.empty());
}

TEST_F(thumbnails_ahead_test, a_photo_that_is_replaced_meanwhile_gets_one_of_what_is_there_now)
{
    fill(many(3, "some/"));
    main.workers.set_count(2);
    begin_thumbnails(main, 0);
    main.thumbnails.begun.at(folder.at("some/2.jpg")).wait();
    const fs::file_time_type time = fs::last_write_time(folder.at("some/2.jpg"));
    save_jpeg(plain(200, 300, {.red = 200, .green = 10, .blue = 10}), folder.at("new.jpg"));
    fs::last_write_time(folder.at("new.jpg"), time);
    fs::rename(folder.at("new.jpg"), folder.at("some/2.jpg"));
    const small_photo found = small_photo_of(main, folder.at("some/2.jpg"));
    EXPECT_EQ(found.photo, stamp_of(folder.at("some/2.jpg")));
    ASSERT_EQ(found.size, (picture_size{.width = 150, .height = 200}));
    EXPECT_EQ(seen(load_picture(picture_format::jpeg, found.path), 75, 100).red, 200);
    finish_thumbnails(main);
}
