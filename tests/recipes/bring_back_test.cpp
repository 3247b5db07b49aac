#include "recipes/bring_back.h"

#include "recipes/read_recipe.h"
#include "recipes/recipe_of.h"
#include "recipes/recipe_text.h"
#include "session/undo/moment.h"
#include "support/files/text_file.h"
#include "tests/recipes/flurn_session.h"
#include "tests/sweep_stride.h"

#include <filesystem>

namespace {

// What a user sees of the window, but for the boxes that name the photos' source.
std::vector<recipe_control> sight_of(const frmMain & main)
{
    std::vector<recipe_control> seen;
    for (const control * each : kept_controls(main))
        seen.push_back({.name = each->name(), .state = state_of(*each)});
    return seen;
}

std::string differences(const std::vector<recipe_control> & one, const std::vector<recipe_control> & other)
{
    std::string names;
    for (std::size_t i = 0; i < one.size(); ++i)
        if (!(one[i] == other.at(i)))
            names += one[i].name + " ";
    return names;
}

struct flurn_change {
    const char * name;
    std::function<void(flurn_session &)> change;
    int photos = 4;
};

const flurn_change ways_to_make_one[] = {
    {"block", [](flurn_session &) {}},
    {"block with blanks", [](flurn_session & s) { s.main.cmbBlanks.choose_text("3"); }},
    {"scatter", [](flurn_session & s) { s.main.optScatter.select(); }, 12},
    {"matrix", [](flurn_session & s) { s.main.optMatrix.select(); }, 12},
    {"shaken matrix",
     [](flurn_session & s) {
         s.main.optMatrix.select();
         s.main.chkRotate.tick(true);
         s.main.chkResize.tick(true);
         s.main.chkShuffle.tick(true);
     },
     12},
    {"shapes", [](flurn_session & s) { s.main.optShapes.select(); }, 12},
    {"mixed shapes",
     [](flurn_session & s) {
         s.main.optShapes.select();
         s.main.cmbShapes.choose_text("Stripes");
         s.main.chkMix.tick(true);
         s.main.cmdRowUp.click();
     },
     12},
    {"shuffled photos", [](flurn_session & s) { s.main.cmdShuffle.click(); }},
    {"random photos", [](flurn_session & s) { s.main.chkRandom.tick(true); }},
    {"landscape", [](flurn_session & s) { s.main.optLandscape.select(); }},
    {"square", [](flurn_session & s) { s.main.optSquare.select(); }},
    {"caption",
     [](flurn_session & s) {
         s.main.txtCaption.set_text("A day\tat \\ the sea");
         s.main.cmbSize.choose_text("60");
         s.main.optTop.select();
         s.main.chkClear.tick(true);
     }},
    {"border and frames",
     [](flurn_session & s) {
         s.main.optMedium.select();
         s.main.cmbFrame.set_text("33");
         s.desk.will_choose_color(0x3060A0);
         s.main.cmdFrameColor.click();
     }},
    {"soft edges", [](flurn_session & s) { s.main.chkSoftEdge.tick(true); }},
    {"background picture",
     [](flurn_session & s) {
         s.desk.will_choose_file(s.photos.front());
         s.main.optBGimage.select();
     }},
};

}  // namespace

TEST(bring_back, shows_the_preview_and_makes_the_poster_of_then_byte_by_byte_with_its_picture_and_without)
{
    for (std::size_t i = 0; i < std::size(ways_to_make_one); i += sweep_stride) {
        const flurn_change & each = ways_to_make_one[i];
        SCOPED_TRACE(each.name);
        flurn_session session;
        session.begin(each.photos);
        each.change(session);
        const std::string preview = session.preview();
        const auto seen = sight_of(session.main);
        const std::string poster = session.make();
        ASSERT_FALSE(poster.empty());

        const std::string kept = session.kept();
        {
            started_again again(session);
            again.open(kept);
            EXPECT_TRUE(again.preview() == preview);
            EXPECT_EQ(differences(sight_of(again.main), seen), "");
            EXPECT_FALSE(again.main.menus_shown);
            EXPECT_FALSE(again.main.txtDoing.visible()) << "nothing is being done";
            EXPECT_TRUE(again.make() == poster);
        }
        delete_file(picture_beside(kept));
        started_again without_picture(session);
        without_picture.open(kept);
        // Blanks and the order of random photos are drawn anew by each run.
        if (!session.main.chkRandom.ticked() && session.main.cmbBlanks.text() == "0" &&
            !session.main.chkMix.ticked() && !session.main.chkShuffle.ticked()) {
            EXPECT_TRUE(without_picture.preview() == preview);
        }
        EXPECT_TRUE(without_picture.make() == poster);
    }
}

