#include "../scripted_desktop.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/stages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

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

TEST_F(ways_to_begin, stand_in_the_window_beside_each_other_and_each_has_its_picture)
{
    for (const int pixels : {smallest_letters, roomy_letters, 21}) {
        set_letters(pixels);
        QApplication::processEvents();
        int right = 0;
        for (const char * name : ways) {
            EXPECT_GT(way(name)->x(), right) << name;
            right = way(name)->geometry().right();
            EXPECT_GE(way(name)->width(),
                      way(name)->fontMetrics().horizontalAdvance(way(name)->accessibleName()));
            EXPECT_TRUE(way(name)->parentWidget()->rect().contains(way(name)->geometry())) << name;
        }
    }
    set_letters(smallest_letters);
    EXPECT_NE(way("mnuQuick")->grab().toImage(), way("mnuDesigned")->grab().toImage());
}

}  // namespace
