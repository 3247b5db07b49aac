#include "support/list_controls.h"
#include "support/platform_error.h"

#include <gtest/gtest.h>

namespace {

struct sample_form : form {
    sample_form() : form("sample_form") {}
    group frmGroup{*this, "frmGroup"};
    check_box chkOne{*this, "chkOne", "One"};
    option_set options;
    option_button optLeft{*this, "optLeft", options};
    option_button optRight{*this, "optRight", options};
    combo_box cmbSize{*this, "cmbSize"};
    text_box txtName{*this, "txtName"};
    button cmdOk{*this, "cmdOk"};
    label lblNote{*this, "lblNote"};
    picture picColor{*this, "picColor"};
    list_box lstNames{*this, "lstNames"};
    slider ScrSize{*this, "ScrSize"};
};

}  // namespace

TEST(forms, a_tick_fires_the_handler_once_and_the_same_value_not_at_all)
{
    sample_form window;
    int fired = 0;
    window.chkOne.on_change = [&] { ++fired; };
    window.chkOne.tick(true);
    window.chkOne.tick(true);
    EXPECT_EQ(fired, 1);
}

TEST(forms, a_handler_sees_the_new_value)
{
    sample_form window;
    bool seen = false;
    window.chkOne.on_change = [&] { seen = window.chkOne.ticked(); };
    window.chkOne.tick(true);
    EXPECT_TRUE(seen);
}

TEST(forms, selecting_an_option_deselects_the_other_without_a_word)
{
    sample_form window;
    std::string fired;
    window.optLeft.on_click = [&] { fired += 'l'; };
    window.optRight.on_click = [&] { fired += 'r'; };
    window.optLeft.select();
    window.optRight.select();
    window.optRight.select(false);
    EXPECT_EQ(fired, "lr");
    EXPECT_FALSE(window.optLeft.selected());
    EXPECT_FALSE(window.optRight.selected());
}

TEST(forms, the_other_option_is_deselected_before_the_handler_runs)
{
    sample_form window;
    window.optLeft.select();
    bool left = true;
    window.optRight.on_click = [&] { left = window.optLeft.selected(); };
    window.optRight.select();
    EXPECT_FALSE(left);
}

TEST(forms, typing_into_a_list_and_choosing_from_it_fire_different_handlers)
{
    sample_form window;
    window.cmbSize.set_items({"10", "20", "30"});
    std::string fired;
    window.cmbSize.on_typed = [&] { fired += "t" + window.cmbSize.text() + " "; };
    window.cmbSize.on_click = [&] { fired += "c" + window.cmbSize.text() + " "; };
    window.cmbSize.set_text("20");
    window.cmbSize.set_text("20");
    EXPECT_EQ(window.cmbSize.list_index(), 1);
    window.cmbSize.choose(2);
    window.cmbSize.choose(2);
    window.cmbSize.set_text("25");
    EXPECT_EQ(window.cmbSize.list_index(), -1);
    EXPECT_EQ(fired, "t20 c30 t25 ");
    EXPECT_THROW(window.cmbSize.choose(3), platform_error);
    EXPECT_THROW(window.cmbSize.choose(-1), platform_error);
}

TEST(forms, a_text_box_fires_when_its_text_changes)
{
    sample_form window;
    int fired = 0;
    window.txtName.on_change = [&] { ++fired; };
    window.txtName.set_text("a");
    window.txtName.set_text("a");
    window.txtName.set_font({.name = "Serif", .size = 16});
    EXPECT_EQ(fired, 1);
}

TEST(forms, a_control_keeps_its_own_flags_whatever_its_group_does)
{
    sample_form window;
    window.frmGroup.show(false);
    window.frmGroup.enable(false);
    EXPECT_TRUE(window.chkOne.visible());
    EXPECT_TRUE(window.chkOne.enabled());
}

