#include "session/start/displaced.h"

#include "designs/catalogue/saved_design.h"
#include "session/start/start_up.h"
#include "tests/designs/package_session.h"

namespace {

// What older packages could make: folders where the program has files.
void displace(package_session & session, const std::vector<std::string> & names)
{
    for (const std::string & name : names)
        session.folder.write("data/" + name + "/inner/a", "of " + name);
}

}  // namespace

TEST(displaced, folders_in_place_of_files_are_set_aside_with_all_they_hold)
{
    package_session session;
    const std::vector<std::string> names{"designs.new",
                                         "designs.bbb",
                                         "designs.supplied",
                                         "package_folders",
                                         "3_1_install",
                                         "4_2_install",
                                         "lock",
                                         "filling",
                                         "icons/icons.new",
                                         "icons/icons.bbb",
                                         "designs/saved600",
                                         "designs/saved12",
                                         "samples/saved7.jpg",
                                         "descriptions/saved600",
                                         "piclists/last_photos.pls"};
    displace(session, names);
    session.folder.write("data/designs.new.set_aside/a", "of an earlier start");
    const folder_image whole = image_of(session.at(""));
    set_displaced_aside(session.main);
    for (const std::string & name : names) {
        EXPECT_FALSE(folder_exists(session.at(name))) << name;
        const std::string aside = name + (name == "designs.new" ? ".set_aside_2" : ".set_aside");
        EXPECT_EQ(session.read(aside + "/inner/a"), "of " + name);
    }
    EXPECT_EQ(session.read("designs.new.set_aside/a"), "of an earlier start");
    EXPECT_EQ(image_of(session.at("")).size(), whole.size());
}

TEST(displaced, everything_else_stays)
{
    package_session session;
    displace(session, {"designs/saved", "designs/saved6x", "designs/mine", "samples/saved7.png",
                       "frames/lock", "my photos", "descriptions/saved.jpg"});
    session.folder.write("data/designs/saved600", "a template");
    const folder_image before = image_of(session.at(""));
    set_displaced_aside(session.main);
    EXPECT_EQ(image_of(session.at("")), before);
}

TEST(displaced, a_damaged_data_folder_heals_at_the_next_start)
{
    package_session session;
    displace(session, {"designs.new", "package_folders", "3_1_install", "lock", "designs/saved600"});
    session.folder.write("install/quick_scatter.ini", "scatter");
    session.folder.write("install/designs.ini", "");
    session.desk.keeps_messages = true;
    prepare_data_folder(session.main, {.use_public_folder = true, .public_folder = session.main.data_folder});
    session.import_manifest("$$$ NEW  hearts\n$$$ designs.ini 602\n[Design602]\nName=Heart\n");
    EXPECT_EQ(session.desk.messages.back(), "\r\nUnamed import has been successfully imported.\r\n");
    session.save("My own");
    EXPECT_EQ(session.read("designs/saved600"), session.quick_layout);
    EXPECT_EQ(session.read("designs/saved600.set_aside/inner/a"), "of designs/saved600");
}

TEST(displaced, a_folder_that_can_t_be_changed_fails_no_start)
{
    package_session session;
    displace(session, {"designs.new"});
    std::filesystem::permissions(session.folder.path(), std::filesystem::perms{0755});
    std::filesystem::permissions(session.at(""), std::filesystem::perms{0555});
    {
        const as_ordinary_user user;
        set_displaced_aside(session.main);
    }
    EXPECT_TRUE(folder_exists(session.at("designs.new")));
    std::filesystem::permissions(session.at(""), std::filesystem::perms{0777});
}
