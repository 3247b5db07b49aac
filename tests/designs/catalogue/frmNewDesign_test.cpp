#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/saved_design.h"
#include "support/platform_error.h"
#include "tests/designs/own_designs.h"

namespace {

std::string sections(int first, int last)
{
    std::string text;
    for (int number = first; number <= last; ++number)
        text += "[Design" + formatted(number, 3) + "]\r\nName=n" + std::to_string(number) + "\r\n";
    return text;
}

picture_size size_of(const std::string & path)
{
    return jpeg_size(path).value_or(picture_size{});
}

}  // namespace

TEST(save_design, moves_the_template_makes_a_sample_and_adds_a_section)
{
    own_designs_session session;
    session.finished(400, 600);
    session.catalogue("[Design001]\r\nName=Supplied\r\n");
    session.save("My own", "for grandmother\nand all");
    EXPECT_EQ(
        session.read("designs.ini"),
        "[Design001]\r\nName=Supplied\r\n\r\n[Design600]\r\nName=My own\r\nRatio=2x3\r\nFile=saved600\r\n"
        "System=No\r\nDesign=Saved\r\nStyle=Place\r\nMatch=Yes\r\nTurn BG=No\r\nBackground=Portrait\r\n"
        "Sample=saved600.jpg\r\nDescription=saved600\r\n");
    EXPECT_EQ(session.read("designs/saved600"), session.quick_layout);
    EXPECT_FALSE(session.has("designs/__quick"));
    EXPECT_EQ(session.read("descriptions/saved600"), "for grandmother\r\nand all\r\n");
    EXPECT_EQ(size_of(session.at("samples/saved600.jpg")).width, 300);
    EXPECT_EQ(size_of(session.at("samples/saved600.jpg")).height, 450);
    const bitmap sample = load_picture(picture_format::jpeg, session.at("samples/saved600.jpg"));
    EXPECT_GT(pixel_at(sample, 30, 30)->red, 150);
    EXPECT_GT(pixel_at(sample, 270, 420)->blue, 150);
    expect_states(session.main, "mnuSaveDesign-");
    EXPECT_FALSE(session.has("tmp/unfinished"));
}

TEST(save_design, a_description_left_empty_writes_no_line_and_leaves_no_file)
{
    own_designs_session session;
    session.folder.write("data/descriptions/saved600", "of an older design");
    session.save("Plain");
    EXPECT_EQ(session.read("designs.ini").find("Description="), std::string::npos);
    EXPECT_FALSE(session.has("descriptions/saved600"));
}

TEST(save_design, without_a_picture_there_is_no_sample_and_the_background_is_portrait)
{
    own_designs_session session;
    session.main.run_landscape = true;
    session.folder.write("data/samples/saved600.jpg", "of an older design");
    session.save("Plain");
    EXPECT_EQ(session.read("designs.ini").find("Sample="), std::string::npos);
    EXPECT_NE(session.read("designs.ini").find("Background=Portrait\r\n"), std::string::npos);
    EXPECT_FALSE(session.has("samples/saved600.jpg"));
}

TEST(save_design, a_landscape_run_has_a_wide_sample)
{
    own_designs_session session;
    session.finished(600, 400);
    session.main.run_landscape = true;
    session.main.matrix_portrait = true;
    session.save("Wide");
    EXPECT_EQ(size_of(session.at("samples/saved600.jpg")).width, 450);
    EXPECT_EQ(size_of(session.at("samples/saved600.jpg")).height, 300);
    EXPECT_NE(session.read("designs.ini").find("Background=Landscape\r\n"), std::string::npos);
}

TEST(save_design, a_matrix_goes_by_the_orientation_of_its_own_designer)
{
    own_designs_session session;
    session.finished(600, 400);
    session.main.lblDesign.set_caption("Matrix 2x3");
    session.main.matrix_portrait = false;
    session.folder.write("data/designs/__matrix", "the grid");
    session.save("Grid");
    EXPECT_NE(session.read("designs.ini")
                  .find("Style=Matrix\r\nMatch=Yes\r\nTurn BG=No\r\nBackground=Landscape\r\n"),
              std::string::npos);
    EXPECT_EQ(session.read("designs/saved600"), "the grid");
    EXPECT_FALSE(session.has("designs/__matrix"));
    EXPECT_TRUE(session.has("designs/__quick"));
}

TEST(save_design, shapes_other_than_squares_are_kept_as_shapes)
{
    for (const char * shape : {"Stars", "Squares"}) {
        own_designs_session session;
        session.desk.keeps_messages = true;
        {
            const updating quiet(session.main);
            session.main.optShapes.select();
            session.main.cmbShapes.set_text(shape);
        }
        session.main.lblDesign.set_caption("Quick Shapes");
        session.folder.write("data/designs/__quick", "shapes");
        session.save(shape);
        const bool kept =
            session.read("designs.ini").find("Frames=No\r\nQuick Shape=Yes\r\n") != std::string::npos;
        EXPECT_EQ(kept, std::string(shape) == "Stars");
    }
}

