#include "tests/frames/frame_session.h"
#include "tests/photo_lists.h"

namespace {

struct captions_window : frame_session {
    captions_window()
    {
        save_jpeg(plain(40, 30, {1, 2, 3}), folder.at("p/across.jpg"));
        save_jpeg(plain(30, 40, {1, 2, 3}), folder.at("p/upright.jpg"));
        write_set("club");
        all.custom.edit_frame_name = "club";
        all.frames.cmbPhotos.set_text("None");
    }
    void write_list(int count)
    {
        std::vector<std::string> photos;
        for (int i = 0; i < count; ++i)
            photos.push_back(folder.at(i % 2 == 0 ? "p/across.jpg" : "p/upright.jpg"));
        folder.write("data/piclists/team.pls", list_text(photos));
        all.frames.cmbPhotos.set_text("team");
    }
    void write_captions(const std::vector<std::string> & captions) const
    {
        folder.write("data/frames/club/captions", text_of(captions));
    }
    text_box & box(std::size_t index) { return window.txtCaptions[index]; }
    std::string mark(std::size_t index) const { return window.lblCaptions[index].caption(); }
    std::string texts(std::size_t count)
    {
        std::string all_texts;
        for (std::size_t i = 0; i < count; ++i)
            all_texts += box(i).text() + "|";
        return all_texts;
    }
    std::vector<std::string> saved() const
    {
        std::vector<std::string> lines;
        for (line_source source(in_frames("club/captions")); !source.at_end();)
            lines.push_back(source.read_line());
        return lines;
    }
    frmCaptions & window = all.captions;
};

}  // namespace

TEST(frmCaptions, shows_36_boxes_for_a_set_without_a_list)
{
    captions_window session;
    session.write_captions({"One", "", "Three"});
    session.window.load();
    EXPECT_EQ(session.window.caption(), "C u s t o m   F r a m e   C a p t i o n s");
    EXPECT_EQ(session.window.width(), 8235);
    EXPECT_EQ(session.window.caption_boxes, 36);
    EXPECT_EQ(session.texts(4), "One||Three||");
    EXPECT_EQ(session.mark(0), ">");
    EXPECT_EQ(session.mark(35), "36");
    expect_states(session.window, "imgCaption_ txtCaptions_35^ cmdInsert+ cmdRemove+");
}

TEST(frmCaptions, takes_36_lines_at_most)
{
    captions_window session;
    session.write_captions(std::vector<std::string>(40, "x"));
    session.window.load();
    session.window.cmdDone.click();
    EXPECT_EQ(session.saved().size(), 36U);
}

TEST(frmCaptions, shows_a_box_for_each_photo_of_the_list)
{
    captions_window session;
    session.write_list(5);
    session.window.load();
    EXPECT_EQ(session.window.width(), 14295);
    EXPECT_EQ(session.window.caption_boxes, 5);
    expect_states(session.window, "imgCaption^ txtCaptions_4^ lblCaptions_4^ txtCaptions_5_ lblCaptions_5_");
}

TEST(frmCaptions, a_longer_list_has_36_boxes_and_an_empty_one_none)
{
    captions_window session;
    session.write_list(40);
    session.window.load();
    EXPECT_EQ(session.window.caption_boxes, 36);
    session.window.unload();
    session.write_list(0);
    session.window.load();
    EXPECT_EQ(session.window.caption_boxes, 0);
    session.window.cmdInsert.click();
    session.window.cmdRemove.click();
    expect_states(session.window, "cmdInsert- cmdRemove- txtCaptions_0_");
}

TEST(frmCaptions, a_list_that_is_gone_is_told_and_the_captions_can_be_edited)
{
    captions_window session;
    session.write_captions({"One"});
    session.all.frames.cmbPhotos.set_text("gone");
    session.window.load();
    EXPECT_EQ(session.desk.next_message(), "The file.pls index is missing for that photolist.");
    EXPECT_EQ(session.window.caption_boxes, 36);
    session.window.cmdDone.click();
    EXPECT_EQ(session.saved().front(), "One");
}

