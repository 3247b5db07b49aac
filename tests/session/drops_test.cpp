#include "session/drops.h"

#include "photos/lists/photo_list.h"
#include "session/undo/keep_history.h"
#include "tests/photos/photo_editor.h"
#include "tests/quick/quick_session.h"

namespace {

// A session that keeps its history, with its windows as targets.
template <typename Session>
struct dropped_on : Session {
    dropped_on()
    {
        keep_history(this->main, history);
        targets = connect_drops(
            this->all,
            {.is_busy = [this] { return history.actions > 0; },
             .act = [this](const std::function<void()> & step) { act_as_user(this->main, history, step); }});
    }
    drop_offer offer(const form & on, const std::vector<std::string> & paths = {"/a.jpg"})
    {
        return targets[&on].offer({.paths = paths, .elsewhere = {}});
    }
    void drop(const form & on, const std::vector<std::string> & paths, int x = 0, int y = 0)
    {
        targets[&on].take({.paths = paths, .elsewhere = {}}, x, y);
    }
    change_history history;
    drop_targets targets;
};

using quick_drops = dropped_on<quick_session>;

}  // namespace

TEST(drops, begin_a_quick_collage_in_the_choosing_stage)
{
    quick_drops session;
    EXPECT_EQ(session.offer(session.main).sentence, "Drop here to make a quick collage of these photos.");
    session.drop(session.main, session.photos);
    EXPECT_FALSE(session.main.menus_shown);
    EXPECT_TRUE(session.main.collage.quick_active);
    EXPECT_EQ(session.main.picSample.load_count(), 1);
    EXPECT_EQ(session.main.lblOutput.caption(), "Using 04 selected photos...");
    EXPECT_FALSE(session.main.mnuUndo.enabled());
}

TEST(drops, of_a_folder_begin_a_quick_collage_of_that_folder)
{
    quick_drops session;
    session.drop(session.main, {folder_of(session.photos.front())});
    EXPECT_EQ(photo_source_kind(session.main), photo_source::folder);
    EXPECT_EQ(session.main.table.last_photo, 3);
    EXPECT_FALSE(session.main.menus_shown);
}

TEST(drops, of_nothing_usable_leave_the_choosing_stage_as_it_is)
{
    quick_drops session;
    session.main.picSplash.show(true);
    session.drop(session.main, {"/nowhere"});
    EXPECT_TRUE(session.main.menus_shown);
    EXPECT_TRUE(session.main.picSplash.visible());
    EXPECT_TRUE(session.desk.next_message().starts_with("Nothing of what you dropped can be used:"));
}

TEST(drops, take_the_place_of_the_photos_in_the_finishing_stage_and_undo_brings_those_back)
{
    quick_drops session;
    session.start();
    const std::string former = session.main.txtPhotos.tag;
    EXPECT_EQ(session.offer(session.main).sentence,
              "Drop here to take these photos instead of those in the collage.");
    const std::vector<std::string> three{session.photos[0], session.photos[1], session.photos[2]};
    EXPECT_EQ(session.previews_of([&] { session.drop(session.main, three); }), 1);
    EXPECT_EQ(session.main.table.last_photo, 2);
    EXPECT_EQ(session.written().size(), 3U);
    ASSERT_TRUE(session.main.mnuUndo.enabled());
    session.main.mnuUndo.click();
    EXPECT_EQ(session.main.table.last_photo, 3);
    EXPECT_EQ(session.main.txtPhotos.tag, former);
    EXPECT_EQ(session.written().size(), 4U);
    EXPECT_FALSE(session.main.mnuUndo.enabled());
    EXPECT_FALSE(file_exists(work_path(session.main, "piclists/last_photos.pls")));
    session.main.mnuRedo.click();
    EXPECT_EQ(session.main.table.last_photo, 2);
    EXPECT_TRUE(file_exists(work_path(session.main, "piclists/last_photos.pls")));
}

TEST(drops, are_refused_during_a_run_and_while_an_action_goes_on)
{
    quick_drops session;
    session.start();
    std::vector<bool> taken;
    session.desk.on_pump(1, [&] { taken.push_back(session.offer(session.main).taken); });
    session.main.optHuge.select();
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & chooser) {
        taken.push_back(session.offer(session.main).taken);
        chooser.cmdCancel.click();
    });
    session.main.cmdPhotos.click();
    EXPECT_EQ(taken, (std::vector<bool>{false, false}));
    EXPECT_TRUE(session.offer(session.main).taken);
}

