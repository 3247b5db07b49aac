#include "support/files/text_file.h"

#include "support/files/paths.h"
#include "support/platform_error.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::vector<std::string> lines_of(const std::string & text)
{
    line_source source = line_source::of_text(text);
    std::vector<std::string> lines;
    while (!source.at_end())
        lines.push_back(source.read_line());
    return lines;
}

template <typename Step>
std::string told_by(Step step)
{
    try {
        step();
    } catch (const platform_error & error) {
        return std::to_string(code(error)) + " " + name_of(error.path);
    }
    return "nothing";
}

using texts = std::vector<std::string>;

}  // namespace

TEST(line_source, reads_lines_of_either_end_and_a_last_one_without)
{
    EXPECT_EQ(lines_of("a\r\nb\nc"), (texts{"a", "b", "c"}));
    EXPECT_EQ(lines_of("a\r\nb\r\n"), (texts{"a", "b"}));
    EXPECT_EQ(lines_of("\r\n\na"), (texts{"", "", "a"}));
    EXPECT_EQ(lines_of(""), texts{});
    EXPECT_EQ(lines_of("\n"), texts{""});
}

TEST(line_source, keeps_every_byte_of_a_line)
{
    const std::string bytes("a\0b\t\xFF\xC3 c", 8);
    EXPECT_EQ(lines_of(bytes + "\r\n"), texts{bytes});
    EXPECT_EQ(lines_of("a\rb\r\n"), texts{"a\rb"});
}

TEST(line_source, raises_past_its_end)
{
    EXPECT_EQ(told_by([] { line_source().read_line(); }), "62 ");
    line_source source = line_source::of_text("a");
    source.read_line();
    EXPECT_EQ(told_by([&] { source.read_line(); }), "62 ");
}

TEST(line_source, tells_why_a_file_can_not_be_read)
{
    const temporary_folder folder;
    EXPECT_EQ(told_by([&] { line_source{folder.at("none")}; }), "53 none");
    EXPECT_EQ(told_by([&] { line_source{folder.path()}; }).substr(0, 2), "75");
    ::chmod(folder.write("closed", "x").c_str(), 0);
    const as_ordinary_user user;
    EXPECT_EQ(told_by([&] { line_source{folder.at("closed")}; }), "70 closed");
}

TEST(line_source, reads_more_than_one_chunk)
{
    const temporary_folder folder;
    const std::string line(200000, 'x');
    line_source source(folder.write("long", line + "\r\nend"));
    EXPECT_EQ(source.read_line(), line);
    EXPECT_EQ(source.read_line(), "end");
}

TEST(line_writer, writes_lines_with_carriage_return_and_line_feed)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "old");
    line_writer lines(path, line_writer::mode::fresh);
    lines.write_line("one");
    lines.write_line("");
    lines.close();
    EXPECT_EQ(read_file(path), "one\r\n\r\n");
}

TEST(line_writer, appends_and_makes_a_missing_file)
{
    const temporary_folder folder;
    const std::string path = folder.at("a");
    for (const char * line : {"one", "two"}) {
        line_writer lines(path, line_writer::mode::append);
        lines.write_line(line);
        lines.close();
    }
    EXPECT_EQ(read_file(path), "one\r\ntwo\r\n");
}

TEST(line_writer, appends_behind_a_last_line_without_an_end)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "one\r\ntwo");
    line_writer lines(path, line_writer::mode::append);
    lines.write_line("three");
    lines.close();
    EXPECT_EQ(read_file(path), "one\r\ntwo\r\nthree\r\n");
}

TEST(line_writer, tells_why_a_file_can_not_be_written)
{
    const temporary_folder folder;
    const auto open = [](const std::string & path) { line_writer(path, line_writer::mode::append); };
    EXPECT_EQ(told_by([&] { open(joined(folder.path(), "none/a")); }), "76 a");
    EXPECT_EQ(told_by([&] { open(folder.path()); }).substr(0, 2), "75");
    ::chmod(folder.write("closed", "x").c_str(), 0444);
    const as_ordinary_user user;
    EXPECT_EQ(told_by([&] { open(folder.at("closed")); }), "70 closed");
}

TEST(line_writer, tells_that_the_disk_is_full)
{
    const temporary_folder folder;
    const std::string path = folder.at("a");
    EXPECT_EQ(told_by([&] {
                  const full_disk full(1000);
                  line_writer lines(path, line_writer::mode::fresh);
                  for (int i = 0; i < 100; ++i)
                      lines.write_line(std::string(100, 'x'));
                  lines.close();
              }),
              "61 a");
}

