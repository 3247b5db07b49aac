#include "support/colors.h"
#include "support/windows/show_help.h"
#include "tests/session/opened_session.h"

#include <set>

TEST(cmdCancel, goes_back_to_the_choosing_stage)
{
    opened_session session;
    session.finish();
    session.main.collage.quick_active = true;
    session.main.cmdCancel.click();
    expect_states(session.main,
                  "mnuFile^ mnuDesigned^ frmOutput_ frmStyle_ picSample_ optPreview0 picSplash^");
    EXPECT_EQ(session.main.back_color(), stage_background);
    EXPECT_TRUE(session.main.menus_shown);
    EXPECT_FALSE(session.main.collage.quick_active);
    EXPECT_FALSE(session.main.updating_controls);
    EXPECT_FALSE(session.main.run.cancel_requested);
}

TEST(cmdCancel, asks_a_run_to_stop_and_stays)
{
    opened_session session;
    session.finish();
    session.main.run.run_active = true;
    session.main.cmdCancel.click();
    EXPECT_TRUE(session.main.run.cancel_requested);
    expect_states(session.main, "mnuFile_ frmOutput^ optPreview0");
}

TEST(optPreview, draws_and_unticks_random_without_a_preview_for_that)
{
    opened_session session;
    session.finish();
    session.main.chkRandom.tick(true);
    session.main.optSample.select();
    session.main.preview_blocked = true;
    EXPECT_EQ(session.previews_of([&] { session.main.optPreview.select(); }), 1);
    expect_states(session.main, "chkRandom0");
    EXPECT_FALSE(session.main.preview_blocked);
}

TEST(optPreview, a_click_of_the_user_draws_whatever_the_program_did_before)
{
    opened_session session;
    session.finish();
    session.main.optSample.select();
    session.main.skip_preview_click = true;
    EXPECT_EQ(session.previews_of([&] { session.main.optPreview.select(); }), 1);
    EXPECT_FALSE(session.main.skip_preview_click);
}

TEST(optSample, draws_nothing_and_neither_does_any_change_until_it_is_on_again)
{
    opened_session session;
    session.finish();
    session.main.preview_blocked = true;
    EXPECT_EQ(session.previews_of([&] { session.main.optSample.select(); }), 0);
    EXPECT_FALSE(session.main.preview_blocked);
    EXPECT_EQ(session.previews_of([&] { session.main.chkMatch.tick(true); }), 0);
    EXPECT_EQ(session.previews_of([&] { session.main.cmbShadow.choose(4); }), 0);
    EXPECT_EQ(session.previews_of([&] { session.main.optPreview.select(); }), 1);
}

TEST(help, follows_the_stage)
{
    opened_session session;
    session.folder.write("install/help/help_main.htm", "h");
    session.folder.write("install/help/finishing.htm", "f");
    const std::string folder = joined(session.main.install_folder, "help");
    session.main.on_key(key::f1);
    session.main.mnuHelpTopics.click();
    session.finish();
    session.main.on_key(key::help);
    session.main.cmdHelp.click();
    EXPECT_EQ(session.desk.opened_documents,
              (std::vector<std::string>{joined(folder, "help_main.htm"), joined(folder, "help_main.htm"),
                                        joined(folder, "finishing.htm"), joined(folder, "finishing.htm")}));
}

TEST(cmdCancel, escape_is_the_button_while_a_run_goes_on_and_nothing_otherwise)
{
    opened_session session;
    session.finish();
    session.main.on_key(key::escape);
    EXPECT_FALSE(session.main.menus_shown);
    EXPECT_FALSE(session.main.run.cancel_requested);
    session.main.run.run_active = true;
    session.main.on_key(key::escape);
    EXPECT_TRUE(session.main.run.cancel_requested);
    EXPECT_FALSE(session.main.menus_shown);
}

TEST(help, tutorials_and_questions_are_on_the_site)
{
    opened_session session;
    session.main.mnuStarted.click();
    session.main.mnuFAQ.click();
    EXPECT_EQ(session.desk.opened_documents,
              (std::vector<std::string>{documentation_address("/tutorials.htm"),
                                        documentation_address("/faq.htm")}));
}

TEST(menus, offer_what_has_an_answer)
{
    opened_session session;
    expect_states(session.main,
                  "mnuFile+ mnuQuit+ mnuHelp+ mnuHelpTopics+ mnuStarted+ mnuFAQ+ mnuHelpAbout+ mnuDesign+ "
                  "mnuPictures+ mnuFrames+ mnuSeparator-");
    const std::set<control *> containers{&session.main.mnuFile,     &session.main.mnuDesign,
                                         &session.main.mnuPictures, &session.main.mnuFrames,
                                         &session.main.mnuHelp,     &session.main.mnuChanges};
    for (control * each : session.main.controls()) {
        const auto * const entry = dynamic_cast<menu_entry *>(each);
        if (entry != nullptr && !containers.contains(each)) {
            EXPECT_EQ(entry->enabled(), static_cast<bool>(entry->on_click)) << entry->name();
        }
    }
}

TEST(buttons, that_are_enabled_do_something)
{
    opened_session session;
    for (control * each : session.main.controls()) {
        const auto * const pressed = dynamic_cast<button *>(each);
        if (pressed != nullptr && pressed->enabled()) {
            EXPECT_TRUE(pressed->on_click) << pressed->name();
        }
    }
}
