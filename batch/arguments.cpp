#include "batch/arguments.h"

#include "batch/page_plan.h"
#include "support/in_a_row.h"
#include "support/workers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <map>
#include <span>

namespace {

constexpr int smallest_size = 16;
constexpr int largest_size = 12000;  // four times the full size
constexpr int largest_scale = 4;
constexpr int largest_dpi = 2400;
constexpr int largest_bleed = 50;  // millimetres

using words = std::span<const std::string>;
using value_reader =
    std::function<void(batch_arguments &, const std::string & name, const std::string & value)>;
using switch_reader = std::function<void(batch_arguments &)>;

// An option as the command line and a job list have it.
struct option {
    value_reader take;      // empty for a switch
    switch_reader turn_on;  // empty for one with a value
    enum class home { anywhere, command_line } at = home::anywhere;
};

void refuse_empty(const std::string & name, const std::string & value)
{
    if (value.empty())
        throw bad_arguments{name + " needs a value that isn't empty"};
}

template <typename Number>
Number whole_number(const std::string & name, const std::string & text, Number least, Number most)
{
    Number number{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc{} || end != text.data() + text.size() || number < least || number > most)
        throw bad_arguments{name + " takes a whole number from " + std::to_string(least) + " to " +
                            std::to_string(most) + ", not \"" + text + "\""};
    return number;
}

std::string one_of(const std::string & name, const std::string & value, words choices)
{
    if (std::ranges::find(choices, value) != choices.end())
        return value;
    std::string told = choices.front();
    for (std::size_t i = 1; i < choices.size(); ++i)
        told += (i + 1 == choices.size() ? " or " : ", ") + choices[i];
    throw bad_arguments{name + " is " + told + ", not \"" + value + "\""};
}

void read_setting(batch_arguments & read, const std::string & name, const std::string & text)
{
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || sign == 0)
        throw bad_arguments{name + " takes CONTROL=VALUE, not \"" + text + "\""};
    read.settings.emplace_back(text.substr(0, sign), text.substr(sign + 1));
}

option text_into(std::string batch_arguments::*member)
{
    return {.take =
                [member](batch_arguments & read, const std::string & name, const std::string & value) {
                    refuse_empty(name, value);
                    read.*member = value;
                },
            .turn_on = {}};
}

option choice_into(std::string batch_arguments::*member, std::vector<std::string> choices)
{
    return {.take = [member, choices = std::move(choices)](
                        batch_arguments & read, const std::string & name,
                        const std::string & value) { read.*member = one_of(name, value, choices); },
            .turn_on = {}};
}

option valued(value_reader take)
{
    return {.take = std::move(take), .turn_on = {}};
}

option switched(bool batch_arguments::*member)
{
    return {.take = {}, .turn_on = [member](batch_arguments & read) { read.*member = true; }};
}

option task_of(batch_arguments::task wanted)
{
    return {.take = {},
            .turn_on = [wanted](batch_arguments & read) { read.wanted = wanted; },
            .at = option::home::command_line};
}

option on_the_command_line(option given)
{
    given.at = option::home::command_line;
    return given;
}

void read_photos(batch_arguments & read, const std::string & name, const std::string & value)
{
    refuse_empty(name, value);
    read.photos.push_back(value);
}

void read_caption(batch_arguments & read, const std::string &, const std::string & value)
{
    read.caption = value;
}

void read_size(batch_arguments & read, const std::string & name, const std::string & value)
{
    read.size = whole_number(name, value, smallest_size, largest_size);
}

void read_threads(batch_arguments & read, const std::string & name, const std::string & value)
{
    read.threads = whole_number(name, value, 1, worker_pool::most);
}

void read_scale(batch_arguments & read, const std::string & name, const std::string & value)
{
    read.scale = whole_number(name, value, 1, largest_scale);
}

void read_dpi(batch_arguments & read, const std::string & name, const std::string & value)
{
    read.dpi = whole_number(name, value, 1, largest_dpi);
}

void read_page(batch_arguments & read, const std::string & name, const std::string & value)
{
    if (!is_page_size(value))
        throw bad_arguments{name + " is " + page_sizes + ", not \"" + value + "\""};
    read.page = value;
}

void read_bleed(batch_arguments & read, const std::string & name, const std::string & value)
{
    read.bleed = whole_number(name, value, 0, largest_bleed);
}

void read_seed(batch_arguments & read, const std::string & name, const std::string & value)
{
    read.seed = whole_number(name, value, 0ULL, ~0ULL);
}

void read_data(batch_arguments & read, const std::string & name, const std::string & value)
{
    refuse_empty(name, value);
    read.data_folder = value;
}

void read_answer(batch_arguments & read, const std::string & name, const std::string & value)
{
    read.answers_yes = one_of(name, value, std::array<std::string, 2>{"yes", "no"}) == "yes";
}

void read_jobs(batch_arguments & read, const std::string & name, const std::string & value)
{
    refuse_empty(name, value);
    read.wanted = batch_arguments::task::jobs;
    read.jobs = value;
}

