#include "tests/desktop/contrast.h"

#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/stages.h"
#include "tests/desktop/window_views.h"

#include <QApplication>
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

TEST(contrast, of_every_text_in_every_window_is_what_readers_need)
{
    filled_session session;
    for (const window_view & view : session.views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view);
        EXPECT_EQ(faint_texts(shown.window()), faults());
    }
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
