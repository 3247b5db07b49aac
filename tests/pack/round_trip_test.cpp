#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/chosen_design.h"
#include "pack/package_check.h"
#include "pack/package_maker.h"
#include "session/connect_all.h"
#include "support/files/archive.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/designs/own_designs.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

/// Four photos, and a data folder in which designs can be kept.
struct keeping_session : four_photos {
    keeping_session()
    {
        connect_all(all);
        for (const char * place : {"samples/x", "descriptions/x", "frames/x", "icons/x", "user_images/x"})
            home.at(std::string("data/") + place);
        home.write("data/designs.ini", "[Design001]\r\nName=Supplied\r\nSystem=Yes\r\n");
        home.write("data/icons/icons", "");
    }
    std::string at(const std::string & name) const { return home.at("data/" + name); }
    /// The template that a quick style would have left, with that picture on top.
    void leave_quick_layout(const std::string & picture = {})
    {
        std::vector<std::string> lines = quarters();
        if (!picture.empty())
            lines.push_back("1000:600:800:700:0:0:0:0:" + picture);
        home.write("data/designs/__quick", text_of(lines));
        main.lblDesign.set_caption("Quick Block");
        main.mnuSaveDesign.enable(true);
    }
    void save(const std::string & name, const std::string & description = {})
    {
        save_as(desk, main, name, description);
    }
    /// The design as it comes out at full size.
    bitmap rendered(const std::string & name)
    {
        EXPECT_TRUE(find_design(main, name)) << name;
        close_catalogue(main);
        return full_run();
    }
    void import_bytes(const std::string & package)
    {
        desk.will_choose_file(home.write("package.zip", package));
        main.mnuImport.click();
    }
    void add_own_picture() const { save_jpeg(plain(80, 70, yellow), at("user_images/sun.jpg")); }
};

std::vector<std::string> own_names(keeping_session & session)
{
    std::vector<std::string> names;
    session.desk.on_modal<frmDesigns>([&](frmDesigns & window) { names = window.lstDesigns.items(); });
    session.main.mnuEditDesigns.click();
    return names;
}

}  // namespace

TEST(round_trip, a_design_is_saved_listed_chosen_rendered_and_deleted)
{
    keeping_session session;
    session.leave_quick_layout();
    session.save("My quarters");
    EXPECT_EQ(own_names(session), std::vector<std::string>{"My quarters"});
    const bitmap collage = session.rendered("My quarters");
    ASSERT_EQ(collage.width(), 2000);
    EXPECT_GT(seen(collage, 500, 700).red, 150);
    EXPECT_GT(seen(collage, 500, 2200).blue, 150);
    session.desk.will_answer(answer::yes);
    session.desk.on_modal<frmDesigns>([](frmDesigns & window) {
        window.lstDesigns.select(0);
        window.cmdDelete.click();
    });
    session.main.mnuEditDesigns.click();
    EXPECT_FALSE(find_design(session.main, "My quarters"));
    EXPECT_FALSE(file_exists(session.at("designs/saved600")));
}

TEST(round_trip, what_was_packed_comes_out_as_the_same_picture_in_an_empty_data_folder)
{
    keeping_session session;
    session.add_own_picture();
    save_jpeg(plain(200, 300, green), session.at("tmp/finished.jpg"));
    session.leave_quick_layout("user_images\\sun.jpg");
    session.save("My sun", "over four quarters");
    const bitmap before = session.rendered("My sun");
    const std::string package = package_bytes({.data_folder = session.main.data_folder,
                                               .designs = {"My sun"},
                                               .frames = {},
                                               .icons = {},
                                               .title = {}});
    EXPECT_EQ(package_problems(session.home.write("check.zip", package)), std::vector<std::string>{});

    keeping_session other;
    other.home.write("data/user_images/sun.jpg", "another sun, no picture at all");
    other.import_bytes(package);
    EXPECT_EQ(other.desk.next_message(), "\r\nMy sun has been successfully imported.\r\n");
    EXPECT_EQ(own_names(other), std::vector<std::string>{"My sun"});
    EXPECT_TRUE(same(other.rendered("My sun"), before));
    EXPECT_EQ(other.main.design_record.section, "Design601");
    EXPECT_EQ(read_file(other.at("samples/" + other.main.design_record.sample)),
              read_file(session.at("samples/saved600.jpg")));
    EXPECT_EQ(read_file(other.at("descriptions/" + other.main.design_record.description)),
              "over four quarters\r\n");
    EXPECT_EQ(read_file(other.at("user_images/sun.jpg")), "another sun, no picture at all");
}

