#include "support/numbers.h"

#include "tests/raised_by.h"

#include <gtest/gtest.h>
#include <limits>

TEST(numbers, halves_go_to_even)
{
    struct row {
        double value;
        int nearest;
    };
    const row rows[] = {
        {0.5, 0},  {1.5, 2},  {2.5, 2},    {3.5, 4}, {-0.5, 0},  {-1.5, -2}, {-2.5, -2},
        {2.49, 2}, {2.51, 3}, {-2.51, -3}, {0, 0},   {12.5, 12}, {31.5, 32}, {1e6 + 0.5, 1000000}};
    for (const row & given : rows)
        EXPECT_EQ(nearest(given.value), given.nearest) << given.value;
}

TEST(numbers, the_whole_part_goes_down)
{
    EXPECT_EQ(whole(2.99), 2);
    EXPECT_EQ(whole(-2.01), -3);
    EXPECT_EQ(whole(-3), -3);
}

TEST(numbers, what_leaves_16_bits_overflows)
{
    EXPECT_EQ(narrow(32767), 32767);
    EXPECT_EQ(narrow(-32768), -32768);
    EXPECT_EQ(raised_by([] { narrow(32768); }), 6);
    EXPECT_EQ(raised_by([] { narrow(-32769); }), 6);
    EXPECT_EQ(nearest16(32767.4), 32767);
    EXPECT_EQ(raised_by([] { nearest16(32767.5); }), 6);
    EXPECT_EQ(product16(-256, 128), -32768);
    EXPECT_EQ(raised_by([] { product16(256, 128); }), 6);
    EXPECT_EQ(raised_by([] { product16(100000, 100000); }), 6);
}

TEST(numbers, what_leaves_32_bits_or_is_no_number_overflows)
{
    EXPECT_EQ(nearest(2147483647.0), 2147483647);
    EXPECT_EQ(raised_by([] { nearest(2147483648.0); }), 6);
    EXPECT_EQ(raised_by([] { whole(-2147483649.0); }), 6);
    EXPECT_EQ(raised_by([] { nearest(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(raised_by([] { whole(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(leading_number, is_as_much_of_the_text_as_reads_as_a_number)
{
    struct row {
        const char * text;
        double number;
    };
    const row rows[] = {
        {"", 0},        {"12", 12},          {"-7", -7},         {"+7", 7},      {"12px", 12}, {"x12", 0},
        {"1.5.2", 1.5}, {".5", 0.5},         {"-.5", -0.5},      {"5.", 5},      {".", 0},     {"-", 0},
        {"+-1", 0},     {"--1", 0},          {"1,5", 1},         {"00012", 12},  {"1e2", 100}, {"1E+2", 100},
        {"1d2", 100},   {"1D-2", 0.01},      {"1e", 1},          {"1e+", 1},     {"1ex", 1},   {"e5", 0},
        {"inf", 0},     {"nan", 0},          {"0x10", 0},        {"1e-999", 0},  {"1_000", 1}, {"24 rue", 24},
        {"- 5", -5},    {" 1 6 1 5 ", 1615}, {"1\t2\r\n3", 123}, {"1 e 2", 100}, {"\"5\"", 0}};
    for (const row & given : rows)
        EXPECT_EQ(leading_number(given.text), given.number) << given.text;
}

TEST(leading_number, reads_hexadecimal_and_octal_numbers)
{
    struct row {
        const char * text;
        double number;
    };
    const row rows[] = {{"&H1F", 31},      {"&hff", 255},      {"&HFFFF", -1},     {"&H8000", -32768},
                        {"&H7FFF", 32767}, {"&H10000", 65536}, {"&HFFFFFFFF", -1}, {"&O17", 15},
                        {"&o8", 0},        {"&H", 0},          {"&HG", 0},         {"&", 0},
                        {"&X1", 0},        {"-&H1", 0},        {"& H 1 F", 31},    {"&H0x1F", 0},
                        {"&H-1", 0},       {"&H1Fz", 31},      {"&O177777", -1}};
    for (const row & given : rows)
        EXPECT_EQ(leading_number(given.text), given.number) << given.text;
}

TEST(leading_number, beyond_a_double_overflows_and_next_to_nothing_is_0)
{
    EXPECT_EQ(raised_by([] { leading_number("1e999"); }), 6);
    EXPECT_EQ(raised_by([] { leading_number("-1e999"); }), 6);
    EXPECT_EQ(raised_by([] { leading_number(std::string(400, '9')); }), 6);
    EXPECT_EQ(raised_by([] { leading_number("&H1FFFFFFFF"); }), 6);
    EXPECT_EQ(leading_number("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(leading_number("-." + std::string(400, '0') + "1"), 0);
}

TEST(formatted, has_at_least_the_digits_and_the_sign_in_front)
{
    EXPECT_EQ(formatted(5), "5");
    EXPECT_EQ(formatted(5, 2), "05");
    EXPECT_EQ(formatted(-5, 2), "-05");
    EXPECT_EQ(formatted(123, 2), "123");
    EXPECT_EQ(formatted(7, 3), "007");
    EXPECT_EQ(formatted(0, 2), "00");
    EXPECT_EQ(formatted(-2147483647 - 1), "-2147483648");
}
