#include "designs/package/manifest.h"
#include "support/files/archive.h"
#include "tests/designs/memory_place.h"
#include "tests/designs/package_session.h"

#include <algorithm>
#include <filesystem>

// Packages that want to write, move or delete where they have no business. None may change a thing beyond
// `tmp/unzipped`, which the next import empties, and each is told of.

namespace {

struct hostile_package {
    std::string why;
    std::vector<zip_entry> entries;
    std::string told;  ///< what the message has to say
};

zip_entry manifest(const std::string & text)
{
    return {.name = "manifest", .bytes = text};
}

hostile_package entry(const std::string & why, const std::string & name, std::uint32_t mode = 0100644)
{
    return {why,
            {manifest("$$$ icons\nx x.bmp\n"), {.name = name, .bytes = "evil", .unix_mode = mode}},
            "This design package may not hold the entry '" + name + "'.\r\nThe new design was not imported."};
}

// The refused command stands behind harmless ones: they aren't carried out either.
hostile_package command(const std::string & why, const std::string & line, const std::string & target,
                        int at = 4)
{
    return {why,
            {manifest("$$$ icons\nx x.bmp\n$$$ NAME abcdef designs\\harmless\n" + line + "\n"),
             {.name = "abcdef", .bytes = "x"},
             {.name = "ghijkl", .bytes = "evil"}},
            "This import package may not use '" + target + "' (line " + std::to_string(at) +
                " of its manifest).\r\n\r\nImport has been stoppped."};
}

hostile_package moved(const std::string & why, const std::string & target)
{
    return command(why, "$$$ NAME ghijkl " + target, target);
}

hostile_package renewed(const std::string & why, const std::string & folder)
{
    return command(why, "$$$ NEW  " + folder, folder);
}

// What is at stake: files inside and outside the data folder, and links that lead out of it.
struct besieged_session : memory_place, package_session {
    besieged_session()
    {
        for (const char * name :
             {"precious", "data/precious/a", "data/frames/mine/captions", "data/designs/saved600",
              "data/piclists/summer.pls", "data/tmp/finished.jpg", "data/3_1_install", "data/my photos/a.jpg",
              "data/user_images/pack/inner/a.jpg", "data/images/white.jpg", "outside/a"})
            folder.write(name, "x");
        std::filesystem::create_directory_symlink(folder.at("outside"), at("frames/linked"));
        std::filesystem::create_symlink(folder.at("precious"), at("designs/linked"));
    }
    folder_image everything()
    {
        folder_image image = image_of(folder.path());
        std::erase_if(image, [](const auto & file) {
            return file.first.starts_with("data/tmp/unzipped") || file.first == "package.zip";
        });
        return image;
    }
};

std::vector<hostile_package> entries_out_of_place()
{
    return {entry("parent", "../out"),
            entry("parent inside", "a/../../out"),
            entry("parent with backslashes", "..\\out"),
            entry("mixed separators", "a\\..\\../out"),
            entry("absolute", "/out"),
            entry("absolute with a backslash", "\\out"),
            entry("drive", "C:\\out"),
            entry("drive without a separator", "C:out"),
            entry("share", "\\\\server\\share\\out"),
            entry("the folder itself", "."),
            entry("its parent", ".."),
            entry("stream", "manifest:evil"),
            entry("device", "nul"),
            entry("device with an ending", "com1.txt"),
            entry("device in a folder", "a/LPT1"),
            entry("trailing dot", "manifest."),
            entry("trailing blank", "manifest "),
            entry("empty name inside", "a//b"),
            entry("control character", "a\x01"),
            entry("wildcard", "a*"),
            entry("link", "linked", 0120777),
            entry("device file", "device", 020644),
            entry("socket", "socket", 0140644),
            entry("twice", "manifest"),
            entry("twice in another case", "MANIFEST"),
            entry("too deep", "1/2/3/4/5/6/7/8/9")};
}

std::vector<hostile_package> targets_out_of_place()
{
    return {moved("parent", "..\\out"),
            moved("parent behind a folder", "designs\\..\\..\\out"),
            moved("back to the data folder", "designs\\..\\designs.ini"),
            moved("absolute", "/out"),
            moved("absolute with a backslash", "\\designs\\out"),
            moved("drive", "C:\\out"),
            moved("drive behind a folder", "designs\\C:out"),
            moved("share", "\\\\server\\share"),
            moved("nothing", ""),
            moved("the data folder itself", "."),
            moved("one of its folders", "designs"),
            moved("a folder below", "frames\\mine"),
            moved("the catalogue", "designs.ini"),
            moved("the catalogue in another case", "DESIGNS.INI"),
            moved("the catalogue with a dot", "designs.ini."),
            moved("the marker", "3_1_install"),
            moved("what packages own", "package_folders"),
            moved("the work folder", "tmp\\finished.jpg"),
            moved("the program's pictures", "images\\white.jpg"),
            moved("a folder of the user's", "my photos\\a.jpg"),
            moved("the list of icons", "icons\\icons"),
            moved("its backup", "icons\\Icons.bbb"),
            moved("a work file", "designs\\__quick"),
            moved("a file under construction", "designs\\x.part"),
            moved("a device", "designs\\nul"),
            moved("a stream", "designs\\saved600:x"),
            moved("through a link", "frames\\linked\\a"),
            moved("control character", "designs\\a\x02")};
}

std::vector<hostile_package> folders_out_of_place()
{
    return {renewed("nothing", ""),
            renewed("the data folder itself", "."),
            renewed("its parent", ".."),
            renewed("by a way round", "frames\\.."),
            renewed("the data folder by its name", "..\\data"),
            renewed("absolute", "/"),
            renewed("drive", "C:\\"),
            renewed("designs", "designs"),
            renewed("designs in another case", "DESIGNS"),
            renewed("designs with a separator", "designs\\"),
            renewed("designs with a dot", "designs."),
            renewed("frames", "frames"),
            renewed("icons", "icons"),
            renewed("photo lists", "piclists"),
            renewed("work folder", "tmp"),
            renewed("in the work folder", "tmp\\unzipped"),
            renewed("the program's pictures", "images"),
            renewed("a folder of the user's", "my photos"),
            renewed("in a folder of the user's", "my photos\\a"),
            renewed("a folder with the program's other files", "precious"),
            renewed("a link out of a folder below", "frames\\linked\\a"),
            renewed("device", "frames\\con")};
}

std::vector<hostile_package> folders_of_the_programs_names()
{
    return {renewed("a file", "designs.ini"),
            renewed("a design", "designs\\saved600"),
            renewed("the begun set", "frames\\_named_.not"),
            renewed("the catalogue under construction", "designs.new"),
            renewed("its backup in another case", "Designs.BBB"),
            renewed("what packages own", "package_folders"),
            renewed("a marker that isn't there", "4_2_install"),
            renewed("the lock", "lock"),
            renewed("the turn to fill", "filling"),
            renewed("the supplied catalogue", "designs.supplied"),
            renewed("the mark of a portable program", "portable"),
            renewed("the work folders of others", "scratch\\x"),
            renewed("any list under construction", "icons.new"),
            renewed("what a start set aside", "designs.new.set_aside"),
            renewed("a template to come", "designs\\saved987"),
            renewed("a sample to come", "samples\\SAVED987.jpg"),
            renewed("a description to come", "descriptions\\saved987"),
            renewed("the shape of one's own", "user_images\\custom_shape.gif")};
}

hostile_package written(const std::string & why, const std::string & lines, const std::string & path)
{
    return command(why, lines, path,
                   4 + static_cast<int>(std::ranges::count(lines.substr(0, lines.find(path)), '\n')));
}

hostile_package drawn(const std::string & why, const std::string & location, const std::string & path)
{
    hostile_package package = command(why, "$$$ NAME ghijkl designs\\pictures", path);
    package.entries.back().bytes = location;
    return package;
}

std::vector<hostile_package> texts_that_lead_out()
{
    return {written("the picture of an icon", "$$$ icons\nspy ../../precious", "../../precious"),
            written("the template of a design", "$$$ designs.ini 700\nName=Spy\nFile=../../precious",
                    "../../precious"),
            written("the sample of a design", "$$$ designs.ini 602\nSample=..\\..\\precious\n$$$",
                    "..\\..\\precious"),
            written("the background of a design", "$$$ designs.ini 602\nBG Image=user_images/../../a.jpg",
                    "user_images/../../a.jpg"),
            drawn("a picture of a template", "[x]\r\n0:0:9:9:0:0:0:0:images/../../precious\r\n",
                  "images/../../precious"),
            drawn("a mask of a template", "0:0:9:9:0:0:0:0:..\\mask.gif", "..\\mask.gif")};
}

void expect_refused(const std::vector<hostile_package> & packages)
{
    for (const hostile_package & package : packages) {
        SCOPED_TRACE(package.why);
        besieged_session session;
        const folder_image before = session.everything();
        const std::string zip = session.import_entries(package.entries);
        std::string told = package.told;
        std::ranges::replace_if(
            told, [](char sign) { return sign == 1 || sign == 2; }, '?');
        // The archive library gives some backslashes as they are and others as separators.
        EXPECT_EQ(with_platform_separators(session.desk.next_message()), with_platform_separators(told));
        EXPECT_EQ(session.everything(), before);
        EXPECT_TRUE(file_exists(zip));
    }
}

}  // namespace

