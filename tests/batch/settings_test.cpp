#include "tests/batch/batch_program.h"

namespace {

class settings : public batch_program {
protected:
    std::string refusal_of(const std::string & setting) const
    {
        return refusal(
            {"--photos", photos(), "--design", "Mosaic wall", "--preview", "--out", out(), "--set", setting});
    }
};

}  // namespace

TEST_F(settings, a_wrong_entry_is_refused_with_what_there_is_to_choose)
{
    struct row {
        const char *setting, *fault;
    };
    for (const row & each :
         {row{"cmbShapes=Hearts",
              "cmbShapes takes one of Squares, Circles, Stars, Hearrs, Puzzle pieces, Stamps, Clouds, "
              "Leaves, "
              "Ovals, Polka Dots, Targets, Stripes, not \"Hearts\""},
          {"cmbShapes=",
           "cmbShapes takes one of Squares, Circles, Stars, Hearrs, Puzzle pieces, Stamps, Clouds, "
           "Leaves, Ovals, Polka Dots, Targets, Stripes, not \"\""},
          {"cmbShadow=abc",
           "cmbShadow takes a number (the list has 0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50), not \"abc\""},
          {"cmbShadow=",
           "cmbShadow takes a number (the list has 0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50), not \"\""},
          {"cmbShadow=5px",
           "cmbShadow takes a number (the list has 0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50), not \"5px\""},
          {"cmbShadow=nan",
           "cmbShadow takes a number (the list has 0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50), not \"nan\""},
          {"chkMatch=perhaps", "chkMatch takes 1 or 0, yes or no, not \"perhaps\""},
          {"chkMatch=", "chkMatch takes 1 or 0, yes or no, not \"\""},
          {"optTop=0", "optTop takes 1, which selects it, not \"0\""},
          {"cmdRowUp=3", "cmdRowUp takes 1, which presses it, not \"3\""},
          {"picBGcolor=red", "picBGcolor takes a colour, a whole number from 0 to 16777215, not \"red\""},
          {"picBGcolor=16777216",
           "picBGcolor takes a colour, a whole number from 0 to 16777215, not \"16777216\""}})
        EXPECT_EQ(refusal_of(each.setting), each.fault);
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(settings, an_unknown_control_is_refused_with_those_that_can_be_set)
{
    for (const char * name : {"chkNone", "lblRows", "frmShake", "mnuFile", "cmdCancel"}) {
        const std::string fault = refusal_of(std::string(name) + "=1");
        EXPECT_NE(fault.find("\"" + std::string(name) + "\""), std::string::npos) << fault;
        for (const char * control :
             {" chkMatch,", " cmbShapes,", " optLandscape,", " txtCaption,", " picBGcolor,"})
            EXPECT_NE(fault.find(control), std::string::npos) << control;
        for (const char * fixed : {" lblFrame,", " frmBlend,", " mnuQuit,", " cmdCancel,"})
            EXPECT_EQ(fault.find(fixed), std::string::npos) << fixed;
    }
}

TEST_F(settings, numbers_are_taken_that_the_lists_don_t_have)
{
    const auto shown = [&](const std::string & name, const std::string & value) {
        for (const auto & row :
             table_of(printed({"--dump", "--design", "Mosaic wall", "--set", name + "=" + value})))
            if (row[0] == name)
                return row[3];
        return std::string();
    };
    EXPECT_EQ(shown("cmbFrame", "13"), "13");
    EXPECT_EQ(shown("cmbFrame", "70"), "60");  // cut by its handler
    testing::internal::CaptureStderr();
    shown("cmbFrame", "70");
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("cmbFrame takes 60 for 70.\n"), std::string::npos) << said;
    EXPECT_EQ(shown("cmbSpace", "-35"), "-35");
    EXPECT_EQ(shown("cmbSize", "150.5"), "150.5");
    EXPECT_EQ(shown("picBGcolor", "255"), "255");
}
