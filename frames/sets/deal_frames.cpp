#include "frames/sets/deal_frames.h"

#include "support/numbers.h"

#include <algorithm>

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

std::string frame_file(char letter, int number)
{
    return std::string(1, letter) + "frame" + formatted(number, 2) + ".jpg";
}

char upper(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

// The number of the caption for a location, 0 for none.
int caption_for(frame_deal & deal, char letter, int in_turn)
{
    return deal.order.empty() ? in_turn : take_next_photo(deal.order, letter);
}

std::string dealt_line(const frame_deal & deal, std::string_view place, char letter, int caption)
{
    const std::string own = frame_file(letter, caption);
    return std::string(place) + "frames\\" + deal.set + "\\" +
           (deal.has_frame(own) ? own : frame_file(letter, 0));
}

int next_caption(const frame_deal & deal, int caption)
{
    if (caption == 0)
        return 0;
    return deal.has_frame(frame_file('l', caption + 1)) ? caption + 1 : 1;
}

}  // namespace

int take_next_photo(std::string & order, char letter)
{
    if (order.find(letter) == nowhere)
        std::ranges::replace(order, upper(letter), letter);
    const std::size_t photo = order.find(letter);
    if (photo == nowhere)
        return 0;
    order[photo] = upper(letter);
    return static_cast<int>(photo) + 1;
}

dealt_frames deal_frames(const std::vector<std::string> & source, frame_deal deal)
{
    dealt_frames dealt;
    int in_turn = deal.has_frame(frame_file('l', 1)) ? 1 : 0;
    bool in_section = true;
    for (const std::string & line : source) {
        const std::size_t sign = line.find('@');
        in_section = in_section && !line.starts_with('[');
        if (!in_section || sign == nowhere || sign == 0) {
            dealt.lines.push_back(line);
            continue;
        }
        const char letter = sign + 2 < line.size() ? line[sign + 2] : ' ';
        const int caption = caption_for(deal, letter, in_turn);
        if (caption == 0 && !deal.order.empty()) {
            dealt.missing = letter;
            break;
        }
        dealt.lines.push_back(dealt_line(deal, std::string_view(line).substr(0, sign), letter, caption));
        in_turn = next_caption(deal, in_turn);
    }
    return dealt;
}
