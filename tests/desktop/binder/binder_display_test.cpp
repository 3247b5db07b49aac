#include "support/platform_error.h"
#include "tests/desktop/bound_form.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>
#include <utility>

namespace {

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

TEST(binder, a_large_box_is_filled_with_its_back_colour)
{
    bound_form shown;
    shown.held.txtNote.set_back_color(0xF0FFE0);  // red is the low byte
    shown.held.txtNote.set_fore_color(0x102030);
    const QImage drawn = shown.note->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(drawn.rect().center()), QColor(0xE0, 0xFF, 0xF0));
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
