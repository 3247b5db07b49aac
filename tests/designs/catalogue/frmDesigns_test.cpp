#include "designs/catalogue/saved_design.h"
#include "tests/designs/own_designs.h"

#include <filesystem>

namespace {

using names = std::vector<std::string>;

struct editing_designs : own_designs_session {
    editing_designs()
    {
        catalogue(
            "[Design001]\r\nName=Low\r\nSystem=No\r\n[Design510]\r\nName=Supplied\r\nSystem=Yes\r\n"
            "[Design600]\r\nName=One\r\nFile=saved600\r\nSystem=No\r\nSample=saved600.jpg\r\n"
            "Description=saved600\r\n\r\n[Design601]\r\nName=Two\r\nFile=saved601\r\nSample=not_yet.jpg\r\n"
            "[Design799]\r\nName=Three\r\n[Design800]\r\nName=Beyond\r\n");
        for (const char * name : {"designs/saved600", "samples/saved600.jpg", "descriptions/saved600",
                                  "designs/saved601", "samples/not_yet.jpg"})
            folder.write(std::string("data/") + name, "x");
    }
};

}  // namespace

TEST(edit_designs, lists_500_to_799_that_aren_t_the_system_s)
{
    editing_designs session;
    names listed;
    for (const listed_design & design : own_designs(session.main))
        listed.push_back(design.section + " " + design.shown);
    EXPECT_EQ(listed, (names{"Design600 One", "Design601 Two", "Design799 Three"}));
}

TEST(edit_designs, an_empty_list_is_told)
{
    own_designs_session session;
    session.main.mnuEditDesigns.click();
    EXPECT_EQ(session.desk.next_message(), "    You don't have any designs to edit.    ");
}

TEST(edit_designs, delete_is_enabled_by_a_click_on_an_entry)
{
    editing_designs session;
    session.edit([](frmDesigns & window) {
        expect_states(window, "cmdDelete-");
        window.lstDesigns.select(1);
        expect_states(window, "cmdDelete+");
    });
}

TEST(edit_designs, deletes_the_section_and_its_files)
{
    editing_designs session;
    session.erase("One");
    EXPECT_EQ(session.desk.questions[0].title, "D e l e t e   D e s i g n");
    EXPECT_EQ(session.desk.questions[0].text, "Deleting the One design... Ok?");
    EXPECT_EQ(session.desk.questions[0].on_enter, answer::no) << "it would be gone";
    EXPECT_EQ(session.read("designs.ini"),
              "[Design001]\r\nName=Low\r\nSystem=No\r\n[Design510]\r\nName=Supplied\r\nSystem=Yes\r\n"
              "[Design601]\r\nName=Two\r\nFile=saved601\r\nSample=not_yet.jpg\r\n"
              "[Design799]\r\nName=Three\r\n[Design800]\r\nName=Beyond\r\n");
    for (const char * name : {"designs/saved600", "samples/saved600.jpg", "descriptions/saved600",
                              "tmp/designs.ini", "tmp/unfinished"})
        EXPECT_FALSE(session.has(name)) << name;
    EXPECT_TRUE(session.has("designs/saved601"));
}

TEST(edit_designs, a_file_of_the_name_not_yet_stays)
{
    editing_designs session;
    session.erase("Two");
    EXPECT_FALSE(session.has("designs/saved601"));
    EXPECT_TRUE(session.has("samples/not_yet.jpg"));
}

TEST(edit_designs, no_keeps_the_design)
{
    editing_designs session;
    const std::string before = session.read("designs.ini");
    session.desk.will_answer(answer::no);
    session.edit([](frmDesigns & window) {
        window.lstDesigns.select(0);
        window.cmdDelete.click();
        EXPECT_EQ(window.lstDesigns.items().size(), 3U);
    });
    EXPECT_EQ(session.read("designs.ini"), before);
}

TEST(edit_designs, the_window_closes_with_the_last_entry_and_waits_for_the_next_click_before)
{
    editing_designs session;
    for (int i = 0; i < 3; ++i)
        session.desk.will_answer(answer::yes);
    session.edit([](frmDesigns & window) {
        for (const char * left : {"cmdDelete-", "cmdDelete-", ""}) {
            EXPECT_TRUE(window.loaded());
            window.lstDesigns.select(0);
            window.cmdDelete.click();
            expect_states(window, left);
        }
        EXPECT_FALSE(window.loaded());
    });
}

