#include "support/real_text.h"

#include <gtest/gtest.h>

namespace {

struct number_read {
    std::string_view text;
    double value;
    std::size_t length;
};

}  // namespace

TEST(real_text, is_read_as_far_as_it_is_a_number)
{
    const number_read numbers_read[] = {{"1.5", 1.5, 3},           {"-2", -2, 2}, {"10,5", 10, 2},
                                        {"1e3 and more", 1000, 3}, {"7e", 7, 1},  {"0x10", 0, 1},
                                        {".25", 0.25, 3},          {"5.", 5, 2},  {"1e-310", 1e-310, 6},
                                        {"0.1", 0.1, 3},           {"1-2", 1, 1}};
    for (const number_read & expected : numbers_read) {
        const real_read read = real_at_start(expected.text);
        EXPECT_EQ(read.value, expected.value) << expected.text;
        EXPECT_EQ(read.length, expected.length) << expected.text;
        EXPECT_EQ(read.fault, std::errc{}) << expected.text;
    }
}

TEST(real_text, says_where_there_is_no_number)
{
    for (const char * text : {"", "+1", " 1", "e5", "-", ".", "wall"}) {
        const real_read read = real_at_start(text);
        EXPECT_EQ(read.fault, std::errc::invalid_argument) << text;
        EXPECT_EQ(read.value, 0) << text;
    }
}

TEST(real_text, says_what_no_double_holds)
{
    for (const char * text : {"1e999", "-1e999", "1e-999"})
        EXPECT_EQ(real_at_start(text).fault, std::errc::result_out_of_range) << text;
}
