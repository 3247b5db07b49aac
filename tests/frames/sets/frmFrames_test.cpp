#include "tests/frames/frame_session.h"

#include <algorithm>

namespace {

const std::string settings =
    "Outside Color=255\r\nInside Color=65280\r\nCaption Color=16711680\r\nFont Color=1\r\n"
    "Font Name=Serif\r\nFont Bold=False\r\nFont Italic=True\r\nCaption Text=Our club\r\n"
    "Icon=sun\r\nPicture List=team\r\nNumber of Captions=3\r\n";

std::string captions(const std::vector<std::string> & first)
{
    std::vector<std::string> lines = first;
    lines.resize(36);
    return text_of(lines);
}

struct editor_session : frame_session {
    editor_session()
    {
        folder.write("data/piclists/team.pls", "L /p/a.jpg\r\n");
        save_bmp(noise(40, 40), folder.at("data/icons/s.bmp"));
        folder.write("data/icons/icons", "moon m.bmp\r\nsun s.bmp\r\n");
        write_set("club", settings, captions({"One", "", "Three"}));
    }
    std::string of_set(const std::string & set, const std::string & file) const
    {
        return read_file(in_frames(set + "/" + file));
    }
};

std::string frames_of(const frame_session & session, const std::string & set)
{
    std::vector<std::string> files = files_in(session.in_frames(set));
    std::erase_if(files, [](const std::string & file) { return !file.ends_with(".jpg"); });
    std::ranges::sort(files);
    std::string text;
    for (const std::string & file : files)
        text += file.substr(0, 1) + file.substr(6, 2) + " ";
    return text;
}

}  // namespace

TEST(frmFrames, takes_the_settings_of_a_set)
{
    editor_session session;
    session.edit("club", [&](const frmFrames & editor) {
        EXPECT_EQ(editor.caption(), "C u s t o m   F r a m e s");
        EXPECT_EQ(editor.picOutside.back_color(), 255U);
        EXPECT_EQ(editor.picInside.back_color(), 65280U);
        EXPECT_EQ(editor.picFont_BG.back_color(), 16711680U);
        EXPECT_EQ(editor.picFont_FG.back_color(), 1U);
        EXPECT_EQ(editor.lblFont.font().name, "Serif");
        EXPECT_FALSE(editor.lblFont.font().bold);
        EXPECT_TRUE(editor.lblFont.font().italic);
        EXPECT_EQ(editor.txtCaption.text(), "Our club");
        EXPECT_EQ(editor.cmbIcons.text(), "sun");
        EXPECT_EQ(editor.cmbPhotos.text(), "team");
        EXPECT_EQ(editor.caption_count, 3);
        EXPECT_EQ(editor.picFrame.file(), joined(session.main.data_folder, "tmp/new_frame.jpg"));
        expect_states(editor, "lblCount_ cmdSave^ cmdCancel^ cmdHelp^");
    });
}

TEST(frmFrames, a_new_set_begins_as_every_new_one_does)
{
    editor_session session;
    session.edit("club", [](frmFrames &) {});
    session.main.font_extended = true;
    session.edit(unnamed_set, [&](const frmFrames & editor) {
        EXPECT_EQ(editor.txtCaption.text(), "Sample");
        EXPECT_EQ(editor.cmbIcons.text(), "None");
        EXPECT_EQ(editor.cmbPhotos.text(), "None");
        EXPECT_EQ(editor.caption_count, 0);
        EXPECT_NE(editor.picInside.back_color(), 65280U);
        EXPECT_FALSE(session.main.font_extended);
    });
}

TEST(frmFrames, lists_the_photo_lists_without_their_endings)
{
    editor_session session;
    session.folder.write("data/piclists/Sea.PLS", "");
    session.folder.write("data/piclists/notes.txt", "");
    session.edit("club", [](const frmFrames & editor) {
        std::vector<std::string> lists = editor.cmbPhotos.items();
        EXPECT_EQ(lists.front(), "None");
        std::ranges::sort(lists);
        EXPECT_EQ(lists, (std::vector<std::string>{"None", "Sea", "team"}));
    });
}

TEST(frmFrames, a_photo_list_that_is_gone_stays_in_the_settings)
{
    editor_session session;
    delete_file(session.folder.at("data/piclists/team.pls"));
    session.edit("club", [](frmFrames & editor) {
        EXPECT_EQ(editor.cmbPhotos.text(), "team");
        editor.cmdSave.click();
    });
    EXPECT_NE(session.of_set("club", "design.ini").find("\r\nPicture List=team\r\n"), std::string::npos);
}

