#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/layout_checks.h"
#include "tests/desktop/seen_pixels.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/stages.h"
#include "tests/desktop/window_views.h"
#include "tests/sweep_stride.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

using faults = std::vector<std::string>;

struct small_screens : testing::TestWithParam<std::tuple<QSize, int>> {
    ~small_screens() override { set_letters(smallest_letters); }
};

// Nothing stands outside the window, but what scrolling brings into it.
faults out_of_reach(const form & shown, const QWidget & window)
{
    faults found;
    for (QWidget * one : seen_widgets(shown, window)) {
        bool scrolled = false;
        for (QWidget * above = one->parentWidget(); above; above = above->parentWidget())
            if (auto * const view = qobject_cast<QScrollArea *>(above)) {
                view->ensureWidgetVisible(one, 0, 0);
                scrolled = true;
            }
        const QRect place(one->mapTo(&window, QPoint(0, 0)), one->size());
        if (scrolled ? !window.rect().intersects(place) : !window.rect().contains(place))
            found.push_back(one->objectName().toStdString());
    }
    return found;
}

TEST_P(small_screens, have_room_for_every_window_and_show_all_that_stands_in_it)
{
    const auto [room, pixels] = GetParam();
    set_letters(pixels);
    filled_session session;
    session.desk.room = {.width = room.width() * 9 / 10, .height = room.height() * 9 / 10};
    for (const window_view & view : session.views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view, room);
        EXPECT_EQ(shown.window().size(), shown.window().size().boundedTo(room));
        EXPECT_EQ(out_of_reach(*view.window, shown.window()), faults());
    }
}

TEST_P(small_screens, have_room_for_the_main_window_in_all_its_stages)
{
    const auto [room, pixels] = GetParam();
    set_letters(pixels);
    shown_main_window shown([size = room] { return size; });
    shown.in_each_stage(all_shapes, [&, size = room](look) {
        EXPECT_EQ(shown.window->size(), shown.window->size().boundedTo(size));
        EXPECT_EQ(out_of_reach(shown.main, *shown.window), faults());
    });
}

// Of the boxes for texts, by their names.
std::map<std::string, QRgb> grounds_of(const form & shown, const QWidget & window)
{
    std::map<std::string, QRgb> grounds;
    for (QWidget * one : seen_widgets(shown, window))
        if (qobject_cast<QPlainTextEdit *>(one) || qobject_cast<QLineEdit *>(one) ||
            qobject_cast<QListWidget *>(one))
            grounds[one->objectName().toStdString()] = ground_color(colors_of(one->grab().toImage()));
    return grounds;
}

using grounds_by_view = std::map<std::string, std::map<std::string, QRgb>>;

// In a session of their own: what a window was given when it was open before it would have from the
// beginning.
grounds_by_view grounds_in(std::optional<QSize> room)
{
    filled_session session;
    grounds_by_view grounds;
    for (const window_view & view : session.views()) {
        const shown_view shown(view, room);
        grounds[view.name] = grounds_of(*view.window, shown.window());
    }
    return grounds;
}

TEST(small_screen, changes_no_colour_of_a_window_that_it_scrolls)
{
    const grounds_by_view whole = grounds_in({}), scrolled = grounds_in(QSize(632, 284));
    for (const auto & [view, grounds] : whole)
        EXPECT_EQ(scrolled.at(view), grounds) << view;
}

// 1366 by 768 pixels at one and a half times the usual density, without the frame of a window.
constexpr QSize dense_screen(902, 476);

void expect_in_sight(const QWidget & window, const QPushButton & each)
{
    EXPECT_EQ(each.visibleRegion(), QRegion(each.rect())) << named(each);
    EXPECT_TRUE(window.rect().contains(place_in(window, each))) << named(each);
}

// Whoever doesn't scroll finds the way out as well, and what is written from left to right is read without
// scrolling.
TEST(small_screen, shows_the_buttons_that_a_dialog_ends_with_and_all_of_its_width)
{
    filled_session session;
    session.desk.room = {.width = 810, .height = 430};
    int scrolled = 0;
    for (const window_view & view : session.views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view, dense_screen);
        if (const auto * const area = shown.window().findChild<QScrollArea *>(QLatin1String("view_area"))) {
            ++scrolled;
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        }
        for (const QPushButton * each : shown.window().findChildren<QPushButton *>())
            if (each->isVisible() && each->isDefault())
                expect_in_sight(shown.window(), *each);
        EXPECT_EQ(tab_order_faults(*view.window, shown.window()), faults());
    }
    EXPECT_GE(scrolled, 5);
}

// The first page has nothing of it, whatever stage was seen before.
void expect_no_foot(const QMainWindow & window)
{
    const auto * const area = window.findChild<QScrollArea *>(QLatin1String("view_area"));
    const int bar = window.menuBar()->height();
    EXPECT_EQ(place_in(window, *area), QRect(0, bar, window.width(), window.height() - bar));
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
}

