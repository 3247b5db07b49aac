#include "desktop/drop_zone.h"

#include "../temporary_folder.h"
#include "desktop/qt_desktop.h"
#include "session/windows.h"
#include "tests/desktop/windows_played.h"

#include <QAbstractButton>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

struct drop_zone_test : testing::Test {
    drop_zone_test()
    {
        desk.drops[&all.main] = {.offer =
                                     [this](const dragged_files & files) {
                                         last = files;
                                         return drop_offer{.sentence = takes ? "Drop here." : "Not now.",
                                                           .taken = takes};
                                     },
                                 .take =
                                     [this](const dragged_files & files, int x, int y) {
                                         taken.push_back(files.paths);
                                         at = {x, y};
                                     },
                                 .surface = nullptr};
        desk.show(all.main);
        all.main.frmCaption.show(true);
        QApplication::processEvents();
    }
    ~drop_zone_test() override { desk.forget_windows(); }

    QWidget & window() { return *desk.window_of(all.main); }
    QLabel & notice() { return *window().findChild<QLabel *>("drop_area"); }

    static QMimeData * of(const QList<QUrl> & urls)
    {
        static QMimeData data;
        data.setUrls(urls);
        return &data;
    }

    bool enter(QWidget & widget, const QMimeData * data, QPoint where = {5, 5})
    {
        QDragEnterEvent event(where, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    }
    bool move(QWidget & widget, const QMimeData * data)
    {
        QDragMoveEvent event({5, 5}, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    }
    Qt::DropAction let_go(const QMimeData * data, QPoint where)
    {
        QDropEvent event(where, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&window(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    qt_desktop desk;
    windows all{desk, seeded_random(7)};
    bool takes = true;
    dragged_files last;
    std::vector<std::vector<std::string>> taken;
    QPoint at;
};

TEST_F(drop_zone_test, what_a_drop_would_do_is_said_while_it_hovers_and_gone_when_it_leaves)
{
    EXPECT_FALSE(notice().isVisible());
    EXPECT_TRUE(enter(window(), of({QUrl("file:///photos/a.jpg")})));
    EXPECT_TRUE(notice().isVisible());
    EXPECT_EQ(notice().text(), "Drop here.");
    EXPECT_GT(notice().width(), window().width() * 9 / 10);
    keep_screen(window(), "drop_offer.png");
    QDragLeaveEvent leave;
    QApplication::sendEvent(&window(), &leave);
    EXPECT_FALSE(notice().isVisible());
}

TEST_F(drop_zone_test, a_drop_is_copied_and_answered_once_its_sender_goes_on)
{
    const QMimeData * const data = of({QUrl("file:///photos/a.jpg"), QUrl("file:///photos/sea/")});
    enter(window(), data);
    EXPECT_EQ(let_go(data, {40, 50}), Qt::CopyAction) << "a move would delete the user's file";
    EXPECT_FALSE(notice().isVisible());
    EXPECT_TRUE(taken.empty());
    QApplication::processEvents();
    EXPECT_EQ(taken, (std::vector<std::vector<std::string>>{{"/photos/a.jpg", "/photos/sea/"}}));
    EXPECT_EQ(at, QPoint(40, 50));
}

TEST_F(drop_zone_test, a_refusal_is_said_and_nothing_dropped)
{
    takes = false;
    const QMimeData * const data = of({QUrl("file:///photos/a.jpg")});
    EXPECT_TRUE(enter(window(), data)) << "else it would not be heard that it leaves";
    EXPECT_EQ(notice().text(), "Not now.");
    EXPECT_FALSE(move(window(), data));
    EXPECT_EQ(let_go(data, {5, 5}), Qt::IgnoreAction);
    QApplication::processEvents();
    EXPECT_TRUE(taken.empty());
}

TEST_F(drop_zone_test, what_can_no_longer_be_taken_when_its_turn_comes_is_not)
{
    const QMimeData * const data = of({QUrl("file:///photos/a.jpg")});
    enter(window(), data);
    let_go(data, {5, 5});
    takes = false;
    QApplication::processEvents();
    EXPECT_TRUE(taken.empty());
}

TEST_F(drop_zone_test, files_over_a_text_box_are_the_window_s)
{
    auto & caption = *window().findChild<QLineEdit *>("txtCaption");
    caption.setText("mine");
    enter(caption, of({QUrl("file:///photos/a.jpg")}));
    EXPECT_TRUE(notice().isVisible());
    EXPECT_EQ(caption.text(), "mine");
}

TEST_F(drop_zone_test, what_is_no_file_is_left_to_the_boxes)
{
    static QMimeData text;
    text.setText("words");
    EXPECT_FALSE(enter(window(), &text));
    EXPECT_FALSE(notice().isVisible());
    EXPECT_TRUE(enter(*window().findChild<QLineEdit *>("txtCaption"), &text));
}

TEST_F(drop_zone_test, a_window_behind_a_box_takes_nothing_and_says_so)
{
    const QMimeData * const data = of({QUrl("file:///photos/a.jpg")});
    when_asked<QMessageBox>([&](QMessageBox & box) {
        enter(window(), data);
        EXPECT_EQ(notice().text(), "Please answer the open window first.");
        EXPECT_EQ(let_go(data, {5, 5}), Qt::IgnoreAction);
        box.buttons().front()->click();
    });
    desk.message("a question", {});
    QApplication::processEvents();
    EXPECT_TRUE(taken.empty());
}

TEST(files_in_a_drag, are_told_from_what_lies_elsewhere)
{
    QMimeData data;
    data.setUrls({QUrl("file:///a%20b/%C3%BC.jpg"), QUrl("file://localhost/c.jpg"),
                  QUrl("file://other-machine/d.jpg"), QUrl("https://example.org/e.jpg")});
    const dragged_files files = files_in(data);
    EXPECT_EQ(files.paths, (std::vector<std::string>{"/a b/\xC3\xBC.jpg", "/c.jpg"}));
    EXPECT_EQ(files.elsewhere,
              (std::vector<std::string>{"file://other-machine/d.jpg", "https://example.org/e.jpg"}));
}

TEST(files_in_a_drag, keep_the_bytes_of_names_that_are_no_text)
{
    QMimeData data;
    data.setData("text/uri-list", "file:///photos/%E9t%E9.jpg\r\n");
    EXPECT_EQ(files_in(data).paths, std::vector<std::string>{"/photos/\xE9t\xE9.jpg"});
}

}  // namespace
