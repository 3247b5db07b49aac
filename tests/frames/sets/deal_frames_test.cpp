#include "frames/sets/deal_frames.h"

#include <gtest/gtest.h>

namespace {

const std::string place_fields = "10:20:300:200:0:0:0:0:";

// A set with that many captions, in both orientations, beside its frame 00.
frame_deal set_of(int captions, std::string order = {})
{
    return {.set = "club", .order = std::move(order), .has_frame = [captions](const std::string & file) {
                const int number = std::stoi(file.substr(6, 2));
                return number <= captions;
            }};
}

// The frames of the lines as letter and number: "l01 p02", with "?" behind when a photo was missing.
std::string dealt(const std::vector<std::string> & letters, const frame_deal & deal)
{
    std::vector<std::string> source;
    for (const std::string & letter : letters)
        source.push_back(place_fields + "@\\" + letter + "frame.jpg");
    const dealt_frames result = deal_frames(source, deal);
    std::string text;
    for (const std::string & line : result.lines) {
        EXPECT_TRUE(line.starts_with(place_fields + "frames\\club\\")) << line;
        EXPECT_TRUE(line.ends_with(".jpg")) << line;
        text += line.substr(place_fields.size() + 12, 1) + line.substr(line.size() - 6, 2) + " ";
    }
    return text + (result.missing ? std::string(1, *result.missing) + "?" : "");
}

}  // namespace

TEST(deal_frames, writes_the_file_of_the_frame_in_the_place_of_all_behind_the_sign)
{
    const dealt_frames result = deal_frames({"1:2:3:4:0:0:0:0:@\\lframe.jpg:and more"}, set_of(2));
    EXPECT_EQ(result.lines, std::vector<std::string>{"1:2:3:4:0:0:0:0:frames\\club\\lframe01.jpg"});
}

TEST(deal_frames, three_captions_go_round)
{
    EXPECT_EQ(dealt({"l", "p", "l", "p", "p"}, set_of(3)), "l01 p02 l03 p01 p02 ");
}

TEST(deal_frames, without_captions_every_place_has_the_frame_of_the_default_caption)
{
    EXPECT_EQ(dealt({"l", "p", "l"}, set_of(0)), "l00 p00 l00 ");
}

TEST(deal_frames, a_line_without_the_sign_or_with_it_in_front_stays)
{
    const std::vector<std::string> lines{"100:200:300:400:0:-1:-1:0:", "@\\lframe.jpg", "# a note", ""};
    EXPECT_EQ(deal_frames(lines, set_of(3)).lines, lines);
}

TEST(deal_frames, lines_behind_the_next_header_stay_as_they_are)
{
    const std::vector<std::string> lines{"[next]", place_fields + "@\\pframe.jpg"};
    EXPECT_EQ(deal_frames(lines, set_of(3, "l")).lines, lines);
}

TEST(deal_frames, with_a_list_each_place_has_the_caption_of_its_photo)
{
    EXPECT_EQ(dealt({"p", "l", "p", "l"}, set_of(5, "llplp")), "p03 l01 p05 l02 ");
}

TEST(deal_frames, photos_of_one_kind_begin_again_when_they_run_out)
{
    EXPECT_EQ(dealt({"l", "l", "l", "l"}, set_of(3, "lll")), "l01 l02 l03 l01 ");
    EXPECT_EQ(dealt({"p", "l", "p", "l"}, set_of(3, "lpl")), "p02 l01 p02 l03 ");
}

TEST(deal_frames, ends_where_the_list_has_no_photo_of_a_kind)
{
    EXPECT_EQ(dealt({"l", "p", "l"}, set_of(3, "lll")), "l01 p?");
    EXPECT_EQ(dealt({"l"}, set_of(3, "pp")), "l?");
}

TEST(deal_frames, a_photo_beyond_the_captions_has_the_default_one)
{
    EXPECT_EQ(dealt({"l", "l", "l"}, set_of(2, "lll")), "l01 l02 l00 ");
}

TEST(deal_frames, a_place_without_a_letter_asks_for_none)
{
    const dealt_frames result = deal_frames({place_fields + "@"}, set_of(1, "lp"));
    EXPECT_TRUE(result.missing);
    EXPECT_TRUE(result.lines.empty());
}
