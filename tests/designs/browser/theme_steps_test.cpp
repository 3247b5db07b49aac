#include "designs/browser/theme_steps.h"

#include "tests/designs/opened_browser.h"

TEST(GetDesigns, thirteen_designs_fill_slots_0_to_6_and_8_to_13)
{
    const opened_browser session(plain_designs(13));
    EXPECT_EQ(session.listed(), "0:n1 1:n2 2:n3 3:n4 4:n5 5:n6 6:n7 8:n8 9:n9 10:n10 11:n11 12:n12 13:n13");
}

TEST(cmdPage_plus, twenty_designs_are_a_page_of_14_and_one_of_6)
{
    opened_browser session(plain_designs(20));
    EXPECT_EQ(session.listed(),
              "0:n1 1:n2 2:n3 3:n4 4:n5 5:n6 6:n7 8:n8 9:n9 10:n10 11:n11 12:n12 13:n13 14:n14");
    expect_states(session.browser, "cmdPage_plus+ cmdPage_minus- cmdNext+ cmdPrevious-");
    EXPECT_EQ(session.browser.page_start, 14);
    EXPECT_TRUE(session.browser.more_pages);
    session.browser.cmdPage_plus.click();
    EXPECT_EQ(session.listed(), "0:n15 1:n16 2:n17 8:n18 9:n19 10:n20");
    expect_states(session.browser, "cmdPage_plus- cmdPage_minus+ cmdNext+ cmdPrevious+ optDesign_01");
    EXPECT_EQ(session.browser.page_start, 14);
    EXPECT_FALSE(session.browser.more_pages);
    session.browser.cmdPage_minus.click();
    EXPECT_TRUE(session.listed().starts_with("0:n1 "));
    expect_states(session.browser, "cmdPage_plus+ cmdPage_minus- cmdPrevious-");
    EXPECT_EQ(session.browser.page_start, 14);
}

TEST(cmdPage_minus, goes_back_by_28_from_a_page_with_others_behind_it)
{
    opened_browser session(plain_designs(40));
    session.browser.cmdPage_plus.click();
    EXPECT_EQ(session.browser.page_start, 28);
    session.browser.cmdPage_minus.click();
    EXPECT_TRUE(session.listed().starts_with("0:n1 "));
    session.browser.cmdPage_plus.click();
    session.browser.cmdPage_plus.click();
    EXPECT_TRUE(session.listed().starts_with("0:n29 "));
    session.browser.cmdPage_minus.click();
    EXPECT_TRUE(session.listed().starts_with("0:n15 "));
}

TEST(cmdPage_plus, keeps_the_count_that_was_chosen)
{
    std::string catalogue;
    for (int i = 1; i <= 40; ++i)
        catalogue += design_section_text(i, "n" + std::to_string(i), {i % 2 ? "Count=10" : "Count=20"});
    opened_browser session(catalogue);
    session.browser.cmbDesign.choose(2);
    session.browser.cmdPage_plus.click();
    EXPECT_EQ(session.listed(), "0:n30 1:n32 2:n34 8:n36 9:n38 10:n40");
    EXPECT_EQ(session.browser.cmbDesign.text(), "20 images");
}

// ---- next and previous

TEST(cmdNext, passes_over_the_empty_slot_between_the_columns)
{
    opened_browser session(plain_designs(14));
    std::string walk;
    for (int i = 0; i < 9; ++i) {
        walk += std::to_string(session.browser.selected_index) + " ";
        session.browser.cmdNext.click();
    }
    EXPECT_EQ(walk, "0 1 2 3 4 5 6 8 9 ");
}

TEST(cmdNext, passes_over_the_empty_slots_of_a_short_left_column)
{
    opened_browser session(plain_designs(3));
    session.browser.cmdNext.click();
    session.browser.cmdNext.click();
    EXPECT_EQ(session.browser.selected_index, 8);
    EXPECT_EQ(session.selected(), "n3");
}

TEST(cmdNext, goes_on_to_the_next_page_and_ends_at_the_last_design)
{
    opened_browser session(plain_designs(16));
    session.browser.optDesign[14].select();
    session.browser.cmdNext.click();
    EXPECT_EQ(session.selected(), "n15");
    EXPECT_EQ(session.listed(), "0:n15 8:n16");
    EXPECT_TRUE(session.browser.cmdNext.enabled());
    session.browser.cmdNext.click();
    EXPECT_EQ(session.selected(), "n16");
    EXPECT_FALSE(session.browser.cmdNext.enabled());
    EXPECT_TRUE(session.browser.cmdPrevious.enabled());
}

