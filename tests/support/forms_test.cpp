#include "support/forms.h"

#include <gtest/gtest.h>

namespace {

struct sample_form : form {
    sample_form() : form("sample_form") {}
    check_box chkOne{*this, "chkOne"};
    option_set options;
    option_button optLeft{*this, "optLeft", options};
    option_button optRight{*this, "optRight", options};
    combo_box cmbSize{*this, "cmbSize"};
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
