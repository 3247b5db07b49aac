#include "support/platform_error.h"

#include "tests/raised_by.h"

#include <cerrno>
#include <gtest/gtest.h>

TEST(platform_error, tells_what_failed_and_on_which_file)
{
    const platform_error error(error_number::disk_full, "The disk is full.", "/x/a");
    EXPECT_EQ(code(error), 61);
    EXPECT_EQ(told(error), "The disk is full.\n/x/a");
    EXPECT_EQ(told(platform_error(error_number::overflow, "Too large.")), "Too large.");
}

TEST(platform_error, keeps_the_classic_numbers)
{
    struct row {
        int system_number;
        int number;
    };
    const row rows[] = {{ENOENT, 53},       {EEXIST, 58},  {ENOSPC, 61}, {EFBIG, 61},  {EDQUOT, 61},
                        {EACCES, 70},       {EPERM, 70},   {EROFS, 70},  {EISDIR, 75}, {EIO, 75},
                        {ENAMETOOLONG, 75}, {ENOTDIR, 76}, {ENOMEM, 7}};
    for (const row & given : rows) {
        EXPECT_EQ(code(from_system(given.system_number, "/x")), given.number) << given.system_number;
        EXPECT_EQ(from_system(given.system_number, "/x").path, "/x");
    }
}

TEST(platform_error, stands_for_what_libraries_throw_and_lets_our_own_bugs_through)
{
    const auto number_of = [](auto step) { return raised_by([&] { with_platform_errors(step); }); };
    EXPECT_EQ(number_of([] { throw std::bad_alloc(); }), 7);
    EXPECT_EQ(number_of([] { return std::filesystem::file_size("/no/such/file"); }), 53);
    EXPECT_EQ(number_of([] { throw platform_error(error_number::subscript, "x"); }), 9);
    EXPECT_EQ(number_of([] {}), 0);
    EXPECT_EQ(with_platform_errors([] { return 5; }), 5);
    EXPECT_THROW(with_platform_errors([] { throw std::logic_error("ours"); }), std::logic_error);
}
