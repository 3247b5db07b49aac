#include "batch/output_file.h"

#include "batch/arguments.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct output_file : testing::Test {
    temporary_folder folder;

    std::string fault_of(const std::string & out) const
    {
        try {
            checked_output(out);
            return {};
        } catch (const bad_arguments & fault) {
            return fault.what;
        }
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto & entry : fs::directory_iterator(folder.path()))
            found.push_back(entry.path().filename().string());
        std::ranges::sort(found);
        return found;
    }
};

error_number error_of(const std::string & out)
{
    try {
        checked_output(out);
    } catch (const platform_error & error) {
        EXPECT_EQ(error.path, out);
        return error.number;
    }
    ADD_FAILURE() << out << " was taken";
    return {};
}

}  // namespace

TEST_F(output_file, a_collage_has_the_name_of_a_picture_or_a_page)
{
    for (const char * name :
         {"a.jpg", "a.JPG", "a.jpeg", "a.b.Jpeg", ".jpg", "a.png", "a.tif", "a.TIFF", "a.pdf"})
        EXPECT_EQ(checked_output(folder.at(name)), folder.at(name));
    for (const char * name : {"a.bmp", "a", "a.jpg.part", "a.jpe", "jpg"})
        EXPECT_EQ(fault_of(folder.at(name)), "\"" + folder.at(name) +
                                                 "\" doesn't end in .jpg, .jpeg, .png, .tif, .tiff or .pdf, "
                                                 "which tells the kind of the file");
    EXPECT_EQ(checked_output("-"), "");
}

TEST_F(output_file, what_is_no_file_is_refused_and_stays)
{
    const std::string pipe = folder.at("pipe.jpg"), inner = folder.at("inner.jpg");
    const std::string device = folder.at("device.jpg"), socket = folder.at("socket.jpg");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
    make_folder(inner);
    fs::create_symlink("/dev/null", device);
    const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socket.copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(number, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    EXPECT_EQ(fault_of(pipe), "\"" + pipe + "\" is a pipe; a collage goes to a file");
    EXPECT_EQ(fault_of(inner), "\"" + inner + "\" is a folder; a collage goes to a file");
    EXPECT_EQ(fault_of(device), "\"" + device + "\" is a device; a collage goes to a file");
    EXPECT_EQ(fault_of(socket), "\"" + socket + "\" is a socket; a collage goes to a file");
    for (const std::string & path : {pipe, inner, device, socket})
        EXPECT_THROW(write_output(path, "picture"), bad_arguments);
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_TRUE(fs::is_symlink(device));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_TRUE(fs::is_socket(socket));
    ::close(number);
}

TEST_F(output_file, a_link_is_written_through_in_its_target_s_folder)
{
    const std::string target = folder.write("far/target.jpg", "old");
    fs::create_symlink("far/target.jpg", folder.at("one.jpg"));
    fs::create_symlink("one.jpg", folder.at("two.jpg"));
    EXPECT_EQ(read_file(checked_output(folder.at("two.jpg"))), "old");
    write_output(folder.at("two.jpg"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.at("one.jpg")));
    EXPECT_TRUE(fs::is_symlink(folder.at("two.jpg")));
    EXPECT_FALSE(fs::is_symlink(target));
    EXPECT_EQ(read_file(target), "new");
}

TEST_F(output_file, a_link_to_nothing_makes_its_target)
{
    make_folder(folder.at("far"));
    fs::create_symlink(folder.at("far/new.jpg"), folder.at("link.jpg"));
    write_output(folder.at("link.jpg"), "picture");
    EXPECT_TRUE(fs::is_symlink(folder.at("link.jpg")));
    EXPECT_EQ(read_file(folder.at("far/new.jpg")), "picture");
}

TEST_F(output_file, a_link_goes_on_from_where_it_lies_itself)
{
    folder.write("far/deep/x", "");
    fs::create_symlink("far/deep", folder.at("short"));
    fs::create_symlink("../target.jpg", folder.at("far/deep/link.jpg"));
    write_output(folder.at("short/link.jpg"), "picture");
    EXPECT_EQ(read_file(folder.at("far/target.jpg")), "picture");
}

TEST_F(output_file, links_in_a_circle_are_told)
{
    fs::create_symlink("b.jpg", folder.at("a.jpg"));
    fs::create_symlink("a.jpg", folder.at("b.jpg"));
    EXPECT_EQ(error_of(folder.at("a.jpg")), error_number::path_access);
}

TEST_F(output_file, a_place_that_can_t_be_written_is_told_beforehand)
{
    EXPECT_EQ(error_of(folder.path() + "/nowhere/a.jpg"), error_number::path_not_found);
    const std::string locked = folder.write("locked/a.jpg", "picture");
    ::chmod(folder.path().c_str(), 0755);
    ::chmod(folder.at("locked").c_str(), 0555);
    ::chmod(locked.c_str(), 0666);
    const as_ordinary_user user;
    EXPECT_EQ(error_of(locked), error_number::permission_denied);
}

TEST_F(output_file, a_write_protected_picture_is_told_beforehand)
{
    const std::string held = folder.write("held.jpg", "picture");
    ::chmod(folder.path().c_str(), 0777);
    ::chmod(held.c_str(), 0444);
    const as_ordinary_user user;
    EXPECT_EQ(error_of(held), error_number::permission_denied);
    EXPECT_THROW(write_output(held, "new"), platform_error);
    EXPECT_EQ(read_file(held), "picture");
}

TEST_F(output_file, nothing_of_the_user_s_beside_it_is_touched)
{
    folder.write("elsewhere", "mine");
    for (const char * name : {"a.jpg.part", "a.jpg~", ".a.jpg.part"})
        folder.write(name, "mine");
    fs::create_symlink("elsewhere", folder.at("b.jpg.part"));
    std::vector<std::string> expected = names();
    expected.emplace_back("a.jpg");
    expected.emplace_back("b.jpg");
    std::ranges::sort(expected);
    write_output(folder.at("a.jpg"), "picture");
    write_output(folder.at("b.jpg"), "picture");
    EXPECT_EQ(names(), expected);
    EXPECT_EQ(read_file(folder.at("elsewhere")), "mine");
    EXPECT_EQ(read_file(folder.at("a.jpg.part")), "mine");
    EXPECT_TRUE(fs::is_symlink(folder.at("b.jpg.part")));
}

TEST_F(output_file, a_full_disk_leaves_the_old_picture_and_nothing_beside_it)
{
    folder.write("a.jpg", "old");
    {
        const full_disk disk(1000);
        EXPECT_THROW(write_output(folder.at("a.jpg"), std::string(5000, 'x')), platform_error);
    }
    EXPECT_EQ(read_file(folder.at("a.jpg")), "old");
    EXPECT_EQ(names(), (std::vector<std::string>{"a.jpg"}));
}
