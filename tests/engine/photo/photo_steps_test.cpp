#include "engine/photo/photo_steps.h"

#include "engine/pixels/resize_image.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

TEST(photo_steps, give_what_the_same_steps_give_without_another_core)
{
    opened_session session;
    const std::string photo = session.folder.at("photo.jpg"), saved = session.folder.at("saved.jpg");
    for (const bitmap & picture : {graded(300, 200), noise(1200, 800)}) {
        save_jpeg(picture, photo);
        const bitmap loaded = load_picture(picture_format::jpeg, photo);
        for (const picture_size place : {picture_size{.width = 70, .height = 90},
                                         {.width = 300, .height = 20},
                                         {.width = 2, .height = 1}}) {
            run_photo found = load_photo(session.main, photo, [&](picture_size) { return place; });
            EXPECT_EQ(found.own, (picture_size{.width = picture.width(), .height = picture.height()}));
            EXPECT_TRUE(same(fit_photo(session.main, std::move(found), place.width, place.height),
                             resize_image(loaded, place.width, place.height)));
            // Fitted to another place than was said at first.
            found = load_photo(session.main, photo, [&](picture_size) { return place; });
            EXPECT_TRUE(
                same(fit_photo(session.main, std::move(found), 51, 40), resize_image(loaded, 51, 40)));
        }
        const picture_notes notes{.dpi = 100, .color_profile = {}, .made_with = "Tessaloom"};
        save_photo(session.main, loaded, notes, saved);
        EXPECT_TRUE(read_file(saved) == noted_picture(picture_format::jpeg, loaded, notes));
        save_jpeg(loaded, photo);
    }
    EXPECT_GT(read_file(photo).size(), 200'000U) << "a file that another core loads";
}

TEST(photo_steps, leave_what_fails_as_it_was_told)
{
    opened_session session;
    EXPECT_FALSE(
        load_photo(session.main, session.folder.at("gone.jpg"), [](picture_size own) { return own; }));
    session.folder.write("file", "x");
    EXPECT_THROW(save_photo(session.main, graded(20, 20), {}, session.folder.path() + "/file/x.jpg"),
                 platform_error);
}
