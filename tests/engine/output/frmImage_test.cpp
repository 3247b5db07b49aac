#include "engine/run_steps.h"
#include "support/windows/show_help.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

namespace {

/// A session whose collage has just been made, of the shape of the picture.
struct finished_session : opened_session {
    explicit finished_session(int width = 60, int height = 90)
    {
        main.run.canvas = plain(width, height, {.red = 10, .green = 200, .blue = 30});
        main.image_to_show = finished_path(main);
        save_jpeg(main.run.canvas, main.image_to_show);
    }

    /// The user chooses that option of the size window and Ok.
    void choose_size(option_button frmSize::*option)
    {
        desk.on_modal<frmSize>([option](frmSize & window) {
            (window.*option).select();
            window.cmdOk.click();
        });
    }
};

std::string size_of(const std::string & path)
{
    const auto size = jpeg_size(path);
    return size ? std::to_string(size->width) + "x" + std::to_string(size->height) : "none";
}

}  // namespace

TEST(frmImage, shows_a_finished_collage_with_its_three_ways_out)
{
    finished_session session;
    session.desk.on_modal<frmImage>([&](frmImage & window) {
        EXPECT_EQ(window.caption(), "S a v e   F l u r n");
        EXPECT_EQ(window.lblImageName.caption(), session.main.image_to_show);
        EXPECT_EQ(window.picDisplay.file(), session.main.image_to_show);
        EXPECT_EQ(window.cmdClose.caption(), "Cancel");
        expect_states(window,
                      "lblImageName_ cmdSave+ cmdPrint+ cmdView+ cmdSave^ cmdPrint^ cmdView^ cmdClose+");
        window.cmdClose.click();
        EXPECT_FALSE(window.loaded());
    });
    session.desk.show_modal(session.all.image);
    EXPECT_TRUE(file_exists(finished_path(session.main)));
}

TEST(frmImage, shows_other_pictures_without_them_and_leaves_no_preview_behind)
{
    struct row {
        image_face face;
        const char * caption;
    };
    for (const row & each : {row{image_face::viewed, "I m a g e   V i e w"},
                             row{image_face::sample, "D e s i g n   S a m p l e"}}) {
        finished_session session;
        session.main.shown_as = each.face;
        session.desk.on_modal<frmImage>([&](frmImage & window) {
            EXPECT_EQ(window.caption(), each.caption);
            EXPECT_EQ(window.cmdClose.caption(), "Close");
            expect_states(window, "cmdSave_ cmdPrint_ cmdView_ cmdClose^");
        });
        session.desk.show_modal(session.all.image);
        EXPECT_FALSE(file_exists(finished_path(session.main)));
    }
}

TEST(frmImage, wears_the_face_of_a_collage_again_after_a_sample)
{
    finished_session session;
    session.main.shown_as = image_face::sample;
    session.desk.on_modal<frmImage>([](frmImage &) {});
    session.desk.show_modal(session.all.image);
    session.main.shown_as = image_face::finished;
    session.desk.on_modal<frmImage>(
        [](frmImage & window) { expect_states(window, "cmdSave^ cmdPrint^ cmdView^ cmdSave+"); });
    session.desk.show_modal(session.all.image);
}

TEST(frmImage, takes_the_shape_from_the_picture)
{
    struct row {
        int width, height;
        bool square, upright;
    };
    for (const row & each : {row{60, 90, false, true}, row{90, 60, false, false}, row{60, 60, true, true}}) {
        finished_session session(each.width, each.height);
        session.all.image.load();
        EXPECT_EQ(session.all.image.is_square, each.square);
        EXPECT_EQ(session.all.image.is_portrait, each.upright);
    }
}

TEST(frmImage, counts_a_missing_picture_as_an_upright_one)
{
    opened_session session;
    session.main.image_to_show = session.folder.at("none.jpg");
    session.all.image.load();
    EXPECT_TRUE(session.all.image.is_portrait);
    EXPECT_FALSE(session.all.image.is_square);
}

TEST(frmImage, gives_landscapes_and_squares_their_sizes_and_stays_on_the_screen)
{
    finished_session wide(90, 60), camera(80, 60), square(60, 60), upright(60, 90);
    for (finished_session * each : {&wide, &camera, &square, &upright})
        each->all.image.load();
    EXPECT_EQ(wide.all.image.picDisplay.place(), (box{0, 0, 840, 560}));
    EXPECT_EQ(wide.all.image.picScroll.place().width, 889);
    EXPECT_EQ(camera.all.image.picDisplay.place(), (box{0, 0, 748, 561}));
    EXPECT_EQ(camera.all.image.picScroll.place().width, 791);
    EXPECT_EQ(square.all.image.picDisplay.place(), (box{0, 0, 560, 560}));
    EXPECT_EQ(square.all.image.picScroll.place().width, 593);
    EXPECT_EQ(upright.all.image.height(), upright.desk.room.height * 15);
    for (const finished_session * each : {&wide, &camera, &square, &upright}) {
        EXPECT_LE(each->all.image.width(), each->desk.room.width * 15);
        EXPECT_LE(each->all.image.height(), each->desk.room.height * 15);
        EXPECT_EQ(each->all.image.frmButtons.place().top, each->all.image.picScroll.place().height);
    }
}

TEST(frmImage, help_keys_open_its_page)
{
    finished_session session;
    session.all.image.on_key(key::f1);
    session.all.image.on_key(key::help);
    const std::string page = documentation_address("/help/display.htm");
    EXPECT_EQ(session.desk.opened_documents, (std::vector<std::string>{page, page}));
}

// ---- saving

