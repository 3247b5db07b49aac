#include "session/frmMain.h"
#include "tests/scripted_desktop.h"

#include <gtest/gtest.h>

namespace {

std::string items(const combo_box & list)
{
    std::string text;
    for (const std::string & item : list.items())
        text += item + ",";
    return text;
}

struct frmMain_lists : testing::Test {
    scripted_desktop desk;
    frmMain main{desk, listed({})};
};

}  // namespace

TEST_F(frmMain_lists, hold_their_items_in_order)
{
    EXPECT_EQ(items(main.cmbSpace),
              "-100,-90,-80,-70,-60,-50,-40,-30,-20,-10,0,10,20,30,40,50,60,70,80,90,100,110,"
              "120,130,140,");
    EXPECT_EQ(items(main.cmbFrame), "0,1,4,7,10,14,18,22,26,30,35,40,45,50,55,60,");
    EXPECT_EQ(items(main.cmbShadow), "0,5,10,15,20,25,30,35,40,45,50,");
    EXPECT_EQ(items(main.cmbSize), "40,60,80,100,120,140,160,180,200,220,240,260,");
    EXPECT_EQ(items(main.cmbBlend), "0,10,20,30,40,50,60,70,80,90,100,");
    EXPECT_EQ(items(main.cmbBlanks), "0,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,20,25,30,35,40,");
    EXPECT_EQ(items(main.cmbShapes),
              "Squares,Circles,Stars,Hearrs,Puzzle pieces,Stamps,Clouds,Leaves,Ovals,Polka Dots,"
              "Targets,Stripes,");
}

TEST_F(frmMain_lists, begin_with_their_texts)
{
    EXPECT_EQ(main.cmbSpace.text(), "20");
    EXPECT_EQ(main.cmbFrame.text(), "10");
    EXPECT_EQ(main.cmbShadow.text(), "10");
    EXPECT_EQ(main.cmbSize.text(), "60");
    EXPECT_EQ(main.cmbBlend.text(), "");
    EXPECT_EQ(main.cmbBlanks.text(), "");
    EXPECT_EQ(main.cmbShapes.text(), "Squares");
}

TEST_F(frmMain_lists, a_list_is_read_by_its_leading_number)
{
    main.cmbFrame.set_text("12 pixels");
    EXPECT_EQ(number_in(main.cmbFrame), 12);
    main.cmbFrame.set_text("none");
    EXPECT_EQ(number_in(main.cmbFrame), 0);
}

TEST_F(frmMain_lists, the_photo_source_is_kept_as_text)
{
    EXPECT_EQ(photo_source_kind(main), photo_source::none);
    set_photo_source_kind(main, photo_source::selection);
    EXPECT_EQ(main.lblPhotos.tag, "3");
    EXPECT_EQ(photo_source_kind(main), photo_source::selection);
}
