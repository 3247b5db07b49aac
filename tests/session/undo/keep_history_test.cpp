#include "session/undo/keep_history.h"

#include "session/undo/moment.h"
#include "support/files/file_steps.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"
#include "tests/session/undo/undo_session.h"

#include <cerrno>
#include <filesystem>
#include <functional>

TEST(undo, has_nothing_to_do_at_the_beginning_of_a_collage)
{
    undo_session session;
    EXPECT_FALSE(session.main.mnuUndo.enabled());
    EXPECT_FALSE(session.main.mnuRedo.enabled());
    const sight before = session.seen();
    session.main.mnuUndo.click();
    session.main.mnuRedo.click();
    EXPECT_EQ(session.seen(), before);
}

TEST(undo, brings_the_last_change_back_and_redo_makes_it_again_without_drawing)
{
    undo_session session;
    const sight before = session.seen();
    session.main.optHuge.select();
    const sight after = session.seen();
    ASSERT_NE(after.picture, before.picture);
    session.main.in_preview = true;
    session.forget_written();
    EXPECT_TRUE(session.undo());
    EXPECT_EQ(session.seen(), before);
    EXPECT_TRUE(session.main.mnuRedo.enabled());
    EXPECT_FALSE(session.main.mnuUndo.enabled());
    EXPECT_TRUE(session.redo());
    EXPECT_EQ(session.seen(), after);
}

TEST(undo, shows_the_picture_anew)
{
    undo_session session;
    session.main.optHuge.select();
    EXPECT_EQ(session.previews_of([&] { session.undo(); }), 1);
    EXPECT_EQ(session.main.picSample.file(), finished_path(session.main));
}

TEST(undo, goes_through_what_a_handler_changed_beside_its_own_control)
{
    undo_session session;
    frmMain & main = session.main;
    main.optMatrix.select();
    const sight matrix = session.seen();
    main.optShapes.select();
    main.cmbShapes.choose(1);
    main.optLandscape.select();
    for (int step = 0; step < 3; ++step)
        EXPECT_TRUE(session.undo());
    EXPECT_EQ(session.seen(), matrix);
    EXPECT_EQ(main.design_record.name, "Quick matrix");
    EXPECT_EQ(main.width(), 15600);
    EXPECT_TRUE(main.poster_tall);
}

TEST(undo, brings_the_photos_back_in_their_order)
{
    undo_session session;
    session.main.random = seeded_random(3);
    const sight before = session.seen();
    session.main.cmdShuffle.click();
    const sight shuffled = session.seen();
    ASSERT_NE(before.photos, shuffled.photos);
    session.undo();
    EXPECT_EQ(session.seen(), before);
    session.redo();
    EXPECT_EQ(session.seen(), shuffled);
}

TEST(undo, brings_former_photos_back)
{
    undo_session session;
    const sight before = session.seen();
    const int16 portraits = session.main.quick.photos_portrait;
    session.make_photos(2, 1);
    session.will_choose_selection();
    session.main.cmdPhotos.click();
    ASSERT_EQ(session.main.table.last_photo, 2);
    ASSERT_EQ(photo_source_kind(session.main), photo_source::selection);
    session.undo();
    EXPECT_EQ(session.seen(), before);
    EXPECT_EQ(photo_source_kind(session.main), photo_source::list);
    EXPECT_EQ(session.main.quick.photos_portrait, portraits);
    EXPECT_EQ(session.main.selected_count, 0);
}

TEST(undo, brings_the_list_of_a_selection_back)
{
    undo_session session;
    const std::string list = work_path(session.main, "piclists/last_photos.pls");
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & chooser) {
        replace_file(list, "L /photos/a.jpg\r\n");
        chooser.cmdCancel.click();
    });
    session.main.cmdPhotos.click();
    EXPECT_FALSE(session.main.mnuUndo.enabled()) << "nothing that a user sees has changed";
    session.main.optHuge.select();
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & chooser) {
        replace_file(list, "L /photos/b.jpg\r\n");
        session.main.txtPhotos.tag = list;
        chooser.unload();
    });
    session.main.optNone.select();
    session.main.cmdPhotos.click();
    session.undo();
    session.undo();
    EXPECT_EQ(read_file(list), "L /photos/a.jpg\r\n");
}

