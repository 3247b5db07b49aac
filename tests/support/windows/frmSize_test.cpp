#include "tests/session/opened_session.h"

namespace {

/// The size window, open over the image window.
struct size_test : testing::Test {
    size_test() { window.load(); }
    void choose_custom(const std::string & number)
    {
        window.optCustom.select();
        window.txtSize.set_text(number);
        window.cmdOk.click();
    }
    opened_session session;
    frmSize & window = session.all.size;
    std::optional<int16> & result = window.result;
};

}  // namespace

TEST_F(size_test, opens_at_full_size)
{
    EXPECT_EQ(window.caption(), "Collage Size");
    EXPECT_EQ(window.optFull.caption(), "Full size - 2000px * 3000px   (for printing up to 20 x 30 inches)");
    EXPECT_EQ(window.optWeb.caption(), "Web size -  500px * 750px   (for email, Facebook, etc)");
    EXPECT_EQ(window.optCustom.caption(), "Custom size");
    EXPECT_EQ(window.lblSize.caption(), "Number of pixels on long side:");
    expect_states(window, "optFull1 lblSize_ txtSize_");
    window.cmdOk.click();
    EXPECT_FALSE(window.loaded());
    EXPECT_EQ(result, 3000);
}

TEST_F(size_test, speaks_of_a_square_poster_but_means_3000_all_the_same)
{
    window.unload();
    session.all.image.is_square = true;
    window.load();
    EXPECT_EQ(window.optFull.caption(), "Full size - 2000px * 2000px   (for printing up to 20 x 20 inches)");
    window.optWeb.select();
    window.optFull.select();
    window.cmdOk.click();
    EXPECT_EQ(result, 3000);
}

TEST_F(size_test, the_web_s_size_is_750)
{
    window.optCustom.select();
    window.optWeb.select();
    expect_states(window, "lblSize_ txtSize_");
    window.cmdOk.click();
    EXPECT_EQ(result, 750);
}

TEST_F(size_test, custom_shows_the_number)
{
    window.optCustom.select();
    expect_states(window, "lblSize^ txtSize^");
    window.optFull.select();
    expect_states(window, "lblSize_ txtSize_");
}

TEST_F(size_test, refuses_what_is_too_small_or_too_large_and_stays)
{
    struct row {
        const char *typed, *message;
    };
    const char * const small = "Collage would be too small";
    const char * const large = "Collage would be too large";
    for (const row & each :
         {row{"49", small}, row{"12001", large}, row{"abc", small}, row{"", small}, row{"-100", small},
          row{"x200", small}, row{"40000", large}, row{"49.4", small}}) {
        choose_custom(each.typed);
        EXPECT_EQ(session.desk.next_message(), each.message) << each.typed;
        EXPECT_TRUE(window.loaded());
    }
    choose_custom("1000");
    EXPECT_FALSE(window.loaded());
    EXPECT_EQ(result, 1000);
}

TEST(frmSize, accepts_from_50_to_12000)
{
    struct row {
        const char * typed;
        int size;
    };
    for (const row & each : {row{"50", 50}, row{"12000", 12000}, row{"49.6", 50}, row{" 640 px", 640}}) {
        opened_session session;
        session.all.size.load();
        session.all.size.optCustom.select();
        session.all.size.txtSize.set_text(each.typed);
        session.all.size.cmdOk.click();
        EXPECT_EQ(session.all.size.result, each.size) << each.typed;
        EXPECT_FALSE(session.all.size.loaded());
    }
}

TEST_F(size_test, every_way_of_cancelling_gives_none)
{
    window.optWeb.select();
    window.cmdCancel.click();
    EXPECT_EQ(result, std::nullopt);
    EXPECT_FALSE(window.loaded());
    window.load();
    window.request_close();
    EXPECT_EQ(result, std::nullopt);
    EXPECT_FALSE(window.loaded());
}

TEST_F(size_test, opens_afresh_each_time)
{
    choose_custom("640");
    window.load();
    expect_states(window, "optFull1 optCustom0 lblSize_ txtSize_");
    EXPECT_EQ(window.txtSize.text(), "");
    window.cmdOk.click();
    EXPECT_EQ(result, 3000);
}