TEST(save_design, all_numbers_taken_gives_the_message_of_400_though_399_were_saved)
{
    own_designs_session session;
    session.catalogue(sections(600, 998));
    session.main.mnuSaveDesign.click();
    EXPECT_EQ(session.desk.next_message(),
              "You are limited to 400 Designs.\r\nYou will need to remove one before you can save another.");
    session.catalogue(sections(600, 997));
    session.save("The last");
    EXPECT_TRUE(session.has("designs/saved998"));
}

TEST(save_design, a_square_run_is_refused_even_if_the_entry_is_enabled)
{
    own_designs_session session;
    session.main.square_background = true;
    session.main.mnuSaveDesign.click();
    EXPECT_EQ(session.desk.next_message(), "We can't save designs on a square background.  Sorry.");
}

TEST(save_design, a_name_in_another_case_is_taken_and_so_is_one_of_a_supplied_design)
{
    own_designs_session session;
    session.catalogue("[Design001]\nName=Supplied\nSystem=Yes\n[Design600]\nName=Mine\n");
    for (const char * name : {"SUPPLIED", "mine"}) {
        session.save(name);
        EXPECT_EQ(session.desk.next_message(), std::string("There already is a design named:\r\n") + name);
        expect_states(session.main, "mnuSaveDesign+");
        EXPECT_TRUE(session.has("designs/__quick"));
    }
}

TEST(save_design, a_name_that_would_read_as_none_keeps_the_window_open)
{
    own_designs_session session;
    session.desk.on_modal<frmNewDesign>([](frmNewDesign & window) {
        for (const char * name : {"", "   ", "\"\"", " '' "}) {
            window.txtName.set_text(name);
            window.OKButton.click();
            EXPECT_TRUE(window.loaded()) << name;
        }
    });
    session.main.mnuSaveDesign.click();
    EXPECT_FALSE(session.has("designs/saved600"));
    EXPECT_EQ(session.desk.messages.size(), 0U);
}

TEST(save_design, cancel_and_the_close_box_save_nothing_and_the_window_starts_empty)
{
    own_designs_session session;
    session.desk.on_modal<frmNewDesign>([](frmNewDesign & window) {
        window.txtName.set_text("x");
        window.txtDescription.set_text("y");
        window.CancelButton.click();
        EXPECT_FALSE(window.loaded());
    });
    session.main.mnuSaveDesign.click();
    session.desk.on_modal<frmNewDesign>([](frmNewDesign & window) {
        EXPECT_EQ(window.txtName.text() + window.txtDescription.text(), "");
        window.request_close();
        EXPECT_FALSE(window.loaded());
    });
    session.main.mnuSaveDesign.click();
    EXPECT_TRUE(session.has("designs/__quick"));
}

TEST(save_design, a_name_with_a_line_break_or_a_control_character_is_told_and_not_taken)
{
    for (const char * name : {"Heart\nFile=../x", "Heart\r", "He\tart", "Heart\x01", "\xE2\x80\xA8"}) {
        own_designs_session session;
        const std::string before = session.read("designs.ini");
        session.desk.on_modal<frmNewDesign>([&](frmNewDesign & window) {
            window.txtName.set_text(name);
            window.OKButton.click();
            EXPECT_TRUE(window.loaded()) << name;
        });
        session.main.mnuSaveDesign.click();
        EXPECT_EQ(session.desk.next_message(),
                  "A design's name can't hold line breaks or other control characters.");
        EXPECT_EQ(session.read("designs.ini"), before) << name;
    }
}

TEST(save_design, without_a_working_template_it_raises_and_changes_nothing)
{
    own_designs_session session;
    delete_file(session.at("designs/__quick"));
    session.folder.write("data/designs/saved600", "of an older design");
    GetNextDesign(session.main);
    try {
        save_design(session.main, "x", "");
        FAIL();
    } catch (const platform_error & error) {
        EXPECT_EQ(code(error), 53);
    }
    EXPECT_EQ(session.read("designs/saved600"), "of an older design");
}

TEST(save_design, the_help_key_and_the_button_open_its_page)
{
    own_designs_session session;
    session.desk.on_modal<frmNewDesign>([](frmNewDesign & window) {
        window.cmdHelp.click();
        window.on_key(key::f1);
    });
    session.main.mnuSaveDesign.click();
    ASSERT_EQ(session.desk.opened_documents.size(), 2U);
    EXPECT_TRUE(session.desk.opened_documents[1].ends_with("/help/save_design.htm"));
}