TEST(frmCaptions, the_box_with_the_keyboard_is_marked)
{
    captions_window session;
    session.window.load();
    session.box(3).on_enter();
    EXPECT_EQ(session.mark(0), "1");
    EXPECT_EQ(session.mark(3), ">");
    EXPECT_EQ(session.window.lblCaptions[3].fore_color(), 0xFFFFFFU);
    EXPECT_NE(session.window.lblCaptions[3].back_color(), session.window.lblCaptions[2].back_color());
    EXPECT_EQ(session.window.current_box, 3);
    session.box(3).on_leave();
    EXPECT_EQ(session.mark(3), "4");
    EXPECT_EQ(session.window.lblCaptions[3].back_color(), session.window.lblCaptions[2].back_color());
}

TEST(frmCaptions, shows_the_photo_of_the_box_in_its_orientation)
{
    captions_window session;
    session.write_list(2);
    session.window.load();
    EXPECT_EQ(session.window.imgCaption.file(), session.folder.at("p/across.jpg"));
    EXPECT_GT(session.window.imgCaption.place().width, session.window.imgCaption.place().height);
    session.box(1).on_enter();
    EXPECT_EQ(session.window.imgCaption.file(), session.folder.at("p/upright.jpg"));
    EXPECT_LT(session.window.imgCaption.place().width, session.window.imgCaption.place().height);
}

TEST(frmCaptions, a_photo_that_is_gone_is_told)
{
    captions_window session;
    session.write_list(2);
    session.window.load();
    delete_file(session.folder.at("p/upright.jpg"));
    session.box(1).on_enter();
    EXPECT_EQ(session.desk.next_message(), "This image no longer exists.");
    EXPECT_EQ(session.window.imgCaption.file(), "");
}

TEST(frmCaptions, enter_goes_on_to_the_next_box_but_not_beyond_the_last_in_use)
{
    captions_window session;
    session.write_list(2);
    session.window.load();
    session.box(0).on_return();
    EXPECT_EQ(session.window.current_box, 1);
    session.box(1).on_return();
    EXPECT_EQ(session.window.current_box, 1);
}

TEST(frmCaptions, insert_moves_the_boxes_from_the_current_one_on)
{
    captions_window session;
    session.write_captions({"a", "b", "c"});
    session.window.load();
    session.box(1).on_enter();
    session.window.cmdInsert.click();
    EXPECT_EQ(session.texts(5), "a||b|c||");
    EXPECT_EQ(session.window.current_box, 1);
    EXPECT_EQ(session.mark(1), ">");
}

TEST(frmCaptions, insert_refuses_to_push_out_the_last_box_in_use)
{
    captions_window session;
    session.write_list(5);
    session.write_captions({"a", "b", "c", "d", "e"});
    session.window.load();
    session.window.cmdInsert.click();
    EXPECT_EQ(session.desk.next_message(),
              "Inserting will push the last caption out of the set.\r\n\r\n"
              "Please remove the caption that you no longer want to use.");
    EXPECT_EQ(session.texts(6), "a|b|c|d|e||");
}

TEST(frmCaptions, insert_leaves_what_lies_beyond_the_boxes_in_use)
{
    captions_window session;
    session.write_list(3);
    session.write_captions({"a", "b", "", "hidden"});
    session.window.load();
    session.window.cmdInsert.click();
    EXPECT_EQ(session.texts(4), "|a|b|hidden|");
}

TEST(frmCaptions, remove_moves_the_later_boxes_back)
{
    captions_window session;
    session.write_captions({"a", "b", "c"});
    session.window.load();
    session.window.cmdRemove.click();
    EXPECT_EQ(session.texts(4), "b|c|||");
}

TEST(frmCaptions, remove_in_the_last_box_in_use_only_empties_it)
{
    captions_window session;
    session.write_list(3);
    session.write_captions({"a", "b", "c", "hidden"});
    session.window.load();
    session.box(2).on_enter();
    session.window.cmdRemove.click();
    EXPECT_EQ(session.texts(4), "a|b||hidden|");
}

TEST(frmCaptions, done_and_cancel_take_the_buttons_of_the_boxes_away)
{
    for (button frmCaptions::*const each : {&frmCaptions::cmdDone, &frmCaptions::cmdCancel}) {
        captions_window session;
        session.window.load();
        (session.window.*each).on_enter();
        expect_states(session.window, "cmdInsert- cmdRemove-");
        session.box(2).on_enter();
        expect_states(session.window, "cmdInsert+ cmdRemove+");
    }
}

