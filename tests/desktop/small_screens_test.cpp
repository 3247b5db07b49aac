#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/layout_checks.h"
#include "tests/desktop/seen_pixels.h"
#include "tests/desktop/stages.h"
#include "tests/desktop/window_views.h"

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
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {.report = {}, .unloaded = {}, .room = [size = room] { return size; }});
    main.load();
    window->show();
    for (const look stage : all_looks)
        for (const shape poster : all_shapes) {
            SCOPED_TRACE(name_of(stage, poster));
            bring_to(main, stage, poster);
            QApplication::processEvents();
            EXPECT_EQ(window->size(), window->size().boundedTo(room));
            EXPECT_EQ(out_of_reach(main, *window), faults());
        }
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
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {.report = {}, .unloaded = {}, .room = [room] { return room; }});
    main.load();
    window->show();
    for (const look stage : all_looks)
        for (const shape poster : all_shapes) {
            SCOPED_TRACE(name_of(stage, poster));
            bring_to(main, look::choosing, poster);
            QApplication::processEvents();
            expect_no_foot(dynamic_cast<const QMainWindow &>(*window));
            bring_to(main, stage, poster);
            QApplication::processEvents();
            EXPECT_EQ(window->size(), window->size().boundedTo(room));
            EXPECT_EQ(main.frmButtons.visible(), stage != look::choosing);
            if (stage != look::choosing)
                expect_whole_preview(dynamic_cast<const QMainWindow &>(*window));
            for (const char * name : {"cmdHelp", "cmdCancel", "cmdFlurn"})
                if (const auto * const each = window->findChild<QPushButton *>(QLatin1String(name));
                    stage != look::choosing)
                    expect_in_sight(*window, *each);
            EXPECT_EQ(tab_order_faults(main, *window), faults());
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

// By whatever means it came there, from the form's own wish to a reader of the screen.
TEST_P(small_screens, show_what_has_the_keyboard)
{
    const auto [room, pixels] = GetParam();
    set_letters(pixels);
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {.report = {}, .unloaded = {}, .room = [size = room] { return size; }});
    main.load();
    bring_to(main, look::quick_squares, shape::portrait);
    window->show();
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
                         testing::Combine(testing::Values(QSize(1272, 644), QSize(1358, 692), QSize(632, 284),
                                                          QSize(418, 180)),
                                          testing::Values(smallest_letters, roomy_letters)));

TEST(the_main_window, gives_up_what_it_does_not_need_before_it_scrolls)
{
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    const QSize room(1272, 644);
    bind(main, *window, {.report = {}, .unloaded = {}, .room = [&room] { return room; }});
    main.load();
    bring_to(main, look::designed, shape::portrait);
    window->show();
    QApplication::processEvents();
    EXPECT_EQ(window->height(), room.height());
    EXPECT_EQ(window->findChild<QScrollArea *>(QLatin1String("view_area"))->verticalScrollBar()->maximum(),
              0);
    EXPECT_EQ(strays(main, *window), faults());
    EXPECT_EQ(cut_texts(main, *window), faults());
}

}  // namespace
