#include "session/start/start_up.h"
#include "tests/session/opened_session.h"

TEST(load_main, sets_the_start_state)
{
    opened_session session;
    frmMain & main = session.main;
    main.pictures_folder = "/home/me/Pictures";
    main.collage.quick_active = main.collage.frames_design = main.collage.matrix_session =
        main.collage.bg_from_design = true;
    main.collage.borders_free = false;
    main.caption_color = 7;
    main.picBGcolor.set_back_color(9);
    main.lblPhotos.tag = "2";
    main.load();
    expect_states(main,
                  "frmAlign_ frmSquares_ chkOutline_ txtBGimage_ cmdBGimage_ frmBlend_ cmdFlurn- "
                  "mnuSaveDesign- frmOutput_ frmOrnaments_ frmBackground_ frmCaption_ frmButtons_ "
                  "frmBorder_ picSample_ frmDisplay_ frmOrientation_ frmStyle_ frmShake_ frmSpace_");
    EXPECT_FALSE(main.collage.quick_active || main.collage.frames_design || main.collage.matrix_session ||
                 main.collage.bg_from_design);
    EXPECT_TRUE(main.collage.borders_free);
    EXPECT_EQ(main.caption_color, 0u);
    EXPECT_EQ(main.lblPhotos.tag, "0");
    EXPECT_EQ(main.picBGcolor.back_color(), 0u);
    EXPECT_EQ(main.back_color(), 0u);
    EXPECT_EQ(main.image_folder, "/home/me/Pictures");
    EXPECT_EQ(main.photo_folder, "/home/me/Pictures");
}

TEST(load_main, sets_the_texts_and_the_font)
{
    opened_session session;
    frmMain & main = session.main;
    main.txtCaption.set_font({.name = "Serif", .size = 9, .bold = true, .italic = true, .underline = true});
    main.load();
    EXPECT_EQ(main.cmbFrame.text(), "10");
    EXPECT_EQ(main.cmbShadow.text(), "10");
    EXPECT_EQ(main.cmbSpace.text(), "20");
    EXPECT_EQ(main.cmbSize.text(), "60");
    EXPECT_EQ(main.cmbBlend.text(), "");
    EXPECT_EQ(main.cmbBlanks.text(), "");
    EXPECT_EQ(main.txtCaption.tag, "100");
    EXPECT_EQ(main.txtCaption.font(), (font_style{.name = "Serif", .size = 16}));
    EXPECT_EQ(main.collage_width, 2000);
    EXPECT_EQ(main.collage_height, 3000);
    EXPECT_EQ(main.cmdFlurn.caption(), "Flurn");
}

TEST(load_main, begins_captions_in_a_face_for_titles_where_one_is_installed)
{
    opened_session session;
    session.desk.fonts = {"Arial", "League Spartan", "Vollkorn", "Vollkorn SemiBold"};
    session.main.txtCaption.set_font({.name = "Sans Serif", .size = 9, .bold = true});
    session.main.load();
    EXPECT_EQ(session.main.txtCaption.font(), (font_style{.name = "Vollkorn SemiBold", .size = 16}));
}

TEST(load_main, leaves_captions_their_face_where_only_those_without_room_for_accents_are_installed)
{
    opened_session session;
    session.desk.fonts = {"Arial", "League Spartan", "Yanone Kaffeesatz"};
    session.main.txtCaption.set_font({.name = "Sans Serif", .size = 9});
    session.main.load();
    EXPECT_EQ(session.main.txtCaption.font(), (font_style{.name = "Sans Serif", .size = 16}));
}

TEST(load_main, places_what_the_program_moves)
{
    opened_session session;
    frmMain & main = session.main;
    main.frmShake.move({100, 50, 10, 10});
    main.frmAlign.move({7, 7, 7, 7});
    main.chkMatch.move({20, 0, 1, 1});
    main.chkEvolve.move({0, 300, 1, 1});
    main.frmBorder.move({400, 200, 100, 60});
    main.chkOutline.move({0, 0, 80, 20});
    main.load();
    EXPECT_EQ(main.picSplash.place(), (box{40, 145, 708, 470}));
    EXPECT_EQ(main.frmSpace.place().left, 440);
    EXPECT_EQ(main.frmSpace.place().top, 250);
    EXPECT_EQ(main.frmAlign.place(), (box{7, 250, 7, 7}));
    EXPECT_EQ(main.frmSquares.place().left, 50);
    EXPECT_EQ(main.frmSquares.place().top, 175);
    EXPECT_EQ(main.chkOutline.place(), (box{270, 220, 80, 20}));
    EXPECT_EQ(main.height(), 10125);
    EXPECT_EQ(main.width(), 15600);
}

TEST(load_main, forgets_the_photo_list_and_the_matrix_of_the_last_session)
{
    opened_session session;
    const std::string list = session.folder.write("data/piclists/last_photos.pls", "L /a.jpg\r\n");
    const std::string saved = session.folder.write("data/piclists/summer.pls", "L /a.jpg\r\n");
    const std::string matrix = session.folder.write("data/designs/__matrix", "1");
    session.main.load();
    EXPECT_FALSE(file_exists(list));
    EXPECT_TRUE(file_exists(saved));
    EXPECT_FALSE(file_exists(matrix));
}

TEST(load_main, offers_twelve_shapes)
{
    opened_session session;
    session.main.load();
    EXPECT_EQ(session.main.cmbShapes.items().size(), 12u);
    EXPECT_EQ(session.main.cmbShapes.items()[3], "Hearrs");
    EXPECT_EQ(session.main.cmbShapes.text(), "Squares");
}

TEST(load_main, offers_the_custom_shape_as_the_thirteenth)
{
    opened_session session;
    session.folder.write("data/user_images/custom_shape.gif", "GIF89a");
    session.main.load();
    ASSERT_EQ(session.main.cmbShapes.items().size(), 13u);
    EXPECT_EQ(session.main.cmbShapes.items()[12], "Custom shape");
}

TEST(main_window, comes_back_to_its_size)
{
    opened_session session;
    session.main.load();
    session.main.resize(9000, 20000);
    EXPECT_EQ(session.main.width(), 15600);
    EXPECT_EQ(session.main.height(), 10125);
    session.main.optLandscape.select();
    EXPECT_EQ(session.main.width(), 17750);
    session.main.resize(1, 1);
    EXPECT_EQ(session.main.width(), 17750);
    session.main.optSquare.select();
    EXPECT_EQ(session.main.width(), 15600);
}

TEST(main_window, lists_hold_what_they_offer)
{
    opened_session session;
    const frmMain & main = session.main;
    EXPECT_EQ(main.cmbSpace.items().size(), 25u);
    EXPECT_EQ(main.cmbSpace.items().front(), "-100");
    EXPECT_EQ(main.cmbSpace.items().back(), "140");
    EXPECT_EQ(main.cmbFrame.items()[6], "18");
    EXPECT_EQ(main.cmbFrame.items().size(), 16u);
    EXPECT_EQ(main.cmbShadow.items().size(), 11u);
    EXPECT_EQ(main.cmbSize.items().size(), 12u);
    EXPECT_EQ(main.cmbBlend.items().size(), 11u);
    EXPECT_EQ(main.cmbBlanks.items().size(), 22u);
    EXPECT_EQ(main.cmbBlanks.items()[1], "3");
}