TEST(frmCaptions, done_counts_to_the_last_filled_box_and_writes_all_36)
{
    captions_window session;
    session.window.load();
    session.box(0).set_text("One");
    session.box(2).set_text("Three");
    session.window.cmdDone.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.all.frames.caption_count, 3);
    std::vector<std::string> expected{"One", "", "Three"};
    expected.resize(36);
    EXPECT_EQ(session.saved(), expected);
}

TEST(frmCaptions, without_captions_the_count_is_0)
{
    captions_window session;
    session.all.frames.caption_count = 5;
    session.window.load();
    session.window.cmdDone.click();
    EXPECT_EQ(session.all.frames.caption_count, 0);
}

TEST(frmCaptions, cancel_writes_nothing)
{
    captions_window session;
    session.write_captions({"a"});
    session.window.load();
    session.box(0).set_text("b");
    session.window.cmdCancel.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.saved(), std::vector<std::string>{"a"});
}

TEST(frmCaptions, a_caption_of_300_characters_is_kept)
{
    captions_window session;
    session.window.load();
    session.box(35).set_text(std::string(300, 'x'));
    session.window.cmdDone.click();
    EXPECT_EQ(session.saved().back(), std::string(300, 'x'));
    EXPECT_EQ(session.all.frames.caption_count, 36);
}

TEST(frmCaptions, opens_from_the_editor_and_its_help_has_a_topic)
{
    captions_window session;
    session.edit("club", [&](frmFrames & editor) {
        session.desk.on_modal<frmCaptions>([](frmCaptions & window) {
            window.cmdHelp.click();
            window.on_key(key::f1);
        });
        editor.cmdCaptions.click();
    });
    EXPECT_EQ(session.desk.opened_documents.size(), 2U);
    EXPECT_TRUE(session.desk.opened_documents.back().ends_with("custom_frames.htm"));
}

// ---- the caption of the collage

namespace {

struct caption_text : opened_session {
    caption_text()
    {
        main.txtCaption.set_text("Summer");
        main.txtCaption.set_font({.name = "Serif", .size = 16, .italic = true});
        main.txtCaption.set_fore_color(255);
        window.load();
    }
    frmCaptionText & window = all.caption_text;
};

}  // namespace

TEST(frmCaptionText, takes_the_caption_as_the_main_window_shows_it)
{
    caption_text session;
    EXPECT_EQ(session.window.caption(), "C o l l a g e   C a p t i o n");
    EXPECT_EQ(session.window.lblCaption.caption(), "Enter a new caption:");
    EXPECT_EQ(session.window.txtCaption.text(), "Summer");
    EXPECT_EQ(session.window.txtCaption.font(), session.main.txtCaption.font());
    EXPECT_EQ(session.window.txtCaption.fore_color(), 255U);
}

TEST(frmCaptionText, marks_its_text_when_it_opens)
{
    caption_text session;
    int marked = 0;
    session.window.txtCaption.on_select_all = [&] { ++marked; };
    session.window.unload();
    session.window.load();
    EXPECT_EQ(marked, 1);
}

TEST(frmCaptionText, clear_is_there_for_a_text_alone)
{
    caption_text session;
    expect_states(session.window, "cmdClear+");
    session.window.cmdClear.click();
    EXPECT_EQ(session.window.txtCaption.text(), "");
    expect_states(session.window, "cmdClear-");
    session.window.txtCaption.set_text("x");
    expect_states(session.window, "cmdClear+");
}

TEST(frmCaptionText, ok_stores_and_cancel_leaves)
{
    caption_text session;
    session.window.txtCaption.set_text("Autumn");
    session.window.cmdCancel.click();
    EXPECT_EQ(session.main.txtCaption.text(), "Summer");
    session.window.load();
    session.window.txtCaption.set_text("Autumn");
    session.window.cmdOk.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.main.txtCaption.text(), "Autumn");
}

TEST(frmCaptionText, opens_from_the_group_of_the_caption_unless_the_design_has_none)
{
    opened_session session;
    session.desk.on_modal<frmCaptionText>([](frmCaptionText & window) {
        window.txtCaption.set_text("Autumn");
        window.cmdOk.click();
    });
    session.main.frmCaption.click();
    EXPECT_EQ(session.main.txtCaption.text(), "Autumn");
    session.main.txtCaption.enable(false);
    session.main.frmCaption.click();
    EXPECT_EQ(session.desk.shown_windows.size(), 1U);
}
