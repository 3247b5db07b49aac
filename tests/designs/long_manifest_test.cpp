#include "support/files/file_steps.h"
#include "tests/designs/package_session.h"

// Manifests with many commands: each list is written once, and is in the end what it would be if every
// command had written it.

namespace {

int writes_of(const std::string & manifest, package_session & session)
{
    int flushes = 0;
    const gated_files gate([&](file_step step, const std::string & path) {
        const bool is_list =
            path.find("icons/icons") != std::string::npos || path.find("designs.") != std::string::npos;
        flushes += step == file_step::rename && is_list ? 1 : 0;
        return 0;
    });
    session.import_manifest(manifest, {{.name = "abcdef", .bytes = "x"}});
    return flushes;
}

// The same commands, each in a package of its own.
void import_one_by_one(const std::vector<std::string> & commands, package_session & session)
{
    for (const std::string & command : commands)
        session.import_manifest(command);
}

folder_image lists_of(package_session & session)
{
    folder_image all = image_of(session.at(""));
    std::erase_if(all, [](const auto & file) { return file.first.starts_with("tmp"); });
    return all;
}

}  // namespace

TEST(long_manifest, lists_are_written_once_whatever_stands_between)
{
    package_session session;
    session.desk.keeps_messages = true;
    std::string manifest;
    for (int i = 0; i < 300; ++i) {
        manifest += "$$$ icons\nicon" + std::to_string(i) + " sun.bmp\n";
        manifest +=
            "$$$ designs.ini " + std::to_string(602 + i % 2 * 2) + "\nName=n" + std::to_string(i) + "\n$$$\n";
        if (i == 100)
            manifest += "$$$ NAME abcdef designs\\heart\n";
    }
    EXPECT_EQ(writes_of(manifest, session), 6) << "each list, its backup, and the swap";
    EXPECT_EQ(lines_of_file(session.at("icons/icons")).size(), 301U);
}

TEST(long_manifest, ends_as_if_every_command_had_written_its_list)
{
    const std::vector<std::string> commands{
        "$$$ icons\nsun sun.bmp\n",           "$$$ designs.ini 602\nName=n\n$$$\n",
        "$$$ icons\nstar star.bmp\n",         "$$$ icons\nmoon moon.bmp\n",
        "$$$ designs.ini 605\nName=f\n$$$\n", "$$$ designs.ini 700\nName=g\n$$$\n"};
    for (std::size_t count = 1; count <= commands.size(); ++count) {
        const std::vector<std::string> first(commands.begin(), commands.begin() + static_cast<long>(count));
        package_session together, apart;
        together.desk.keeps_messages = apart.desk.keeps_messages = true;
        std::string all;
        for (const std::string & command : first)
            all += command;
        together.import_manifest(all);
        import_one_by_one(first, apart);
        EXPECT_EQ(lists_of(together), lists_of(apart)) << count;
    }
}

TEST(long_manifest, what_stands_before_a_missing_file_stays_in_the_lists)
{
    package_session session;
    session.import_manifest(
        "$$$ icons\nsun sun.bmp\n$$$ designs.ini 602\nName=n\n$$$\n$$$ NAME ghijkl designs\\x\n"
        "$$$ icons\nmoon moon.bmp\n");
    EXPECT_EQ(session.desk.next_message(),
              "This import package is missing the 'ghijkl' file.\r\n\r\nImport has been stoppped.");
    EXPECT_EQ(session.read("icons/icons"), "star star.bmp\r\nsun sun.bmp\r\n");
    EXPECT_NE(session.read("designs.ini").find("[Design602]\r\nName=n\r\n"), std::string::npos);
}

TEST(long_manifest, fifteen_thousand_icons_cost_no_more_steps_than_one)
{
    package_session one, many;
    one.desk.keeps_messages = many.desk.keeps_messages = true;
    std::string manifest;
    for (int i = 0; i < 15000; ++i)
        manifest += "$$$ icons\nicon" + std::to_string(i) + " sun.bmp\n";
    EXPECT_EQ(writes_of(manifest, many), writes_of("$$$ icons\nsun sun.bmp\n", one));
    EXPECT_EQ(lines_of_file(many.at("icons/icons")).size(), 15001U);
}
