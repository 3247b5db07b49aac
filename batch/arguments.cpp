#include "batch/arguments.h"

#include <charconv>
#include <functional>
#include <map>
#include <span>

namespace {

constexpr int smallest_size = 16;
constexpr int largest_size = 12000;  // four times the full size

using words = std::span<const std::string>;

// What an option does with the words behind it; gives how many of them it took.
using option_reader = std::function<std::size_t(batch_arguments &, const std::string & name, words rest)>;

const std::string & value_of(const std::string & name, words rest)
{
    if (rest.empty())
        throw bad_arguments{name + " needs a value"};
    return rest.front();
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

std::size_t read_photos(batch_arguments & read, const std::string & name, words rest)
{
    value_of(name, rest);
    std::size_t taken = 0;
    while (taken < rest.size() && !rest[taken].starts_with("--"))
        read.photos.push_back(rest[taken++]);
    if (taken == 0)
        throw bad_arguments{name + " needs a folder, a list or files"};
    return taken;
}

std::size_t read_setting(batch_arguments & read, const std::string & name, words rest)
{
    const std::string & text = value_of(name, rest);
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || sign == 0)
        throw bad_arguments{name + " takes CONTROL=VALUE, not \"" + text + "\""};
    read.settings.emplace_back(text.substr(0, sign), text.substr(sign + 1));
    return 1;
}

std::size_t read_orientation(batch_arguments & read, const std::string & name, words rest)
{
    read.orientation = value_of(name, rest);
    if (read.orientation != "portrait" && read.orientation != "landscape" && read.orientation != "square")
        throw bad_arguments{name + " is portrait, landscape or square, not \"" + read.orientation + "\""};
    return 1;
}

std::size_t read_quick(batch_arguments & read, const std::string & name, words rest)
{
    read.quick = value_of(name, rest);
    for (const char * style : {"block", "scattered", "matrix", "shapes"})
        if (read.quick == style)
            return 1;
    throw bad_arguments{name + " is block, scattered, matrix or shapes, not \"" + read.quick + "\""};
}

std::size_t read_answer(batch_arguments & read, const std::string & name, words rest)
{
    const std::string & text = value_of(name, rest);
    if (text != "yes" && text != "no")
        throw bad_arguments{name + " is yes or no, not \"" + text + "\""};
    read.answers_yes = text == "yes";
    return 1;
}

option_reader text_into(std::string batch_arguments::*member)
{
    return [member](batch_arguments & read, const std::string & name, words rest) -> std::size_t {
        read.*member = value_of(name, rest);
        return 1;
    };
}

option_reader text_into(std::optional<std::string> batch_arguments::*member)
{
    return [member](batch_arguments & read, const std::string & name, words rest) -> std::size_t {
        read.*member = value_of(name, rest);
        return 1;
    };
}

option_reader task_of(batch_arguments::task wanted)
{
    return [wanted](batch_arguments & read, const std::string &, words) -> std::size_t {
        read.wanted = wanted;
        return 0;
    };
}

std::size_t read_size(batch_arguments & read, const std::string & name, words rest)
{
    read.size = whole_number(name, value_of(name, rest), smallest_size, largest_size);
    return 1;
}

std::size_t read_seed(batch_arguments & read, const std::string & name, words rest)
{
    read.seed = whole_number(name, value_of(name, rest), 0ULL, ~0ULL);
    return 1;
}

std::size_t read_preview(batch_arguments & read, const std::string &, words)
{
    read.preview = true;
    return 0;
}

const std::map<std::string, option_reader> & readers()
{
    static const std::map<std::string, option_reader> table = {
        {"--photos", read_photos},
        {"--design", text_into(&batch_arguments::design)},
        {"--frames", text_into(&batch_arguments::frames)},
        {"--quick", read_quick},
        {"--orientation", read_orientation},
        {"--set", read_setting},
        {"--caption", text_into(&batch_arguments::caption)},
        {"--size", read_size},
        {"--random", read_seed},
        {"--data", text_into(&batch_arguments::data_folder)},
        {"--preview", read_preview},
        {"--answer", read_answer},
        {"--out", text_into(&batch_arguments::out)},
        {"--list", task_of(batch_arguments::task::list)},
        {"--dump", task_of(batch_arguments::task::dump)},
        {"--help", task_of(batch_arguments::task::help)},
        {"--version", task_of(batch_arguments::task::version)},
    };
    return table;
}

void check_complete(const batch_arguments & read)
{
    using task = batch_arguments::task;
    if (read.wanted != task::make && read.wanted != task::dump)
        return;
    if (read.design.empty() && read.quick.empty())
        throw bad_arguments{"--design or --quick is missing; --list shows the designs"};
    if (!read.design.empty() && !read.quick.empty())
        throw bad_arguments{"--design and --quick can't both be made"};
    // A quick style is laid out for its photos.
    if (read.photos.empty() && (read.wanted == task::make || !read.quick.empty()))
        throw bad_arguments{"--photos is missing"};
    if (read.out.empty() && read.wanted == task::make)
        throw bad_arguments{"--out is missing"};
}

}  // namespace

batch_arguments parse_arguments(const std::vector<std::string> & arguments)
{
    batch_arguments read;
    words rest(arguments);
    while (!rest.empty()) {
        const std::string & name = rest.front();
        const auto found = readers().find(name);
        if (found == readers().end())
            throw bad_arguments{"\"" + name + "\" is not known; --help shows what is"};
        rest = rest.subspan(1);
        rest = rest.subspan(found->second(read, name, rest));
    }
    check_complete(read);
    return read;
}

std::string usage()
{
    return R"(tessaloom-batch: makes a collage without a window

  tessaloom-batch --photos DIR|LIST.pls|FILE... --design NAME --out FILE [options]
  tessaloom-batch --photos DIR|LIST.pls|FILE... --quick STYLE --out FILE [options]

  --photos DIR|LIST.pls|FILE...   a folder of JPEG files, a photo list, or the photos themselves
  --design NAME                   a design of the catalogue, as --list names it
  --frames SET                    the set of custom frames for a design that wears one
  --quick block|scattered|matrix|shapes
                                  a layout made for these photos, three or more, instead of a design; the shape is
                                  set by --set cmbShapes=Stars
  --out FILE                      where the JPEG goes; a file that is there is replaced
  --orientation portrait|landscape|square
                                  shape of the poster; without it the one the design was drawn for, and
                                  portrait for a quick style
  --set CONTROL=VALUE             changes a control of the main window as a user would; may be repeated
  --caption TEXT                  text printed on the collage
  --size LONG_SIDE                long side in pixels, 16 to 12000; without it full size
  --random SEED                   repeats the same chance for the same whole number
  --data DIR                      folder of the user's data, made and filled on first use
  --preview                       makes the small preview instead of the full size
  --answer yes|no                 answer to questions; no by default

  --list                          prints the designs: section, name, family, count, tab-separated
  --dump                          prints every control of the main window once the design is applied: name, visible,
                                  enabled, value or text, tag, tab-separated; makes nothing without --out
  --help, --version

Messages go to standard error, one line each. Exit status: 0 made, 1 not made, 2 bad arguments.
)";
}
