#include "designers/lettering/lettering_plan.h"
#include "designers/lettering/lettering_text.h"
#include "designs/templates/location_line.h"
#include "tests/sum_by_place.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

using lines = std::vector<std::string>;

using enum poster_shape;

// The numbers and the letter of each line.
std::string letter_line(const char * corner, int size, char letter)
{
    return std::string(corner) + ":0:" + std::to_string(size) + ":0:0:-1:0:alpha/char_" + letter + ".gif";
}

lines written(const lettering_choices & choices, double chance = 0)
{
    return template_lines(lettering_plan(choices, listed({chance})));
}

std::string many(std::size_t count, char sign = 'a')
{
    return std::string(count, sign);
}

}  // namespace

// ---- the text

TEST(normalize_text, a_word_without_a_blank_is_cut_after_29_letters)
{
    EXPECT_EQ(normalize_text(many(30), portrait), many(29) + "\n\r" + many(1));
    EXPECT_EQ(normalize_text(many(30), square), many(29) + "\n\r" + many(1));
    EXPECT_EQ(normalize_text(many(28), portrait), many(28));
    EXPECT_EQ(normalize_text(many(60), portrait), many(29) + "\n\r" + many(29) + "\n\r" + many(2));
}

TEST(normalize_text, a_landscape_line_may_be_ten_letters_longer)
{
    EXPECT_EQ(normalize_text(many(40), landscape), many(39) + "\n\r" + many(1));
}

TEST(normalize_text, a_line_that_has_passed_the_limit_breaks_behind_its_next_blank)
{
    EXPECT_EQ(normalize_text("one two three four five six", portrait), "one two three four five \n\rsix");
    // The blank in the 19th place raises the countdown; the next one breaks.
    EXPECT_EQ(normalize_text(many(18) + " " + many(3) + " b", portrait), many(18) + " " + many(3) + " \n\rb");
}

TEST(normalize_text, the_users_own_line_ends_start_anew)
{
    const std::string text = many(18) + "\r\n" + many(18) + "\r\n" + many(18);
    EXPECT_EQ(normalize_text(text, portrait), text);
}

TEST(plain_text, ends_every_line_alike)
{
    EXPECT_EQ(plain_text("a\nb\rc\r\nd\n\re"), "a\r\nb\r\nc\r\nd\r\n\r\ne");
}

TEST(plain_text, counts_characters_and_not_bytes)
{
    EXPECT_EQ(plain_text("M\xC3\xBCnchen \xF0\x9F\x8C\x9E!"), "M?nchen ?!");
    EXPECT_EQ(plain_text("M\xFCnchen"), "M?nchen");
}

TEST(is_capital, knows_the_26)
{
    EXPECT_TRUE(is_capital('A') && is_capital('M') && is_capital('Z'));
    for (const char other : std::string("az@[09 \xC4"))
        EXPECT_FALSE(is_capital(other)) << other;
}

TEST(with_gaps, leaves_letters_digits_and_line_ends)
{
    EXPECT_EQ(with_gaps("It's 4 pm!\r\n(Zz-09)"), "It s 4 pm \r\n Zz 09 ");
}

// ---- the measure

TEST(lettering_measure, the_end_of_a_line_counts_as_the_first_of_the_next)
{
    const lettering_measure text = measured({.text = "ab\ncd"});
    EXPECT_EQ(text.longest, 3);
    EXPECT_EQ(text.lines, 2);
    EXPECT_EQ(text.size, 619);
    EXPECT_EQ(measured({.text = "ab\n"}).lines, 2);
}

TEST(lettering_measure, of_equally_long_lines_the_one_with_more_capitals_counts)
{
    EXPECT_EQ(measured({.text = "ABC\nxY"}).capitals, 3);
    EXPECT_EQ(measured({.text = "Abc\nXY"}).capitals, 2);
    EXPECT_EQ(measured({.text = "ABC\nxyz"}).capitals, 0);
}

TEST(lettering_measure, a_short_word_is_limited_by_the_width_then_by_the_height)
{
    EXPECT_EQ(measured({.text = "hi"}).size, 939);
    EXPECT_EQ(measured({.text = "i", .shape = landscape}).size, 1900);
    EXPECT_EQ(measured({.text = "a\nb\nc\nd", .shape = landscape}).size, 426);
}

// ---- the template

