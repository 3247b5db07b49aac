#include "support/files/archive.h"
#include "support/files/file_steps.h"
#include "tests/designs/memory_place.h"
#include "tests/designs/package_session.h"

#include <cerrno>
#include <set>

// Where packages lie, what they are called, and where their files go.

namespace {

const std::string one_design = "$$$ MSG Hearts\n$$$ NAME abcdef designs\\heart\n";

struct opened_to_all : package_session {
    std::string packed(const std::string & folder_of_package)
    {
        return folder.write(
            folder_of_package + "/package.zip",
            stored_zip({{.name = "manifest", .bytes = one_design}, {.name = "abcdef", .bytes = "x"}}));
    }
    void import(const std::string & package)
    {
        desk.will_choose_file(package);
        main.mnuImport.click();
    }
};

void open_to_all(const std::string & folder)
{
    std::filesystem::permissions(folder, std::filesystem::perms{0777});
    for (const auto & entry : std::filesystem::recursive_directory_iterator(folder))
        std::filesystem::permissions(entry.path(), std::filesystem::perms{0777});
}

}  // namespace

TEST(package_places, a_package_in_a_closed_folder_is_imported_and_stays)
{
    opened_to_all session;
    const std::string package = session.packed("medium");
    open_to_all(session.folder.path());
    std::filesystem::permissions(session.folder.at("medium"), std::filesystem::perms{0555});
    {
        const as_ordinary_user user;
        session.import(package);
    }
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_EQ(session.read("designs/heart"), "x");
    EXPECT_TRUE(file_exists(package));
    std::filesystem::permissions(session.folder.at("medium"), std::filesystem::perms{0777});
}

TEST(package_places, files_go_to_another_disk_where_the_user_has_put_a_folder)
{
    opened_to_all session;
    session.folder.write("data/designs/heart", "old");
    const std::string target = session.at("designs/heart");
    bool refused = false;
    const gated_files gate([&](file_step step, const std::string & path) {
        const bool crosses = step == file_step::rename && path == target && !std::exchange(refused, true);
        return crosses ? EXDEV : 0;
    });
    session.import(session.packed("here"));
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_EQ(session.read("designs/heart"), "x");
    EXPECT_FALSE(session.has("tmp/unzipped/abcdef"));
    EXPECT_FALSE(session.has("designs/heart.part"));
}

TEST(package_places, a_folder_on_another_disk_is_made_new_and_comes_back_when_the_import_fails)
{
    for (const bool fails : {false, true}) {
        package_session session;
        session.desk.keeps_messages = true;
        session.folder.write("data/frames/heart/captions", "old");
        session.folder.write("data/frames/heart/inner/a", "x");
        const folder_image before = image_of(session.at("frames"));
        // The first attempt at each would cross from one disk to another, the second ends a copy.
        std::set<std::string> crossing{session.at("tmp/replaced/0"), session.at("frames/heart")};
        const gated_files gate([&](file_step step, const std::string & path) {
            if (fails && step == file_step::write && path.find("icons.new") != std::string::npos)
                return ENOSPC;
            return step == file_step::rename && crossing.erase(path) > 0 ? EXDEV : 0;
        });
        session.import_manifest("$$$ MSG Hearts\n$$$ NEW  frames\\heart\n$$$ icons\nsun sun.bmp\n");
        if (fails)
            EXPECT_EQ(image_of(session.at("frames")), before);
        else
            EXPECT_EQ(image_of(session.at("frames")), (folder_image{{"heart", "folder"}}));
        EXPECT_FALSE(folder_exists(session.at("tmp/replaced")));
    }
}

TEST(package_places, a_full_disk_is_called_by_its_name_and_the_package_stays)
{
    for (const char * place : {"tmp/unzipped/abcdef", "designs.new", "icons/icons.new"}) {
        package_session session;
        const std::string path = session.at(place);
        std::string package;
        {
            const gated_files gate([&](file_step step, const std::string & changed) {
                return step == file_step::write && changed.starts_with(path) ? ENOSPC : 0;
            });
            package = session.import_manifest(
                "$$$ MSG Hearts\n$$$ icons\nsun sun.bmp\n$$$ designs.ini 602\nName=n\n",
                {{.name = "abcdef", .bytes = "x"}});
        }
        const std::string told = session.desk.next_message();
        EXPECT_TRUE(told.starts_with("The disk is full. Make room on it and try again.\n")) << told;
        EXPECT_TRUE(told.ends_with("\r\n\r\nThe new design was not imported.")) << told;
        EXPECT_TRUE(file_exists(package));
        EXPECT_EQ(session.desk.busy_depth, 0);
    }
}

TEST(package_places, a_manifest_may_begin_with_a_byte_order_mark)
{
    package_session session;
    session.import_manifest("\xEF\xBB\xBF" + one_design, {{.name = "abcdef", .bytes = "x"}});
    EXPECT_EQ(session.desk.next_message(), hearts_imported);
    EXPECT_EQ(session.read("designs/heart"), "x");
}

TEST(package_places, names_of_entries_may_have_any_letters)
{
    const std::string umlauts = "\xC3\xA4\xC3\xB6\xC3\xBC.jp", latin = "\xE4\xF6\xFC.jp";
    for (const std::string & name : {umlauts, latin})
        for (const bool flagged : {false, true}) {
            if (flagged && name == latin)
                continue;
            package_session session;
            session.import_manifest(
                "$$$ MSG Hearts\n$$$ NAME " + name + " designs\\heart\n",
                {{.name = name, .bytes = "x", .unix_mode = 0100644, .flags = flagged ? 0x800U : 0U}});
            EXPECT_EQ(session.desk.next_message(), hearts_imported) << flagged;
            EXPECT_EQ(session.read("designs/heart"), "x");
        }
}
