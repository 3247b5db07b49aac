#include "support/files/archive.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/small_files.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

struct archive_test : testing::Test {
    temporary_folder folder;
    std::string target = folder.at("target/frames");

    archive_test() { make_folder(target); }
    bool extract(const std::vector<zip_entry> & entries)
    {
        return extract_zip(folder.write("a.zip", stored_zip(entries)), target);
    }
    std::string text(const std::string & name) const { return read_file(joined(target, name)); }
};

}  // namespace

TEST_F(archive_test, all_files_are_unpacked_and_overwrite)
{
    folder.write("target/frames/colts/captions", "old");
    folder.write("target/frames/colts/mine", "mine");
    EXPECT_TRUE(extract({{.name = "colts/", .bytes = {}, .unix_mode = 040755},
                         {.name = "colts/captions", .bytes = "new"},
                         {.name = "rams/design.ini", .bytes = std::string("\0\r\n", 3)},
                         {.name = "empty", .bytes = {}}}));
    EXPECT_EQ(text("colts/captions"), "new");
    EXPECT_EQ(text("colts/mine"), "mine");
    EXPECT_EQ(text("rams/design.ini"), std::string("\0\r\n", 3));
    EXPECT_EQ(text("empty"), "");
}

TEST_F(archive_test, backslashes_in_names_are_separators)
{
    EXPECT_TRUE(extract({{.name = "rams\\captions", .bytes = "x"}}));
    EXPECT_EQ(text("rams/captions"), "x");
}

TEST_F(archive_test, entries_that_leave_the_destination_are_refused)
{
    for (const char * name :
         {"../out", "a/../../out", "..\\out", "a\\..\\..\\out", "/out", "\\out", "C:out", "C:\\out", ".."}) {
        EXPECT_FALSE(extract({{.name = "first", .bytes = "1"},
                              {.name = name, .bytes = "evil"},
                              {.name = "last", .bytes = "3"}}))
            << name;
        EXPECT_EQ(text("first"), "1") << name;
        EXPECT_FALSE(file_exists(folder.at("target/out")) || file_exists(folder.at("out"))) << name;
        EXPECT_FALSE(file_exists("/out") || file_exists(joined(target, "last"))) << name;
    }
}

TEST_F(archive_test, links_and_devices_are_refused)
{
    EXPECT_FALSE(extract({{.name = "link", .bytes = "/etc/passwd", .unix_mode = 0120777}}));
    EXPECT_FALSE(extract({{.name = "device", .bytes = {}, .unix_mode = 020644}}));
    EXPECT_TRUE(files_in(target).empty());
}

TEST_F(archive_test, a_missing_damaged_or_foreign_archive_is_told_by_the_result)
{
    EXPECT_FALSE(extract_zip(folder.at("none.zip"), target));
    EXPECT_FALSE(extract_zip(folder.path(), target));
    EXPECT_FALSE(extract_zip(folder.write("text.zip", "no archive at all, just a text"), target));
    std::string bytes = stored_zip({{.name = "a", .bytes = "some bytes"}});
    bytes[bytes.find("some")] = 'S';  // the sum no longer fits
    EXPECT_FALSE(extract_zip(folder.write("damaged.zip", bytes), target));
}

TEST_F(archive_test, a_closed_destination_is_told_by_the_result)
{
    ::chmod(target.c_str(), 0555);
    const std::string zip = folder.write("a.zip", stored_zip({{.name = "a", .bytes = "x"}}));
    const as_ordinary_user user;
    EXPECT_FALSE(extract_zip(zip, target));
}
