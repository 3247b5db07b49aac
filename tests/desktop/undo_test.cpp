#include "session/undo/keep_history.h"
#include "session/window_state.h"
#include "tests/desktop/shown_main_window.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// It outlives the window.
struct held_history {
    change_history history;
};

// The main window in its finishing stage, with the preview off: what is looked at are the keys.
struct undo_test : testing::Test, held_history, finishing_window {
    undo_test()
    {
        keep_history(all.main, history);
        bind_at(look::quick_block);
        all.main.optNone.select();
        all.main.txtCaption.set_text("");
        show_menus(all.main, false);
        all.main.optTiny.select();  // where the history begins
        show_active();
    }

    template <typename Widget>
    Widget * found(const char * name)
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }

    void press(const QKeySequence & keys)
    {
        QWidget * const focus = QApplication::focusWidget();
        QTest::keySequence(focus ? focus : window.get(), keys);
    }
};

TEST_F(undo_test, the_keys_go_back_and_forth_in_the_whole_window)
{
    auto * const small = found<QRadioButton>("optSmall");
    QTest::mouseClick(small, Qt::LeftButton, {}, {8, 8});
    ASSERT_TRUE(small->isChecked());
    press(QKeySequence("Ctrl+Z"));
    EXPECT_FALSE(small->isChecked());
    EXPECT_TRUE(found<QRadioButton>("optTiny")->isChecked());
    press(QKeySequence("Ctrl+Shift+Z"));
    EXPECT_TRUE(small->isChecked());
    press(QKeySequence("Ctrl+Z"));
    press(QKeySequence("Ctrl+Y"));
    EXPECT_TRUE(small->isChecked());
}

TEST_F(undo_test, a_text_box_undoes_its_own_typing_first)
{
    auto * const caption = found<QLineEdit>("txtCaption");
    QTest::mouseClick(found<QRadioButton>("optSmall"), Qt::LeftButton, {}, {8, 8});
    caption->setFocus();
    QTest::keyClicks(caption, "Sun");
    press(QKeySequence("Ctrl+Z"));
    EXPECT_EQ(caption->text(), "");
    EXPECT_EQ(all.main.txtCaption.text(), "");
    EXPECT_TRUE(all.main.optSmall.selected()) << "the box's own undo";
    press(QKeySequence("Ctrl+Shift+Z"));
    EXPECT_EQ(all.main.txtCaption.text(), "Sun");
    press(QKeySequence("Ctrl+Z"));
    press(QKeySequence("Ctrl+Z"));
    EXPECT_TRUE(all.main.optTiny.selected()) << "a box with nothing to undo leaves the keys to the window";
    EXPECT_TRUE(caption->hasFocus());
}

TEST_F(undo_test, a_list_that_an_entry_was_chosen_from_leaves_the_keys_to_the_window)
{
    auto * const list = found<QComboBox>("cmbShadow");
    list->setFocus();
    const QString before = list->currentText();
    QTest::keyClick(list, Qt::Key_Down);
    ASSERT_NE(list->currentText(), before);
    press(QKeySequence("Ctrl+Z"));
    EXPECT_EQ(list->currentText(), before);
    EXPECT_EQ(all.main.cmbShadow.text(), before.toStdString());
}

TEST_F(undo_test, the_typing_in_a_box_is_one_step_for_the_window)
{
    auto * const caption = found<QLineEdit>("txtCaption");
    caption->setFocus();
    QTest::keyClicks(caption, "Sun");
    QTest::keyClick(caption, Qt::Key_Tab);
    ASSERT_FALSE(caption->hasFocus());
    found<QRadioButton>("optTiny")->setFocus();
    press(QKeySequence("Ctrl+Z"));
    EXPECT_EQ(caption->text(), "");
    press(QKeySequence("Ctrl+Shift+Z"));
    EXPECT_EQ(caption->text(), "Sun");
}

TEST_F(undo_test, the_entries_stand_at_the_preview_and_are_disabled_with_nothing_to_do)
{
    auto * const undo = found<QAction>("mnuUndo");
    auto * const redo = found<QAction>("mnuRedo");
    EXPECT_FALSE(undo->isEnabled());
    EXPECT_FALSE(redo->isEnabled());
    QTest::mouseClick(found<QRadioButton>("optSmall"), Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(undo->isEnabled());
    auto * const preview = found<QWidget>("picSample");
    auto * const menu = found<QMenu>("mnuChanges");
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {20, 20}, preview->mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(preview, &asked);
    ASSERT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->actions(), (QList<QAction *>{undo, redo}));
    QTest::keyClick(menu, Qt::Key_U);
    EXPECT_TRUE(all.main.optTiny.selected());
    EXPECT_TRUE(redo->isEnabled());
    EXPECT_EQ(preview->focusPolicy(), Qt::NoFocus);
}

}  // namespace
