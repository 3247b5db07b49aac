#include "engine/place_loop.h"

#include "engine/image_number.h"
#include "engine/photo/fixed_picture.h"
#include "tests/engine/collage_fixture.h"
#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

// Places of 40 by 60 side by side on a canvas, ten pixels apart.
struct row_of_places : collage_fixture {
    explicit row_of_places(int count)
    {
        use_canvas(50 * count + 10, 80);
        for (int i = 0; i < count; ++i)
            add_location({.top = 10, .left = narrow(50 * i + 10), .height = 60, .width = 40});
    }
    // One letter a place.
    std::string placed()
    {
        place_loop(main, [this] { show_image_number(main); });
        std::string letters;
        for (int x = 30; x < main.run.canvas.width(); x += 50)
            letters += letter_at(main.run.canvas, x, 40);
        return letters;
    }
};

}  // namespace

TEST(place_loop, photos_fill_the_places_in_the_order_of_the_table)
{
    row_of_places run(3);
    run.add_photo(red);
    run.add_photo(green);
    run.add_photo(blue);
    EXPECT_EQ(run.placed(), "rgb");
    EXPECT_EQ(letter_at(run.main.run.canvas, 9, 40), '.');
    EXPECT_EQ(letter_at(run.main.run.canvas, 10, 10), 'r');
    EXPECT_EQ(letter_at(run.main.run.canvas, 49, 69), 'r');
    EXPECT_EQ(letter_at(run.main.run.canvas, 50, 40), '.');
    EXPECT_EQ(run.main.design_locations.count, 2) << "the index of the last location";
}

TEST(place_loop, the_question_comes_once_at_the_first_wrap)
{
    row_of_places run(5);
    run.add_photo(red);
    run.add_photo(green);
    run.desk.will_answer(answer::no);
    EXPECT_EQ(run.placed(), "rgrgr");
    ASSERT_EQ(run.desk.questions.size(), 1U);
}

TEST(place_loop, as_many_photos_as_places_ask_nothing)
{
    row_of_places run(2);
    run.add_photo(red);
    run.add_photo(green);
    EXPECT_EQ(run.placed(), "rg");
    EXPECT_TRUE(run.desk.questions.empty());
}

TEST(place_loop, a_fixed_picture_uses_no_photo)
{
    row_of_places run(3);
    run.picture("data/user_images/sign.jpg", blue, 20, 30);
    run.main.design_locations[1].file = "user_images/sign.jpg";
    run.add_photo(red);
    run.desk.will_answer(answer::no);
    EXPECT_EQ(run.placed(), "rbr");
    EXPECT_EQ(run.main.run.image_number, 3) << "fixed pictures aren't counted";
}

TEST(place_loop, a_list_of_one_with_a_fixed_picture_asks_nothing)
{
    row_of_places run(2);
    run.picture("data/user_images/sign.jpg", blue, 20, 30);
    run.main.design_locations[0].file = "user_images/sign.jpg";
    run.add_photo(red);
    EXPECT_EQ(run.placed(), "br");
}

TEST(place_loop, pictures_below_images_come_with_the_program_all_others_with_the_data)
{
    row_of_places run(4);
    run.picture("install/images/a.jpg", red, 20, 30);
    run.picture("data/user_images/a.jpg", green, 20, 30);
    run.picture("data/frames/set/pframe01.jpg", blue, 20, 30);
    run.main.design_locations[0].file = "images/a.jpg";
    run.main.design_locations[1].file = "images\\a.jpg";
    run.main.design_locations[2].file = "user_images\\a.jpg";
    run.main.design_locations[3].file = "frames\\set\\pframe01.jpg";
    EXPECT_EQ(run.placed(), "rrgb");
}

TEST(place_loop, a_picture_outside_the_folders_counts_as_one_that_cannot_be_loaded)
{
    row_of_places run(2);
    run.picture("secret.jpg", blue, 20, 30);
    run.main.design_locations[1].file = "user_images/../../secret.jpg";
    run.add_photo(red);
    EXPECT_EQ(run.placed(), "r.");
}

TEST(fixed_picture_path, stays_in_its_folder)
{
    collage_fixture run;
    run.main.install_folder = "/i";
    run.main.data_folder = "/d";
    EXPECT_EQ(fixed_picture_path(run.main, "images/a.jpg"), "/i/images/a.jpg");
    EXPECT_EQ(fixed_picture_path(run.main, "/puzzle/puzzle4.gif"), "/d/puzzle/puzzle4.gif");
    EXPECT_EQ(fixed_picture_path(run.main, "user_images/a..b.jpg"), "/d/user_images/a..b.jpg");
    EXPECT_EQ(fixed_picture_path(run.main, "user_images/a:b.jpg"), "/d/user_images/a:b.jpg");
    EXPECT_EQ(fixed_picture_path(run.main, "/etc/a.jpg"), "/d/etc/a.jpg");
    for (const char * file :
         {"../a.jpg", "images/../../a.jpg", "images\\..\\a.jpg", "..", "C:\\a.jpg", "c:/a.jpg"})
        EXPECT_EQ(fixed_picture_path(run.main, file), std::nullopt) << file;
}

TEST(place_loop, stops_at_a_fixed_picture_that_cannot_be_loaded_and_keeps_what_it_has)
{
    row_of_places run(3);
    run.main.design_locations[1].file = "user_images/gone.jpg";
    run.add_photo(red);
    run.add_photo(blue);
    run.main.picSample.show(false);
    EXPECT_EQ(run.placed(), "r..");
    EXPECT_TRUE(run.main.picSample.visible());
}

TEST(place_loop, an_empty_table_draws_nothing_and_asks_nothing)
{
    row_of_places run(2);
    EXPECT_EQ(run.placed(), "..");
    run.main.run.match_active = true;
    EXPECT_EQ(run.main.design_locations.count, 1);
}