TEST(lettering_plan, one_word_stands_at_the_top_left)
{
    EXPECT_EQ(written({.text = "Hi"}),
              (lines{letter_line("-52:50", 1014, 'h'), letter_line("100:1086", 845, 'i')}));
}

TEST(lettering_plan, capitals_have_the_pictures_of_the_small_letters)
{
    const lines all = written({.text = "aA"});
    ASSERT_EQ(all.size(), 2U);
    EXPECT_TRUE(all[0].ends_with("alpha/char_a.gif") && all[1].ends_with("alpha/char_a.gif"));
    EXPECT_NE(all[0], all[1]);
}

TEST(lettering_plan, a_centred_word_stands_in_the_middle)
{
    EXPECT_EQ(written({.text = "Hi", .center = true}),
              (lines{letter_line("916:60", 1014, 'h'), letter_line("1068:1096", 845, 'i')}));
}

TEST(lettering_plan, letters_that_overlap_lean_into_each_other)
{
    EXPECT_EQ(written({.text = "Hi", .overlap = true}),
              (lines{letter_line("-62:50", 1082, 'h'), letter_line("100:982", 902, 'i')}));
    EXPECT_EQ(written({.text = "Hi", .overlap = true, .center = true}),
              (lines{letter_line("877:158", 1082, 'h'), letter_line("1039:1090", 902, 'i')}));
}

TEST(lettering_plan, a_second_line_stands_below_the_first)
{
    EXPECT_EQ(written({.text = "ab\r\ncd"}),
              (lines{letter_line("100:50", 619, 'a'), letter_line("100:691", 619, 'b'),
                     letter_line("804:50", 619, 'c'), letter_line("804:691", 619, 'd')}));
}

TEST(lettering_plan, each_line_is_centred_by_itself)
{
    // 939 high, 85 between: 40 lower than the middle of 2900. The CR isn't a letter of its line.
    EXPECT_EQ(written({.text = "ab\nc", .center = true}),
              (lines{letter_line("508:50", 939, 'a'), letter_line("508:1011", 939, 'b'),
                     letter_line("1532:530", 939, 'c')}));
}

TEST(lettering_plan, a_long_line_is_broken_and_its_rest_stands_below)
{
    const lines all = written({.text = many(30)});
    ASSERT_EQ(all.size(), 30U);
    EXPECT_EQ(all[0], letter_line("100:50", 64, 'a'));
    EXPECT_EQ(all[1], letter_line("100:117", 64, 'a'));
    EXPECT_EQ(all[28], letter_line("100:1926", 64, 'a'));
    EXPECT_EQ(all[29], letter_line("197:50", 64, 'a'));
}

TEST(lettering_plan, a_wave_walks_its_five_shifts_from_a_start_of_its_own)
{
    EXPECT_EQ(written({.text = "abc", .placing = letter_placing::serpent}),
              (lines{letter_line("211:50", 619, 'a'), letter_line("156:691", 619, 'b'),
                     letter_line("44:1332", 619, 'c')}));
    // Chance 0.1 begins at 2 (of 25, to the even one): -45, -90, 0.
    EXPECT_EQ(written({.text = "abc", .placing = letter_placing::serpent}, 0.1),
              (lines{letter_line("44:50", 619, 'a'), letter_line("-11:691", 619, 'b'),
                     letter_line("100:1332", 619, 'c')}));
}

TEST(lettering_plan, offset_letters_walk_25_shifts_and_punctuation_is_a_gap)
{
    const lines expected{letter_line("174:50", 619, 'a'), letter_line("193:1337", 619, 'b')};
    EXPECT_EQ(written({.text = "a b", .placing = letter_placing::offset}, 0.5), expected);
    EXPECT_EQ(written({.text = "a&b", .placing = letter_placing::offset}, 0.5), expected);
    EXPECT_EQ(written({.text = "a\xC3\xA4"
                               "b",
                       .placing = letter_placing::offset},
                      0.5),
              expected);
}

TEST(lettering_plan, the_25_shifts_are_those_that_were_chosen)
{
    lines starts;
    for (int i = 0; i < 25; ++i)
        starts.push_back(written({.text = "abc", .placing = letter_placing::offset}, i / 25.0).front());
    const auto top = [](const std::string & line) { return std::stoi(line); };
    for (const std::string & line : starts)
        EXPECT_LE(std::abs(top(line) - 100), 111) << line;  // 90 of 500, at 619
    EXPECT_EQ(sum_by_place(starts, top), 35030);
}