TEST(undo, takes_what_was_forced_back_along)
{
    undo_session session;
    frmMain & main = session.main;
    main.chkRounded.tick(true);
    main.optScatter.select();
    ASSERT_FALSE(main.chkRounded.ticked());
    session.undo();
    EXPECT_TRUE(main.chkRounded.ticked());
    EXPECT_TRUE(main.optBlock.selected());
    session.redo();
    main.optMatrix.select();
    EXPECT_TRUE(main.chkRounded.ticked()) << "the style gave back what it had forced";
}

TEST(undo, ends_the_redo_at_a_new_change)
{
    undo_session session;
    session.main.optHuge.select();
    session.undo();
    session.main.optTiny.select();
    EXPECT_FALSE(session.main.mnuRedo.enabled());
    EXPECT_FALSE(session.redo());
    EXPECT_TRUE(session.main.optTiny.selected());
}

TEST(undo, keeps_a_hundred_steps)
{
    undo_session session;
    frmMain & main = session.main;
    main.optSample.select();
    for (int step = 0; step < 101; ++step)
        main.cmbFrame.set_text(""), main.cmbFrame.choose(step % 2 == 0 ? 5 : 6);
    int steps = 0;
    while (session.undo())
        ++steps;
    EXPECT_EQ(steps, step_history<moment>::most_steps);
}

TEST(undo, leads_through_the_previews_of_a_hundred_steps_byte_by_byte)
{
    undo_session session;
    frmMain & main = session.main;
    const std::function<void(int)> changes[] = {
        [&](int round) { main.cmbFrame.choose(1 + round % 5); },
        [&](int round) { (round % 2 == 0 ? main.optHuge : main.optTiny).select(); },
        [&](int round) { (round % 2 == 0 ? main.optLandscape : main.optPortrait).select(); },
        [&](int) {
            for (const std::vector<std::string> before = session.seen().photos;
                 before == session.seen().photos;)
                main.cmdShuffle.click();
        },
        [&](int round) {
            main.txtCaption.set_text(std::string(static_cast<std::size_t>(1 + round % 3), 'x'));
        }};
    std::vector<sight> sights{session.seen()};
    constexpr int steps = step_history<moment>::most_steps + 1;
    for (int step = 0; step < steps; ++step) {
        changes[static_cast<std::size_t>(step) % std::size(changes)](step /
                                                                     static_cast<int>(std::size(changes)));
        ASSERT_FALSE(sights.back() == session.seen()) << step;
        sights.push_back(session.seen());
    }
    for (auto at = sights.rbegin() + 1; at + 1 != sights.rend(); ++at) {
        ASSERT_TRUE(session.undo());
        ASSERT_TRUE(*at == session.seen()) << at - sights.rbegin() << " steps back";
    }
    EXPECT_FALSE(session.undo()) << "the oldest of a hundred and one steps";
    for (auto at = sights.begin() + 2; at != sights.end(); ++at) {
        ASSERT_TRUE(session.redo());
        ASSERT_TRUE(*at == session.seen()) << at - sights.begin();
    }
    EXPECT_FALSE(session.redo());
}

TEST(undo, takes_the_switch_of_the_preview_along_with_the_step_before_it)
{
    undo_session session;
    frmMain & main = session.main;
    session.folder.write("install/images/preview/p_sb.jpg", "blocks");
    const sight before = session.seen();
    main.optHuge.select();
    main.optSample.select();
    session.undo();
    EXPECT_EQ(session.seen(), before);
    EXPECT_TRUE(main.optPreview.selected());
    EXPECT_FALSE(main.mnuUndo.enabled());
    session.redo();
    EXPECT_TRUE(main.optHuge.selected());
    EXPECT_TRUE(main.optSample.selected());
    EXPECT_EQ(name_of(main.picSample.file()), "p_sb.jpg") << "the ready-made picture of the style";
}

TEST(undo, does_nothing_in_the_choosing_stage)
{
    undo_session session;
    session.main.optHuge.select();
    session.main.cmdCancel.click();
    session.main.mnuUndo.click();
    EXPECT_TRUE(session.main.optHuge.selected());
    EXPECT_TRUE(session.main.menus_shown);
}

