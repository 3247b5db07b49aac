#include "batch/settings.h"

#include "support/in_a_row.h"
#include "support/real_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace {

constexpr std::uint32_t largest_color = 0xFFFFFF;

// ---- what a control takes

bool is_number(std::string_view text)
{
    const real_read number = real_at_start(text);
    return number.fault == std::errc{} && number.length == text.size() && std::isfinite(number.value);
}

bool is_color(std::string_view text)
{
    std::uint32_t color = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), color);
    return fault == std::errc{} && end == text.data() + text.size() && color <= largest_color;
}

bool is_one_of(std::string_view text, const std::vector<std::string> & choices)
{
    return std::ranges::find(choices, text) != choices.end();
}

bool takes_numbers(const combo_box & list)
{
    return std::ranges::all_of(list.items(), is_number);
}

// What the control takes, in words; empty for one that takes any text.
struct choice {
    bool taken = true;
    std::string told{};
};

choice of_list(const combo_box & list, const std::string & value)
{
    if (!takes_numbers(list))
        return {.taken = is_one_of(value, list.items()), .told = "one of " + in_a_row(list.items())};
    return {.taken = is_number(value), .told = "a number (the list has " + in_a_row(list.items()) + ")"};
}

choice of_control(const control & found, const std::string & value)
{
    if (const auto * list = dynamic_cast<const combo_box *>(&found))
        return of_list(*list, value);
    if (dynamic_cast<const check_box *>(&found) != nullptr)
        return {.taken = is_one_of(value, {"1", "0", "-1", "yes", "no", "true", "false"}),
                .told = "1 or 0, yes or no"};
    // A user can't deselect an option but by selecting another one.
    if (dynamic_cast<const option_button *>(&found) != nullptr)
        return {.taken = is_one_of(value, {"1", "-1", "yes", "true"}), .told = "1, which selects it"};
    if (dynamic_cast<const button *>(&found) != nullptr)
        return {.taken = value == "1", .told = "1, which presses it"};
    if (dynamic_cast<const picture *>(&found) != nullptr)
        return {.taken = is_color(value),
                .told = "a colour, a whole number from 0 to " + std::to_string(largest_color)};
    return {};
}

// To cancel is to end the collage, and it is to be made.
bool can_be_set(const frmMain & main, const control * found)
{
    const bool holds_nothing = dynamic_cast<const group *>(found) != nullptr ||
                               dynamic_cast<const label *>(found) != nullptr ||
                               dynamic_cast<const menu_entry *>(found) != nullptr;
    return found != nullptr && found != &main.cmdCancel && !holds_nothing;
}

std::string names_to_choose_from(const frmMain & main)
{
    std::vector<std::string> names;
    for (const control * each : main.controls())
        if (can_be_set(main, each))
            names.push_back(each->name());
    return in_a_row(names);
}

void check_setting(const frmMain & main, const std::string & name, const std::string & value)
{
    const control * const found = main.find(name);
    if (!can_be_set(main, found))
        throw bad_arguments{(found == nullptr ? "there is no control named \"" + name + "\""
                                              : "\"" + name + "\" is no control that can be set") +
                            "; there are " + names_to_choose_from(main)};
    const choice choices = of_control(*found, value);
    if (!choices.taken)
        throw bad_arguments{name + " takes " + choices.told + ", not \"" + value + "\""};
}

// ---- what is set and shown

void apply_setting(frmMain & main, const std::string & name, const std::string & value)
{
    control * const found = main.find(name);
    if (!found->enabled())
        std::fprintf(stderr, "%s is disabled for this design; it is set all the same.\n", name.c_str());
    found->set_as_user(value);
    if (const auto * list = dynamic_cast<const combo_box *>(found); list != nullptr && list->text() != value)
        std::fprintf(stderr, "%s takes %s for %s.\n", name.c_str(), list->text().c_str(), value.c_str());
}

std::string escaped(const std::string & text)
{
    std::string line;
    for (const char sign : text)
        line += sign == '\t' ? "\\t" : sign == '\n' ? "\\n" : sign == '\r' ? "\\r" : std::string(1, sign);
    return line;
}

}  // namespace

void check_settings(const frmMain & main, const batch_arguments & arguments)
{
    for (const auto & [name, value] : arguments.settings)
        check_setting(main, name, value);
}

void apply_settings(frmMain & main, const batch_arguments & arguments)
{
    const updating guard(main);  // one picture at the end instead of one a setting
    if (arguments.caption)
        main.txtCaption.set_as_user(*arguments.caption);
    // The option of a background asks for its picture when none is named, and nobody is here to answer.
    auto settings = arguments.settings;
    std::stable_partition(settings.begin(), settings.end(),
                          [](const auto & each) { return each.first == "txtBGimage"; });
    for (const auto & [name, value] : settings)
        apply_setting(main, name, value);
}

void print_controls(const frmMain & main)
{
    for (const control * shown : main.controls())
        std::printf("%s\t%d\t%d\t%s\t%s\n", shown->name().c_str(), shown->visible() ? 1 : 0,
                    shown->enabled() ? 1 : 0, escaped(shown->value()).c_str(), escaped(shown->tag).c_str());
}
