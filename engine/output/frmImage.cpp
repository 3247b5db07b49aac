#include "engine/output/frmImage.h"

#include "engine/output/save_image.h"
#include "engine/output/shown_size.h"
#include "engine/run_steps.h"
#include "recipes/keep_flurn.h"
#include "session/window_state.h"
#include "session/windows.h"
#include "support/files/paths.h"

namespace {

constexpr int units_of_a_pixel = 15;

void wear_face(frmImage & window, image_face face)
{
    const bool is_finished = face == image_face::finished;
    window.cmdClose.set_caption(is_finished ? "Cancel" : "Close");
    for (button * each : {&window.cmdSave, &window.cmdPrint, &window.cmdView}) {
        each->enable(is_finished);
        each->show(is_finished);
    }
    window.set_caption(is_finished                  ? "S a v e   F l u r n"
                       : face == image_face::viewed ? "I m a g e   V i e w"
                                                    : "D e s i g n   S a m p l e");
}

// A picture that can't be read counts as an upright one.
void take_shape(frmImage & window, picture_size own, picture_size room)
{
    window.is_portrait = own.width <= own.height;
    window.is_square = own.width == own.height && own.width > 0;
    const shown_size sizes = shown_size_of(own, room);
    window.picDisplay.move({0, 0, sizes.picture.width, sizes.picture.height});
    window.picScroll.move({0, 0, sizes.scroll.width, sizes.scroll.height});
    window.frmButtons.move({0, sizes.scroll.height, sizes.scroll.width, 0});
    window.resize(sizes.window.width * units_of_a_pixel, sizes.window.height * units_of_a_pixel);
}

void load_window(frmImage & window, frmMain & main)
{
    window.lblImageName.set_caption(main.image_to_show);
    window.lblImageName.show(false);
    wear_face(window, main.shown_as);
    take_shape(window, jpeg_size(main.image_to_show).value_or(picture_size{.width = 2, .height = 3}),
               main.desk.screen_room());
    window.picDisplay.load(window.lblImageName.caption());
    // Nobody is to take a preview for a collage.
    if (main.shown_as != image_face::finished)
        delete_file(finished_path(main));
}

// What the user hears of a print: that it is on its way as well, so that nobody prints five times.
std::string words_of(const print_report & report)
{
    const std::string why = report.why.empty() ? std::string() : "\r\n" + report.why;
    switch (report.result) {
        case print_result::sent:
            return "The collage was sent to the printer " + report.where + ".";
        case print_result::held:
            return "The collage was sent to the printer " + report.where + ", which stands still." + why +
                   "\r\n\r\nIt prints the collage as soon as it runs again.";
        case print_result::written:
            return "The printed page was written to\r\n" + report.where;
        case print_result::cancelled:
            return {};
        case print_result::no_printer:
            return "There is no printer.\r\n\r\nAdd one in the settings of this computer and print again, or "
                   "save the "
                   "collage and print the file.";
        case print_result::failed:
            break;
    }
    return "The collage could not be printed: " + report.where + why +
           "\r\n\r\nSee to it and print again, or save the collage and print the file.";
}

void cmdPrint_click(frmMain & main)
{
    const std::string words = words_of(main.desk.print(
        main.run.canvas, main.optLandscape.selected() ? orientation::landscape : orientation::portrait));
    if (!words.empty())
        main.desk.message(words);
    set_enable(main, true);
}

void cmdSave_click(windows & all)
{
    frmMain & main = all.main;
    const auto size = ask(main.desk, all.size);
    if (!size)
        return;
    main.save_image_path.clear();
    save_new_image(main);
    if (!main.save_image_path.empty() && write_collage(main, *size) && all.size.chkRecipe.ticked())
        keep_beside(main, main.save_image_path);
}

void cmdView_click(frmMain & main)
{
    const std::string path = finished_path(main);
    if (!main.desk.open_document(path))
        main.desk.message("No program could be started for this picture:\r\n" + path +
                          "\r\n\r\nSave the collage and open the file in a program of your choice.");
}

}  // namespace

void connect_frmImage(windows & all)
{
    frmImage & window = all.image;
    window.on_load = [&all] { load_window(all.image, all.main); };
    window.cmdPrint.on_click = [&all] { cmdPrint_click(all.main); };
    window.cmdSave.on_click = [&all] { cmdSave_click(all); };
    window.cmdView.on_click = [&all] { cmdView_click(all.main); };
    window.cmdClose.on_click = [&all] { all.image.unload(); };
}