TEST(hostile_packages, entries_out_of_place_are_refused)
{
    expect_refused(entries_out_of_place());
}

TEST(hostile_packages, targets_out_of_place_are_refused_before_anything_is_done)
{
    expect_refused(targets_out_of_place());
}

TEST(hostile_packages, folders_out_of_place_are_never_made_new)
{
    expect_refused(folders_out_of_place());
    expect_refused(folders_of_the_programs_names());
}

TEST(hostile_packages, texts_that_lead_out_are_refused_before_anything_is_done)
{
    expect_refused(texts_that_lead_out());
}

TEST(hostile_packages, a_payload_name_that_leads_elsewhere_is_a_missing_file)
{
    for (const char * name : {"../../", "..\\abc", "/etc/p", "C:\\abc", "nul   ", "......"}) {
        besieged_session session;
        const folder_image before = session.everything();
        session.import_manifest(std::string("$$$ NAME ") + name + " designs\\x\n");
        EXPECT_EQ(session.desk.next_message(), std::string("This import package is missing the '") + name +
                                                   "' file.\r\n\r\nImport has been stoppped.");
        EXPECT_EQ(session.everything(), before);
    }
}

TEST(hostile_packages, a_link_in_the_way_of_a_file_is_replaced_and_not_followed)
{
    besieged_session session;
    session.import_manifest("$$$ NAME abcdef designs\\linked\n", {{.name = "abcdef", .bytes = "new"}});
    session.desk.next_message();
    EXPECT_EQ(session.read("designs/linked"), "new");
    EXPECT_EQ(read_file(session.folder.at("precious")), "x");
}

