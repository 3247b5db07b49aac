#include "recipes/keep_flurn.h"

#include "recipes/read_recipe.h"
#include "support/files/text_file.h"
#include "tests/recipes/flurn_session.h"
#include "tests/waiting_disk.h"

#include <filesystem>

namespace {

using keep_flurn_test = flurn_session;

// Saves in the image window, with or without the recipe.
void save_in(flurn_session & session, const std::string & path, bool with_recipe)
{
    session.desk.on_modal<frmSize>([with_recipe](frmSize & window) {
        window.chkRecipe.tick(with_recipe);
        window.cmdOk.click();
    });
    session.desk.will_choose_save(path);
    session.all.image.cmdSave.click();
}

}  // namespace

TEST(keep_flurn, leaves_a_recipe_and_its_preview_after_each_full_run)
{
    flurn_session session;
    session.begin();
    const std::string preview = session.preview();
    session.make();
    session.make();
    const auto kept = kept_recipes(session.main);
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_EQ(kept.front().design, "Quick Block");
    for (const kept_recipe & each : kept) {
        EXPECT_TRUE(read_file(each.picture) == preview)
            << "the second run finds a poster in the preview's file";
        EXPECT_EQ(read_recipe(session.main, each.file).photos.size(), 4U);
    }
}

TEST(keep_flurn, pictures_the_flurn_itself_while_the_preview_is_off)
{
    flurn_session session;
    session.begin();
    session.main.optSample.select();
    session.make();
    const auto size = jpeg_size(kept_recipes(session.main).front().picture);
    ASSERT_TRUE(size);
    EXPECT_EQ(size->height, 360);
    EXPECT_FALSE(read_recipe(session.main, session.kept()).pictures_preview);
}

TEST(keep_flurn, keeps_none_of_a_run_that_is_cancelled_or_fails)
{
    flurn_session session;
    session.begin();
    session.desk.on_pump(3, [&] { session.main.cmdCancel.click(); });
    session.main.cmdFlurn.click();
    EXPECT_TRUE(kept_recipes(session.main).empty());
}

TEST(keep_flurn, lets_the_run_go_on_where_it_can_not_be_kept_and_says_so_once)
{
    flurn_session session;
    session.begin();
    session.folder.write("data/recipes", "a file where the folder would be");
    session.desk.messages.clear();
    EXPECT_FALSE(session.make().empty());
    ASSERT_EQ(session.desk.messages.size(), 1U);
    const std::string told = session.desk.next_message();
    EXPECT_TRUE(told.starts_with("The flurn is made, but \"Recent flurns\" can't list it:")) << told;
    EXPECT_FALSE(session.make().empty());
    EXPECT_TRUE(session.desk.messages.empty());
}

TEST(keep_flurn, keeps_the_last_fifty)
{
    flurn_session session;
    session.begin();
    const std::string folder = session.folder.path() + "/data/recipes/";
    for (int i = 10; i < 70; ++i) {
        const recipe made{.made = "2026-01-01 00:00:" + std::to_string(i), .design = "x"};
        keep_recipe(session.main, made, "picture");
    }
    session.folder.write("data/recipes/stray.jpg", "of one that was being kept");
    EXPECT_EQ(kept_recipes(session.main).size(), most_recipes);
    EXPECT_EQ(kept_recipes(session.main).front().made, "2026-01-01 00:00:69");
    EXPECT_FALSE(file_exists(folder + "2026-01-01_000019.flurn"));
    EXPECT_FALSE(file_exists(folder + "2026-01-01_000019.jpg"));
    EXPECT_TRUE(file_exists(folder + "2026-01-01_000020.jpg"));
    // The clock has gone back.
    keep_recipe(session.main, {.made = "1999-01-01 00:00:00"}, "picture");
    EXPECT_TRUE(file_exists(folder + "1999-01-01_000000.flurn"));
    EXPECT_EQ(kept_recipes(session.main).size(), most_recipes);
    EXPECT_FALSE(file_exists(folder + "stray.jpg"));
}

