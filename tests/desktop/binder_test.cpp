#include "bound_form.h"
#include "support/platform_error.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

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

// ---- from control to window

TEST(binder, what_the_session_sets_in_a_list_a_slider_or_a_large_box_is_shown_and_fires_no_handler_again)
{
    bound_form shown;
    int fired = 0;
    shown.held.lstNames.on_click = shown.held.ScrSize.on_change =
        shown.held.txtNote.on_change = [&] { ++fired; };
    shown.held.lstNames.set_items({"Ada", "Ben"});
    shown.held.lstNames.select(1);
    shown.held.ScrSize.set_range(10, 90);
    shown.held.txtNote.set_text("one\r\n\r\ntwo");
    EXPECT_EQ(shown.names->count(), 2);
    EXPECT_EQ(shown.names->currentRow(), 1);
    EXPECT_TRUE(shown.names->item(1)->isSelected());
    EXPECT_EQ(shown.scale->minimum(), 10);
    EXPECT_EQ(shown.scale->maximum(), 90);
    EXPECT_EQ(shown.scale->value(), 10);
    EXPECT_EQ(shown.note->toPlainText(), "one\n\ntwo");
    EXPECT_EQ(fired, 3);
    shown.held.lstNames.select(-1);
    EXPECT_TRUE(shown.names->selectedItems().isEmpty());
    EXPECT_EQ(fired, 3);
}

TEST(binder, what_the_session_sets_is_shown_and_fires_no_handler_again)
{
    bound_form shown;
    int changes = 0;
    shown.held.chkKeep.on_change = [&] { ++changes; };
    shown.held.chkKeep.tick(true);
    shown.held.txtName.set_text("north");
    shown.held.lblName.set_caption("A & B");
    shown.held.cmbSize.set_text("77");
    shown.held.cmdGo.set_caption("Stop");
    EXPECT_TRUE(shown.keep->isChecked());
    EXPECT_EQ(shown.name->text(), "north");
    EXPECT_EQ(shown.name_label->text(), "A & B");
    EXPECT_EQ(shown.size->currentText(), "77");
    EXPECT_EQ(shown.size->currentIndex(), -1);
    EXPECT_EQ(shown.go->text(), "Stop");
    EXPECT_EQ(changes, 1);
}

TEST(binder, the_session_can_deselect_all_options)
{
    bound_form shown;
    shown.held.optLeft.select();
    EXPECT_TRUE(shown.left->isChecked());
    shown.held.optLeft.select(false);
    EXPECT_FALSE(shown.left->isChecked());
    EXPECT_FALSE(shown.right->isChecked());
}

TEST(binder, visible_and_enabled_are_the_control_s_own)
{
    bound_form shown;
    shown.held.cmdGo.show(false);
    shown.held.chkKeep.enable(false);
    EXPECT_TRUE(shown.go->isHidden());
    EXPECT_FALSE(shown.keep->isEnabled());
    shown.held.cmdGo.show(true);
    EXPECT_FALSE(shown.go->isHidden());
}

TEST(binder, a_list_takes_new_items_and_keeps_its_text)
{
    bound_form shown;
    shown.held.cmbSize.set_text("20");
    shown.held.cmbSize.add_item("40");
    EXPECT_EQ(shown.size->count(), 4);
    EXPECT_EQ(shown.size->currentText(), "20");
    EXPECT_EQ(shown.size->currentIndex(), 1);
}

TEST(binder, a_spaced_title_is_read_out_as_words)
{
    bound_form shown;
    EXPECT_EQ(shown.all->title(), "   A l l   ");
    EXPECT_EQ(shown.all->accessibleName(), "All");
}

TEST(binder, colours_and_tool_tips_are_shown)
{
    bound_form shown;
    shown.held.picColor.set_back_color(0x0000FF);
    shown.held.txtName.set_fore_color(0xFFFFFF);
    shown.held.txtName.set_tool_tip("Your name");
    EXPECT_EQ(shown.color->back_color(), QColor(255, 0, 0));
    EXPECT_EQ(shown.name->palette().color(QPalette::Text), QColor(255, 255, 255));
    EXPECT_EQ(shown.name->palette().color(QPalette::Base), QColor(0, 0, 0));
    EXPECT_EQ(shown.name->toolTip(), "Your name");
}