TEST(frmFrames, a_set_without_settings_opens_without_a_word)
{
    editor_session session;
    delete_file(session.in_frames("club/design.ini"));
    session.edit("club", [](const frmFrames & editor) {
        EXPECT_EQ(editor.picOutside.back_color(), 0U);
        EXPECT_EQ(editor.txtCaption.text(), "");
        EXPECT_EQ(editor.cmbPhotos.text(), "None");
        EXPECT_EQ(editor.caption_count, 0);
    });
}

TEST(frmFrames, colours_that_are_no_numbers_are_black)
{
    editor_session session;
    session.write_set(
        "odd", "Outside Color=red\r\nInside Color=-5\r\nCaption Color=1e300\r\nFont Color=16777217\r\n");
    session.edit("odd", [](const frmFrames & editor) {
        EXPECT_EQ(editor.picOutside.back_color(), 0U);
        EXPECT_EQ(editor.picInside.back_color(), 0U);
        EXPECT_EQ(editor.picFont_BG.back_color(), 0U);
        EXPECT_EQ(editor.picFont_FG.back_color(), 1U);
    });
}

TEST(frmFrames, a_number_of_captions_that_can_t_be_is_brought_near)
{
    editor_session session;
    for (const auto & [text, count] : {std::pair{"-3", 0}, {"many", 0}, {"1e9", 32767}}) {
        session.write_set("odd", std::string("Number of Captions=") + text + "\r\n");
        session.edit("odd", [expected = count](const frmFrames & editor) {
            EXPECT_EQ(editor.caption_count, expected);
        });
    }
}

TEST(frmFrames, every_change_shows_a_new_preview)
{
    editor_session session;
    session.edit("club", [&](frmFrames & editor) {
        const auto previews_of = [&](auto step) {
            const int before = editor.picFrame.load_count();
            step();
            return editor.picFrame.load_count() - before;
        };
        for (button * each : {&editor.cmdOutside, &editor.cmdInside, &editor.cmdCaption}) {
            session.desk.will_choose_color(0x123456);
            EXPECT_EQ(previews_of([&] { each->click(); }), 1);
        }
        for (picture * each :
             {&editor.picOutside, &editor.picInside, &editor.picFont_BG, &editor.picFont_FG}) {
            session.desk.will_choose_color(0x654321);
            EXPECT_EQ(previews_of([&] { each->click(); }), 1);
            EXPECT_EQ(each->back_color(), 0x654321U);
        }
        session.desk.will_choose_color(std::nullopt);
        EXPECT_EQ(previews_of([&] { editor.cmdOutside.click(); }), 0);
        EXPECT_EQ(previews_of([&] { editor.cmbIcons.choose(0); }), 1);
        EXPECT_EQ(previews_of([&] { editor.frameFont.click(); }), 1);
        EXPECT_EQ(previews_of([&] { editor.txtCaption.set_text("another"); }), 1);
        EXPECT_EQ(previews_of([&] { editor.txtCaption.on_leave(); }), 1);
    });
}

TEST(frmFrames, the_font_is_the_one_of_the_caption_of_the_collage)
{
    editor_session session;
    session.edit("club", [&](frmFrames & editor) {
        session.desk.on_modal<frmFont>([](frmFont & window) {
            window.lstFonts.select_text("Serif");
            window.chkBold.tick(true);
            window.chkUnderline.tick(true);
            expect_states(window, "frmNeed_");
            window.cmdOk.click();
        });
        editor.cmdFont.click();
        EXPECT_EQ(editor.lblFont.font().name, "Serif");
        EXPECT_TRUE(editor.lblFont.font().bold && editor.lblFont.font().underline);
        EXPECT_EQ(editor.lblFont.text(), "Serif");
    });
    EXPECT_EQ(session.main.txtCaption.font().name, "Serif");
    EXPECT_TRUE(session.main.txtCaption.font().bold);
}

TEST(frmFrames, an_icon_whose_picture_is_gone_is_told_when_it_is_chosen)
{
    editor_session session;
    session.edit("club", [&](frmFrames & editor) {
        editor.cmbIcons.choose(1);
        EXPECT_EQ(session.desk.next_message(), "That does not appear to be a valid BMP file");
    });
}

TEST(frmFrames, cancel_changes_nothing)
{
    editor_session session;
    const std::string before = session.of_set("club", "design.ini");
    session.edit("club", [](frmFrames & editor) {
        editor.txtCaption.set_text("other");
        editor.cmdCancel.click();
        EXPECT_FALSE(editor.loaded());
    });
    EXPECT_EQ(session.of_set("club", "design.ini"), before);
    EXPECT_EQ(frames_of(session, "club"), "");
}

