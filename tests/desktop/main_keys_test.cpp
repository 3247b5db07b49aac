#include "../scripted_desktop.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "session/windows.h"

#include <QApplication>
#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// The main window alone, without the handlers of its session.
struct main_keys : testing::Test {
    main_keys()
    {
        all.main.load();
        bind(all.main, *window, {});
        window->show();
        window->activateWindow();
        QApplication::processEvents();
        all.main.cmdFlurn.on_click = [this] { ++runs; };
    }

    void finish()
    {
        for (control * each : all.main.controls())
            if (dynamic_cast<menu_entry *>(each) && dynamic_cast<menu_entry *>(each)->name() != "mnuQuit")
                each->show(false);
    }

    template <typename Widget>
    Widget & found(const char * name)
    {
        return *window->findChild<Widget *>(QLatin1String(name));
    }

    scripted_desktop desk;
    windows all{desk, listed({})};
    std::unique_ptr<QWidget> window = make_window("frmMain");
    int runs = 0;
};

TEST_F(main_keys, f10_opens_the_menu_bar)
{
    QTest::keyClick(window.get(), Qt::Key_F10);
    const QMenuBar & bar = *qobject_cast<QMainWindow *>(window.get())->menuBar();
    EXPECT_EQ(bar.activeAction(), found<QMenu>("mnuFile").menuAction());
    QTest::keyClick(&found<QMenu>("mnuFile"), Qt::Key_Escape);
}

TEST_F(main_keys, enter_presses_the_default_button_and_the_one_that_has_the_keyboard)
{
    EXPECT_TRUE(found<QPushButton>("cmdFlurn").isDefault());
    int cancels = 0;
    all.main.cmdCancel.on_click = [&] { ++cancels; };
    found<QWidget>("chkMatch").setFocus();
    QTest::keyClick(&found<QWidget>("chkMatch"), Qt::Key_Return);
    EXPECT_EQ(runs, 1);
    found<QWidget>("cmdCancel").setFocus();
    QTest::keyClick(&found<QWidget>("cmdCancel"), Qt::Key_Enter);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(cancels, 1);
}

TEST_F(main_keys, enter_in_a_field_only_ends_the_typing)
{
    for (const char * name : {"cmbFrame", "txtCaption"}) {
        found<QWidget>(name).setFocus();
        QTest::keyClick(&found<QWidget>(name), Qt::Key_Return);
    }
    EXPECT_EQ(runs, 0);
}

TEST_F(main_keys, ctrl_q_is_the_menu_entry_and_in_the_midst_of_the_work_the_close_box)
{
    int quits = 0, closes = 0;
    all.main.mnuQuit.on_click = [&] { ++quits; };
    all.main.on_query_unload = [&] { return ++closes < 0; };
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(closes, 0);
    finish();
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(closes, 1);
}

// ---- the focus after another window was in front

TEST_F(main_keys, a_run_gives_the_keyboard_back_that_the_toolkit_put_elsewhere_meanwhile)
{
    found<QWidget>("optPreview").setFocus();
    all.main.frmDisplay.enable(false);
    found<QWidget>("cmdCancel").setFocus(Qt::ActiveWindowFocusReason);
    all.main.frmDisplay.enable(true);
    EXPECT_TRUE(found<QWidget>("optPreview").hasFocus());
    all.main.frmDisplay.enable(false);
    found<QWidget>("cmdCancel").setFocus(Qt::TabFocusReason);
    all.main.frmDisplay.enable(true);
    EXPECT_TRUE(found<QWidget>("cmdCancel").hasFocus());
}

}  // namespace
