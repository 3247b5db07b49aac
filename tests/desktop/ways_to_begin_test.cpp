#include "../scripted_desktop.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/stages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct ways_to_begin : testing::Test {
    ways_to_begin()
    {
        bind(main, *window, {});
        main.load();
        window->show();
        QApplication::processEvents();
    }
    QAbstractButton * way(const char * name)
    {
        return window->findChild<QAbstractButton *>(QLatin1String(name) + QLatin1String("_area"));
    }
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    std::unique_ptr<QWidget> window = make_window("frmMain");
};

bool has_room_for_its_caption(const QAbstractButton & way)
{
    return way.width() >= way.fontMetrics().horizontalAdvance(way.accessibleName());
}

constexpr const char * ways[] = {"mnuQuick", "mnuDesigned", "mnuMatrix", "mnuLettering", "mnuPuzzle"};

TEST_F(ways_to_begin, do_what_their_menus_do)
{
    std::string begun;
    for (menu_entry * each :
         {&main.mnuQuick, &main.mnuDesigned, &main.mnuMatrix, &main.mnuLettering, &main.mnuPuzzle})
        each->on_click = [&begun, each] { begun += each->name() + " "; };
    for (const char * name : ways)
        QTest::mouseClick(way(name), Qt::LeftButton);
    EXPECT_EQ(begun, "mnuQuick mnuDesigned mnuMatrix mnuLettering mnuPuzzle ");
    QTest::keyClick(way("mnuPuzzle"), Qt::Key_Space);
    EXPECT_TRUE(begun.ends_with("mnuPuzzle mnuPuzzle "));
}

TEST_F(ways_to_begin, are_called_as_their_menus)
{
    EXPECT_EQ(way("mnuQuick")->accessibleName(), "Quick flurn");
    EXPECT_EQ(way("mnuLettering")->accessibleName(), "Lettering flurn");
}

TEST_F(ways_to_begin, come_and_go_with_the_start_picture)
{
    main.picSplash.show(false);
    for (const char * name : ways)
        EXPECT_FALSE(way(name)->isVisible()) << name;
    main.picSplash.show(true);
    for (const char * name : ways)
        EXPECT_TRUE(way(name)->isVisible()) << name;
}

TEST_F(ways_to_begin, have_the_keyboard_where_they_were_left_when_the_start_picture_comes_back)
{
    window->activateWindow();
    QApplication::processEvents();
    for (const char * name : {"mnuMatrix", "mnuQuick", "mnuPuzzle"}) {
        QTest::keyClick(way(name), Qt::Key_Space);
        bring_to(main, look::designed, shape::portrait);
        window->findChild<QWidget *>(QLatin1String("cmdFlurn"))->setFocus();
        bring_to(main, look::choosing, shape::portrait);
        EXPECT_EQ(window->focusWidget(), way(name)) << name;
    }
}

TEST_F(ways_to_begin, stand_in_the_window_beside_each_other_and_each_has_its_picture)
{
    for (const int pixels : {smallest_letters, roomy_letters, 21}) {
        set_letters(pixels);
        QApplication::processEvents();
        int right = 0;
        for (const char * name : ways) {
            EXPECT_GT(way(name)->x(), right) << name;
            right = way(name)->geometry().right();
            EXPECT_TRUE(has_room_for_its_caption(*way(name))) << name;
            EXPECT_TRUE(way(name)->parentWidget()->rect().contains(way(name)->geometry())) << name;
        }
    }
    set_letters(smallest_letters);
    EXPECT_NE(way("mnuQuick")->grab().toImage(), way("mnuDesigned")->grab().toImage());
}

// The room of a window, and the height of its letters, in pixels.
struct ways_in_small_rooms : testing::TestWithParam<std::tuple<QSize, int>> {
    ways_in_small_rooms()
    {
        set_letters(std::get<1>(GetParam()));
        bind(main, *window, {.report = {}, .unloaded = {}, .room = [] { return std::get<0>(GetParam()); }});
        main.load();
        bring_to(main, look::choosing, shape::portrait);
        window->show();
        QApplication::processEvents();
    }
    ~ways_in_small_rooms() override { set_letters(smallest_letters); }
    QWidget * found(const char * name) { return window->findChild<QWidget *>(QLatin1String(name)); }
    bool is_seen_whole(const QWidget & widget) const
    {
        const QRect place(widget.mapTo(window.get(), QPoint(0, 0)), widget.size());
        return widget.visibleRegion() == QRegion(widget.rect()) && window->rect().contains(place);
    }
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    std::unique_ptr<QWidget> window = make_window("frmMain");
};

TEST_P(ways_in_small_rooms, are_all_in_sight_with_the_art_and_nothing_is_scrolled)
{
    for (const char * name : ways) {
        auto * const way = static_cast<QAbstractButton *>(found((std::string(name) + "_area").c_str()));
        EXPECT_TRUE(is_seen_whole(*way)) << name;
        EXPECT_TRUE(has_room_for_its_caption(*way)) << name;
    }
    const QWidget & art = *found("picSplash");
    EXPECT_TRUE(window->rect().contains(QRect(art.mapTo(window.get(), QPoint(0, 0)), art.size())));
    EXPECT_GE(art.height(), 40);
    for (const QScrollBar * each : window->findChildren<QScrollBar *>())
        EXPECT_FALSE(each->isVisible()) << each->objectName().toStdString();
}

TEST_P(ways_in_small_rooms, give_the_controls_of_the_next_stage_their_own_room_back)
{
    const QSize start = found("stage_area")->size();
    bring_to(main, look::quick_squares, shape::landscape);
    QApplication::processEvents();
    const int room = std::get<0>(GetParam()).width();
    EXPECT_GE(found("stage_area")->width(), std::min(1000, room - 20));  // of the bar that scrolls down
    // The panel of buttons may stand below what is scrolled.
    const QWidget & stage = *found("stage_area");
    const bool has_buttons = stage.isAncestorOf(found("cmdFlurn"));
    const QWidget & last = *found(has_buttons ? "cmdFlurn" : "optSample");
    EXPECT_TRUE(
        QRect(QPoint(0, 0), stage.size()).contains(QRect(last.mapTo(&stage, QPoint(0, 0)), last.size())));
    EXPECT_TRUE(has_buttons || !found("cmdFlurn")->visibleRegion().isEmpty());
    bring_to(main, look::choosing, shape::portrait);
    QApplication::processEvents();
    EXPECT_EQ(found("stage_area")->size(), start);
}

// 1366 by 768 pixels, the same at one and a half times the usual density, 1280 by 720, and that at two and at
// three times the usual density, each without the bar of the desktop and the frame of the window.
INSTANTIATE_TEST_SUITE_P(sizes, ways_in_small_rooms,
                         testing::Combine(testing::Values(QSize(1358, 692), QSize(904, 476), QSize(1272, 644),
                                                          QSize(632, 284), QSize(418, 180)),
                                          testing::Values(smallest_letters, roomy_letters)));

}  // namespace
