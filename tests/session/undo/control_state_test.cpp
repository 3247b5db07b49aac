#include "session/undo/control_state.h"

#include "support/list_controls.h"

#include <gtest/gtest.h>

namespace {

struct some_controls : form {
    some_controls() : form("some_controls") { list.set_items({"1", "2"}); }
    check_box box{*this, "box"};
    option_set options;
    option_button left{*this, "left", options, "Left"}, right{*this, "right", options, "Right"};
    combo_box list{*this, "list"};
    text_box text{*this, "text"};
    picture swatch{*this, "swatch"};
};

std::vector<control_state> states_of(const form & window)
{
    std::vector<control_state> states;
    for (const control * each : window.controls())
        states.push_back(state_of(*each));
    return states;
}

void take_states(form & window, const std::vector<control_state> & states)
{
    for (std::size_t i = 0; i < states.size(); ++i)
        take_state(*window.controls()[i], states[i]);
}

void change(some_controls & window)
{
    window.box.tick(true);
    window.right.select();
    window.list.set_text("2");
    window.text.set_text("words");
    window.text.set_font({.name = "Serif", .size = 12});
    window.text.tag = "120";
    window.swatch.set_back_color(0x123456);
    window.text.set_fore_color(0xFF);
    window.left.set_caption("Bottom");
    window.list.enable(false);
    window.swatch.show(false);
    window.list.move({.left = 3, .top = 4});
    window.box.set_tool_tip("tip");
}

}  // namespace

TEST(control_state, brings_all_that_a_control_holds)
{
    some_controls one, other;
    change(one);
    take_states(other, states_of(one));
    EXPECT_EQ(states_of(other), states_of(one));
    EXPECT_TRUE(other.right.selected());
    EXPECT_EQ(other.list.list_index(), 1);
    EXPECT_EQ(other.text.font().name, "Serif");
    EXPECT_EQ(other.text.tag, "120");
}

TEST(control_state, brings_back_options_of_which_none_is_selected)
{
    some_controls window;
    const std::vector<control_state> none = states_of(window);
    window.left.select();
    take_states(window, none);
    EXPECT_EQ(selected_of(window.options), nullptr);
}

TEST(control_state, fires_no_handler_and_leaves_them_in_place)
{
    some_controls window, changed;
    change(changed);
    int fired = 0;
    const auto count = [&fired] { ++fired; };
    window.box.on_change = window.left.on_click = window.right.on_click = count;
    window.list.on_typed = window.list.on_click = window.text.on_change = count;
    take_states(window, states_of(changed));
    EXPECT_EQ(fired, 0);
    window.box.tick(false);
    window.left.select();
    window.list.set_text("5");
    window.text.set_text("x");
    EXPECT_EQ(fired, 4);
}

TEST(control_state, tells_who_shows_the_control)
{
    some_controls window, changed;
    change(changed);
    int told = 0;
    window.box.on_shown_change = [&told] { ++told; };
    take_states(window, states_of(changed));
    EXPECT_GT(told, 0);
}