TEST(edit_designs, done_closes_and_the_help_key_opens_its_page)
{
    editing_designs session;
    session.edit([](frmDesigns & window) {
        window.on_key(key::help);
        window.cmdDone.click();
        EXPECT_FALSE(window.loaded());
    });
    EXPECT_TRUE(session.desk.opened_documents.at(0).ends_with("/help/designs.htm"));
}

TEST(edit_designs, a_design_below_500_is_not_found_even_if_the_name_is_equal)
{
    editing_designs session;
    session.edit([&](frmDesigns & window) {
        window.designs = {{.section = "Design001", .name = "Low", .shown = "Low"}};
        window.lstDesigns.set_items({"Low"});
        window.lstDesigns.select(0);
        session.desk.will_answer(answer::yes);
        window.cmdDelete.click();
        EXPECT_EQ(window.lstDesigns.items(), names{"Low"});
    });
    EXPECT_EQ(session.desk.next_message(), "Didn't find the design to be deleted.  Might be a problem?");
    EXPECT_NE(session.read("designs.ini").find("Name=Low"), std::string::npos);
}

TEST(edit_designs, of_two_designs_with_one_name_the_one_that_was_meant_goes)
{
    own_designs_session session;
    session.folder.write("data/designs/saved600", "first");
    session.folder.write("data/designs/saved602", "second");
    session.catalogue(
        "[Design600]\r\nName=Heart\r\nFile=saved600\r\n[Design601]\r\nName=Star\r\n"
        "[Design602]\r\nName=Heart\r\nFile=saved602\r\n");
    for (int i = 0; i < 2; ++i)
        session.desk.will_answer(answer::yes);
    session.edit([](frmDesigns & window) {
        EXPECT_EQ(window.lstDesigns.items(), (names{"Heart (600)", "Star", "Heart (602)"}));
        window.lstDesigns.select(2);
        window.cmdDelete.click();
        EXPECT_EQ(window.lstDesigns.items(), (names{"Heart (600)", "Star"}));
        window.lstDesigns.select(1);
        window.cmdDelete.click();
    });
    EXPECT_EQ(session.desk.questions[0].text, "Deleting the Heart (602) design... Ok?");
    EXPECT_EQ(session.read("designs.ini"), "[Design600]\r\nName=Heart\r\nFile=saved600\r\n");
    EXPECT_TRUE(session.has("designs/saved600"));
    EXPECT_FALSE(session.has("designs/saved602"));
}

TEST(edit_designs, a_number_that_went_to_another_design_meanwhile_is_left_alone)
{
    editing_designs session;
    session.edit([&](frmDesigns & window) {
        window.lstDesigns.select(0);
        session.catalogue("[Design600]\r\nName=Another\r\nFile=saved600\r\n");
        session.desk.will_answer(answer::yes);
        window.cmdDelete.click();
    });
    EXPECT_EQ(session.desk.next_message(), "Didn't find the design to be deleted.  Might be a problem?");
    EXPECT_TRUE(session.has("designs/saved600"));
}

TEST(edit_designs, a_deleted_number_is_used_again_at_the_end_of_the_file)
{
    editing_designs session;
    session.erase("One");
    session.save("New");
    const std::string catalogue = session.read("designs.ini");
    EXPECT_GT(catalogue.find("[Design600]\r\nName=New\r\n"), catalogue.find("[Design800]"));
    EXPECT_EQ(session.read("designs/saved600"), session.quick_layout);
}

TEST(edit_designs, files_that_lie_elsewhere_or_belong_to_another_design_stay)
{
    own_designs_session session;
    session.folder.write("precious", "x");
    session.folder.write("data/designs/shared", "x");
    session.catalogue(
        "[Design600]\nName=Evil\nFile=../../precious\nSample=..\\..\\precious\nDescription=/precious\n"
        "[Design601]\nName=Thief\nFile=shared\n[Design602]\nName=Good\nFile=shared\n");
    session.erase("Evil");
    session.erase("Thief");
    EXPECT_TRUE(file_exists(session.folder.at("precious")));
    EXPECT_TRUE(session.has("designs/shared"));
    session.erase("Good");
    EXPECT_FALSE(session.has("designs/shared"));
}

TEST(edit_designs, write_protected_files_go_as_well)
{
    editing_designs session;
    std::filesystem::permissions(session.at("designs/saved600"), std::filesystem::perms::owner_read);
    session.erase("One");
    EXPECT_FALSE(session.has("designs/saved600"));
}