TEST(replace_file, leaves_the_new_bytes_and_nothing_beside_them)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "old and longer");
    replace_file(path, "new");
    EXPECT_EQ(read_file(path), "new");
    replace_file(folder.at("b"), std::string("\0\r\n", 3));
    EXPECT_EQ(read_file(folder.at("b")), std::string("\0\r\n", 3));
    EXPECT_EQ(files_in(folder.path()).size(), 2u);
}

TEST(replace_file, keeps_the_old_file_on_a_full_disk)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "old");
    for (const auto write : {replace_file, write_file}) {
        EXPECT_EQ(told_by([&] {
                      const full_disk full(1000);
                      write(path, std::string(2000, 'x'));
                  }),
                  "61 a");
        EXPECT_EQ(read_file(path), "old");
    }
    EXPECT_EQ(files_in(folder.path()), texts{"a"});
}

TEST(replace_file, keeps_the_rights_of_the_old_file)
{
    const temporary_folder folder;
    const std::string path = folder.write("a", "old");
    ::chmod(path.c_str(), 0640);
    replace_file(path, "new");
    struct stat found {};
    ::stat(path.c_str(), &found);
    EXPECT_EQ(found.st_mode & 0777, 0640u);
}

TEST(replace_file, refuses_a_closed_folder_and_a_protected_file)
{
    const temporary_folder folder;
    const std::string closed = folder.write("closed/a", "old");
    const std::string protected_file = folder.write("b", "old");
    ::chmod(folder.at("closed").c_str(), 0555);
    ::chmod(closed.c_str(), 0666);
    ::chmod(protected_file.c_str(), 0444);
    const as_ordinary_user user;
    EXPECT_EQ(told_by([&] { replace_file(closed, "new"); }), "70 a");
    EXPECT_EQ(told_by([&] { replace_file(protected_file, "new"); }), "70 b");
    EXPECT_EQ(read_file(closed) + read_file(protected_file), "oldold");
}

TEST(replace_file, tells_of_a_missing_folder_and_of_a_folder_in_its_place)
{
    const temporary_folder folder;
    EXPECT_EQ(told_by([&] { replace_file(joined(folder.path(), "none/a"), "x"); }), "76 a");
    folder.write("inner/b", "");
    EXPECT_EQ(told_by([&] { replace_file(folder.at("inner"), "x"); }), "75 inner");
    EXPECT_EQ(files_in(folder.path()), texts{});
}

TEST(text_of, ends_every_line)
{
    EXPECT_EQ(text_of({}), "");
    EXPECT_EQ(text_of({"a", "", "b"}), "a\r\n\r\nb\r\n");
}

TEST(split, gives_at_most_the_limit_and_the_last_field_keeps_further_signs)
{
    EXPECT_EQ(split("a:b:c", ':', 9), (texts{"a", "b", "c"}));
    EXPECT_EQ(split("a:b:c:d", ':', 3), (texts{"a", "b", "c:d"}));
    EXPECT_EQ(split("", ':', 9), texts{""});
    EXPECT_EQ(split(":", ':', 9), (texts{"", ""}));
    EXPECT_EQ(split("a:b", ':', 1), texts{"a:b"});
}

TEST(field_at, raises_a_subscript_error_for_a_missing_field)
{
    EXPECT_EQ(field_at({"a", "b"}, 1), "b");
    EXPECT_EQ(told_by([] { field_at({"a", "b"}, 2); }), "9 ");
    EXPECT_EQ(told_by([] { field_at({}, 0); }), "9 ");
}

TEST(abandoned_parts, go_when_they_are_old_and_nobody_writes_them)
{
    const temporary_folder folder;
    const auto made_old = [&](const char * name) {
        const std::string path = folder.write(name, "half");
        std::filesystem::last_write_time(
            path, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
        return path;
    };
    made_old("a.jpg.1f-0.part");
    const std::string open = made_old("open.jpg.1f-1.part");
    made_old("the user's.part");
    made_old("a.jpg");
    folder.write("young.jpg.1f-2.part", "half");
    const int held = ::open(open.c_str(), O_RDONLY);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    remove_abandoned_parts(folder.path());
    ::close(held);
    std::vector<std::string> left = files_in(folder.path());
    std::ranges::sort(left);
    EXPECT_EQ(left, (std::vector<std::string>{"a.jpg", "open.jpg.1f-1.part", "the user's.part",
                                              "young.jpg.1f-2.part"}));
    remove_abandoned_parts(folder.path());
    EXPECT_FALSE(file_exists(open));
    remove_abandoned_parts(folder.at("none"));
}
