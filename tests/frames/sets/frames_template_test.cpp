#include "frames/sets/frames_template.h"

#include "designs/catalogue/catalogue.h"
#include "session/new_poster.h"
#include "support/platform_error.h"
#include "tests/designs/opened_browser.h"
#include "tests/pictures.h"

namespace {

const std::string across = "10:20:300:200:0:0:0:0:@\\lframe.jpg\r\n";
const std::string upright = "30:40:300:200:0:0:0:0:@\\pframe.jpg\r\n";
const std::string photo = "50:60:250:150:0:0:0:0:\r\n";

// The browser with one frame design, and a set of three captions.
struct frame_design : opened_browser {
    frame_design() : opened_browser(design_section_text(1, "Club wall", {"Design=Frame", "File=wall"}))
    {
        folder.write("install/design_list",
                     "[other]\r\n1:2:3:4:0:0:0:0:\r\n[wall]\r\n" + across + photo + upright);
        folder.at("data/designs/x");
        write_set("None");
        main.collage.frame_set_name = "club";
        main.design_record.file = "wall";
    }
    void write_set(const std::string & list, int captions = 3)
    {
        folder.write("data/frames/club/design.ini", "[Frame Design]\r\nPicture List=" + list + "\r\n");
        for (int i = 0; i <= captions; ++i)
            for (const char letter : {'l', 'p'})
                folder.write(
                    "data/frames/club/" + std::string(1, letter) + "frame0" + std::to_string(i) + ".jpg",
                    "x");
    }
    std::string built() const { return read_file(folder.at("data/designs/__frames")); }
};

std::string framed(const std::string & place, const std::string & file)
{
    return place.substr(0, place.find('@')) + "frames\\club\\" + file + "\r\n";
}

}  // namespace

TEST(build_frames_template, deals_the_frames_of_the_set)
{
    frame_design session;
    EXPECT_TRUE(build_frames_template(session.main));
    EXPECT_EQ(session.built(), framed(across, "lframe01.jpg") + photo + framed(upright, "pframe02.jpg"));
}

TEST(build_frames_template, takes_a_design_of_the_user_s_own)
{
    frame_design session;
    session.folder.write("data/designs/saved1", upright);
    session.main.design_record.file = "saved1";
    EXPECT_TRUE(build_frames_template(session.main));
    EXPECT_EQ(session.built(), framed(upright, "pframe01.jpg"));
}

TEST(build_frames_template, tells_of_a_design_that_isn_t_there_and_goes_on_with_an_empty_one)
{
    frame_design session;
    session.main.design_record.file = "nowhere";
    EXPECT_TRUE(build_frames_template(session.main));
    EXPECT_EQ(session.desk.next_message(), "Could not find that template.");
    EXPECT_EQ(session.built(), "");
}

TEST(build_frames_template, finds_the_portrait_photos_of_a_list_that_was_gathered_from_a_folder)
{
    frame_design session;
    session.write_set("team");
    std::string list;
    for (const auto & [name, width] : {std::pair{"a.jpg", 4}, {"b.jpg", 12}}) {
        const std::string path = session.folder.at(std::string("photos/") + name);
        save_jpeg(plain(width, 8, {1, 2, 3}), path);
        list += "L " + path + "\r\n";
    }
    session.folder.write("data/piclists/team.pls", list);
    EXPECT_EQ(photo_order_of_set(session.main), "pl");
    EXPECT_TRUE(build_frames_template(session.main));
}

TEST(build_frames_template, follows_the_photos_of_the_list)
{
    frame_design session;
    session.write_set("team");
    session.folder.write("data/piclists/team.pls", "P /p/a.jpg\r\nL /p/b.jpg\r\nl /p/c.jpg\r\n");
    EXPECT_TRUE(build_frames_template(session.main));
    EXPECT_EQ(session.built(), framed(across, "lframe02.jpg") + photo + framed(upright, "pframe01.jpg"));
}