TEST(undo, does_nothing_during_a_run)
{
    undo_session session;
    frmMain & main = session.main;
    main.optHuge.select();
    bool asked = false;
    session.desk.on_pump(1, [&] {
        asked = main.run.run_active;
        main.mnuUndo.click();
    });
    main.optTiny.select();
    EXPECT_TRUE(asked);
    EXPECT_TRUE(main.optTiny.selected());
    session.undo();
    EXPECT_TRUE(main.optHuge.selected());
}

TEST(undo, does_nothing_while_a_dialog_is_open)
{
    undo_session session;
    frmMain & main = session.main;
    main.optHuge.select();
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & chooser) {
        main.mnuUndo.click();
        chooser.cmdCancel.click();
    });
    main.cmdPhotos.click();
    EXPECT_TRUE(main.optHuge.selected());
}

TEST(undo, keeps_the_preview_apart_from_the_collage_that_was_made)
{
    undo_session session;
    frmMain & main = session.main;
    main.optHuge.select();
    const sight before = session.seen();
    session.desk.on_modal<frmImage>([](frmImage &) {});
    main.cmdFlurn.click();
    ASSERT_NE(session.seen().picture, before.picture);
    main.optTiny.select();
    session.undo();
    EXPECT_EQ(session.seen().picture, before.picture);
    EXPECT_TRUE(main.optHuge.selected());
}

TEST(undo, changes_nothing_where_the_disk_is_full)
{
    undo_session session;
    frmMain & main = session.main;
    main.optShapes.select();
    main.chkMix.tick(true);
    const sight after = session.seen();
    for (const char * const file : {"finished.jpg", "__quick"}) {
        const gated_files full([&](file_step, const std::string & path) {
            return path.find(file) == std::string::npos ? 0 : ENOSPC;
        });
        EXPECT_THROW(session.undo(), platform_error);
    }
    EXPECT_EQ(session.seen(), after);
    EXPECT_TRUE(main.mnuUndo.enabled());
    EXPECT_FALSE(main.mnuRedo.enabled());
    EXPECT_TRUE(session.undo());
    EXPECT_FALSE(main.chkMix.ticked());
}

TEST(undo, holds_a_step_of_a_change_that_failed)
{
    quick_session session;
    frmMain & main = session.main;
    main.optLarge.on_click = [] { throw platform_error(error_number::disk_full, "no room"); };
    change_history history;
    keep_history(main, history);
    session.start();
    main.optSmall.select();
    EXPECT_THROW(main.optLarge.select(), platform_error);
    main.mnuUndo.click();
    EXPECT_TRUE(main.optSmall.selected());
    main.mnuUndo.click();
    EXPECT_TRUE(main.optNone.selected());
}

TEST(moment, how_far_a_run_has_come_is_no_part_of_it)
{
    opened_session session;
    const moment before = moment_of(session.main, {});
    session.main.barDoing.tell(3, 4);
    session.main.barDoing.show(!session.main.barDoing.visible());
    EXPECT_TRUE(moment_of(session.main, before) == before);
}

TEST(undo, brings_no_photo_back_that_is_gone_and_names_none_again)
{
    undo_session session;
    frmMain & main = session.main;
    save_jpeg(plain(15, 20, {.red = 20, .green = 200, .blue = 30}), session.photos[0]);
    main.optHuge.select();
    const std::string with_it = session.seen().picture;
    main.optLarge.select();
    std::filesystem::remove(session.photos[0]);
    main.optMedium.select();
    const sight without = session.seen();
    EXPECT_TRUE(session.desk.next_message().starts_with("This photo was left out:\r\n" + session.photos[0]));
    EXPECT_TRUE(session.undo());
    EXPECT_TRUE(session.undo());
    EXPECT_FALSE(session.seen().picture == with_it);
    EXPECT_TRUE(session.undo());
    EXPECT_FALSE(session.undo()) << "drawing anew is no step";
    EXPECT_TRUE(session.redo());
    EXPECT_TRUE(session.redo());
    EXPECT_TRUE(session.redo());
    EXPECT_TRUE(session.seen() == without);
    EXPECT_FALSE(session.main.mnuRedo.enabled());
    main.optHuge.select();
    EXPECT_TRUE(session.desk.messages.empty());
}