TEST(place_loop, an_empty_template_draws_nothing)
{
    row_of_places run(0);
    run.add_photo(red);
    EXPECT_EQ(run.placed(), "");
    EXPECT_EQ(run.main.design_locations.count, -1);
}

TEST(place_loop, a_coloured_shape_uses_no_photo)
{
    row_of_places run(3);
    run.main.design_locations[1] = {
        .top = 10, .left = 60, .height = 0, .width = 40, .spare = 5, .file = "dot.gif"};
    run.add_photo(red);
    run.add_photo(green);
    EXPECT_EQ(run.placed(), "r.g");
}

TEST(place_loop, a_shape_with_a_photo_uses_it)
{
    row_of_places run(3);
    run.main.design_locations[1] = {
        .top = 10, .left = 60, .height = 0, .width = 40, .spare = 0, .file = "dot.gif"};
    run.add_photo(red);
    run.add_photo(green);
    run.add_photo(blue);
    EXPECT_EQ(run.placed(), "r.b");
}

TEST(place_loop, a_coloured_shape_stops_at_a_photo_that_cannot_be_loaded_too)
{
    row_of_places run(2);
    run.main.design_locations[0] = {
        .top = 10, .left = 10, .height = 0, .width = 40, .spare = 5, .file = "dot.gif"};
    run.add_path(run.home.at("photos/gone.jpg"));
    EXPECT_EQ(run.placed(), "..");
    EXPECT_EQ(run.main.run.image_number, 2);
}

TEST(place_loop, a_coloured_shape_gives_no_photo_back_that_the_matching_chose)
{
    row_of_places run(3);
    run.main.run.match_active = true;
    run.main.run.evolve_portrait_wraps = run.main.run.evolve_landscape_wraps = 9;
    run.main.design_locations[1] = {
        .top = 10, .left = 60, .height = 40, .width = 0, .spare = 5, .file = "dot.gif"};
    run.add_photo(red);
    run.add_photo(green);
    run.add_photo(blue);
    EXPECT_EQ(run.placed(), "r.b");
}

TEST(place_loop, matching_gives_each_place_a_photo_that_lies_as_it_does)
{
    row_of_places run(3);
    run.main.run.match_active = true;
    run.main.run.evolve_portrait_wraps = run.main.run.evolve_landscape_wraps = 9;
    run.main.design_locations[1] = {.top = 20, .left = 60, .height = 30, .width = 40};
    run.add_photo(red, 60, 40);
    run.add_photo(green, 40, 60);
    run.add_path(run.home.write("photos/broken.jpg", "no picture"));
    run.add_photo(blue, 50, 50);
    EXPECT_EQ(run.placed(), "grb");
    const auto & known = run.main.table.photo_orientation;
    EXPECT_EQ(known[0].lies, orientation::landscape);
    EXPECT_EQ(known[1].lies, orientation::portrait);
    EXPECT_EQ(known[2], (seen_orientation{.is_known = true}));
    EXPECT_EQ(known[3].lies, orientation::portrait) << "a square photo";
}

TEST(place_loop, without_a_match_it_says_so_and_goes_on_with_the_first_photo)
{
    row_of_places run(3);
    run.main.run.match_active = true;
    run.main.run.evolve_portrait_wraps = run.main.run.evolve_landscape_wraps = 9;
    run.add_photo(red, 60, 40);
    run.add_photo(green, 60, 40);
    run.desk.will_answer(answer::no);
    EXPECT_EQ(run.placed(), "rgr");
    EXPECT_EQ(run.desk.next_message(), "No images match the design");
    EXPECT_FALSE(run.main.run.match_active);
}

TEST(place_loop, a_photo_that_vanished_since_its_orientation_became_known_is_passed_over)
{
    row_of_places run(1);
    run.main.run.match_active = true;
    run.add_path(run.home.at("photos/gone.jpg"));
    run.add_photo(green);
    run.main.table.photo_orientation[0] = {.is_known = true, .lies = orientation::portrait};
    EXPECT_EQ(run.placed(), "g");
    EXPECT_EQ(run.main.table.photo_orientation[0], (seen_orientation{.is_known = true}));
}

TEST(place_loop, shows_the_number_of_the_image)
{
    row_of_places run(2);
    run.add_photo(red);
    run.add_photo(green);
    std::vector<std::string> shown;
    run.desk.on_pump(1, [&] { shown.push_back(run.main.txtDoing.text()); });
    run.desk.on_pump(2, [&] { shown.push_back(run.main.txtDoing.text()); });
    run.placed();
    EXPECT_EQ(shown, (std::vector<std::string>{"Image number 1", "Image number 2"}));
    EXPECT_EQ(run.desk.pumps, 2);
}

TEST(place_loop, a_cancel_ends_it_behind_the_location_that_was_begun)
{
    row_of_places run(4);
    run.add_photo(red);
    run.main.run.run_active = true;
    run.main.table.reshuffle_choice = photo_table::reshuffle::no;
    run.desk.on_pump(2, [&] { run.main.run.cancel_requested = true; });
    EXPECT_EQ(run.placed(), "rr..");
    EXPECT_TRUE(run.main.run.cancel_requested);  // telling the user is the driver's
}

TEST(place_loop, captioned_photos_stand_on_cards)
{
    row_of_places run(1);
    run.main.chkCaption.tick(true);
    run.main.run.frame_color = yellow;
    run.add_photo(red);
    EXPECT_EQ(run.placed(), "r");
    EXPECT_EQ(letter_at(run.main.run.canvas, 10, 10), 'y');
    EXPECT_EQ(letter_at(run.main.run.canvas, 30, 66), 'y');
}
