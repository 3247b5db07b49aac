#include "recipes/frmRecent.h"

#include "support/files/text_file.h"
#include "tests/recipes/flurn_session.h"

namespace {

struct some_flurns : flurn_session {
    some_flurns()
    {
        for (const char * second : {"11", "12", "13"})
            keep_recipe(
                main,
                {.made = std::string("2026-11-22 15:30:") + second, .design = std::string("D") + second},
                "picture");
    }
    // What was chosen there.
    std::optional<std::string> shown(const std::function<void(frmRecent &)> & play)
    {
        desk.on_modal<frmRecent>(play);
        return ask(desk, all.recent);
    }
};

}  // namespace

TEST(frmRecent, lists_the_newest_first_with_day_design_and_picture)
{
    some_flurns session;
    session.shown([&](frmRecent & window) {
        EXPECT_EQ(window.lstFlurns.items(),
                  (std::vector<std::string>{"2026-11-22 15:30   D13", "2026-11-22 15:30   D12",
                                            "2026-11-22 15:30   D11"}));
        ASSERT_EQ(window.lstFlurns.pictures().size(), 3U);
        EXPECT_TRUE(window.lstFlurns.pictures().front().ends_with("recipes/2026-11-22_153013.jpg"));
        EXPECT_EQ(window.lstFlurns.list_index(), 0) << "a key opens the newest";
        expect_states(window, "cmdOk+ cmdRemove+ cmdFile+ cmdCancel+ lblEmpty_");
        window.lstFlurns.select(1);
        expect_states(window, "cmdOk+ cmdRemove+");
    });
}

TEST(frmRecent, gives_the_one_that_is_opened)
{
    some_flurns session;
    const auto by_button = session.shown([](frmRecent & window) {
        window.lstFlurns.select(1);
        window.cmdOk.click();
    });
    ASSERT_TRUE(by_button);
    EXPECT_TRUE(by_button->ends_with("153012.flurn"));
    const auto by_mouse = session.shown([](frmRecent & window) { window.lstFlurns.double_click(0); });
    ASSERT_TRUE(by_mouse);
    EXPECT_TRUE(by_mouse->ends_with("153013.flurn"));
    EXPECT_FALSE(session.shown([](frmRecent & window) { window.cmdCancel.click(); }));
}

TEST(frmRecent, gives_a_file_from_elsewhere)
{
    some_flurns session;
    session.desk.will_choose_file(std::nullopt);
    session.desk.will_choose_file("/there/holiday.flurn");
    EXPECT_EQ(session.shown([](frmRecent & window) {
        window.cmdFile.click();
        EXPECT_TRUE(window.loaded());
        window.cmdFile.click();
    }),
              "/there/holiday.flurn");
}

TEST(frmRecent, removes_one_with_its_picture_and_tells_when_none_is_left)
{
    some_flurns session;
    session.shown([&](frmRecent & window) {
        for (int left = 3; left > 0; --left) {
            EXPECT_EQ(window.lstFlurns.pictures().size(), static_cast<std::size_t>(left));
            window.cmdRemove.click();
        }
        expect_states(window, "lblEmpty^ cmdOk- cmdRemove-");
    });
    EXPECT_TRUE(files_in(session.main.data_folder + "/recipes").empty());
}

TEST(frmRecent, lists_what_can_not_be_read_by_its_name)
{
    some_flurns session;
    session.folder.write("data/recipes/odd.flurn", "something else");
    session.shown([](frmRecent & window) { EXPECT_EQ(window.lstFlurns.items().front(), "odd.flurn"); });
}