TEST(round_trip, a_package_lands_on_no_design_of_whoever_takes_it_in)
{
    keeping_session session, other;
    session.leave_quick_layout();
    session.save("Theirs");
    other.home.write("data/designs/saved600", "own");
    other.home.write("data/designs.ini", "[Design600]\r\nName=Own\r\nFile=saved600\r\nSystem=No\r\n");
    other.import_bytes(package_bytes({.data_folder = session.main.data_folder,
                                      .designs = {"Theirs"},
                                      .frames = {},
                                      .icons = {},
                                      .title = "T"}));
    EXPECT_EQ(other.desk.next_message(), "\r\nT has been successfully imported.\r\n");
    EXPECT_EQ(own_names(other), (std::vector<std::string>{"Own", "Theirs"}));
    EXPECT_EQ(read_file(other.at("designs/saved600")), "own");
}

TEST(round_trip, frame_sets_and_icons_travel_without_the_photo_list)
{
    keeping_session session, other;
    session.home.write("data/frames/Team/design.ini", "[Frame Design]\r\nIcon=sun\r\nPicture List=mine\r\n");
    session.home.write("data/frames/Team/captions", "a\r\n\r\n");
    session.home.write("data/frames/Team/pframe00.jpg", std::string("\0\xFF x", 4));
    session.home.write("data/icons/sun.bmp", "a picture");
    session.home.write("data/icons/icons", "moon moon.bmp\r\nsun sun.bmp\r\n");
    other.home.write("data/icons/sun.bmp", "another sun");
    other.home.write("data/icons/icons", "mine sun.bmp\r\n");
    other.import_bytes(package_bytes({.data_folder = session.main.data_folder,
                                      .designs = {},
                                      .frames = {"Team"},
                                      .icons = {"sun"},
                                      .title = {}}));
    EXPECT_EQ(other.desk.next_message(), "\r\nTeam has been successfully imported.\r\n");
    EXPECT_EQ(read_file(other.at("frames/Team/design.ini")),
              "[Frame Design]\r\nIcon=sun\r\nPicture List=None\r\n");
    EXPECT_EQ(read_file(other.at("frames/Team/captions")), "a\r\n\r\n");
    EXPECT_EQ(read_file(other.at("frames/Team/pframe00.jpg")), std::string("\0\xFF x", 4));
    const text_lines icons = lines_of_file(other.at("icons/icons"));
    ASSERT_EQ(icons.size(), 2U);
    EXPECT_EQ(icons[0], "mine sun.bmp");
    EXPECT_EQ(icons[1].substr(0, 7), "sun pk_");
    EXPECT_EQ(read_file(other.at("icons/" + icons[1].substr(4))), "a picture");
    EXPECT_EQ(read_file(other.at("icons/sun.bmp")), "another sun");
}

TEST(round_trip, importing_the_same_package_again_leaves_one_copy_of_each_design)
{
    keeping_session session, other;
    for (const char * name : {"One", "Two"}) {
        session.leave_quick_layout();
        session.save(name, "kept");
    }
    const std::string package = package_bytes({.data_folder = session.main.data_folder,
                                               .designs = {"One", "Two"},
                                               .frames = {},
                                               .icons = {},
                                               .title = "T"});
    std::string first;
    for (int i = 0; i < 3; ++i) {
        other.import_bytes(package);
        EXPECT_EQ(other.desk.next_message(), "\r\nT has been successfully imported.\r\n");
        EXPECT_EQ(own_names(other), (std::vector<std::string>{"One", "Two"}));
        if (i == 0)
            first = read_file(other.at("designs.ini"));
        EXPECT_EQ(read_file(other.at("designs.ini")), first);
    }
    session.import_bytes(package);
    session.desk.next_message();
    EXPECT_EQ(own_names(session),
              (std::vector<std::string>{"One (600)", "Two (601)", "One (602)", "Two (603)"}))
        << "designs of one's own have files of their own";
}

TEST(package_maker, packs_the_one_that_is_meant_of_two_with_one_name)
{
    keeping_session session;
    session.home.write("data/designs.ini",
                       "[Design600]\nName=Heart\nFile=saved600\nSystem=No\n[Design602]\nName=Heart\nFile="
                       "saved602\nSystem=No\nCount=7\n");
    session.home.write("data/designs/saved600", "0:0:9:9:0:0:0:0:\r\n");
    session.home.write("data/designs/saved602", "0:0:8:8:0:0:0:0:\r\n");
    const auto packed = [&](const std::string & name) {
        const std::string zip = package_bytes({.data_folder = session.main.data_folder,
                                               .designs = {name},
                                               .frames = {},
                                               .icons = {},
                                               .title = "T"});
        unpack_zip(session.home.write("a.zip", zip), session.home.path());
        return read_file(session.home.at("f00001"));
    };
    EXPECT_EQ(packed("Heart (602)"), "0:0:8:8:0:0:0:0:\r\n");
    EXPECT_EQ(packed("Heart (600)"), "0:0:9:9:0:0:0:0:\r\n");
    try {
        packed("Heart");
        FAIL();
    } catch (const not_packed & told) {
        EXPECT_EQ(told.what, "the design \"Heart\" stands more than once: ask for \"Heart (600)\"");
    }
}