TEST(frmFrames, help_opens_its_topic)
{
    editor_session session;
    session.edit("club", [&](frmFrames & editor) {
        editor.cmdHelp.click();
        editor.on_key(key::f1);
        EXPECT_EQ(session.desk.opened_documents.size(), 2U);
        EXPECT_TRUE(session.desk.opened_documents.back().ends_with("custom_frames.htm"));
    });
}

// ---- saving

TEST(saving_a_set, writes_its_settings_in_order_and_renders_its_frames)
{
    editor_session session;
    session.edit(unnamed_set, [&](frmFrames & editor) {
        for (std::uint32_t color = 1;
             picture * each : {&editor.picOutside, &editor.picInside, &editor.picFont_BG, &editor.picFont_FG})
            each->set_back_color(color++);
        editor.txtCaption.set_text("A day out");
        editor.cmbIcons.choose(2);
        session.will_name("new set");
        editor.cmdSave.click();
        EXPECT_FALSE(editor.loaded());
    });
    EXPECT_EQ(session.of_set("new set", "design.ini"),
              "[Frame Design]\r\nOutside Color=1\r\nInside Color=2\r\nCaption Color=3\r\nFont Color=4\r\n"
              "Font Name=Sans Serif\r\nFont Bold=True\r\nFont Italic=False\r\nCaption Text=A day "
              "out\r\nIcon=sun\r\n"
              "Picture List=None\r\nNumber of Captions=0\r\n");
    EXPECT_EQ(frames_of(session, "new set"), "l00 p00 ");
    EXPECT_FALSE(session.has_set("_named_.not"));
    const bitmap upright = load_picture(picture_format::jpeg, session.in_frames("new set/pframe00.jpg"));
    const bitmap across = load_picture(picture_format::jpeg, session.in_frames("new set/lframe00.jpg"));
    EXPECT_EQ(upright.height(), 520);
    EXPECT_EQ(across.width(), 520);
}

TEST(saving_a_set, asks_about_the_sample_caption)
{
    for (const answer given : {answer::no, answer::cancel}) {
        editor_session session;
        session.edit(unnamed_set, [&](frmFrames & editor) {
            session.desk.will_answer(given);
            editor.cmdSave.click();
            EXPECT_TRUE(editor.loaded());
            EXPECT_EQ(session.desk.questions.back().text,
                      "It looks like you haven't changed the default caption.\r\n\r\n"
                      "Do you want to use that 'Sample' as a caption?");
            EXPECT_EQ(session.desk.questions.back().offered, answers::yes_no_cancel);
        });
        EXPECT_EQ(files_in(session.in_frames("_named_.not")), std::vector<std::string>{"captions"});
    }
    editor_session session;
    session.edit(unnamed_set, [&](frmFrames & editor) {
        session.desk.will_answer(answer::yes);
        session.will_name("new");
        editor.cmdSave.click();
    });
    EXPECT_EQ(frames_of(session, "new"), "l00 p00 ");
}

TEST(saving_a_set, is_given_up_without_a_name)
{
    editor_session session;
    session.edit(unnamed_set, [&](frmFrames & editor) {
        editor.txtCaption.set_text("x");
        session.desk.on_modal<frmFrameName>([](frmFrameName & window) { window.cmdCancel.click(); });
        editor.cmdSave.click();
        EXPECT_TRUE(editor.loaded());
    });
    EXPECT_EQ(files_in(session.in_frames("_named_.not")), std::vector<std::string>{"captions"});
}

TEST(saving_a_set, gives_an_empty_caption_the_default_one_under_its_own_number)
{
    editor_session session;
    session.edit("club", [](frmFrames & editor) { editor.cmdSave.click(); });
    EXPECT_EQ(frames_of(session, "club"), "l00 l01 l02 l03 p00 p01 p02 p03 ");
    EXPECT_EQ(session.of_set("club", "pframe02.jpg"), session.of_set("club", "pframe00.jpg"));
    EXPECT_EQ(session.of_set("club", "lframe02.jpg"), session.of_set("club", "lframe00.jpg"));
    EXPECT_NE(session.of_set("club", "pframe01.jpg"), session.of_set("club", "pframe00.jpg"));
}

