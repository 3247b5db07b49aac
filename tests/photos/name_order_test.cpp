#include "photos/name_order.h"

#include <gtest/gtest.h>

namespace {

using names = std::vector<std::string>;

}  // namespace

TEST(name_order, counts_numbers_as_numbers_and_folds_the_case)
{
    EXPECT_EQ(in_name_order({"b.jpg", "10.jpg", "B1.jpg", "2.jpg", "a.jpg", "C.jpg", "1.jpg"}),
              (names{"1.jpg", "2.jpg", "10.jpg", "a.jpg", "b.jpg", "B1.jpg", "C.jpg"}));
    EXPECT_EQ(in_name_order({"IMG_100.JPG", "img_20.jpg", "Img_3.jpg"}),
              (names{"Img_3.jpg", "img_20.jpg", "IMG_100.JPG"}));
    EXPECT_EQ(in_name_order({"x9y10", "x9y9", "x10y1"}), (names{"x9y9", "x9y10", "x10y1"}));
}

TEST(name_order, folds_letters_beyond_the_latin_alphabet)
{
    EXPECT_EQ(in_name_order({"Öl.jpg", "ö.jpg", "Я1.jpg", "я0.jpg"}),
              (names{"ö.jpg", "Öl.jpg", "я0.jpg", "Я1.jpg"}));
}

TEST(name_order, numbers_may_be_longer_than_any_word_of_the_machine)
{
    EXPECT_TRUE(stands_before("9999999999999999999999998", "9999999999999999999999999"));
    EXPECT_TRUE(stands_before("99999999999999999999999", "100000000000000000000000"));
}

TEST(name_order, what_differs_in_case_or_zeros_alone_has_one_order)
{
    for (const auto & [first, second] : {std::pair{"A.jpg", "a.jpg"}, {"007.jpg", "07.jpg"}, {"0", "00"}}) {
        EXPECT_TRUE(stands_before(first, second)) << first;
        EXPECT_FALSE(stands_before(second, first)) << first;
    }
    EXPECT_FALSE(stands_before("a", "a"));
}

TEST(name_order, a_name_stands_before_those_that_go_on)
{
    EXPECT_TRUE(stands_before("", "a"));
    EXPECT_TRUE(stands_before("a", "a1"));
    EXPECT_TRUE(stands_before("a1", "ab"));
}