TEST(bring_back, keeps_every_control_and_setting_by_value)
{
    flurn_session session;
    session.begin();
    // Values that the program doesn't put there itself, each another one.
    int number = 0;
    for (control * each : kept_controls(session.main)) {
        ++number;
        const updating quiet(session.main);
        control_state other = state_of(*each);
        other.caption += " " + std::to_string(number);
        other.tool_tip = "tip\t" + std::to_string(number);
        if (each != &session.main.lblPhotos && each != &session.main.txtPhotos &&
            each != &session.main.txtCaption)
            other.tag = "tag\r\n" + std::to_string(number);
        other.place.left += number;
        other.back_color = static_cast<std::uint32_t>(number) * 7919U % 0xFFFFFFU;
        other.visible = number % 2 == 0;
        other.enabled = number % 3 == 0;
        take_state(*each, other);
    }
    session.main.collage.turns_shown = {{.step = 1, .first = 2}, {.step = 3, .first = 0}};
    session.main.collage.holes_shown = {0.1, 0, 0.9999999999999999};
    session.main.drawn_background = "";
    session.main.shape_row_bias = 0.1;
    session.main.quick.scatter_line = "04:02:02:four";
    session.main.design_record.help_tip = "a tip\nof two lines";
    session.main.collage.forced.tick(session.main.chkRounded, !session.main.chkRounded.ticked());
    session.main.collage.forced_by_style.select(session.main.border_options, session.main.optHuge);

    const recipe kept = recipe_of(session.main, "now");
    const known_folders folders{
        .here = {}, .program = session.main.install_folder, .data = session.main.data_folder};
    const recipe read = recipe_of_text(recipe_text(kept, folders), folders);
    EXPECT_EQ(read, kept);
    started_again again(session);
    check_recipe(again.main, read);
    bring_back(again.main, read, {.is_unchanged = true, .preview = "not drawn"});
    const recipe then = recipe_of(again.main, "now");
    EXPECT_EQ(differences(then.controls, kept.controls), "");
    for (std::size_t i = 0; i < kept.settings.size(); ++i)
        EXPECT_EQ(then.settings.at(i), kept.settings[i]) << kept.settings[i].name;
    EXPECT_EQ(then.forces, kept.forces);
    EXPECT_EQ(then.templates, kept.templates);
    EXPECT_EQ(then.photos, kept.photos);
    EXPECT_EQ(then.chance, kept.chance);
}

// Recipes of earlier programs have these names.
TEST(bring_back, knows_the_fields_of_a_design_by_their_names)
{
    flurn_session session;
    session.begin();
    const recipe held = recipe_of(session.main, "now");
    for (const char * name :
         {"section",       "name",        "file",         "style",    "design",      "background",
          "ratio",         "distort",     "sample",       "help_tip", "description", "system",
          "count",         "turn_bg",     "bg_image",     "bg_color", "match",       "resize",
          "caption",       "frames",      "shadows",      "block",    "soft_edge",   "caption_color",
          "caption_clear", "frame_color", "shadow_color", "flip",     "borders",     "quick_shape"})
        EXPECT_NE(setting_in(held, std::string("design.") + name), nullptr) << name;
}