const std::map<std::string, option> & options()
{
    using task = batch_arguments::task;
    static const std::map<std::string, option> table = {
        {"--photos", valued(read_photos)},
        {"--design", text_into(&batch_arguments::design)},
        {"--frames", text_into(&batch_arguments::frames)},
        {"--recipe", text_into(&batch_arguments::recipe)},
        {"--quick", choice_into(&batch_arguments::quick, {"block", "scattered", "matrix", "shapes"})},
        {"--orientation", choice_into(&batch_arguments::orientation, {"portrait", "landscape", "square"})},
        {"--set", valued(read_setting)},
        {"--caption", valued(read_caption)},
        {"--size", valued(read_size)},
        {"--scale", valued(read_scale)},
        {"--dpi", valued(read_dpi)},
        {"--page", valued(read_page)},
        {"--around", choice_into(&batch_arguments::around, {"white", "ground"})},
        {"--bleed", valued(read_bleed)},
        {"--random", valued(read_seed)},
        {"--answer", valued(read_answer)},
        {"--out", text_into(&batch_arguments::out)},
        {"--keep", on_the_command_line(text_into(&batch_arguments::keep))},
        {"--data", on_the_command_line(valued(read_data))},
        {"--jobs", on_the_command_line(valued(read_jobs))},
        {"--intake", on_the_command_line(switched(&batch_arguments::intake))},
        {"--threads", on_the_command_line(valued(read_threads))},
        {"--preview", on_the_command_line(switched(&batch_arguments::preview))},
        {"--smooth", on_the_command_line(switched(&batch_arguments::smooth))},
        {"--again", on_the_command_line(switched(&batch_arguments::again))},
        {"--list", task_of(task::list)},
        {"--dump", task_of(task::dump)},
        {"--help", task_of(task::help)},
        {"-h", task_of(task::help)},
        {"--report", task_of(task::report)},
        {"--version", task_of(task::version)},
    };
    return table;
}

bool begins_an_option(const std::string & word)
{
    return word.starts_with("--") || word == "-h";
}

// Takes the values behind the option's name: photos take all there are, the others one.
words take_values(batch_arguments & read, const std::string & name, const option & given, words rest)
{
    if (rest.empty())
        throw bad_arguments{name + " needs a value"};
    if (name == "--photos" && begins_an_option(rest.front()))
        throw bad_arguments{name + " needs a folder, a list or files"};
    do {
        given.take(read, name, rest.front());
        rest = rest.subspan(1);
    } while (name == "--photos" && !rest.empty() && !begins_an_option(rest.front()));
    return rest;
}

words take_option(batch_arguments & read, words rest)
{
    const std::string & word = rest.front();
    const std::size_t sign = word.starts_with("--") ? word.find('=') : std::string::npos;
    const std::string name = word.substr(0, sign);
    const auto found = options().find(name);
    if (found == options().end())
        throw bad_arguments{"\"" + word + "\" is not known; --help shows what is"};
    const option & given = found->second;
    rest = rest.subspan(1);
    if (sign == std::string::npos && given.take)
        return take_values(read, name, given, rest);
    if (sign != std::string::npos && !given.take)
        throw bad_arguments{name + " takes no value"};
    if (given.take)
        given.take(read, name, word.substr(sign + 1));
    else
        given.turn_on(read);
    return rest;
}

// A recipe says itself what these would say.
void check_beside_recipe(const batch_arguments & read)
{
    const auto refuse = [](const std::string & name) {
        throw bad_arguments{"--recipe and " + name + " can't both be followed: the recipe says it already"};
    };
    if (!read.design.empty())
        refuse("--design");
    if (!read.quick.empty())
        refuse("--quick");
    if (!read.frames.empty())
        refuse("--frames");
    if (!read.orientation.empty())
        refuse("--orientation");
    if (read.seed)
        refuse("--random");
}

void check_what_is_made(const batch_arguments & read)
{
    if (!read.recipe.empty())
        return check_beside_recipe(read);
    if (read.design.empty() && read.quick.empty())
        throw bad_arguments{"--design, --quick or --recipe is missing; --list shows the designs"};
    if (!read.design.empty() && !read.quick.empty())
        throw bad_arguments{"--design and --quick can't both be made"};
}

std::string columns_of_a_job_list()
{
    std::vector<std::string> names;
    for (const auto & [name, each] : options())
        if (each.at == option::home::anywhere)
            names.push_back(name.substr(2));
    return in_a_row(names);
}

}  // namespace

batch_arguments parse_arguments(const std::vector<std::string> & given)
{
    batch_arguments read;
    for (words rest(given); !rest.empty();)
        rest = take_option(read, rest);
    using task = batch_arguments::task;
    if (read.wanted == task::make || read.wanted == task::dump)
        check_complete(read);
    if (read.wanted == task::jobs && !read.out.empty())
        throw bad_arguments{"--out belongs to each job of the list, not beside --jobs"};
    return read;
}

void check_job_column(const std::string & name)
{
    const auto found = options().find("--" + name);
    if (found == options().end() || found->second.at != option::home::anywhere)
        throw bad_arguments{"there is no column \"" + name + "\"; the columns are " +
                            columns_of_a_job_list()};
}

void read_job_option(batch_arguments & read, const std::string & name, const std::string & value)
{
    check_job_column(name);
    const std::string option_name = "--" + name;
    options().at(option_name).take(read, option_name, value);
}

void check_complete(const batch_arguments & read)
{
    using task = batch_arguments::task;
    check_what_is_made(read);
    // A quick style is laid out for its photos; a recipe brings its own.
    if (read.photos.empty() && read.recipe.empty() && (read.wanted == task::make || !read.quick.empty()))
        throw bad_arguments{"--photos is missing"};
    if (read.out.empty() && read.wanted == task::make)
        throw bad_arguments{"--out is missing"};
    if (read.preview && (read.scale || read.smooth))
        throw bad_arguments{
            "--scale and --smooth belong to the full size, not to the small picture of --preview"};
    if (read.out == standard_stream && read.wanted == task::dump)
        throw bad_arguments{"--dump prints to standard output, so --out has to name a file"};
}
