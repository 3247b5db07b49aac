#include "../scripted_desktop.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/captions.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "support/colors.h"
#include "tests/desktop/contrast.h"
#include "tests/desktop/layout_checks.h"
#include "tests/desktop/stages.h"

#include <QApplication>
#include <QMenuBar>

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <tuple>

namespace {

using faults = std::vector<std::string>;

constexpr int points(int size)
{
    return size * 4 / 3;
}  // in pixels of a usual screen

using stage = std::tuple<int, look, shape>;  // the letters first, in pixels

// What is seen of the main window in one stage.
struct seen_stage {
    faults overlapping, astray, cut, out_of_order, nameless, sharing_letters, menus_outside;
    QSize size;
};

faults menus_outside_their_bar(const QWidget & window)
{
    const auto * const bar = window.findChild<QMenuBar *>();
    faults found;
    for (QAction * menu : bar->isVisible() ? bar->actions() : QList<QAction *>())
        if (!bar->rect().contains(bar->actionGeometry(menu)) || bar->actionGeometry(menu).isEmpty())
            found.push_back(menu->text().toStdString());
    return found;
}

// One window for all stages of one size of letters: its making takes longer than the looking.
struct staged_main {
    explicit staged_main(int pixels) : letters(pixels)
    {
        set_letters(pixels);
        window = make_window("frmMain");
        bind(main, *window, {});
        main.load();
        window->show();
    }
    staged_main(const staged_main &) = delete;
    staged_main & operator=(const staged_main &) = delete;
    ~staged_main() { set_letters(smallest_letters); }

    seen_stage brought_to(look wanted, shape poster)
    {
        bring_to(main, wanted, poster);
        QApplication::processEvents();
        return {.overlapping = overlaps(main, *window),
                .astray = strays(main, *window),
                .cut = cut_texts(main, *window),
                .out_of_order = tab_order_faults(main, *window),
                .nameless = names_missing(main, *window),
                .sharing_letters = shared_letters(*window),
                .menus_outside = menus_outside_their_bar(*window),
                .size = window->size()};
    }

    int letters;
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    std::unique_ptr<QWidget> window;
};

// Each stage is brought about once, for all that is looked at in it.
struct layout_test : testing::TestWithParam<stage> {
    static void TearDownTestSuite()
    {
        kept.reset();
        seen_so_far.clear();
    }
    const seen_stage & seen() const
    {
        const auto & [letters, wanted, poster] = GetParam();
        const auto found = seen_so_far.find(GetParam());
        if (found != seen_so_far.end())
            return found->second;
        if (!kept || kept->letters != letters) {
            kept.reset();
            kept = std::make_unique<staged_main>(letters);
        }
        return seen_so_far[GetParam()] = kept->brought_to(wanted, poster);
    }
    static std::unique_ptr<staged_main> kept;
    static std::map<stage, seen_stage> seen_so_far;
};

std::unique_ptr<staged_main> layout_test::kept;
std::map<stage, seen_stage> layout_test::seen_so_far;

TEST_P(layout_test, no_two_widgets_overlap)
{
    EXPECT_EQ(seen().overlapping, faults());
}

TEST_P(layout_test, every_widget_lies_inside_its_group_and_the_window)
{
    EXPECT_EQ(seen().astray, faults());
}

TEST_P(layout_test, no_text_is_cut)
{
    EXPECT_EQ(seen().cut, faults());
}

TEST_P(layout_test, the_tab_key_follows_the_eye)
{
    EXPECT_EQ(seen().out_of_order, faults());
}

TEST_P(layout_test, every_widget_that_the_keyboard_reaches_has_a_name)
{
    EXPECT_EQ(seen().nameless, faults());
}

TEST_P(layout_test, no_letter_stands_for_two)
{
    EXPECT_EQ(seen().sharing_letters, faults());
}

TEST_P(layout_test, the_window_has_its_fixed_size_and_grows_with_the_letters_alone)
{
    const auto & [letters, wanted, poster] = GetParam();
    const QSize drawn = poster == shape::landscape ? QSize(1183, 675) : QSize(1040, 675);
    const QSize size = seen().size;
    EXPECT_EQ(size, letters == smallest_letters ? drawn : size.expandedTo(drawn));
}

TEST_P(layout_test, the_window_has_room_on_the_screens_that_have_such_letters)
{
    constexpr int lowest_screen = 768, bars = 76;  // of the desktop and around the window
    const int letters = std::get<0>(GetParam());
    int screen = lowest_screen;
    while (letters_for(letters, screen) < letters)
        ++screen;
    EXPECT_LE(seen().size.height(), screen - bars);
}

TEST_P(layout_test, all_menus_stand_in_their_bar)
{
    EXPECT_EQ(seen().menus_outside, faults());
}

INSTANTIATE_TEST_SUITE_P(stages, layout_test,
                         testing::Combine(testing::Values(points(9), 15, points(12), points(14), points(16)),
                                          testing::ValuesIn(all_looks), testing::ValuesIn(all_shapes)),
                         [](const auto & each) {
                             return name_of(std::get<1>(each.param), std::get<2>(each.param)) + "_" +
                                    std::to_string(std::get<0>(each.param)) + "_pixels";
                         });

// ---- colours

TEST(looks, every_text_stands_out_from_what_lies_behind_it)
{
    const QPalette colors = QApplication::palette();
    const QColor panel("#2d3034"), stage(0, 0, 0);
    const auto of = [&](QPalette::ColorRole role) { return colors.color(QPalette::Active, role); };
    EXPECT_GE(contrast(of(QPalette::WindowText), of(QPalette::Window)), 4.5);
    EXPECT_GE(contrast(of(QPalette::WindowText), panel), 4.5);
    EXPECT_GE(contrast(of(QPalette::WindowText), stage), 4.5);
    EXPECT_GE(contrast(of(QPalette::Highlight), panel), 4.5);
    EXPECT_GE(contrast(of(QPalette::Text), of(QPalette::Base)), 4.5);
    EXPECT_GE(contrast(of(QPalette::ButtonText), of(QPalette::Button)), 4.5);
    EXPECT_GE(contrast(of(QPalette::HighlightedText), of(QPalette::Highlight)), 4.5);
    EXPECT_GE(contrast(of(QPalette::ToolTipText), of(QPalette::ToolTipBase)), 4.5);
    EXPECT_GE(contrast(of(QPalette::PlaceholderText), of(QPalette::Base)), 4.5);
    EXPECT_EQ(of(QPalette::Window), shown_color(about_background));
}

TEST(looks, the_outline_of_a_box_stands_out_from_its_panel)
{
    EXPECT_GE(contrast(QApplication::palette().color(QPalette::PlaceholderText), QColor("#2d3034")), 3.0);
}

TEST(looks, the_stage_is_black_until_a_collage_is_begun)
{
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {});
    EXPECT_EQ(window->grab().toImage().pixelColor(5, 600), QColor(0, 0, 0));
    main.set_back_color(about_background);
    EXPECT_EQ(window->palette().color(QPalette::Window), shown_color(about_background));
}

}  // namespace
