#include "../pictures.h"
#include "../temporary_folder.h"
#include "desktop/qt_desktop.h"
#include "recipes/recipe_shelf.h"
#include "session/connect_all.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/desktop/windows_played.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// "Recent flurns" in its window, over a data folder with three of them.
struct recent_flurns_window : testing::Test {
    recent_flurns_window()
    {
        main.data_folder = folder.at("data");
        connect_all(all);
    }
    ~recent_flurns_window() override { desk.forget_windows(); }

    void keep_three() const
    {
        for (const char * second : {"11", "12", "13"}) {
            const recipe made{.made = std::string("2026-11-22 15:30:") + second,
                              .design = "One & <b>Two</b>"};
            const std::string picture = folder.at("picture.jpg");
            save_jpeg(plain(30, 40, {200, 0, 0}), picture);
            keep_recipe(main, made, read_file(picture));
        }
    }

    temporary_folder folder;
    qt_desktop desk;
    windows all{desk, listed({})};
    frmMain & main = all.main;
};

QListWidget & list_in(const QDialog & window)
{
    return *window.findChild<QListWidget *>(QStringLiteral("lstFlurns"));
}

}  // namespace

TEST_F(recent_flurns_window, shows_a_small_picture_beside_each_and_is_used_by_keys_alone)
{
    keep_three();
    when_asked<QDialog>([](QDialog & window) {
        QListWidget & list = list_in(window);
        ASSERT_EQ(list.count(), 3);
        EXPECT_EQ(list.item(0)->text(), QStringLiteral("2026-11-22 15:30   One & <b>Two</b>"));
        const QImage shown = list.item(0)->icon().pixmap(list.iconSize()).toImage();
        const QColor middle = shown.pixelColor(shown.width() / 2, shown.height() / 2);
        EXPECT_GT(middle.red(), 180);
        EXPECT_EQ(shown.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(QApplication::focusWidget(), &list);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
    });
    const auto chosen = ask(desk, all.recent);
    ASSERT_TRUE(chosen);
    EXPECT_TRUE(chosen->ends_with(".flurn"));
    EXPECT_TRUE(file_exists(*chosen));
}

// The mark of the row is one colour from edge to edge, but for picture and letters.
TEST_F(recent_flurns_window, marks_the_row_without_a_seam_beside_the_text)
{
    keep_three();
    int looked_at = 0, others = 0;
    when_asked<QDialog>([&](QDialog & window) {
        QListWidget & list = list_in(window);
        QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_TRUE(list.currentItem()->isSelected());
        const QImage seen = list.viewport()->grab(list.visualItemRect(list.currentItem())).toImage();
        const int above_letters = seen.height() / 6;
        const QRgb usual = seen.pixel(seen.width() / 2, above_letters);
        for (int x = seen.width() / 6; x < seen.width() - 4; ++x, ++looked_at)
            others += seen.pixel(x, above_letters) == usual ? 0 : 1;
        QTest::keyClick(&list, Qt::Key_Escape);
    });
    EXPECT_FALSE(ask(desk, all.recent));
    EXPECT_GT(looked_at, 300);
    EXPECT_EQ(others, 0);
}

TEST_F(recent_flurns_window, keeps_the_pictures_beside_their_entries_when_one_goes)
{
    keep_three();
    when_asked<QDialog>([this](QDialog & window) {
        all.recent.lstFlurns.select(0);
        QTest::mouseClick(window.findChild<QPushButton *>(QStringLiteral("cmdRemove")), Qt::LeftButton);
        EXPECT_EQ(list_in(window).count(), 2);
        EXPECT_FALSE(list_in(window).item(1)->icon().isNull());
        window.close();
    });
    EXPECT_FALSE(ask(desk, all.recent));
}

TEST_F(recent_flurns_window, says_so_while_it_is_empty)
{
    when_asked<QDialog>([](QDialog & window) {
        EXPECT_TRUE(window.findChild<QLabel *>(QStringLiteral("lblEmpty"))->isVisible());
        EXPECT_FALSE(window.findChild<QPushButton *>(QStringLiteral("cmdOk"))->isEnabled());
        window.close();
    });
    EXPECT_FALSE(ask(desk, all.recent));
}