TEST(lettering_plan, a_shifted_capital_rises_by_most_of_what_it_is_larger)
{
    // "Ab": sizes 940, 845; the shift of 90 is 152 there, less 152 for the capital.
    EXPECT_EQ(written({.text = "Ab", .placing = letter_placing::serpent})[0],
              letter_line("100:50", 1014, 'a'));
}

TEST(center_letters, counts_the_line_behind_the_position)
{
    EXPECT_EQ(center_letters("ab\r\ncde", 0, 2000, 100, 10), 895);
    EXPECT_EQ(center_letters("ab\r\ncde", 3, 2000, 100, 10), 840);
    EXPECT_EQ(center_letters("AB cd", 0, 2000, 100, 10), 710);   // 540 and two fifths
    EXPECT_EQ(center_letters("AB cd", 0, 2000, 100, -30), 790);  // 500, two fifths, less four overlaps
    EXPECT_EQ(center_letters("", 0, 2000, 100, 10), 1005);
}

// ---- what can't be laid out

TEST(lettering_fault, a_text_without_a_letter_is_told)
{
    for (const char * text : {"!?&...", "   ", "\n\n", "\xC3\xA4\xC3\xB6\xC3\xBC", "\xF0\x9F\x8C\x9E"})
        EXPECT_EQ(lettering_fault({.text = text}), "There are no letters or digits in that text.") << text;
}

TEST(lettering_fault, an_ampersand_is_refused_in_words)
{
    for (const char * text : {"Tom & Anna", "a&b", "&1"})
        EXPECT_EQ(lettering_fault({.text = text}),
                  "There is no picture of  &.\r\n\r\nPlease write  and  instead.")
            << text;
    EXPECT_EQ(lettering_fault({.text = "Tom + Anna"}), "");
}

TEST(lettering_fault, a_text_that_leaves_its_letters_no_room_is_told)
{
    const std::string told = "There is no room for so many letters.\r\n\r\nPlease shorten the text.";
    for (const poster_shape shape : {portrait, landscape, square}) {
        EXPECT_EQ(lettering_fault({.text = many(2000), .shape = shape}), told);
        EXPECT_EQ(lettering_fault({.text = "a" + many(200, '\n'), .shape = shape}), told);
    }
    EXPECT_EQ(lettering_fault({.text = "Happy birthday, Grandmother! 80 years young.\nSummer 2026"}), "");
}

TEST(lettering_plan, each_alphabet_has_a_folder_and_stands_in_the_same_places)
{
    const lines rounded = written({.text = "Ab 9"});
    const lines sturdy = written({.text = "Ab 9", .alphabet = letter_alphabet::sturdy});
    const lines serif = written({.text = "Ab 9", .alphabet = letter_alphabet::serif});
    ASSERT_EQ(rounded.size(), 3U);
    for (std::size_t i = 0; i < rounded.size(); ++i) {
        const std::size_t name = rounded[i].rfind('/');
        EXPECT_EQ(sturdy[i], rounded[i].substr(0, name) + "/sturdy" + rounded[i].substr(name));
        EXPECT_EQ(serif[i], rounded[i].substr(0, name) + "/serif" + rounded[i].substr(name));
    }
    EXPECT_TRUE(rounded[2].ends_with(":alpha/char_9.gif"));
}

TEST(lettering_plan, any_text_without_a_fault_names_only_pictures_that_there_are)
{
    const std::string alphabet = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::string text;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '&')
            text += static_cast<char>(byte);
    for (const letter_placing placing :
         {letter_placing::align, letter_placing::offset, letter_placing::serpent})
        for (const bool overlap : {false, true}) {
            const lettering_choices choices{.text = text, .placing = placing, .overlap = overlap};
            ASSERT_EQ(lettering_fault(choices), "");
            const lines all = written(choices, 0.7);
            EXPECT_EQ(all.size(), 62U);
            for (const std::string & line : all) {
                const std::string name = line.substr(line.rfind(':') + 1);
                ASSERT_EQ(name.size(), std::string("alpha/char_a.gif").size()) << name;
                EXPECT_NE(alphabet.find(name[11]), std::string::npos) << name;
            }
        }
}