// What is chosen at the left is seen at the right, without scrolling sideways or down.
void expect_whole_preview(const QMainWindow & window)
{
    const auto * const area = window.findChild<QScrollArea *>(QLatin1String("view_area"));
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    for (const char * name : {"picSample", "optPreview", "optSample"}) {
        const auto * const each = window.findChild<QWidget *>(QLatin1String(name));
        EXPECT_EQ(each->visibleRegion(), QRegion(each->rect())) << name;
    }
    const QSize shown = window.findChild<QWidget *>(QLatin1String("picSample"))->size();
    EXPECT_GE(shown.width(), 120);
}

void expect_buttons_and_preview_in_sight(QSize room)
{
    shown_main_window shown([room] { return room; });
    const auto & window = dynamic_cast<const QMainWindow &>(*shown.window);
    for (const look stage : all_looks)
        for (const shape poster : all_shapes) {
            SCOPED_TRACE(name_of(stage, poster));
            bring_to(shown.main, look::choosing, poster);
            QApplication::processEvents();
            expect_no_foot(window);
            bring_to(shown.main, stage, poster);
            QApplication::processEvents();
            EXPECT_EQ(window.size(), window.size().boundedTo(room));
            EXPECT_EQ(shown.main.frmButtons.visible(), stage != look::choosing);
            if (stage != look::choosing) {
                expect_whole_preview(window);
                for (const char * name : {"cmdHelp", "cmdCancel", "cmdFlurn"})
                    expect_in_sight(window, *window.findChild<QPushButton *>(QLatin1String(name)));
            }
            EXPECT_EQ(cut_texts(shown.main, window), faults());
            EXPECT_EQ(tab_order_faults(shown.main, window), faults());
        }
}

TEST(small_screen, shows_the_buttons_and_the_preview_of_the_main_window_in_all_its_stages)
{
    expect_buttons_and_preview_in_sight(dense_screen);
}

// The settings are narrower there.
TEST(small_screen, of_800_by_600_pixels_shows_them_without_scrolling_sideways)
{
    expect_buttons_and_preview_in_sight({792, 564});
}

// From where to where it reaches across.
std::pair<int, int> reach_of(const shown_main_window & shown, const char * name)
{
    const auto * const each = shown.window->findChild<QWidget *>(QLatin1String(name));
    const int left = each->mapTo(shown.window.get(), QPoint(0, 0)).x();
    return {left, left + each->width()};
}

TEST(small_screen, gives_the_settings_their_width_back_where_a_larger_one_follows)
{
    QSize room(792, 564);
    const QSize larger(1358, 692);
    shown_main_window shown([&room] { return room; }), fresh([larger] { return larger; });
    bring_to(shown.main, look::designed, shape::portrait);
    QApplication::processEvents();
    const auto narrow = reach_of(shown, "work_area");
    room = larger;
    bring_to(shown.main, look::quick_block, shape::landscape);
    QApplication::processEvents();
    for (shown_main_window * each : {&shown, &fresh})
        bring_to(each->main, look::designed, shape::portrait);
    QApplication::processEvents();
    EXPECT_LT(narrow, reach_of(fresh, "work_area"));
    for (const char * name : {"work_area", "chkRounded", "cmbSize", "picSample", "optPreview", "optSample"})
        EXPECT_EQ(reach_of(shown, name), reach_of(fresh, name)) << name;
}

// By whatever means it came there, from the form's own wish to a reader of the screen.
TEST_P(small_screens, show_what_has_the_keyboard)
{
    const auto [room, pixels] = GetParam();
    set_letters(pixels);
    shown_main_window shown([size = room] { return size; });
    frmMain & main = shown.main;
    QWidget * const window = shown.window.get();
    bring_to(main, look::quick_squares, shape::portrait);
    window->activateWindow();
    QApplication::processEvents();
    faults unseen;
    for (control * each :
         {static_cast<control *>(&main.cmdFlurn), static_cast<control *>(&main.cmdPhotos),
          static_cast<control *>(&main.optPreview), static_cast<control *>(&main.txtCaption)}) {
        fire(each->on_take_focus);
        QApplication::processEvents();
        QWidget * const focus = window->focusWidget();
        if (!focus || focus->objectName().toStdString() != each->name() || focus->visibleRegion().isEmpty())
            unseen.push_back(each->name());
    }
    EXPECT_EQ(unseen, faults());
}

// Without the frame of a window and the bar of the desktop: 1280 by 720 pixels, 1366 by 768, and 1280 by 720
// at two and at three times the usual density.
INSTANTIATE_TEST_SUITE_P(sizes, small_screens,
                         testing::Combine(testing::ValuesIn(swept<QSize>({QSize(632, 284), QSize(418, 180),
                                                                          QSize(1272, 644),
                                                                          QSize(1358, 692)})),
                                          testing::Values(smallest_letters, roomy_letters)));

TEST(the_main_window, gives_up_what_it_does_not_need_before_it_scrolls)
{
    const QSize room(1272, 644);
    shown_main_window shown([room] { return room; });
    bring_to(shown.main, look::designed, shape::portrait);
    QApplication::processEvents();
    const QWidget & window = *shown.window;
    EXPECT_EQ(window.height(), room.height());
    EXPECT_EQ(window.findChild<QScrollArea *>(QLatin1String("view_area"))->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(strays(shown.main, window), faults());
    EXPECT_EQ(cut_texts(shown.main, window), faults());
}

}  // namespace
