#include "pack/package_check.h"

#include "support/files/text_file.h"
#include "tests/designs/package_session.h"
#include "tests/small_files.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

text_lines problems(const std::string & manifest, const text_lines & payload = {})
{
    return manifest_problems(manifest_lines(manifest),
                             {.names = payload, .bytes = [](const std::string &) { return std::string(); }});
}

text_lines problems_of_zip(const std::vector<zip_entry> & entries)
{
    const temporary_folder folder;
    return package_problems(folder.write("a.zip", stored_zip(entries)));
}

const std::string title = "$$$ MSG Hearts\n";

}  // namespace

TEST(package_check, finds_nothing_wrong_with_a_good_package)
{
    EXPECT_EQ(problems(title + "$$$ NEW  frames\\heart\n$$$ NAME abcdef frames\\heart\\captions\n"
                               "$$$ NAME ghijkl designs\\heart\n$$$ icons\nsun sun.bmp\n"
                               "$$$ designs.ini 650\n[Design650]\nName=Heart\nFile=heart\nSystem=No\n$$$\n",
                       {"abcdef", "ghijkl"}),
              text_lines{});
}

TEST(package_check, tells_every_problem_of_a_manifest)
{
    EXPECT_EQ(problems("$$$ NAMES\n$$$ NEW  tmp\n$$$ NAME abcdef ..\\x\n$$$ NAME short designs\\x\n"
                       "$$$ NAME abcdef designs\\y\n$$$ designs.ini\nFile=z\nSystem=No\n$$$\n$$$ icons\nsun\n"
                       "$$$ icons",
                       {"abcdef", "unused", "folder/"}),
              (text_lines{"line 2: the package may not use 'tmp'", "line 3: the package may not use '..\\x'",
                          "line 4: the package is missing the file 'short '",
                          "line 5: the package uses the file 'abcdef' twice",
                          "line 1: unknown command: '$$$ NAMES'", "the package has no title",
                          "line 6: a design has no header of its own", "line 6: a design has no name",
                          "line 6: a design has no number", "line 11: this is no icon and its file: 'sun'",
                          "line 12: the line of an icon is missing",
                          "line 6: a design names 'designs/z', which doesn't come with it",
                          "no command uses the file 'unused'", "no command uses the file 'folder/'"}));
}

TEST(package_check, tells_of_texts_that_lead_out)
{
    EXPECT_EQ(problems(title + "$$$ icons\nspy ..\\x.bmp\n"),
              text_lines{"line 3: the package may not use '..\\x.bmp'"});
    EXPECT_EQ(
        problems(title + "$$$ designs.ini 650\n[Design650]\nName=Heart\nBG Image=user_images/../../x\n"),
        text_lines{"line 5: the package may not use 'user_images/../../x'"});
}

TEST(package_check, a_folder_of_the_package_s_own_may_be_used_behind_its_making)
{
    EXPECT_EQ(problems(title + "$$$ NEW  hearts\n$$$ NAME abcdef hearts\\a.jpg\n", {"abcdef"}), text_lines{});
    EXPECT_EQ(problems(title + "$$$ NAME abcdef hearts\\a.jpg\n$$$ NEW  hearts\n", {"abcdef"}),
              text_lines{"line 2: the package may not use 'hearts\\a.jpg'"});
}

TEST(package_check, tells_what_is_wrong_with_the_archive)
{
    const temporary_folder folder;
    EXPECT_EQ(package_problems(folder.write("a.zip", "text")),
              text_lines{"the file is damaged or no zip file"});
    EXPECT_EQ(package_problems(folder.at("none.zip")), text_lines{"the file is damaged or no zip file"});
    EXPECT_EQ(problems_of_zip({{.name = "abcdef", .bytes = "x"}}), text_lines{"the manifest is missing"});
    EXPECT_EQ(problems_of_zip({{.name = "../x", .bytes = "x"}}),
              text_lines{"the entry '../x' is not allowed"});
    EXPECT_EQ(problems_of_zip({{.name = "manifest", .bytes = title + "$$$ NAME abcdef designs\\heart\n"},
                               {.name = "abcdef", .bytes = "0:0:9:9:0:0:0:0:user_images/../../x.jpg\r\n"}}),
              text_lines{"line 2: the package may not use 'user_images/../../x.jpg'"});
    EXPECT_EQ(
        problems_of_zip({{.name = "manifest", .bytes = "$$$ MSG x\n"}, {.name = "abcdef", .bytes = "x"}}),
        text_lines{"no command uses the file 'abcdef'"});
}

// One check for both: what the import refuses the checker names, and what it takes the checker lets pass.
TEST(package_check, finds_in_every_package_what_the_import_finds)
{
    struct row {
        std::string manifest;
        std::vector<zip_entry> files;
        bool is_taken;
    };
    const zip_entry file{.name = "abcdef", .bytes = "x"};
    const row rows[] = {
        {title + "$$$ NAME abcdef designs\\x\n", {file}, true},
        {"\xEF\xBB\xBF" + title + "$$$ NAME abcdef designs\\x\n", {file}, true},
        {title + "$$$ NAME abcdef designs.ini\n", {file}, false},
        {title + "$$$ NAME ghijkl designs\\x\n", {}, false},
        {title + "$$$ NAME abcdef designs\\x\n$$$ NAME abcdef designs\\y\n", {file}, false},
        {title + "$$$ NEW  designs.bbb\n", {}, false},
        {title + "$$$ NEW  hearts\n", {}, true},
        {title + "$$$ icons\nx ../x.bmp\n", {}, false},
        {title + "$$$ designs.ini 600\n[Design600]\nName=a\tb\n$$$\n", {}, false},
        {title + "$$$ designs.ini 600\n[Design600]\nName=" + std::string(5000, 'x') + "\n$$$\n", {}, false},
        {"$$$ MSG " + std::string(201, 'x') + "\n", {}, false},
        {title + "$$$ NAME abcdef designs\\x\n",
         {{.name = "abcdef", .bytes = "0:0:0:0:0:0:0:0:../x"}},
         false},
        {title, {{.name = "../x", .bytes = "x"}}, false},
        {title, {{.name = "aux", .bytes = "x"}}, false},
        {title + "$$$ NAME abcdef descriptions\\x\n",
         {{.name = "abcdef", .bytes = std::string(65537, 'x')}},
         false},
    };
    for (const row & each : rows) {
        SCOPED_TRACE(each.manifest.substr(0, 200));
        package_session session;
        session.import_manifest(each.manifest, each.files);
        const bool is_imported =
            session.desk.next_message() == "\r\nHearts has been successfully imported.\r\n";
        EXPECT_EQ(is_imported, each.is_taken);
        std::vector<zip_entry> entries{{.name = "manifest", .bytes = each.manifest}};
        entries.insert(entries.end(), each.files.begin(), each.files.end());
        EXPECT_EQ(problems_of_zip(entries).empty(), each.is_taken);
    }
}
