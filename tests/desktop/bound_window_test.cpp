#include "support/platform_error.h"
#include "tests/desktop/bound_form.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>
#include <utility>

namespace {

TEST(binder, closing_asks_the_form_which_may_refuse)
{
    bound_form shown;
    bool may_close = false;
    shown.held.on_query_unload = [&] { return may_close; };
    shown.window.close();
    EXPECT_TRUE(shown.held.loaded());
    EXPECT_TRUE(shown.window.isVisible());
    EXPECT_EQ(shown.unloads, 0);
    may_close = true;
    QTest::keyClick(&shown.window, Qt::Key_Escape);
    EXPECT_FALSE(shown.held.loaded());
    EXPECT_EQ(shown.unloads, 1);
}

TEST(binder, the_size_is_a_fifteenth_of_a_pixel_and_fixed)
{
    bound_form shown;
    shown.held.resize(15600, 10125);
    EXPECT_EQ(shown.window.minimumSize(), QSize(1040, 675));
    EXPECT_EQ(shown.window.maximumSize(), QSize(1040, 675));
    shown.held.set_caption("F l u r n s");
    EXPECT_EQ(shown.window.windowTitle(), "F l u r n s");
}

TEST(binder, help_keys_reach_the_form_but_a_question_mark_in_a_text_is_text)
{
    bound_form shown;
    std::vector<key> keys;
    shown.held.on_key = [&](key pressed) { keys.push_back(pressed); };
    shown.name->setFocus();
    QTest::keyClick(shown.name, Qt::Key_F1);
    QTest::keyClick(shown.name, Qt::Key_Question, Qt::ShiftModifier);
    EXPECT_EQ(keys, (std::vector<key>{key::f1}));
    shown.keep->setFocus();
    QTest::keyClick(shown.keep, Qt::Key_Question, Qt::ShiftModifier);
    QTest::keyClick(shown.keep, Qt::Key_Help);
    EXPECT_EQ(keys, (std::vector<key>{key::f1, key::help, key::help}));
}

// ---- failures

TEST(binder, an_error_is_shown_once_with_its_number_and_the_window_stays_usable)
{
    bound_form shown;
    int clicks = 0;
    shown.held.cmdGo.on_click = [&] {
        if (++clicks == 1)
            throw platform_error(error_number::file_not_found, "File not found", "a.jpg");
    };
    QTest::mouseClick(shown.go, Qt::LeftButton);
    ASSERT_EQ(shown.errors.size(), 1u);
    EXPECT_EQ(shown.errors[0].substr(0, 27), "Run-time error '53':\r\n\r\nFil");
    EXPECT_NE(shown.errors[0].find("a.jpg"), std::string::npos);
    QTest::mouseClick(shown.go, Qt::LeftButton);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(shown.errors.size(), 1u);
}

TEST(binder, what_libraries_throw_comes_as_the_platform_s_errors_and_our_own_bugs_as_51)
{
    bound_form shown;
    shown.held.cmdGo.on_click = [] { throw std::bad_alloc(); };
    QTest::mouseClick(shown.go, Qt::LeftButton);
    shown.held.cmdGo.on_click = [] { throw std::logic_error("never"); };
    QTest::mouseClick(shown.go, Qt::LeftButton);
    ASSERT_EQ(shown.errors.size(), 2u);
    EXPECT_TRUE(shown.errors[0].starts_with("Run-time error '7':"));
    EXPECT_EQ(shown.errors[1], "Run-time error '51':\r\n\r\nnever");
}

TEST(binder, a_box_whose_handler_failed_still_agrees_with_its_control)
{
    bound_form shown;
    shown.held.txtName.on_change = [&] { throw platform_error(error_number::overflow, "Overflow"); };
    QTest::keyClicks(shown.name, "a");
    EXPECT_EQ(shown.errors.size(), 1u);
    EXPECT_EQ(shown.name->text().toStdString(), shown.held.txtName.text());
}

TEST(binder, a_form_outlives_its_window)
{
    one_of_each held;
    {
        QDialog window;
        QCheckBox keep(&window);
        keep.setObjectName("chkKeep");
        bind(held, window, {});
    }
    held.chkKeep.tick(true);
    held.set_caption("alone");
    EXPECT_TRUE(held.chkKeep.ticked());
}

// ---- the focus during a run

TEST(binder, the_focus_comes_back_after_a_run_and_what_was_typed_meanwhile_follows)
{
    bound_form shown;
    shown.name->setFocus();
    bool first = true;
    shown.held.txtName.on_change = [&] {
        if (!std::exchange(first, false))
            return;
        shown.held.txtName.enable(false);
        EXPECT_EQ(shown.window.focusWidget(), nullptr);
        QTest::keyClicks(&shown.window, "bc");  // a fast typist, seen by an event pump
        shown.held.txtName.enable(true);
    };
    QTest::keyClicks(shown.name, "a");
    QApplication::processEvents();
    EXPECT_TRUE(shown.name->hasFocus());
    EXPECT_EQ(shown.held.txtName.text(), "abc");
}

// Each key begins a run of its own, so that the next one, given back to its box, comes while that is disabled
// once more. The group around it would take every blank for a press of its own.
TEST(binder, what_is_typed_faster_than_runs_are_made_keeps_its_blanks)
{
    bound_form shown;
    shown.all->resize(150, 100);
    shown.name->setParent(shown.all);
    shown.name->show();
    shown.name->setFocus();
    shown.held.txtName.enable(false);
    for (const auto & [key, text] : {std::pair{Qt::Key_A, "a"}, {Qt::Key_Space, " "}, {Qt::Key_B, "b"}})
        QCoreApplication::postEvent(
            shown.name, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, QLatin1String(text)));
    QApplication::processEvents();
    shown.held.txtName.enable(true);
    QApplication::processEvents();
    EXPECT_EQ(shown.held.txtName.text(), "a b");
}

TEST(binder, keys_for_a_box_that_stays_away_are_dropped)
{
    bound_form shown;
    shown.name->setFocus();
    shown.held.txtName.on_change = [&] {
        shown.held.txtName.enable(false);
        QTest::keyClicks(&shown.window, "bc");
    };
    QTest::keyClicks(shown.name, "a");
    shown.held.txtName.enable(true);
    QApplication::processEvents();
    EXPECT_EQ(shown.held.txtName.text(), "a");
}

TEST(binder, the_focus_never_lands_on_another_button_by_itself)
{
    bound_form shown;
    shown.keep->setFocus();
    shown.held.chkKeep.enable(false);
    EXPECT_FALSE(shown.go->hasFocus());
    EXPECT_EQ(shown.window.focusWidget(), nullptr);
    shown.held.chkKeep.enable(true);
    EXPECT_TRUE(shown.keep->hasFocus());
}

}  // namespace
