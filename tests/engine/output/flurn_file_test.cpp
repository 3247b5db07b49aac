#include "engine/output/flurn_file.h"

#include "support/files/text_file.h"
#include "support/jpeg_density.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

std::string size_text(picture_size own, int save_size)
{
    const picture_size saved = saved_size(own, save_size);
    return std::to_string(saved.width) + "x" + std::to_string(saved.height);
}

}  // namespace

TEST(saved_size, the_long_side_has_that_many_pixels)
{
    EXPECT_EQ(size_text({2000, 3000}, 3000), "2000x3000");
    EXPECT_EQ(size_text({2000, 3000}, 750), "500x750");
    EXPECT_EQ(size_text({3000, 2000}, 750), "750x500");
    EXPECT_EQ(size_text({3000, 2000}, 1001), "1001x667");
    EXPECT_EQ(size_text({2000, 2000}, 750), "750x750");
}

TEST(saved_size, full_size_of_a_square_is_its_own)
{
    EXPECT_EQ(size_text({2000, 2000}, full_long_side), "2000x2000");
}

TEST(saved_size, an_odd_half_rounds_to_even)
{
    EXPECT_EQ(size_text({3, 2}, 1), "1x1");
    EXPECT_EQ(size_text({4, 2}, 5), "5x2");
    EXPECT_EQ(size_text({4, 2}, 7), "7x4");
}

TEST(save_flurn, writes_a_jpeg_of_that_size)
{
    const temporary_folder place;
    const std::string path = place.at("flurn.jpg");
    save_flurn(plain(60, 90, {10, 200, 30}), 45, path);
    const auto size = jpeg_size(path);
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 30);
    EXPECT_EQ(size->height, 45);
}

TEST(save_flurn, tells_the_size_on_paper_that_the_poster_is_meant_for)
{
    // 20 by 30 inches, a square 20 by 20.
    EXPECT_EQ(intended_dpi({2000, 3000}), 100);
    EXPECT_EQ(intended_dpi({3000, 2000}), 100);
    EXPECT_EQ(intended_dpi({2000, 2000}), 100);
    EXPECT_EQ(intended_dpi({500, 750}), 25);
    EXPECT_EQ(intended_dpi({750, 750}), 38);
    EXPECT_EQ(intended_dpi({6000, 9000}), 300);
    EXPECT_EQ(intended_dpi({2, 3}), 1);
    const temporary_folder place;
    const std::string path = place.at("flurn.jpg");
    save_flurn(plain(600, 900, {10, 200, 30}), 900, path);
    EXPECT_EQ(density_of(read_file(path)), 30);
    save_flurn(plain(600, 900, {10, 200, 30}), 450, path);
    EXPECT_EQ(density_of(read_file(path)), 15);
}
