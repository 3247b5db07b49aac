#include "intake/intake_arguments.h"

#include <charconv>

namespace {

constexpr const char * usage_text = R"(tessaloom-intake: makes photos ready for a collage

  tessaloom-intake [options] FILE|FOLDER|LIST.pls...

Photos that lie on their side, or are of another format (HEIC, AVIF, PNG, WebP, TIFF, BMP, GIF, a camera's raw file) or
of other colours, get an upright JPEG copy in the data folder. Photos that need nothing are used where they are; no
original is touched. A copy keeps name and time of its photo; it tells when it was taken and nothing else of a person.

  --list FILE.pls   writes a photo list of all photos that can be used
  --deep            takes the folders inside a folder as well
  --data DIR        folder of the user's data
  --limit SIZE      room for all copies that are kept, 2G without it; K, M and G stand for a thousand and so on;
                    what was used last the longest ago goes first
  -h, --help, --version

Exit status: 0 there are photos to be used; 1 there are none, or the list can't be written; 2 bad arguments; 130 stopped.
)";

std::uint64_t factor_of(char letter)
{
    switch (letter) {
        case 'K':
        case 'k':
            return 1'000;
        case 'M':
        case 'm':
            return 1'000'000;
        case 'G':
        case 'g':
            return 1'000'000'000;
        default:
            return 0;
    }
}

std::uint64_t size_of_text(const std::string & text)
{
    std::uint64_t number = 0;
    const char * const end = text.data() + text.size();
    const auto [behind, fault] = std::from_chars(text.data(), end, number);
    const std::uint64_t factor = behind == end ? 1 : behind + 1 == end ? factor_of(*behind) : 0;
    if (fault != std::errc{} || factor == 0 || number > ~std::uint64_t{0} / factor)
        throw bad_intake_arguments{"--limit takes a size such as 500M or 2G, not \"" + text + "\""};
    return number * factor;
}

void read_value(intake_arguments & read, const std::string & name, const std::string & value)
{
    if (value.empty())
        throw bad_intake_arguments{name + " needs a value that isn't empty"};
    if (name == "--list")
        read.list = value;
    else if (name == "--data")
        read.data_folder = value;
    else
        read.room = size_of_text(value);
}

bool takes_value(const std::string & name)
{
    return name == "--list" || name == "--data" || name == "--limit";
}

void read_switch(intake_arguments & read, const std::string & word)
{
    if (word == "--deep")
        read.deep = true;
    else if (word == "--help" || word == "-h")
        read.wanted = intake_arguments::task::help;
    else if (word == "--version")
        read.wanted = intake_arguments::task::version;
    else
        throw bad_intake_arguments{"\"" + word + "\" is not known; --help shows what is"};
}

}  // namespace

intake_arguments parse_intake_arguments(const std::vector<std::string> & words)
{
    intake_arguments read;
    bool options_over = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string & word = words[i];
        const std::size_t sign = word.find('=');
        const std::string name = word.substr(0, sign);
        if (options_over || word.empty() || word[0] != '-')
            read.paths.push_back(word);
        else if (word == "--")
            options_over = true;
        else if (!takes_value(name))
            read_switch(read, word);
        else if (sign != std::string::npos)
            read_value(read, name, word.substr(sign + 1));
        else if (i + 1 < words.size())
            read_value(read, name, words[++i]);
        else
            throw bad_intake_arguments{name + " needs a value"};
    }
    if (read.wanted == intake_arguments::task::prepare && read.paths.empty())
        throw bad_intake_arguments{"no photos are named; --help tells more"};
    return read;
}

std::string intake_usage()
{
    return usage_text;
}