TEST(build_frames_template, stops_for_a_list_without_photos_of_a_kind)
{
    frame_design session;
    session.write_set("team");
    session.main.lblDesign.set_tool_tip("of another design");
    session.folder.write("data/piclists/team.pls", "L /p/a.jpg\r\n");
    EXPECT_FALSE(build_frames_template(session.main));
    EXPECT_EQ(session.desk.next_message(), "This photo list doesn't have any portrait photos.");
    EXPECT_EQ(session.main.lblDesign.tool_tip(), "");
    session.folder.write("data/piclists/team.pls", "P /p/a.jpg\r\n");
    EXPECT_FALSE(build_frames_template(session.main));
    EXPECT_EQ(session.desk.next_message(), "This photo list doesn't have any landscape photos.");
    EXPECT_FALSE(file_exists(session.folder.at("data/designs/__frames")));
}

TEST(build_frames_template, stops_for_a_list_that_was_deleted)
{
    frame_design session;
    session.write_set("gone");
    EXPECT_FALSE(build_frames_template(session.main));
    EXPECT_EQ(session.desk.next_message(), "The file.pls index is missing for that photolist.");
}

TEST(build_frames_template, raises_for_a_set_without_its_settings)
{
    frame_design session;
    delete_file(session.folder.at("data/frames/club/design.ini"));
    EXPECT_THROW(build_frames_template(session.main), platform_error);
}

// ---- from the browser

TEST(a_frame_design, asks_for_the_set_and_is_taken_with_it)
{
    frame_design session;
    session.main.frame_manage_mode = true;
    session.desk.on_modal<frmCustom>([](frmCustom & window) {
        EXPECT_EQ(window.cmdDone.caption(), "Ok");
        window.lstFrames.double_click(0);
    });
    session.browser.cmdOk.click();
    EXPECT_FALSE(session.browser.loaded());
    EXPECT_EQ(session.main.collage.frame_set_name, "club");
    EXPECT_EQ(session.main.design_record.file, "__frames");
    EXPECT_EQ(session.main.lblDesign.caption(), "Club wall");
    EXPECT_NE(session.built(), "");
}

TEST(a_frame_design, is_not_taken_without_a_set)
{
    frame_design session;
    session.desk.on_modal<frmCustom>([](frmCustom & window) { window.cmdDelete.click(); });
    session.browser.cmdOk.click();
    EXPECT_FALSE(session.browser.loaded());
    EXPECT_EQ(session.main.lblDesign.tag, "");
    EXPECT_EQ(session.main.collage.frame_set_name, "");
    EXPECT_EQ(session.main.design_record.file, "wall");
}

TEST(a_frame_design, is_not_taken_when_the_list_doesn_t_go_with_it)
{
    frame_design session;
    session.write_set("team");
    session.folder.write("data/piclists/team.pls", "L /p/a.jpg\r\n");
    session.desk.on_modal<frmCustom>([](frmCustom & window) { window.lstFrames.double_click(0); });
    session.browser.cmdOk.click();
    EXPECT_EQ(session.desk.next_message(), "This photo list doesn't have any portrait photos.");
    EXPECT_FALSE(session.browser.loaded());
    EXPECT_EQ(session.main.lblDesign.tag, "");
}

TEST(a_frame_design, offers_the_list_of_its_set_as_the_source_of_photos)
{
    frame_design session;
    session.write_set("team");
    const std::string list = session.folder.write("data/piclists/team.pls", "L /p/a.jpg\r\nP /p/b.jpg\r\n");
    session.desk.on_modal<frmCustom>([](frmCustom & window) { window.lstFrames.double_click(0); });
    session.browser.cmdOk.click();
    EXPECT_EQ(session.main.txtPhotos.tag, list);
    EXPECT_EQ(photo_source_kind(session.main), photo_source::list);
    session.all.select_photos.load();
    EXPECT_TRUE(session.all.select_photos.optList.selected());
    EXPECT_EQ(session.all.select_photos.txtCards.text(), "team");
    new_poster(session.main);
    EXPECT_EQ(session.main.txtPhotos.tag, list);
}