TEST(forms, whoever_shows_a_control_is_told_of_each_change_once_and_before_the_handler)
{
    sample_form window;
    std::string told;
    window.chkOne.on_shown_change = [&] { told += 's'; };
    window.chkOne.on_change = [&] { told += 'h'; };
    window.chkOne.tick(true);
    window.chkOne.tick(true);
    window.chkOne.show(false);
    window.chkOne.enable(false);
    window.chkOne.set_caption("Two");
    window.chkOne.set_caption("Two");
    window.chkOne.set_tool_tip("tip");
    window.chkOne.move({.left = 1, .top = 2, .width = 3, .height = 4});
    window.chkOne.set_back_color(1);
    window.chkOne.set_fore_color(2);
    EXPECT_EQ(told, "shsssssss");
}

TEST(forms, a_picture_of_the_same_name_is_a_new_picture)
{
    sample_form window;
    int told = 0;
    window.picColor.on_shown_change = [&] { ++told; };
    window.picColor.load("/tmp/a.jpg");
    window.picColor.load("/tmp/a.jpg");
    EXPECT_EQ(told, 2);
    EXPECT_EQ(window.picColor.load_count(), 2);
    EXPECT_EQ(window.picColor.file(), "/tmp/a.jpg");
}

TEST(forms, a_control_is_found_by_its_name)
{
    sample_form window;
    EXPECT_EQ(window.find("cmdOk"), &window.cmdOk);
    EXPECT_EQ(window.find("cmdok"), nullptr);
    EXPECT_EQ(window.controls().size(), 11u);
}

TEST(forms, a_user_sets_controls_by_text_and_fires_their_handlers)
{
    sample_form window;
    window.cmbSize.set_items({"10", "20"});
    std::string fired;
    window.chkOne.on_change = [&] { fired += "x"; };
    window.cmbSize.on_typed = [&] { fired += "t"; };
    window.cmbSize.on_click = [&] { fired += "c"; };
    window.cmdOk.on_click = [&] { fired += "k"; };
    EXPECT_TRUE(window.chkOne.set_as_user("1"));
    EXPECT_EQ(window.chkOne.value(), "1");
    EXPECT_FALSE(window.chkOne.set_as_user("maybe"));
    EXPECT_TRUE(window.cmbSize.set_as_user("20"));
    EXPECT_TRUE(window.cmbSize.set_as_user("25"));
    EXPECT_EQ(window.cmbSize.value(), "25");
    EXPECT_TRUE(window.cmdOk.set_as_user(""));
    EXPECT_EQ(fired, "xctk");
    EXPECT_TRUE(window.optLeft.set_as_user("yes"));
    EXPECT_FALSE(window.optLeft.set_as_user("no"));
    EXPECT_TRUE(window.optLeft.selected());
    EXPECT_TRUE(window.txtName.set_as_user("name"));
    EXPECT_EQ(window.txtName.value(), "name");
    EXPECT_TRUE(window.picColor.set_as_user("255"));
    EXPECT_EQ(window.picColor.back_color(), 255u);
    EXPECT_FALSE(window.lblNote.set_as_user("text"));
}

TEST(forms, a_window_is_loaded_once_until_it_is_taken_down)
{
    sample_form window;
    int loads = 0;
    window.on_load = [&] { ++loads; };
    window.load();
    window.load();
    EXPECT_EQ(loads, 1);
    window.unload();
    EXPECT_FALSE(window.loaded());
    window.load();
    EXPECT_EQ(loads, 2);
}

TEST(forms, a_window_may_refuse_to_close)
{
    sample_form window;
    bool agrees = false;
    window.on_query_unload = [&] { return agrees; };
    window.load();
    window.request_close();
    EXPECT_TRUE(window.loaded());
    agrees = true;
    window.request_close();
    EXPECT_FALSE(window.loaded());
}