TEST(cmdSave, writes_the_collage_as_it_is_at_full_size)
{
    finished_session session(200, 300);
    session.main.run.canvas = plain(2000, 3000, {.red = 10, .green = 20, .blue = 200});
    set_enable(session.main, false);
    session.choose_size(&frmSize::optFull);
    session.desk.will_choose_save(session.folder.at("out.jpg"));
    session.all.image.cmdSave.click();
    EXPECT_EQ(size_of(session.folder.at("out.jpg")), "2000x3000");
    EXPECT_EQ(session.main.save_image_path, session.folder.at("out.jpg"));
    EXPECT_TRUE(session.main.frmOutput.enabled());
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST(cmdSave, a_landscape_keeps_its_three_to_two)
{
    finished_session session(90, 60);
    session.choose_size(&frmSize::optWeb);
    session.desk.will_choose_save(session.folder.at("out.jpg"));
    session.all.image.cmdSave.click();
    EXPECT_EQ(size_of(session.folder.at("out.jpg")), "750x500");
}

TEST(cmdSave, a_square_at_full_size_is_saved_in_its_own)
{
    finished_session session(2000, 2000);
    session.choose_size(&frmSize::optFull);
    session.desk.will_choose_save(session.folder.at("out.jpg"));
    session.all.image.cmdSave.click();
    EXPECT_EQ(size_of(session.folder.at("out.jpg")), "2000x2000");
}

TEST(cmdSave, asks_for_no_file_after_the_size_was_cancelled)
{
    finished_session session;
    session.main.save_image_path = "of an earlier time";
    session.desk.on_modal<frmSize>([](frmSize & window) { window.cmdCancel.click(); });
    session.all.image.cmdSave.click();
    EXPECT_EQ(session.main.save_image_path, "of an earlier time");
}

TEST(cmdSave, writes_nothing_when_no_file_was_chosen)
{
    finished_session session;
    session.main.save_image_path = session.folder.at("of an earlier time.jpg");
    session.choose_size(&frmSize::optWeb);
    session.desk.will_choose_save(std::nullopt);
    session.all.image.cmdSave.click();
    EXPECT_EQ(session.main.save_image_path, "");
}

TEST(frmImage, offers_the_same_at_each_opening_and_the_collage_stays_until_it_closes)
{
    finished_session session;
    session.desk.on_modal<frmImage>([&](frmImage & window) {
        for (const char * name : {"one.jpg", "two.jpg"}) {
            session.choose_size(&frmSize::optWeb);
            session.desk.will_choose_save(session.folder.at(name));
            window.cmdSave.click();
            EXPECT_EQ(size_of(session.folder.at(name)), "500x750");
        }
    });
    session.desk.show_modal(session.all.image);
}

// ---- printing and viewing

TEST(cmdPrint, prints_the_whole_collage_in_its_orientation)
{
    finished_session session(90, 60);
    set_enable(session.main, false);
    session.all.image.cmdPrint.click();
    session.main.optLandscape.select();
    session.all.image.cmdPrint.click();
    session.main.optSquare.select();
    session.all.image.cmdPrint.click();
    EXPECT_EQ(
        session.desk.printed_pages,
        (std::vector<orientation>{orientation::portrait, orientation::landscape, orientation::portrait}));
    EXPECT_EQ(session.desk.printed_sizes.front().width, 90);
    EXPECT_TRUE(session.main.frmOutput.enabled());
}

TEST(cmdPrint, says_where_the_collage_went_and_what_to_do_when_it_went_nowhere)
{
    const struct {
        print_report report;
        const char * words;
    } cases[] = {
        {{.result = print_result::sent, .where = "attic"}, "The collage was sent to the printer attic."},
        {{.result = print_result::held, .where = "attic", .why = "Paused"},
         "The collage was sent to the printer attic, which stands still.\r\nPaused\r\n\r\nIt prints the "
         "collage as "
         "soon as it runs again."},
        {{.result = print_result::written, .where = "/home/a/page.pdf"},
         "The printed page was written to\r\n/home/a/page.pdf"},
        {{.result = print_result::no_printer},
         "There is no printer.\r\n\r\nAdd one in the settings of this computer and print again, or save the "
         "collage "
         "and print the file."},
        {{.result = print_result::failed, .where = "attic", .why = "It takes no jobs."},
         "The collage could not be printed: attic\r\nIt takes no jobs.\r\n\r\nSee to it and print again, or "
         "save the "
         "collage and print the file."}};
    finished_session session;
    for (const auto & each : cases) {
        session.desk.next_print = each.report;
        session.all.image.cmdPrint.click();
        EXPECT_EQ(session.desk.next_message(), each.words);
    }
    EXPECT_TRUE(session.main.run.canvas);
}

TEST(cmdPrint, says_nothing_when_the_user_gives_up)
{
    finished_session session;
    session.desk.next_print = {.result = print_result::cancelled};
    set_enable(session.main, false);
    session.all.image.cmdPrint.click();
    EXPECT_TRUE(session.desk.messages.empty());
    EXPECT_TRUE(session.main.frmOutput.enabled());
}

TEST(cmdView, opens_the_finished_picture_with_the_user_s_own_program)
{
    finished_session session;
    session.all.image.cmdView.click();
    EXPECT_EQ(session.desk.opened_documents, std::vector<std::string>{finished_path(session.main)});
}

TEST(cmdView, says_so_when_there_is_no_such_program)
{
    finished_session session;
    session.desk.opens_documents = false;
    session.all.image.cmdView.click();
    EXPECT_EQ(session.desk.next_message(), "No program could be started for this picture:\r\n" +
                                               finished_path(session.main) +
                                               "\r\n\r\nSave the collage and open the file in a program of "
                                               "your choice.");
}