TEST(hostile_packages, a_link_in_the_way_of_a_folder_goes_and_what_it_leads_to_stays)
{
    besieged_session session;
    session.import_manifest("$$$ NEW  frames\\linked\n");
    session.desk.next_message();
    EXPECT_TRUE(folder_exists(session.at("frames/linked")));
    EXPECT_TRUE(files_in(session.at("frames/linked")).empty());
    EXPECT_TRUE(file_exists(session.folder.at("outside/a")));
}

TEST(hostile_packages, too_many_entries_and_too_many_bytes_are_refused_by_name)
{
    const temporary_folder folder;
    const std::string zip = folder.write("a.zip", stored_zip({{.name = "a", .bytes = "123"},
                                                              {.name = "b", .bytes = "456"},
                                                              {.name = "c", .bytes = "7"}}));
    const unpacking many = unpack_zip(zip, folder.at("many"), {.entries = 2});
    EXPECT_EQ(many.ended, unpacking::end::too_many);
    EXPECT_EQ(many.entry, "c");
    const unpacking large = unpack_zip(zip, folder.at("large"), {.bytes = 5});
    EXPECT_EQ(large.ended, unpacking::end::too_large);
    EXPECT_EQ(large.entry, "b");
    EXPECT_FALSE(file_exists(folder.at("large/b")));
    EXPECT_EQ(unpack_zip(zip, folder.at("all"), {.entries = 3, .bytes = 7}).ended, unpacking::end::whole);
}

TEST(hostile_packages, a_package_of_too_many_entries_is_told)
{
    besieged_session session;
    std::vector<zip_entry> entries;
    for (int i = 0; i <= unpack_limits{}.entries; ++i)
        entries.push_back({.name = "e" + std::to_string(i) + "/", .bytes = {}, .unix_mode = 040755});
    session.import_entries(entries);
    EXPECT_EQ(
        session.desk.next_message(),
        "This design package has too many entries, from 'e4000/' on.\r\nThe new design was not imported.");
}

TEST(hostile_packages, a_bomb_is_measured_by_what_comes_out_of_it)
{
    const temporary_folder folder;
    const std::string zip =
        folder.write("a.zip", zip_bytes({{"manifest", ""}, {"zeros1", std::string(4 << 20, '\0')}}));
    EXPECT_LT(std::filesystem::file_size(zip), 1U << 16);
    const unpacking unpacked = unpack_zip(zip, folder.at("out"), {.bytes = 1 << 20});
    EXPECT_EQ(unpacked.ended, unpacking::end::too_large);
    EXPECT_EQ(unpacked.entry, "zeros1");
}

TEST(hostile_packages, a_message_stays_short_and_in_its_lines)
{
    package_session session;
    session.import_manifest("$$$ NEW  " + std::string(5000, 'x') + "\n");
    EXPECT_LT(session.desk.next_message().size(), 250U);
}