TEST(saving_a_set, tells_how_far_it_is_and_can_t_be_closed_meanwhile)
{
    editor_session session;
    session.edit("club", [&](frmFrames & editor) {
        session.desk.on_pump(2, [&] {
            EXPECT_EQ(editor.lblCount.caption(), "Generating number  2 of  3 frames");
            expect_states(editor, "lblCount^ cmdSave_ cmdCancel_ cmdHelp_");
            editor.request_close();
            EXPECT_TRUE(editor.loaded());
        });
        editor.cmdSave.click();
        EXPECT_FALSE(editor.loaded());
        EXPECT_EQ(session.desk.pumps, 3);
    });
}

TEST(saving_a_set, deletes_the_frames_that_it_has_no_more)
{
    editor_session session;
    for (const char * file : {"pframe04.jpg", "lframe36.jpg", "pframe37.jpg", "other.jpg_"})
        session.folder.write("data/frames/club/" + std::string(file), "old");
    session.edit("club", [](frmFrames & editor) {
        editor.caption_count = 1;
        editor.cmdSave.click();
    });
    EXPECT_EQ(frames_of(session, "club"), "l00 l01 p00 p01 p37 ");
    EXPECT_TRUE(file_exists(session.in_frames("club/other.jpg_")));
}

TEST(saving_a_set, with_fewer_captions_than_counted_fails_before_anything_is_written)
{
    editor_session session;
    session.folder.write("data/frames/club/captions", "One\r\nTwo\r\n");
    const std::string before = session.of_set("club", "design.ini");
    session.edit("club", [](frmFrames & editor) {
        editor.picOutside.set_back_color(7);
        EXPECT_THROW(editor.cmdSave.click(), platform_error);
        EXPECT_TRUE(editor.loaded());
        expect_states(editor, "lblCount_ cmdSave^");
    });
    EXPECT_EQ(session.of_set("club", "design.ini"), before);
    EXPECT_EQ(frames_of(session, "club"), "");
}

TEST(saving_a_set, whose_icon_is_gone_stays_in_the_editor)
{
    editor_session session;
    delete_file(session.folder.at("data/icons/s.bmp"));
    const std::string before = session.of_set("club", "design.ini");
    session.edit("club", [&](frmFrames & editor) {
        editor.cmdSave.click();
        EXPECT_EQ(session.desk.next_message(), "That does not appear to be a valid BMP file");
        EXPECT_TRUE(editor.loaded());
    });
    EXPECT_EQ(session.of_set("club", "design.ini"), before);
}

TEST(saving_a_set, that_fails_on_the_way_leaves_whole_files_and_an_open_editor)
{
    editor_session session;
    session.edit("club", [](frmFrames & editor) { editor.cmdSave.click(); });
    const std::string third = session.of_set("club", "pframe03.jpg");
    session.edit("club", [&](frmFrames & editor) {
        session.desk.on_pump(2, [&] {
            delete_file(session.folder.at("data/tmp/caption1.bmp"));
            make_folder(session.folder.at("data/tmp/caption1.bmp"));
        });
        editor.txtCaption.set_text("New default");
        EXPECT_THROW(editor.cmdSave.click(), platform_error);
        EXPECT_TRUE(editor.loaded());
        EXPECT_EQ(editor.txtCaption.text(), "New default");
        expect_states(editor, "lblCount_ cmdSave^ cmdCancel^ cmdHelp^");
        editor.request_close();
        EXPECT_FALSE(editor.loaded());
    });
    EXPECT_EQ(session.of_set("club", "pframe03.jpg"), third);
}

TEST(saving_a_set, keeps_what_else_stands_in_its_settings)
{
    editor_session session;
    session.write_set("hand", "; mine\r\ncaption text = old\r\nMy Key=1\r\n");
    session.edit("hand", [](frmFrames & editor) {
        EXPECT_EQ(editor.txtCaption.text(), "old");
        editor.cmdSave.click();
    });
    const std::string design = session.of_set("hand", "design.ini");
    EXPECT_TRUE(design.starts_with("[Frame Design]\r\n; mine\r\nCaption Text=old\r\nMy Key=1\r\n")) << design;
    session.main.collage.frame_set_name = "hand";
}

TEST(saving_a_set, of_captions_of_300_characters)
{
    editor_session session;
    session.write_set("long", settings, captions({std::string(300, 'w')}));
    session.edit("long", [](frmFrames & editor) {
        editor.caption_count = 1;
        editor.txtCaption.set_text(std::string(300, 'v'));
        editor.cmdSave.click();
        EXPECT_FALSE(editor.loaded());
    });
    EXPECT_TRUE(file_exists(session.in_frames("long/lframe01.jpg")));
}