TEST(package_maker, gives_the_same_bytes_for_the_same_designs)
{
    keeping_session session;
    session.leave_quick_layout();
    session.save("One");
    const package_request request{
        .data_folder = session.main.data_folder, .designs = {"One"}, .frames = {}, .icons = {}, .title = {}};
    EXPECT_EQ(package_bytes(request), package_bytes(request));
}

TEST(package_maker, tells_what_it_can_t_pack)
{
    keeping_session session;
    session.home.write("data/designs.ini",
                       "[Design001]\nName=Supplied\n[Design600]\nName=Bare\nFile=saved600\nSystem=No\n"
                       "[Design601]\nName=Sly\nFile=../../x\n[Design602]\nName=System\nSystem=Yes\n");
    session.home.write("data/icons/icons", "sun sun.bmp\n");
    using names = std::vector<std::string>;
    const auto fault = [&](const names & designs, const names & frames, const names & icons) {
        try {
            package_bytes({.data_folder = session.main.data_folder,
                           .designs = designs,
                           .frames = frames,
                           .icons = icons,
                           .title = {}});
        } catch (const not_packed & told) {
            return told.what;
        }
        return std::string("none");
    };
    EXPECT_EQ(fault({"Nobody's"}, {}, {}), "the design \"Nobody's\" is none of your own");
    EXPECT_EQ(fault({"Supplied"}, {}, {}), "the design \"Supplied\" is none of your own");
    EXPECT_EQ(fault({"System"}, {}, {}), "the design \"System\" came with the program");
    EXPECT_EQ(fault({"Bare"}, {}, {}), "the design \"Bare\" has no template of its own");
    EXPECT_EQ(fault({"Sly"}, {}, {}), "the design \"Sly\" has no template of its own");
    EXPECT_EQ(fault({}, {"None"}, {}), "the frame set \"None\" isn't there");
    EXPECT_EQ(fault({}, {}, {"moon"}), "the icon \"moon\" isn't in the list");
    EXPECT_EQ(fault({}, {}, {"sun"}), "the icon \"sun\" has no picture");
    session.home.write("data/designs/saved600", "0:0:9:9:0:0:0:0:user_images/gone.jpg\r\n");
    EXPECT_EQ(fault({"Bare"}, {}, {}),
              "the design \"Bare\" needs the picture user_images/gone.jpg, which isn't there");
}

TEST(package_maker, makes_nothing_that_the_import_would_refuse)
{
    struct row {
        std::string section, layout, description, title, told;
    };
    const std::string layout = "0:0:9:9:0:0:0:0:\r\n", named = "Name=Mine\n";
    const row rows[] = {
        {named, "0:0:9:9:0:0:0:0:..\\x.jpg\r\n", "", "T", "line 2: the package may not use '..\\x.jpg'"},
        {named + "BG Image=..\\x.jpg\n", layout, "", "T", "line 12: the package may not use '..\\x.jpg'"},
        {named + "Help Tip=" + std::string(5000, 'x') + "\n", layout, "", "T",
         "line 12: the package has a line of more than 4096 bytes"},
        {named, layout, std::string(70000, 'x'), "T",
         "line 3: the package has a description of more than 65536 bytes, 'f00002'"},
        {named, layout, "", std::string(300, 'x'), "line 1: the package has a title of more than 200 bytes"},
        {named, layout, "", "a\tb", "line 1: the package has a title with control characters"},
    };
    for (const row & each : rows) {
        keeping_session session;
        session.home.write(
            "data/designs.ini",
            "[Design600]\nFile=saved600\nSystem=No\nDescription=saved600\nDesign=Saved\nStyle=Place\n"
            "Match=Yes\n" +
                each.section);
        session.home.write("data/designs/saved600", each.layout);
        if (!each.description.empty())
            session.home.write("data/descriptions/saved600", each.description);
        try {
            package_bytes({.data_folder = session.main.data_folder,
                           .designs = {"Mine"},
                           .frames = {},
                           .icons = {},
                           .title = each.title});
            ADD_FAILURE() << each.told;
        } catch (const not_packed & told) {
            EXPECT_EQ(told.what, "the import would refuse this package: " + each.told);
        }
    }
}

TEST(package_maker, refuses_names_with_control_characters)
{
    keeping_session session;
    session.home.write("data/designs.ini", "[Design600]\nName=Mi\tne\nFile=saved600\nSystem=No\n");
    session.home.write("data/designs/saved600", "0:0:9:9:0:0:0:0:\r\n");
    try {
        package_bytes({.data_folder = session.main.data_folder,
                       .designs = {"Mi\tne"},
                       .frames = {},
                       .icons = {},
                       .title = "T"});
        FAIL();
    } catch (const not_packed & told) {
        EXPECT_EQ(
            told.what,
            "the import would refuse this package: line 5: the package has a name with control characters, "
            "'Name=Mi?ne'");
    }
}
