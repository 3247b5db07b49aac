#include "batch/print_size.h"

#include "support/jpeg_density.h"
#include "support/platform_error.h"
#include "tests/batch/batch_program.h"

namespace {

std::string refusal_with(const render_scale & scale, std::uint64_t available)
{
    try {
        check_memory(scale, available);
        return {};
    } catch (const platform_error & error) {
        EXPECT_EQ(error.number, error_number::out_of_memory);
        return error.what();
    }
}

std::vector<std::string> wall(const std::vector<std::string> & more)
{
    std::vector<std::string> words = {"--photos", "a", "--design", "Wall", "--out", "o.jpg"};
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

std::string fault_with(const std::vector<std::string> & more)
{
    try {
        parse_arguments(wall(more));
        return {};
    } catch (const bad_arguments & fault) {
        return fault.what;
    }
}

std::string without_density(std::string jpeg)
{
    return jpeg.erase(13, 5);
}

}  // namespace

TEST(print_size, is_asked_for_by_three_options)
{
    const batch_arguments read = parse_arguments(wall({"--scale", "3", "--dpi=150", "--smooth"}));
    EXPECT_EQ(drawn_scale(read), (render_scale{.poster = 3, .samples = 2}));
    EXPECT_EQ(read.dpi, 150);
    EXPECT_EQ(drawn_scale(parse_arguments(wall({}))), render_scale{});
}

TEST(print_size, refuses_in_words_what_it_cannot_draw)
{
    for (const std::string value : {"5", "0", "-1", "two", "2.5", "", "2x"})
        EXPECT_EQ(fault_with({"--scale", value}),
                  "--scale takes a whole number from 1 to 4, not \"" + value + "\"");
    for (const std::string value : {"0", "2401", "fine", "-300"})
        EXPECT_EQ(fault_with({"--dpi", value}),
                  "--dpi takes a whole number from 1 to 2400, not \"" + value + "\"");
    EXPECT_EQ(fault_with({"--smooth=1"}), "--smooth takes no value");
    for (const std::vector<std::string> & beside : {std::vector<std::string>{"--scale", "2"}, {"--smooth"}}) {
        std::vector<std::string> words = beside;
        words.push_back("--preview");
        EXPECT_EQ(fault_with(words),
                  "--scale and --smooth belong to the full size, not to the small picture of --preview");
    }
    EXPECT_EQ(fault_with({"--preview", "--dpi", "300"}), "");
}

TEST(print_size, tells_what_takes_less_where_memory_is_short)
{
    EXPECT_EQ(
        refusal_with({.poster = 4, .samples = 1}, 1'000'000'000),
        "The poster would be drawn with 8000 by 12000 pixels, which takes about 1.5 GB of memory; there "
        "are 1.0 GB. A smaller --scale takes less.");
    EXPECT_EQ(
        refusal_with({.poster = 3, .samples = 2}, 2'000'000'000),
        "The poster would be drawn with 12000 by 18000 pixels, which takes about 2.4 GB of memory; there "
        "are 2.0 GB. A smaller --scale, or none of --smooth, takes less.");
    EXPECT_EQ(refusal_with({.poster = 1, .samples = 2}, 0).substr(0, 53),
              "The poster would be drawn with 4000 by 6000 pixels, w");
    EXPECT_EQ(refusal_with({.poster = 4, .samples = 1}, memory_for({.poster = 4, .samples = 1})), "");
    EXPECT_EQ(refusal_with({}, 0), "");  // as it always was
}

TEST(print_size, keeps_three_gigabytes_at_every_scale_that_is_not_smoothed)
{
    EXPECT_LT(memory_for({.poster = 3, .samples = 1}), 3'000'000'000U);
    EXPECT_LT(memory_for({.poster = 4, .samples = 1}), 3'000'000'000U);
}

TEST_F(batch_program, tells_its_dpi_where_it_is_asked_to_and_changes_nothing_else)
{
    const auto made = [&](const std::vector<std::string> & more) {
        std::vector<std::string> words = {"--photos", photos(), "--design", "Mosaic wall",
                                          "--random", "1",      "--out",    out()};
        words.insert(words.end(), more.begin(), more.end());
        EXPECT_EQ(run(words), exit_status::made);
        return read_file(out());
    };
    const std::string plain = made({}), scaled = made({"--scale", "1"}), told = made({"--dpi", "85"});
    EXPECT_EQ(density_of(plain), 100);  // of 20 by 30 inches
    EXPECT_EQ(density_of(scaled), 300);
    EXPECT_EQ(density_of(told), 85);
    EXPECT_TRUE(without_density(scaled) == without_density(plain));
    EXPECT_TRUE(without_density(told) == without_density(plain));
    EXPECT_EQ(density_of(made({"--dpi", "600", "--size", "700"})), 600);
    EXPECT_EQ(density_of(made({"--dpi", "96", "--preview"})), 96);
}

TEST_F(batch_program, draws_a_larger_poster_in_each_orientation)
{
    const auto size_at = [&](const std::vector<std::string> & more) {
        std::vector<std::string> words = {"--photos", photos(), "--design", "Mosaic wall", "--out", out()};
        words.insert(words.end(), more.begin(), more.end());
        EXPECT_EQ(run(words), exit_status::made);
        return jpeg_size(out()).value_or(picture_size{});
    };
    EXPECT_EQ(size_at({"--scale", "2", "--orientation", "landscape"}), (picture_size{6000, 4000}));
    EXPECT_EQ(size_at({"--scale", "2", "--orientation", "square"}), (picture_size{4000, 4000}));
    EXPECT_EQ(size_at({"--scale", "2", "--orientation", "square", "--size", "3000"}),
              (picture_size{3000, 3000}));
    EXPECT_EQ(size_at({"--smooth"}), (picture_size{2000, 3000}));
    EXPECT_EQ(size_at({"--scale", "2", "--size", "600"}), (picture_size{400, 600}));
}

TEST_F(batch_program, a_job_list_has_columns_for_scale_and_dpi)
{
    const std::string list = place.write("list.tsv", "out\tphotos\tdesign\tscale\tdpi\n" + out() + "\t" +
                                                         photos() + "\tMosaic wall\t2\t144\n");
    EXPECT_NE(noted({"--jobs", list}).find("made"), std::string::npos);
    EXPECT_EQ(jpeg_size(out()), (picture_size{4000, 6000}));
    EXPECT_EQ(density_of(read_file(out())), 144);
}
