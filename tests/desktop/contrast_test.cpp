#include "tests/desktop/contrast.h"

#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "desktop/printing/print_dialog.h"
#include "desktop/qt_desktop.h"
#include "tests/desktop/stages.h"
#include "tests/desktop/window_check.h"
#include "tests/desktop/window_views.h"
#include "tests/desktop/windows_played.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QImage>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

using faults = std::vector<std::string>;

TEST(contrast, is_that_of_the_guidelines)
{
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(contrast(QColor("#767676"), Qt::white), 4.54, 0.01);
}

TEST(contrast, tells_a_faint_text_and_a_focus_that_is_not_seen)
{
    QWidget window;
    window.setPalette(QPalette(QColor("#2d3034"), QColor("#2d3034")));
    QPushButton flat(QStringLiteral("Flat"), &window);
    flat.setObjectName(QStringLiteral("flat"));
    flat.setFocusPolicy(Qt::StrongFocus);
    flat.setStyleSheet(
        QStringLiteral("QPushButton, QPushButton:focus { border: none; outline: none; color: #555555; "
                       "background: #2d3034; }"));
    flat.resize(100, 30);
    window.resize(200, 100);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    EXPECT_EQ(faint_texts(window).size(), 1u);
    EXPECT_EQ(unseen_focus(window), faults{"flat of "});
}

const window_check faint_check([](form &, QWidget & window, window_findings & found) {
    for (const std::string & fault : faint_texts(window))
        found.faults.push_back(fault);
});

TEST(contrast, of_every_text_in_every_window_is_what_readers_need)
{
    EXPECT_EQ(faint_check.in_letters(smallest_letters).faults, faults());
}

struct shown_main {
    shown_main()
    {
        bind(main, *window, {});
        main.load();
        window->show();
        window->activateWindow();
    }
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    std::unique_ptr<QWidget> window = make_window("frmMain");
};

TEST(contrast, of_every_text_in_the_main_window_is_what_readers_need)
{
    shown_main shown;
    for (const look stage : all_looks) {
        SCOPED_TRACE(name_of(stage, shape::portrait));
        bring_to(shown.main, stage, shape::portrait);
        QApplication::processEvents();
        EXPECT_EQ(faint_texts(*shown.window), faults());
    }
}

// What a window without photos, without a run or in the midst of one has disabled is told of by its texts as
// well.
TEST(contrast, of_every_text_that_is_disabled_is_what_readers_need)
{
    filled_session session;
    for (const window_view & view : session.views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view);
        for (control * each : view.window->controls())
            if (!dynamic_cast<group *>(each))
                each->enable(false);
        QApplication::processEvents();
        EXPECT_EQ(faint_texts(shown.window()), faults());
    }
    shown_main shown;
    for (const look stage : all_looks) {
        SCOPED_TRACE(name_of(stage, shape::portrait));
        bring_to(shown.main, stage, shape::portrait);
        for (control * each : shown.main.controls())
            each->enable(false);
        QApplication::processEvents();
        EXPECT_EQ(faint_texts(*shown.window), faults());
        for (control * each : shown.main.controls())
            each->enable(true);
    }
}

TEST(contrast, of_the_boxes_that_tell_and_ask_is_what_readers_need)
{
    qt_desktop desk;
    faults found;
    when_asked<QMessageBox>([&](QMessageBox & box) {
        found = faint_texts(box);
        box.button(QMessageBox::Ok)->click();
    });
    desk.message("This photo was left out:\r\n/photos/a.jpg: it isn't there any more", {});
    EXPECT_EQ(found, faults());
    when_asked<QMessageBox>([&](QMessageBox & box) {
        found = faint_texts(box);
        box.button(QMessageBox::No)->click();
    });
    desk.ask(
        {.title = "Photos", .text = "Shall copies be made of 3 photos?", .offered = answers::yes_no_cancel});
    EXPECT_EQ(found, faults());
    when_asked<QFileDialog>([&](QFileDialog & box) {
        found = faint_texts(box);
        box.reject();
    });
    desk.choose_folder("Select a folder and click OK");
    EXPECT_EQ(found, faults());
    when_asked<QColorDialog>([&](QColorDialog & box) {
        found = faint_texts(box);
        box.reject();
    });
    desk.choose_color(0x00FF00);
    EXPECT_EQ(found, faults());
}

TEST(contrast, of_the_preview_of_a_print_is_what_readers_need)
{
    const QImage picture(200, 300, QImage::Format_RGB32);
    faults found{"no preview"};
    when_asked<QDialog>([&](QDialog & box) {
        found = faint_texts(box);
        box.reject();
    });
    EXPECT_FALSE(choose_print(QPrinterInfo(), picture, QPageLayout::Portrait, nullptr));
    EXPECT_EQ(found, faults());
}

// Menus are windows of their own: those of the bar, the one of the changes and the one of the photos' grid.
TEST(contrast, of_every_menu_is_what_readers_need)
{
    shown_main shown;
    bring_to(shown.main, look::choosing, shape::portrait);
    shown.main.mnuUndo.enable(true);
    shown.main.mnuRedo.enable(false);
    filled_session session;
    const std::unique_ptr<QWidget> editor = make_window("frmPictures");
    bind(session.all.pictures, *editor, {});
    int menus = 0;
    for (QWidget * window : {shown.window.get(), editor.get()})
        for (QMenu * menu : window->findChildren<QMenu *>()) {
            if (menu->actions().isEmpty())
                continue;
            menu->popup(QPoint(0, 0));
            QApplication::processEvents();
            EXPECT_EQ(faint_texts(*menu), faults());
            menu->close();
            ++menus;
        }
    EXPECT_GE(menus, 7);
}

TEST(focus, is_seen_on_every_widget_that_the_keyboard_reaches)
{
    filled_session session;
    for (const window_view & view : session.views()) {
        if (view.name != view.window->name())
            continue;  // another state of the same window
        SCOPED_TRACE(view.name);
        const shown_view shown(view);
        EXPECT_EQ(unseen_focus(shown.window()), faults());
    }
}

TEST(focus, is_seen_on_every_widget_of_the_main_window)
{
    shown_main shown;
    for (const look stage : {look::choosing, look::designed, look::quick_squares}) {
        bring_to(shown.main, stage, shape::portrait);
        QApplication::processEvents();
        EXPECT_EQ(unseen_focus(*shown.window), faults());
    }
}

}  // namespace
