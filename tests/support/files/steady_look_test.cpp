#include "support/files/steady_look.h"

#include "support/files/text_file.h"
#include "tests/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

TEST(steady_look, gives_what_was_seen_of_a_file_that_stays)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "four");
    int looks = 0;
    EXPECT_EQ(steady_look(path,
                          [&](const file_stamp & stamp) {
                              ++looks;
                              return stamp.bytes;
                          }),
              4U);
    EXPECT_EQ(looks, 1);
}

TEST(steady_look, looks_again_at_one_that_changes_meanwhile)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "old");
    int looks = 0;
    EXPECT_EQ(steady_look(path,
                          [&](const file_stamp &) {
                              std::string text = read_file(path);
                              if (++looks == 1)
                                  folder.write("a", "replaced");
                              return text;
                          }),
              "replaced");
    EXPECT_EQ(looks, 2);
}

TEST(steady_look, gives_nothing_of_one_that_changes_all_the_time_or_goes)
{
    const temporary_folder folder;
    const std::string growing = folder.write("a", ""), going = folder.write("b", "");
    int looks = 0;
    EXPECT_FALSE(steady_look(growing, [&](const file_stamp &) {
        folder.write("a", std::string(static_cast<std::size_t>(++looks), 'x'));
        return looks;
    }));
    EXPECT_EQ(looks, 3);
    EXPECT_FALSE(steady_look(going, [&](const file_stamp &) { return std::filesystem::remove(going); }));
    EXPECT_FALSE(steady_look(folder.at("none"), [](const file_stamp &) { return true; }));
}