TEST(bring_back, gives_back_what_the_style_had_forced_with_the_next_one)
{
    flurn_session session;
    session.begin(12);
    session.main.chkRounded.tick(true);
    session.main.optScatter.select();
    ASSERT_FALSE(session.main.chkRounded.ticked());
    session.make();
    started_again again(session);
    again.open(session.kept());
    EXPECT_FALSE(again.main.chkRounded.ticked());
    again.main.optMatrix.select();
    EXPECT_TRUE(again.main.chkRounded.ticked());
}

TEST(bring_back, goes_back_to_the_choosing_stage_as_from_any_collage)
{
    flurn_session session;
    session.begin();
    session.make();
    started_again again(session);
    again.open(session.kept());
    again.main.cmdCancel.click();
    EXPECT_TRUE(again.main.menus_shown);
    EXPECT_TRUE(again.main.picSplash.visible());
    again.open(session.kept());
    EXPECT_FALSE(again.main.menus_shown);
}

TEST(bring_back, refuses_numbers_that_no_control_takes)
{
    flurn_session session;
    session.begin();
    const recipe good = recipe_of(session.main, "now");
    check_recipe(session.main, good);
    const auto refused = [&](const std::function<void(recipe &)> & spoil) {
        recipe bad = good;
        spoil(bad);
        try {
            check_recipe(session.main, bad);
        } catch (const recipe_fault &) {
            return true;
        }
        return false;
    };
    const auto control_of = [](recipe & held, const char * name) -> control_state & {
        return const_cast<recipe_control *>(control_in(held, name))->state;
    };
    for (const char * text : {"-1", "61", "1e300", "1e999"})
        EXPECT_TRUE(refused([&](recipe & bad) { control_of(bad, "cmbFrame").value = text; })) << text;
    EXPECT_TRUE(refused([&](recipe & bad) { control_of(bad, "txtCaption").tag = "401"; }));
    EXPECT_TRUE(refused([&](recipe & bad) { control_of(bad, "lblPhotos").tag = "4"; }));
    EXPECT_TRUE(refused([](recipe & bad) { bad.photos.clear(); }));
    EXPECT_TRUE(refused([](recipe & bad) { bad.templates.clear(); }));
    const std::pair<const char *, const char *> settings[]{{"mix_step", "9"},
                                                           {"mix_step", "-2"},
                                                           {"shake_start", "17"},
                                                           {"min_location", "101"},
                                                           {"quick.matrix_offset", "24"},
                                                           {"collage.kind", "6"},
                                                           {"collage.kind", "-1"},
                                                           {"collage.turns_shown", "-1 0"},
                                                           {"collage.turns_shown", "1"},
                                                           {"shape_row_bias", "inf"},
                                                           {"shape_row_bias", "1e9"},
                                                           {"design.bg_image", "user_images/../../x.jpg"},
                                                           {"design.file", "../x"},
                                                           {"quick.shape_file", "../x"},
                                                           {"in_preview", "2"},
                                                           {"bg_color", "-1"},
                                                           {"photos.shapes", "x:"},
                                                           {"quick.photo_shapes", "p:l"},
                                                           {"collage_width", "30000"},
                                                           {"photos.landscape", "1002"}};
    for (const auto & [name, value] : settings)
        EXPECT_TRUE(refused([&, name = name, value = value](recipe & bad) {
            const_cast<std::string &>(*setting_in(bad, name)) = value;
        })) << name
            << "=" << value;
}

TEST(bring_back, writes_to_no_list_that_a_recipe_names)
{
    flurn_session session;
    session.begin();
    session.make();
    const std::string victim = session.folder.write("victim", "untouched");
    recipe wanted = read_recipe(session.main, session.kept());
    const_cast<recipe_control *>(control_in(wanted, "txtPhotos"))->state.tag = victim;
    started_again again(session);
    bring_back(again.main, wanted, {});
    EXPECT_EQ(again.main.txtPhotos.tag, work_path(again.main, "piclists/last_photos.pls"));
    EXPECT_EQ(photo_source_kind(again.main), photo_source::selection);
    EXPECT_EQ(read_file(victim), "untouched");
}
