// What of typing and choosing from lists is one step, and what another.

#include "session/undo/keep_history.h"
#include "tests/session/undo/undo_session.h"

TEST(undo, takes_a_run_of_typing_as_one_step)
{
    undo_session session;
    frmMain & main = session.main;
    for (const char * text : {"S", "Su", "Sun"})
        main.txtCaption.set_text(text);
    session.undo();
    EXPECT_EQ(main.txtCaption.text(), "");
    EXPECT_FALSE(main.chkClear.enabled());
    EXPECT_FALSE(main.mnuUndo.enabled());
    session.redo();
    EXPECT_EQ(main.txtCaption.text(), "Sun");
}

TEST(undo, takes_what_is_typed_after_leaving_the_box_as_another_step)
{
    undo_session session;
    frmMain & main = session.main;
    main.txtCaption.set_text("S");
    fire(main.txtCaption.on_leave);
    main.txtCaption.set_text("Su");
    session.undo();
    EXPECT_EQ(main.txtCaption.text(), "S");
}

TEST(undo, takes_what_leaving_a_box_draws_along_with_its_typing)
{
    undo_session session;
    frmMain & main = session.main;
    session.desk.will_choose_file(session.photos.front());
    main.optBGimage.select();
    const sight before = session.seen();
    fire(main.txtBGimage.on_enter);
    main.txtBGimage.set_text(session.photos.back());
    fire(main.txtBGimage.on_leave);
    const sight after = session.seen();
    session.undo();
    EXPECT_EQ(session.seen().picture, before.picture);
    EXPECT_EQ(main.txtBGimage.text(), session.photos.front());
    session.redo();
    EXPECT_EQ(session.seen(), after);
}

TEST(undo, takes_each_choice_from_a_list_as_a_step)
{
    undo_session session;
    frmMain & main = session.main;
    main.cmbShadow.choose(2);
    main.cmbShadow.choose(4);
    main.cmbShadow.set_text("3");
    main.cmbShadow.set_text("33");
    session.undo();
    EXPECT_EQ(main.cmbShadow.text(), "20");
    session.undo();
    EXPECT_EQ(main.cmbShadow.text(), "10");
}

TEST(undo, finds_no_step_in_typing_that_leads_back)
{
    undo_session session;
    frmMain & main = session.main;
    main.txtCaption.set_text("S");
    main.txtCaption.set_text("");
    EXPECT_FALSE(main.mnuUndo.enabled());
    main.txtCaption.set_text("T");
    session.undo();
    EXPECT_EQ(main.txtCaption.text(), "");
}

TEST(undo, goes_on_typing_in_another_collage_as_a_new_step)
{
    undo_session session;
    session.main.txtCaption.set_text("S");
    session.main.cmdCancel.click();
    EXPECT_FALSE(session.main.mnuUndo.enabled());
    session.start();
    EXPECT_FALSE(session.main.mnuUndo.enabled()) << "another collage begins another history";
    session.main.txtCaption.set_text("Su");
    session.undo();
    EXPECT_EQ(session.main.txtCaption.text(), "S");
    EXPECT_FALSE(session.main.mnuUndo.enabled());
}
