#include "support/platform_error.h"
#include "tests/desktop/bound_form.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <utility>

namespace {

// ---- from user to control

TEST(binder, a_click_reaches_the_button)
{
    bound_form shown;
    int clicks = 0;
    shown.held.cmdGo.on_click = [&] { ++clicks; };
    QTest::mouseClick(shown.go, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST(binder, a_click_ticks_the_box_and_fires_its_handler_once)
{
    bound_form shown;
    int changes = 0;
    shown.held.chkKeep.on_change = [&] { ++changes; };
    QTest::mouseClick(shown.keep, Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_TRUE(shown.held.chkKeep.ticked());
    EXPECT_EQ(changes, 1);
}

TEST(binder, a_box_that_its_handler_unticks_is_shown_unticked)
{
    bound_form shown;
    shown.held.chkKeep.on_change = [&] { shown.held.chkKeep.tick(false); };
    QTest::mouseClick(shown.keep, Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_FALSE(shown.keep->isChecked());
}

TEST(binder, selecting_an_option_deselects_the_other_in_form_and_window)
{
    bound_form shown;
    QTest::mouseClick(shown.left, Qt::LeftButton, {}, QPoint(8, 12));
    QTest::mouseClick(shown.right, Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_FALSE(shown.held.optLeft.selected());
    EXPECT_TRUE(shown.held.optRight.selected());
    EXPECT_FALSE(shown.left->isChecked());
    EXPECT_TRUE(shown.right->isChecked());
}

TEST(binder, a_click_on_the_selected_option_changes_nothing)
{
    bound_form shown;
    shown.held.optLeft.select();
    int clicks = 0;
    shown.held.optLeft.on_click = [&] { ++clicks; };
    QTest::mouseClick(shown.left, Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_TRUE(shown.left->isChecked());
    EXPECT_TRUE(shown.held.optLeft.selected());
    EXPECT_EQ(clicks, 0);
}

TEST(binder, arrow_keys_select_the_next_option_and_go_round)
{
    bound_form shown;
    shown.held.optLeft.select();
    shown.left->setFocus();
    QTest::keyClick(shown.left, Qt::Key_Down);
    EXPECT_TRUE(shown.held.optRight.selected());
    EXPECT_TRUE(shown.right->hasFocus());
    QTest::keyClick(shown.right, Qt::Key_Right);
    EXPECT_TRUE(shown.held.optLeft.selected());
}

TEST(binder, typing_reaches_the_text_box_letter_by_letter)
{
    bound_form shown;
    std::vector<std::string> texts;
    shown.held.txtName.on_change = [&] { texts.push_back(shown.held.txtName.text()); };
    QTest::keyClicks(shown.name, "abc");
    EXPECT_EQ(texts, (std::vector<std::string>{"a", "ab", "abc"}));
}

TEST(binder, text_travels_as_utf8_both_ways)
{
    bound_form shown;
    shown.held.txtName.set_text("K\xC3\xBCste");
    EXPECT_EQ(shown.name->text(), QStringLiteral("K\u00FCste"));
    shown.name->setCursorPosition(5);
    QTest::keyClick(shown.name, Qt::Key_Backspace);
    EXPECT_EQ(shown.held.txtName.text(), "K\xC3\xBCst");
}

TEST(binder, choosing_an_entry_fires_the_click_handler_and_typing_the_typing_handler)
{
    bound_form shown;
    int clicks = 0, typings = 0;
    shown.held.cmbSize.on_click = [&] { ++clicks; };
    shown.held.cmbSize.on_typed = [&] { ++typings; };
    shown.size->setFocus();
    QTest::keyClick(shown.size, Qt::Key_Down);
    EXPECT_EQ(shown.held.cmbSize.text(), "20");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(typings, 0);
    QTest::keyClicks(shown.size->lineEdit(), "5");
    EXPECT_EQ(shown.held.cmbSize.text(), "205");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(typings, 1);
}

TEST(binder, what_is_typed_into_a_list_is_not_completed)
{
    bound_form shown;
    shown.held.cmbSize.set_items({"100", "600"});
    shown.size->setFocus();
    shown.size->lineEdit()->selectAll();
    QTest::keyClicks(shown.size->lineEdit(), "60");
    QTest::keyClick(shown.size->lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(shown.held.cmbSize.text(), "60");
    EXPECT_EQ(shown.size->currentText(), "60");
}

TEST(binder, leaving_a_list_whose_text_was_set_or_typed_is_no_choice)
{
    bound_form shown;
    int clicks = 0;
    shown.held.cmbSize.on_click = [&] { ++clicks; };
    shown.held.cmbSize.set_text("20");
    shown.size->setFocus();
    shown.name->setFocus();
    shown.size->setFocus();
    shown.size->lineEdit()->selectAll();
    QTest::keyClicks(shown.size->lineEdit(), "30");
    QTest::keyClick(shown.size->lineEdit(), Qt::Key_Return);
    shown.name->setFocus();
    EXPECT_EQ(shown.held.cmbSize.text(), "30");
    EXPECT_EQ(clicks, 0);
}

TEST(binder, typing_inside_a_list_keeps_the_cursor_where_it_was)
{
    bound_form shown;
    shown.held.cmbSize.set_text("300");
    shown.size->setFocus();
    shown.size->lineEdit()->setCursorPosition(1);
    QTest::keyClick(shown.size->lineEdit(), Qt::Key_Delete);
    EXPECT_EQ(shown.held.cmbSize.text(), "30");
    EXPECT_EQ(shown.size->lineEdit()->cursorPosition(), 1);
}

TEST(binder, a_list_whose_handler_cuts_the_value_shows_the_cut_value)
{
    bound_form shown;
    shown.held.cmbSize.on_typed = [&] { shown.held.cmbSize.set_text("30"); };
    shown.size->setFocus();
    QTest::keyClicks(shown.size->lineEdit(), "0");
    EXPECT_EQ(shown.size->currentText(), "30");
}

TEST(binder, what_a_handler_puts_into_a_list_is_replaced_by_the_next_key)
{
    bound_form shown;
    shown.held.cmbSize.on_typed = [&] {
        if (shown.held.cmbSize.text().empty())
            shown.held.cmbSize.set_text("0");
    };
    shown.size->setFocus();
    shown.size->lineEdit()->end(false);
    QTest::keyClick(shown.size, Qt::Key_Backspace);
    QTest::keyClick(shown.size, Qt::Key_Backspace);
    EXPECT_EQ(shown.size->lineEdit()->selectedText(), "0");
    QTest::keyClicks(shown.size, "25");
    EXPECT_EQ(shown.held.cmbSize.text(), "25");
}

void turn_wheel(QWidget & over)
{
    const QPointF middle = over.rect().center();
    QWheelEvent down(middle, over.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &down);
}

struct wheel_counter : QObject {
    int turns = 0;
    bool eventFilter(QObject *, QEvent * event) override
    {
        turns += event->type() == QEvent::Wheel;
        return false;
    }
};

TEST(binder, the_wheel_changes_only_what_has_the_keyboard)
{
    bound_form shown;
    wheel_counter beneath;
    shown.window.installEventFilter(&beneath);
    shown.held.ScrSize.set_position(50);
    shown.name->setFocus();
    for (QWidget * each : {static_cast<QWidget *>(shown.size), static_cast<QWidget *>(shown.scale)}) {
        turn_wheel(*each);
        EXPECT_NE(each->focusPolicy(), Qt::WheelFocus);
    }
    EXPECT_EQ(shown.held.cmbSize.text(), "10");
    EXPECT_EQ(shown.held.ScrSize.position(), 50);
    EXPECT_EQ(beneath.turns, 2);
    shown.size->setFocus();
    turn_wheel(*shown.size);
    EXPECT_EQ(shown.held.cmbSize.text(), "20");
}

TEST(binder, a_picture_is_clicked_where_the_mouse_is_released_over_it_and_by_keys)
{
    bound_form shown;
    int clicks = 0;
    shown.held.picColor.on_click = [&] { ++clicks; };
    QTest::mousePress(shown.color, Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
    QTest::mouseRelease(shown.color, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::mousePress(shown.color, Qt::LeftButton);
    QTest::mouseRelease(shown.color, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(clicks, 1);
    QTest::keyClick(shown.color, Qt::Key_Space);
    QTest::keyClick(shown.color, Qt::Key_Return);
    EXPECT_EQ(clicks, 3);
}

TEST(binder, coming_into_a_box_fires_its_enter_handler_and_code_that_puts_the_focus_there_does_not)
{
    bound_form shown;
    int entries = 0;
    shown.held.txtOther.on_enter = [&] { ++entries; };
    shown.other->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(entries, 0);
    shown.name->setFocus();
    QTest::keyClick(shown.name, Qt::Key_Tab);
    EXPECT_EQ(entries, 1);
}

TEST(binder, leaving_a_control_is_told_however_it_came_about_but_not_when_a_menu_covers_it)
{
    bound_form shown;
    int exits = 0;
    shown.held.txtName.on_leave = [&] { ++exits; };
    for (const auto & [reason, told] : {std::pair{Qt::OtherFocusReason, 1},
                                        {Qt::TabFocusReason, 2},
                                        {Qt::PopupFocusReason, 2},
                                        {Qt::ActiveWindowFocusReason, 2}}) {
        shown.name->setFocus();
        shown.other->setFocus(reason);
        EXPECT_EQ(exits, told);
    }
}

TEST(binder, a_button_tells_that_the_keyboard_came_to_it)
{
    bound_form shown;
    int entries = 0;
    shown.held.cmdGo.on_enter = [&] { ++entries; };
    shown.go->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(entries, 1);
}

TEST(binder, the_enter_key_belongs_to_a_box_that_answers_it)
{
    bound_form shown;
    int clicks = 0, returns = 0;
    shown.held.cmdGo.on_click = [&] { ++clicks; };
    shown.go->setDefault(true);
    shown.name->setFocus();
    QTest::keyClick(shown.name, Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
    shown.held.txtName.on_return = [&] { ++returns; };
    QTest::keyClick(shown.name, Qt::Key_Return);
    QTest::keyClick(shown.name, Qt::Key_Enter);
    EXPECT_EQ(returns, 2);
    EXPECT_EQ(clicks, 1);
}

TEST(binder, a_frame_is_clicked_beside_what_stands_in_it)
{
    bound_form shown;
    int clicks = 0;
    shown.held.frmAll.on_click = [&] { ++clicks; };
    QTest::mouseClick(shown.all, Qt::LeftButton, {}, QPoint(2, shown.all->height() - 2));
    EXPECT_EQ(clicks, 1);
}

TEST(binder, a_box_marks_its_text_when_the_form_asks_for_it)
{
    bound_form shown;
    shown.held.txtName.set_text("Summer");
    shown.held.txtName.select_all();
    EXPECT_EQ(shown.name->selectedText().toStdString(), "Summer");
}

TEST(binder, an_entry_is_chosen_by_mouse_and_by_keys)
{
    bound_form shown;
    shown.held.lstNames.set_items({"Ada", "Ben", "Cleo"});
    std::string fired;
    shown.held.lstNames.on_click = [&] { fired += shown.held.lstNames.text() + " "; };
    shown.held.lstNames.on_double_click = [&] { fired += "twice "; };
    const auto place = [&](int row) { return shown.names->visualItemRect(shown.names->item(row)).center(); };
    QTest::mouseClick(shown.names->viewport(), Qt::LeftButton, {}, place(1));
    QTest::keyClick(shown.names, Qt::Key_Down);
    QTest::keyClick(shown.names, Qt::Key_Home);
    EXPECT_EQ(fired, "Ben Cleo Ada ");
    QTest::mouseClick(shown.names->viewport(), Qt::LeftButton, {}, place(2));
    QTest::mouseDClick(shown.names->viewport(), Qt::LeftButton, {}, place(2));
    EXPECT_EQ(fired, "Ben Cleo Ada Cleo twice ");
}

TEST(binder, coming_into_a_list_chooses_nothing)
{
    bound_form shown;
    shown.held.lstNames.set_items({"Ada", "Ben"});
    int clicks = 0;
    shown.held.lstNames.on_click = [&] { ++clicks; };
    shown.name->setFocus();
    shown.names->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(shown.held.lstNames.list_index(), -1);
}

TEST(binder, a_list_that_its_click_handler_fills_anew_shows_the_new_entries)
{
    bound_form shown;
    shown.held.lstNames.set_items({"Ada", "Ben"});
    shown.held.lstNames.on_click = [&] { shown.held.lstNames.set_items({"Cleo"}); };
    const QPoint second = shown.names->visualItemRect(shown.names->item(1)).center();
    QTest::mouseClick(shown.names->viewport(), Qt::LeftButton, {}, second);
    ASSERT_EQ(shown.names->count(), 1);
    EXPECT_EQ(shown.names->item(0)->text(), "Cleo");
    EXPECT_TRUE(shown.errors.empty());
}

TEST(binder, a_slider_moves_by_keys_and_shows_where_it_was_cut)
{
    bound_form shown;
    shown.held.ScrSize.set_range(1, 400);
    shown.held.ScrSize.set_position(60);
    int changes = 0;
    shown.held.ScrSize.on_change = [&] { ++changes; };
    shown.scale->setFocus();
    QTest::keyClick(shown.scale, Qt::Key_Right);
    EXPECT_EQ(shown.held.ScrSize.position(), 61);
    QTest::keyClick(shown.scale, Qt::Key_End);
    EXPECT_EQ(shown.held.ScrSize.position(), 400);
    EXPECT_EQ(changes, 2);
}

TEST(binder, a_box_of_several_lines_takes_what_is_typed)
{
    bound_form shown;
    shown.note->setFocus();
    QTest::keyClicks(shown.note, "one");
    QTest::keyClick(shown.note, Qt::Key_Return);
    QTest::keyClicks(shown.note, "two");
    EXPECT_EQ(shown.held.txtNote.text(), "one\ntwo");
}

}  // namespace
