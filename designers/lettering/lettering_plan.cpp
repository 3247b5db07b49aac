#include "designers/lettering/lettering_plan.h"

#include "designers/lettering/lettering_text.h"
#include "designers/poster_area.h"
#include "support/files/paths.h"
#include "support/numbers.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

constexpr int largest_gap = 22;
constexpr int smallest_letter = 4;  // a preview still shows something of it
constexpr int first_gap = 20, room_of_a_gap = 65;
constexpr int largest_line_gap = 85, least_line_gap = 33, least_shifted_line_gap = 38;
constexpr int usual_top = 100, usual_left = 50;

// By how much letters of 500 pixels leave their line, walked letter by letter.
constexpr std::array serpent_shifts{0, 90, 45, -45, -90};
constexpr std::array offset_shifts{90, -45, 45, -60, 60, -30, 60,  -75, 0, 90,  -30, 90, -90,
                                   60, -45, 75, -90, 0,  60,  -60, 75,  0, -90, 60,  -45};
constexpr double shifted_letter = 500;
constexpr int shift_starts = 25;

std::span<const int> shifts_of(letter_placing placing)
{
    if (placing == letter_placing::serpent)
        return serpent_shifts;
    if (placing == letter_placing::offset)
        return offset_shifts;
    return {};
}

// Recipes and kept designs name rounded letters without a folder of their own.
std::string_view folder_of(letter_alphabet alphabet)
{
    if (alphabet == letter_alphabet::sturdy)
        return "alpha/sturdy/";
    return alphabet == letter_alphabet::serif ? "alpha/serif/" : "alpha/";
}

std::string picture_of(char letter, letter_alphabet alphabet)
{
    return std::string(folder_of(alphabet)) + "char_" + lower_case({&letter, 1}) + ".gif";
}

void end_line(lettering_measure & text, int & length, int & capitals)
{
    if (length > text.longest)
        text.capitals = capitals;
    else if (length == text.longest)
        text.capitals = std::max(text.capitals, capitals);
    text.longest = std::max(text.longest, length);
    length = capitals = 0;
}

void count_lines(lettering_measure & text)
{
    int length = 0, capitals = 0;
    for (const char sign : text.text) {
        if (sign == '\r')
            end_line(text, length, capitals);
        if (sign == '\n')
            continue;
        text.letters += is_lettered(sign) ? 1 : 0;
        capitals += is_capital(sign) ? 1 : 0;
        if (++length == 1)
            ++text.lines;
    }
    end_line(text, length, capitals);
}

int distance(int size)
{
    return std::min(nearest(size / 20.0), largest_gap);
}

int size_by_width(const lettering_measure & text, int width, bool overlap)
{
    const int gaps = text.longest - 1;
    const int size =
        nearest((overlap ? width : width - gaps * first_gap) / static_cast<double>(text.longest));
    const int room = overlap ? nearest(size * 0.1 * gaps + width) : width - gaps * distance(size);
    return nearest(nearest(room - size * 0.2 * text.capitals) / static_cast<double>(text.longest));
}

int size_by_height(const lettering_measure & text, int height)
{
    return nearest((height - (text.lines - 1) * room_of_a_gap) / static_cast<double>(text.lines));
}

int line_gap(int size, letter_placing placing)
{
    const int least = placing == letter_placing::align ? least_line_gap : least_shifted_line_gap;
    return std::clamp(nearest(size / 3.8), least, largest_line_gap);
}

// Where the letters are on their way.
class letter_walk {
public:
    letter_walk(const lettering_choices & wanted, const random_source & random);
    std::vector<location> letters();

private:
    void begin_line(std::size_t position);
    void add_letter(char letter, std::size_t position);
    int shift_at(std::size_t position) const;

    const lettering_choices & choices;
    lettering_measure text;
    poster_area area;
    std::span<const int> shifts;
    int gap, first_shift = 0;
    double shift_scale;
    int top = usual_top, left = usual_left;
    std::vector<location> written;
};

letter_walk::letter_walk(const lettering_choices & wanted, const random_source & random)
    : choices(wanted),
      text(measured(wanted)),
      area(work_area(wanted.shape)),
      shifts(shifts_of(wanted.placing)),
      gap(letter_gap(text.size, wanted.overlap)),
      shift_scale(text.size / shifted_letter)
{
    random.reseed();
    first_shift = nearest(random.next() * shift_starts);
}

void letter_walk::begin_line(std::size_t position)
{
    left =
        choices.center ? center_letters(text.text, position, area.width + 100, text.size, gap) : usual_left;
}

int letter_walk::shift_at(std::size_t position) const
{
    if (shifts.empty())
        return 0;
    return nearest(shifts[(static_cast<std::size_t>(first_shift) + position) % shifts.size()] * shift_scale);
}

void letter_walk::add_letter(char letter, std::size_t position)
{
    const int extra = is_capital(letter) ? nearest(text.size / 5.0) : 0;
    const int shift = extra != 0 ? nearest(shift_at(position) - extra * 0.9) : shift_at(position);
    written.push_back({.top = narrow(top + shift),
                       .left = narrow(left),
                       .width = narrow(text.size + extra),
                       .frame = 0,
                       .file = picture_of(letter, choices.alphabet)});
    left += extra + gap + text.size;
}

std::vector<location> letter_walk::letters()
{
    const int between = line_gap(text.size, choices.placing);
    if (choices.center)
        top = nearest((area.height - ((text.lines - 1) * between + text.lines * text.size)) / 2.0 + 40);
    begin_line(0);
    std::size_t position = 0;
    for (const char sign : text.text) {
        ++position;
        if (sign == '\r') {
            top += text.size + between;
            begin_line(position);
        } else if (sign == ' ') {
            left = nearest(left + text.size + gap * shift_scale);
        } else if (sign != '\n') {
            add_letter(sign, position);
        }
    }
    return written;
}

}  // namespace

int letter_gap(int size, bool overlap)
{
    return overlap ? nearest(size / 6.0 * -1) : distance(size);
}

lettering_measure measured(const lettering_choices & choices)
{
    lettering_measure text{.text = with_gaps(normalize_text(plain_text(choices.text), choices.shape))};
    count_lines(text);
    if (text.longest == 0)
        return text;
    const poster_area area = work_area(choices.shape);
    text.size = std::min(size_by_width(text, area.width, choices.overlap), size_by_height(text, area.height));
    return text;
}

int center_letters(std::string_view text, std::size_t position, int line_room, int size, int gap)
{
    int capitals = 0, others = 0, blanks = 0;
    for (const char sign : text.substr(position, text.find('\r', position) - position)) {
        if (sign == ' ')
            ++blanks;
        else if (sign != '\n')
            ++(is_capital(sign) ? capitals : others);
    }
    const int count = capitals + others + blanks;
    int width = (count - 1) * std::max(gap, 0) + size * count;
    width = nearest(width + size / 5.0 * capitals);
    if (gap < 0)
        width += gap * (capitals + others);
    return nearest((line_room - width) / 2.0);
}

std::string lettering_fault(const lettering_choices & choices)
{
    const lettering_measure text = measured(choices);
    if (text.letters == 0)
        return "There are no letters or digits in that text.";
    // Other signs leave a gap that a reader understands.
    if (choices.text.find('&') != std::string::npos)
        return "There is no picture of  &.\r\n\r\nPlease write  and  instead.";
    if (text.size < smallest_letter || text.letters > most_lines)
        return "There is no room for so many letters.\r\n\r\nPlease shorten the text.";
    return {};
}

std::vector<location> lettering_plan(const lettering_choices & choices, const random_source & random)
{
    return letter_walk(choices, random).letters();
}
