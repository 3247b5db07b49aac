#include "designs/package/package_rules.h"

#include "designs/browser/description.h"
#include "support/files/text_file.h"

#include <gtest/gtest.h>
#include <map>

namespace {

using kind = package_refusal::kind;

struct package {
    std::string manifest;
    std::map<std::string, std::string> files{};

    std::string first_refusal() const
    {
        package_payload payload{.names = {},
                                .bytes = [this](const std::string & name) { return files.at(name); }};
        for (const auto & [name, bytes] : files)
            payload.names.push_back(name);
        const auto found = package_refusals(manifest_lines(manifest), payload, {"owned"});
        if (found.empty())
            return "taken";
        const std::string stops = found[0].what == kind::missing ? " and stops there" : "";
        return std::to_string(found[0].line) + " " + found[0].why + stops;
    }
};

std::string lines(std::size_t count, const std::string & line)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += line;
    return text;
}

const std::string section = "$$$ designs.ini 600\n[Design600]\n$$$\n";

}  // namespace

TEST(package_rules, each_limit_is_told_with_its_line)
{
    struct row {
        package given;
        std::string told;
    };
    const row rows[] = {
        {{"$$$ MSG " + std::string(longest_title, 'x') + "\n"}, "taken"},
        {{"\n$$$ MSG " + std::string(longest_title + 1, 'x') + "\n"}, "2 has a title of more than 200 bytes"},
        {{"$$$ MSG a\tb\n"}, "1 has a title with control characters"},
        {{"x\n" + std::string(longest_line, 'y') + "\n"}, "taken"},
        {{"x\n" + std::string(longest_line + 1, 'y') + "\n"}, "2 has a line of more than 4096 bytes"},
        {{lines(most_commands, "$$$ MSG x\n")}, "taken"},
        {{lines(most_commands + 1, "$$$ MSG x\n")}, "20001 has more than 20000 commands"},
        {{lines(most_new_folders, "$$$ NEW  a\n")}, "taken"},
        {{lines(most_new_folders + 1, "$$$ NEW  a\n")}, "201 has more than 200 folders"},
        {{lines(most_sections, section)}, "taken"},
        {{lines(most_sections + 1, section)}, "2995 has more than 998 designs"},
        {{"$$$ NAME abcdef descriptions\\x\n", {{"abcdef", std::string(longest_description, 'x')}}}, "taken"},
        {{"\n$$$ NAME abcdef descriptions\\x\n", {{"abcdef", std::string(longest_description + 1, 'x')}}},
         "2 has a description of more than 65536 bytes, 'abcdef'"},
    };
    for (const row & each : rows)
        EXPECT_EQ(each.given.first_refusal(), each.told);
}

TEST(package_rules, names_with_control_characters_are_refused)
{
    EXPECT_EQ((package{"$$$ designs.ini 600\n[Design600]\nHelp Tip=a\tb\nName=a\rb\n$$$\n"}.first_refusal()),
              "4 has a name with control characters, 'Name=a?b'");
    EXPECT_EQ((package{"$$$ icons\nsun\x01 sun.bmp\n"}.first_refusal()),
              "2 has a name with control characters, 'sun? sun.bmp'");
}

TEST(package_rules, what_the_import_may_not_do_is_told_in_the_order_of_the_manifest)
{
    const std::map<std::string, std::string> files{{"abcdef", "0:0:9:9:0:0:0:0:..\\x.jpg\r\n"},
                                                   {"ghijkl", "x"}};
    struct row {
        std::string manifest, told;
    };
    const row rows[] = {
        {"$$$ NAME ghijkl designs\\a\n", "taken"},
        {"$$$ NAME ghijkl owned\\a\n", "taken"},
        {"$$$ NAME ghijkl mine\\a\n", "1 may not use 'mine\\a'"},
        {"$$$ NEW  mine\n$$$ NAME ghijkl mine\\a\n", "taken"},
        {"$$$ NAME abcdef designs\\a\n", "1 may not use '..\\x.jpg'"},
        {"$$$ NAME abcdef frames\\a\\b\n", "taken"},
        {"$$$ NEW  designs.new\n", "1 may not use 'designs.new'"},
        {"$$$ NAME mnopqr designs\\a\n$$$ NEW  tmp\n", "1 is missing the file 'mnopqr' and stops there"},
        {"$$$ NAME ghijkl designs\\a\n$$$ NAME ghijkl designs\\b\n",
         "2 uses the file 'ghijkl' twice and stops there"},
        {"$$$ designs.ini 600\n\nFile=..\\x\n", "3 may not use '..\\x'"},
    };
    for (const row & each : rows)
        EXPECT_EQ((package{each.manifest, files}.first_refusal()), each.told);
}