TEST(drops, from_elsewhere_are_refused_in_words_by_every_window)
{
    dropped_on<editor> session;
    session.edit(editing::saved_list, 1);
    for (const auto & [window, target] : session.targets) {
        const drop_offer offer = target.offer({.paths = {}, .elsewhere = {"https://example.org/a.jpg"}});
        EXPECT_FALSE(offer.taken) << window->name();
        EXPECT_EQ(offer.sentence,
                  "Only files of this computer can be dropped here. Save the photos to a folder first.");
    }
}

TEST(drops, on_the_choice_of_photos_become_the_source)
{
    quick_drops session;
    session.desk.on_modal<frmSelectPhotos>([&](frmSelectPhotos & chooser) {
        EXPECT_EQ(session.offer(chooser).sentence, "Drop here to use these photos.");
        session.drop(chooser, {"/nowhere"});
        EXPECT_TRUE(chooser.loaded()) << "nothing usable was dropped";
        session.drop(chooser, session.photos);
        EXPECT_FALSE(chooser.loaded());
    });
    session.desk.keeps_messages = true;
    session.main.mnuQuick.click();
    EXPECT_TRUE(session.main.collage.quick_active);
    EXPECT_EQ(photo_source_kind(session.main), photo_source::selection);
}

TEST(drops, on_the_gathering_of_a_selection_are_added_to_it)
{
    quick_drops session;
    frmMain & main = session.main;
    frmPhotoList & window = session.all.photo_list;
    main.working_list_path = last_photos_path(main);
    window.load();
    EXPECT_EQ(session.offer(window).sentence, "Drop here to add these photos to the selection.");
    session.drop(window, {session.photos[2], session.photos[0]});
    EXPECT_EQ(read_file(main.working_list_path),
              "L " + session.photos[2] + "\r\nL " + session.photos[0] + "\r\n");
    EXPECT_EQ(window.lblCount.caption(), "Number of photos selected:   2");
    EXPECT_TRUE(window.cmdEdit.visible());
    session.drop(window, {folder_of(session.photos.front())});
    EXPECT_EQ(main.selected_count, 6);
    session.drop(window, {"/nowhere"});
    EXPECT_TRUE(session.desk.next_message().starts_with("Nothing of what you dropped can be used:"));
    EXPECT_EQ(main.selected_count, 6);
}

TEST(drops, on_a_selection_end_at_its_limit)
{
    quick_drops session;
    frmMain & main = session.main;
    main.working_list_path = last_photos_path(main);
    main.selected_count = 997;
    session.all.photo_list.load();
    session.drop(session.all.photo_list, session.photos);
    EXPECT_EQ(session.desk.next_message(), "Maximum number of photos reached");
    EXPECT_TRUE(session.desk.messages.empty()) << "one cause, one box";
    EXPECT_EQ(main.selected_count, 999);
    EXPECT_FALSE(session.offer(session.all.photo_list).taken);
    EXPECT_EQ(session.offer(session.all.photo_list).sentence,
              "There is no room for more photos. Clear the list first.");
}

TEST(drops, on_the_editor_fall_into_their_cell)
{
    dropped_on<editor> session;
    session.edit(editing::saved_list, 2);
    EXPECT_TRUE(session.offer(session.window).taken);
    EXPECT_EQ(session.targets[&session.window].surface, &session.window.picBig);
    session.drop(session.window, {session.photo(5)}, 80, 20);
    EXPECT_EQ(session.grid(4), "0 5 1 . ");
    EXPECT_TRUE(session.window.cmdSave.enabled());
}

TEST(drops, find_no_room_in_a_full_editor_and_none_while_it_loads)
{
    dropped_on<editor> session;
    session.edit(editing::saved_list, 60);
    EXPECT_FALSE(session.offer(session.window).taken);
    EXPECT_EQ(session.offer(session.window).sentence, "There is no room for more photos. Remove some first.");
    session.window.checking = true;
    EXPECT_EQ(session.offer(session.window).sentence, "Please wait, the program is at work.");
}
