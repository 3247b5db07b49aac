#include "recipes/open_flurn.h"

#include "photos/thumbnails/thumbnail_path.h"
#include "recipes/read_recipe.h"
#include "support/files/text_file.h"
#include "tests/pictures.h"
#include "tests/recipes/flurn_session.h"

#include <filesystem>

namespace {

struct made_flurn : flurn_session {
    made_flurn()
    {
        begin();
        poster = make();
        file = kept();
        again = std::make_unique<started_again>(*this);
    }
    std::string poster, file;
    std::unique_ptr<started_again> again;
};

bool has(const std::string & text, const std::string & part)
{
    return text.find(part) != std::string::npos;
}

}  // namespace

TEST(open_flurn, names_once_what_is_gone_and_lays_out_the_rest)
{
    made_flurn session;
    delete_file(session.photos[1]);
    session.again->desk.will_answer(answer::no);
    session.again->open(session.file);
    ASSERT_EQ(session.again->desk.questions.size(), 1U);
    EXPECT_EQ(session.again->desk.questions.front().text,
              "1 of the 4 photos of this flurn is not where it was:\r\n" + session.photos[1] +
                  "\r\n\r\nDo you want to look for it in another folder?");
    EXPECT_EQ(session.again->desk.questions.front().on_enter, answer::yes) << "a look takes nothing away";
    EXPECT_EQ(session.again->desk.next_message(),
              laid_out_anew("These photos of the flurn are not there any more and were left out:\r\n" +
                            session.photos[1]));
    EXPECT_FALSE(session.again->main.menus_shown);
    EXPECT_EQ(session.again->main.table.last_photo, 2);
    EXPECT_FALSE(session.again->make().empty());
}

TEST(open_flurn, names_what_has_changed)
{
    made_flurn session;
    save_jpeg(plain(15, 20, {0, 0, 0}), session.photos[0]);
    delete_file(thumbnail_path(session.photos[0]));
    session.again->open(session.file);
    EXPECT_EQ(session.again->desk.next_message(),
              laid_out_anew("These photos have changed since the flurn was made:\r\n" + session.photos[0]));
    EXPECT_EQ(session.again->main.table.last_photo, 3);
}

TEST(open_flurn, finds_photos_that_moved_together_by_their_names)
{
    made_flurn session;
    const std::string moved = session.folder.path() + "/elsewhere";
    std::filesystem::rename(folder_of(session.photos.front()), moved);
    session.again->desk.will_answer(answer::yes);
    session.again->desk.will_choose_folder(moved);
    session.again->open(session.file);
    EXPECT_TRUE(session.again->desk.messages.empty());
    EXPECT_TRUE(session.again->make() == session.poster);
}

TEST(open_flurn, opens_nothing_where_no_photo_is_left)
{
    made_flurn session;
    std::filesystem::remove_all(folder_of(session.photos.front()));
    session.again->desk.will_answer(answer::yes);
    session.again->desk.will_choose_folder(std::nullopt);
    session.again->open(session.file);
    EXPECT_TRUE(session.again->desk.next_message().starts_with(
        "None of the photos of this flurn is there any more:"));
    EXPECT_TRUE(session.again->main.menus_shown);
}

TEST(open_flurn, tells_the_file_and_the_fault_of_one_that_is_none_and_leaves_all_as_it_was)
{
    made_flurn session;
    const std::string text = read_file(session.file);
    const std::string newer = "Tessaloom flurn\t7" + text.substr(text.find("\r\n"));
    const std::pair<std::string, const char *> rows[]{{newer, "newer Tessaloom"},
                                                      {text.substr(0, text.size() / 2), "It was cut short."},
                                                      {std::string("\0\1\2", 3), "no flurn of Tessaloom"},
                                                      {"", "no flurn of Tessaloom"},
                                                      {std::string(largest_recipe + 1, 'x'), "too large"}};
    for (const auto & [bytes, fault] : rows) {
        const std::string file = session.folder.write("odd.flurn", bytes);
        session.again->open(file);
        const std::string told = session.again->desk.next_message();
        EXPECT_TRUE(told.starts_with("This flurn can't be opened:\r\n" + file + "\r\n\r\n")) << told;
        EXPECT_TRUE(has(told, fault)) << told;
        EXPECT_TRUE(session.again->main.menus_shown);
    }
    const std::string nowhere = session.folder.path() + "/nowhere.flurn";
    session.again->open(nowhere);
    EXPECT_EQ(session.again->desk.next_message(),
              "This flurn can't be opened:\r\n" + nowhere + "\r\n\r\nThere is no such file.");
    session.again->open(session.folder.path());
    EXPECT_EQ(session.again->desk.next_message(), "This flurn can't be opened:\r\n" + session.folder.path() +
                                                      "\r\n\r\nIt is a folder, not a flurn.");
}

TEST(open_flurn, takes_a_folder_that_was_moved_as_a_whole_with_its_recipe)
{
    made_flurn session;
    const std::string photos = folder_of(session.photos.front());
    const recipe held = read_recipe(session.main, session.file);
    const std::string beside = photos + "/holiday.flurn";
    replace_file(beside, recipe_bytes(session.main, held, photos));
    EXPECT_FALSE(has(read_file(beside), session.photos.front()));
    const std::string moved = session.folder.path() + "/stick";
    std::filesystem::copy(photos, moved, std::filesystem::copy_options::recursive);
    std::filesystem::remove_all(photos);
    std::filesystem::remove_all(moved + "/sample_thumbs");
    session.again->open(moved + "/holiday.flurn");
    EXPECT_TRUE(session.again->desk.messages.empty());
    EXPECT_TRUE(session.again->make() == session.poster);
}