TEST(keep_flurn, lists_those_of_the_same_second_in_their_order)
{
    flurn_session session;
    for (int i = 0; i < 12; ++i)
        keep_recipe(session.main, {.made = "2026-01-01 00:00:00", .design = std::to_string(i)}, "picture");
    const auto kept = kept_recipes(session.main);
    ASSERT_EQ(kept.size(), 12U);
    for (std::size_t i = 0; i < kept.size(); ++i)
        EXPECT_EQ(kept[i].design, std::to_string(11 - i));
}

TEST(keep_flurn, saves_a_recipe_beside_the_picture_only_when_asked)
{
    flurn_session session;
    session.begin();
    const std::string path = session.folder.at("holiday.jpg"), beside = session.folder.at("holiday.flurn");
    made_in(session.main, session.desk, [&](frmImage &) { save_in(session, path, false); });
    EXPECT_TRUE(file_exists(path));
    EXPECT_FALSE(file_exists(beside));
    delete_file(path);
    const std::string poster =
        made_in(session.main, session.desk, [&](frmImage &) { save_in(session, path, true); });
    ASSERT_TRUE(file_exists(beside));
    EXPECT_NE(read_file(beside).find("photo\there:photos/"), std::string::npos);

    started_again again(session);
    again.open(beside);
    EXPECT_TRUE(again.make() == poster);
}

TEST(keep_flurn, asks_before_it_replaces_a_recipe)
{
    flurn_session session;
    session.begin();
    const std::string path = session.folder.at("holiday.jpg");
    const std::string beside = session.folder.write("holiday.flurn", "another's");
    session.desk.will_answer(answer::no);
    made_in(session.main, session.desk, [&](frmImage &) { save_in(session, path, true); });
    EXPECT_EQ(read_file(beside), "another's");
    EXPECT_EQ(session.desk.questions.back().on_enter, answer::no);
    delete_file(path);
    session.desk.will_answer(answer::yes);
    made_in(session.main, session.desk, [&](frmImage &) { save_in(session, path, true); });
    EXPECT_TRUE(read_file(beside).starts_with("Tessaloom flurn"));
}

TEST(keep_flurn, tells_what_can_not_be_kept_beside_the_picture)
{
    flurn_session session;
    session.begin();
    const std::string path = session.folder.at("holiday.jpg");
    std::filesystem::create_directory(session.folder.at("holiday.flurn"));
    session.desk.messages.clear();
    made_in(session.main, session.desk, [&](frmImage &) { save_in(session, path, true); });
    EXPECT_TRUE(file_exists(path));
    EXPECT_TRUE(session.desk.next_message().starts_with(
        "The picture is saved, but its recipe could not be kept beside it:\r\n" +
        session.folder.at("holiday.flurn")));
}

TEST(keep_flurn, writes_nothing_of_it_into_the_picture)
{
    flurn_session session;
    session.begin();
    session.main.txtPhotos.set_tool_tip("x");
    const std::string path = session.folder.at("holiday.jpg");
    made_in(session.main, session.desk, [&](frmImage &) { save_in(session, path, true); });
    const std::string bytes = read_file(path);
    for (const std::string & word : {session.folder.path(), std::string("photos/"), std::string("flurn"),
                                     std::string("Flurn"), name_of(session.photos.front())})
        EXPECT_EQ(bytes.find(word), std::string::npos) << word;
}

TEST(keep_flurn, lets_the_window_be_drawn_until_the_disk_has_it)
{
    flurn_session session;
    session.begin();
    session.make();
    const waiting_disk disk(session.main, session.desk);
    keep_flurn(session.main);
    EXPECT_TRUE(disk.window_was_let_through());
    EXPECT_EQ(kept_recipes(session.main).size(), 2U);
}