TEST(binder, a_font_is_shown_at_96_dots_an_inch_and_no_larger_than_its_box_allows)
{
    bound_form shown;
    shown.name->setProperty("largest", 30);
    shown.held.txtName.set_font({.name = "DejaVu Sans", .size = 15, .bold = true});
    EXPECT_EQ(shown.name->font().pixelSize(), 20);
    EXPECT_TRUE(shown.name->font().bold());
    shown.held.txtName.set_font({.name = "DejaVu Sans", .size = 60});
    EXPECT_EQ(shown.name->font().pixelSize(), 30);
}

TEST(binder, a_placed_widget_follows_its_control)
{
    bound_form shown;
    shown.color->setProperty("placed", true);
    shown.held.picColor.move({20, 30, 40, 50});
    EXPECT_EQ(shown.color->geometry(), QRect(20, 30, 40, 50));
    shown.held.picColor.move({25, 35});
    EXPECT_EQ(shown.color->geometry(), QRect(QPoint(25, 35), shown.color->sizeHint()));
}

TEST(binder, a_covered_widget_shows_only_while_its_cover_is_away)
{
    one_of_each second;
    QDialog window;
    QCheckBox cover(&window);
    QPushButton covered(&window);
    cover.setObjectName("chkKeep");
    covered.setObjectName("cmdGo");
    covered.setProperty("coveredBy", "chkKeep");
    bind(second, window, {});
    EXPECT_TRUE(covered.isHidden());
    second.chkKeep.show(false);
    EXPECT_FALSE(covered.isHidden());
    second.cmdGo.show(false);
    EXPECT_TRUE(covered.isHidden());
}

// ---- keys that move about, double clicks

TEST(binder, a_key_that_moves_about_is_the_form_s_first)
{
    bound_form shown;
    std::vector<std::pair<move_key, const control *>> asked;
    shown.held.on_move_key = [&](move_key pressed, const control * focused) {
        asked.emplace_back(pressed, focused);
        shown.held.optRight.select();
        return pressed == move_key::left;
    };
    shown.left->setFocus();
    QTest::keyClick(shown.left, Qt::Key_Left);
    EXPECT_EQ(asked,
              (std::vector<std::pair<move_key, const control *>>{{move_key::left, &shown.held.optLeft}}));
    EXPECT_TRUE(shown.right->hasFocus()) << "the keyboard follows the selection";
}

TEST(binder, a_key_that_the_form_leaves_does_what_it_usually_does)
{
    bound_form shown;
    shown.held.on_move_key = [](move_key, const control *) { return false; };
    shown.left->setFocus();
    QTest::keyClick(shown.left, Qt::Key_Down);
    EXPECT_TRUE(shown.held.optRight.selected());
}

TEST(binder, a_page_key_that_no_widget_takes_reaches_the_form)
{
    bound_form shown;
    int pages = 0;
    shown.held.on_move_key = [&](move_key pressed, const control * focused) {
        pages += pressed == move_key::page_down && focused == &shown.held.cmdGo;
        return true;
    };
    shown.go->setFocus();
    QTest::keyClick(shown.go, Qt::Key_PageDown);
    EXPECT_EQ(pages, 1);
}

TEST(binder, a_double_click_on_an_option_reaches_it_once_it_is_selected)
{
    bound_form shown;
    int clicks = 0;
    shown.held.optLeft.on_double_click = [&] { ++clicks; };
    QTest::mouseDClick(shown.left, Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_EQ(clicks, 0) << "its first click fell beside the text";
    QTest::mouseClick(shown.left, Qt::LeftButton, {}, QPoint(8, 12));
    QTest::mouseDClick(shown.left, Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_EQ(clicks, 1);
    QTest::mouseClick(shown.right, Qt::LeftButton, {}, QPoint(8, 12));
    QTest::mouseDClick(shown.right, Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_EQ(clicks, 1);
}

TEST(binder, a_tool_tip_that_the_session_takes_back_is_gone)
{
    bound_form shown;
    shown.go->setToolTip("from the layout");
    shown.held.cmdGo.set_caption("other");
    EXPECT_EQ(shown.go->toolTip(), "from the layout");
    shown.held.cmdGo.set_tool_tip("told");
    shown.held.cmdGo.set_tool_tip("");
    EXPECT_EQ(shown.go->toolTip(), "");
}

TEST(binder, of_one_stop_options_the_tab_key_reaches_the_selected_one)
{
    bound_form shown;
    for (QRadioButton * option : {shown.left, shown.right})
        option->setProperty("oneStop", true);
    shown.held.optLeft.select();
    shown.held.optRight.select();
    EXPECT_EQ(shown.left->focusPolicy(), Qt::ClickFocus);
    EXPECT_EQ(shown.right->focusPolicy(), Qt::StrongFocus);
}

}  // namespace