TEST(cmdNext, on_the_last_design_stays_there)
{
    opened_browser session(plain_designs(1));
    session.browser.cmdNext.click();
    EXPECT_EQ(session.selected(), "n1");
    expect_states(session.browser, "cmdNext- cmdOk+");
}

TEST(cmdPrevious, goes_back_to_the_last_design_of_the_page_before)
{
    opened_browser session(plain_designs(16));
    session.browser.cmdPage_plus.click();
    session.browser.cmdPrevious.click();
    EXPECT_EQ(session.selected(), "n14");
    EXPECT_EQ(session.browser.selected_index, 14);
    expect_states(session.browser, "cmdNext+ cmdPrevious+ cmdPage_plus+ cmdPage_minus-");
}

TEST(cmdPrevious, ends_at_the_first_design)
{
    opened_browser session(plain_designs(3));
    session.browser.optDesign[1].select();
    session.browser.cmdNext.click();
    EXPECT_FALSE(session.browser.cmdNext.enabled());
    session.browser.cmdPrevious.click();
    EXPECT_EQ(session.selected(), "n2");
    EXPECT_TRUE(session.browser.cmdNext.enabled());
    session.browser.cmdPrevious.click();
    EXPECT_EQ(session.selected(), "n1");
    EXPECT_FALSE(session.browser.cmdPrevious.enabled());
}

TEST(cmdNext, without_any_design_does_nothing)
{
    opened_browser session("");
    session.browser.cmdNext.click();
    session.browser.cmdPrevious.click();
    EXPECT_EQ(session.browser.selected_index, -1);
}

// ---- the keyboard

namespace {

// Presses keys while a design has the keyboard: d, u, l, r; n and p page.
void press(opened_browser & session, const std::string & keys)
{
    for (const char sign : keys) {
        const move_key pressed = sign == 'd'   ? move_key::down
                                 : sign == 'u' ? move_key::up
                                 : sign == 'l' ? move_key::left
                                 : sign == 'r' ? move_key::right
                                 : sign == 'n' ? move_key::page_down
                                               : move_key::page_up;
        EXPECT_TRUE(session.browser.on_move_key(pressed, &session.browser.optDesign[0])) << sign;
    }
}

}  // namespace

TEST(keys_of_the_browser, up_and_down_go_through_the_columns_and_pages)
{
    opened_browser session(plain_designs(16));
    press(session, "ddddddd");
    EXPECT_EQ(session.selected(), "n8");
    press(session, "ddddddd");
    EXPECT_EQ(session.selected(), "n15");
    press(session, "dddd");
    EXPECT_EQ(session.selected(), "n16");
    press(session, "uu");
    EXPECT_EQ(session.selected(), "n14");
}

TEST(keys_of_the_browser, left_and_right_change_the_column)
{
    opened_browser session(plain_designs(5));
    press(session, "dr");
    EXPECT_EQ(session.selected(), "n5");
    press(session, "r");
    EXPECT_EQ(session.selected(), "n5");
    press(session, "l");
    EXPECT_EQ(session.selected(), "n2");
    press(session, "dr");
    EXPECT_EQ(session.selected(), "n5");
}

TEST(keys_of_the_browser, right_of_a_single_design_is_nothing)
{
    opened_browser session(plain_designs(1));
    press(session, "r");
    EXPECT_EQ(session.selected(), "n1");
}

TEST(keys_of_the_browser, the_page_keys_page_wherever_the_keyboard_is)
{
    opened_browser session(plain_designs(20));
    EXPECT_TRUE(session.browser.on_move_key(move_key::page_down, &session.browser.optAll));
    EXPECT_EQ(session.selected(), "n15");
    EXPECT_TRUE(session.browser.on_move_key(move_key::page_down, nullptr));
    EXPECT_EQ(session.selected(), "n15");
    press(session, "pp");
    EXPECT_EQ(session.selected(), "n1");
}

TEST(keys_of_the_browser, arrows_elsewhere_stay_as_they_are)
{
    opened_browser session(plain_designs(20));
    EXPECT_FALSE(session.browser.on_move_key(move_key::down, &session.browser.optAll));
    EXPECT_FALSE(session.browser.on_move_key(move_key::left, nullptr));
    EXPECT_EQ(session.selected(), "n1");
}