TEST(forms, resizing_a_window_fires_its_handler_once)
{
    sample_form window;
    int fired = 0;
    window.on_resize = [&] {
        ++fired;
        window.resize(15600, 10125);
    };
    window.resize(1000, 1000);
    EXPECT_EQ(fired, 2);
    EXPECT_EQ(window.width(), 15600);
}

TEST(list_box, selecting_an_entry_fires_the_click_handler_once_and_deselecting_fires_nothing)
{
    sample_form window;
    window.lstNames.set_items({"Ada", "Ben"});
    std::string fired;
    window.lstNames.on_click = [&] { fired += window.lstNames.text() + " "; };
    window.lstNames.select(1);
    window.lstNames.select(1);
    window.lstNames.select(-1);
    EXPECT_EQ(window.lstNames.text(), "");
    EXPECT_TRUE(window.lstNames.set_as_user("Ada"));
    EXPECT_FALSE(window.lstNames.set_as_user("Cleo"));
    EXPECT_EQ(fired, "Ben Ada ");
    EXPECT_EQ(window.lstNames.list_index(), 0);
    EXPECT_EQ(window.lstNames.value(), "Ada");
}

TEST(list_box, a_double_click_selects_first)
{
    sample_form window;
    window.lstNames.set_items({"Ada", "Ben"});
    std::string fired;
    window.lstNames.on_click = [&] { fired += "click "; };
    window.lstNames.on_double_click = [&] { fired += "double " + window.lstNames.text(); };
    window.lstNames.double_click(1);
    EXPECT_EQ(fired, "click double Ben");
}

TEST(list_box, other_entries_leave_none_selected)
{
    sample_form window;
    window.lstNames.set_items({"Ada", "Ben"});
    window.lstNames.select(1);
    window.lstNames.set_items({"Ada", "Ben"});
    EXPECT_EQ(window.lstNames.list_index(), -1);
}

TEST(list_box, the_selection_stays_with_its_entry_when_another_goes)
{
    sample_form window;
    window.lstNames.set_items({"Ada", "Ben"});
    window.lstNames.add_item("Cleo");
    window.lstNames.select(2);
    window.lstNames.remove_item(0);
    EXPECT_EQ(window.lstNames.text(), "Cleo");
    window.lstNames.remove_item(1);
    EXPECT_EQ(window.lstNames.list_index(), -1);
    EXPECT_EQ(window.lstNames.items(), std::vector<std::string>{"Ben"});
}

TEST(list_box, an_entry_that_is_not_there_raises_9)
{
    sample_form window;
    window.lstNames.set_items({"Ada"});
    EXPECT_THROW(window.lstNames.select(1), platform_error);
    EXPECT_THROW(window.lstNames.select(-2), platform_error);
    EXPECT_THROW(window.lstNames.double_click(-1), platform_error);
    EXPECT_THROW(window.lstNames.remove_item(1), platform_error);
}

TEST(slider, keeps_its_position_in_its_range)
{
    sample_form window;
    int fired = 0;
    window.ScrSize.on_change = [&] { ++fired; };
    window.ScrSize.set_range(8, 72);
    EXPECT_EQ(window.ScrSize.position(), 8);
    EXPECT_EQ(fired, 1);
    window.ScrSize.set_position(100);
    window.ScrSize.set_position(72);
    EXPECT_EQ(window.ScrSize.position(), 72);
    EXPECT_EQ(fired, 2);
    EXPECT_TRUE(window.ScrSize.set_as_user("12"));
    EXPECT_EQ(window.ScrSize.value(), "12");
}

TEST(entry_box, takes_its_entries_alone_from_a_user)
{
    form window("shapes");
    entry_box shape(window, "cmbShape");
    shape.set_items({"Stars", "Clouds"});
    int chosen = 0;
    shape.on_click = [&] { ++chosen; };
    EXPECT_TRUE(shape.set_as_user("Clouds"));
    EXPECT_FALSE(shape.set_as_user("Cloud"));
    EXPECT_EQ(shape.text(), "Clouds");
    EXPECT_EQ(chosen, 1);
}
