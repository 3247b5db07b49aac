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

namespace {

using faults = std::vector<std::string>;

constexpr int points(int size)
{
    return size * 4 / 3;
}  // in pixels of a usual screen

// One window for all of one size of letters: its making takes longer than the looking.
struct layout_test : testing::TestWithParam<std::tuple<int, look, shape>> {
    struct shown_main {
        explicit shown_main(int pixels) : letters(pixels)
        {
            set_letters(pixels);
            window = make_window("frmMain");
            bind(main, *window, {});
            main.load();
            window->show();
        }
        ~shown_main() { set_letters(smallest_letters); }
        int letters;
        scripted_desktop desk;
        frmMain main{desk, listed({})};
        std::unique_ptr<QWidget> window;
    };
    static void TearDownTestSuite() { kept.reset(); }
    layout_test() : letters(std::get<0>(GetParam())), poster(std::get<2>(GetParam()))
    {
        if (!kept || kept->letters != letters) {
            kept.reset();
            kept = std::make_unique<shown_main>(letters);
        }
        window = kept->window.get();
        bring_to(kept->main, std::get<1>(GetParam()), poster);
        QApplication::processEvents();
    }
    static std::unique_ptr<shown_main> kept;
    int letters;
    shape poster;
    QWidget * window = nullptr;
};

std::unique_ptr<layout_test::shown_main> layout_test::kept;

TEST_P(layout_test, no_two_widgets_overlap)
{
    EXPECT_EQ(overlaps(kept->main, *window), faults());
}

TEST_P(layout_test, every_widget_lies_inside_its_group_and_the_window)
{
    EXPECT_EQ(strays(kept->main, *window), faults());
}

TEST_P(layout_test, no_text_is_cut)
{
    EXPECT_EQ(cut_texts(kept->main, *window), faults());
}

TEST_P(layout_test, the_tab_key_follows_the_eye)
{
    EXPECT_EQ(tab_order_faults(kept->main, *window), faults());
}

TEST_P(layout_test, every_widget_that_the_keyboard_reaches_has_a_name)
{
    EXPECT_EQ(names_missing(kept->main, *window), faults());
}

TEST_P(layout_test, no_letter_stands_for_two)
{
    EXPECT_EQ(shared_letters(*window), faults());
}

TEST_P(layout_test, the_window_has_its_fixed_size_and_grows_with_the_letters_alone)
{
    const QSize drawn = poster == shape::landscape ? QSize(1183, 675) : QSize(1040, 675);
    if (letters == smallest_letters)
        EXPECT_EQ(window->size(), drawn);
    else
        EXPECT_EQ(window->size(), window->size().expandedTo(drawn));
}

TEST_P(layout_test, the_window_has_room_on_the_screens_that_have_such_letters)
{
    constexpr int lowest_screen = 768, bars = 76;  // of the desktop and around the window
    int screen = lowest_screen;
    while (letters_for(letters, screen) < letters)
        ++screen;
    EXPECT_LE(window->height(), screen - bars);
}

TEST_P(layout_test, all_menus_stand_in_their_bar)
{
    const auto * const bar = window->findChild<QMenuBar *>();
    for (QAction * menu : bar->isVisible() ? bar->actions() : QList<QAction *>())
        EXPECT_TRUE(bar->rect().contains(bar->actionGeometry(menu)) && !bar->actionGeometry(menu).isEmpty())
            << menu->text().toStdString();
}

INSTANTIATE_TEST_SUITE_P(stages, layout_test,
                         testing::Combine(testing::Values(points(9), 15, points(12), points(14), points(16)),
                                          testing::ValuesIn(all_looks), testing::ValuesIn(all_shapes)),
                         [](const auto & stage) {
                             return name_of(std::get<1>(stage.param), std::get<2>(stage.param)) + "_" +
                                    std::to_string(std::get<0>(stage.param)) + "_pixels";
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
