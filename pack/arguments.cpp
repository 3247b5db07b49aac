#include "pack/arguments.h"

namespace {

// The words behind an option, up to the next one.
using values = std::vector<std::string>;

const std::string & one_value(const std::string & option, const values & given)
{
    if (given.size() != 1)
        throw bad_pack_arguments{option + " takes one value"};
    return given.front();
}

void add_names(const std::string & option, const values & given, std::vector<std::string> & names)
{
    if (given.empty())
        throw bad_pack_arguments{option + " needs a name"};
    names.insert(names.end(), given.begin(), given.end());
}

void read_option(pack_arguments & read, const std::string & option, const values & given)
{
    package_request & request = read.request;
    if (option == "--data")
        request.data_folder = one_value(option, given);
    else if (option == "--title")
        request.title = one_value(option, given);
    else if (option == "--out")
        read.file = one_value(option, given);
    else if (option == "--design")
        add_names(option, given, request.designs);
    else if (option == "--frame")
        add_names(option, given, request.frames);
    else if (option == "--icon")
        add_names(option, given, request.icons);
    else if (option == "--check") {
        read.wanted = pack_arguments::task::check;
        read.file = one_value(option, given);
    } else if (option == "--help")
        read.wanted = pack_arguments::task::help;
    else if (option == "--version")
        read.wanted = pack_arguments::task::version;
    else
        throw bad_pack_arguments{"there is no option " + option};
}

void expect_enough(const pack_arguments & read)
{
    const package_request & request = read.request;
    if (read.wanted != pack_arguments::task::make)
        return;
    if (request.data_folder.empty() || read.file.empty())
        throw bad_pack_arguments{"--data and --out are needed; --help tells more"};
    if (request.designs.empty() && request.frames.empty() && request.icons.empty())
        throw bad_pack_arguments{"nothing to pack: give --design, --frame or --icon"};
    if (request.title.find_first_of("\r\n") != std::string::npos)
        throw bad_pack_arguments{"the title has to be one line"};
}

}  // namespace

pack_arguments parse_pack_arguments(const std::vector<std::string> & arguments)
{
    pack_arguments read;
    for (std::size_t i = 0; i < arguments.size();) {
        const std::string & option = arguments[i++];
        if (!option.starts_with("--"))
            throw bad_pack_arguments{"\"" + option + "\" belongs to no option"};
        values given;
        while (i < arguments.size() && !arguments[i].starts_with("--"))
            given.push_back(arguments[i++]);
        read_option(read, option, given);
    }
    expect_enough(read);
    return read;
}

std::string pack_usage()
{
    return R"(Makes a package of designs, frame sets and icons that "Import design" takes in.

tessaloom-pack --data DIR [--design NAME...] [--frame NAME...] [--icon NAME...] [--title TEXT] --out FILE.zip
tessaloom-pack --check FILE.zip

  --data DIR          folder of the user's data
  --design NAME...    designs of one's own, with template, sample, description and pictures
  --frame NAME...     frame sets
  --icon NAME...      icons of the list
  --title TEXT        what the import calls the package; without it the first name
  --out FILE.zip      where the package goes; a file that is there is replaced
  --check FILE.zip    tells every problem of a package, one on a line
  --help, --version

Exit status: 0 made, or no problem found; 1 not made, or problems found; 2 bad arguments.
)";
}
