#include "support/desktop.h"
#include "tests/scripted_desktop.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

struct frmNumber : form {
    frmNumber() : form("frmNumber") {}
    std::optional<int> result;
};

}  // namespace

TEST(ask, gives_what_the_dialog_was_closed_with)
{
    scripted_desktop desk;
    frmNumber dialog;
    desk.on_modal<frmNumber>([](frmNumber & shown) {
        shown.result = 7;
        shown.unload();
    });
    EXPECT_EQ(ask(desk, dialog), 7);
}

TEST(ask, gives_nothing_after_a_cancel_whatever_was_given_before)
{
    scripted_desktop desk;
    frmNumber dialog;
    dialog.result = 7;
    desk.on_modal<frmNumber>([](frmNumber & shown) { shown.unload(); });
    EXPECT_EQ(ask(desk, dialog), std::nullopt);
}
