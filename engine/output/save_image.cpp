#include "engine/output/save_image.h"

#include "engine/output/flurn_file.h"
#include "engine/output/jpeg_name.h"
#include "session/window_state.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

namespace {

// False after a cancel. Saying no asks for another name, which may be taken as well.
bool may_write(frmMain & main)
{
    while (!main.save_image_path.empty() && file_exists(main.save_image_path)) {
        const answer given =
            main.desk.ask({.title = "",
                           .text = "You already have an image named:  \r\n" + main.save_image_path +
                                   "\r\n\r\nDo you want to overwrite that file?",
                           .offered = answers::yes_no_cancel,
                           .on_enter = answer::no});
        if (given == answer::yes)
            return true;
        if (given == answer::cancel)
            return false;
        main.save_image_path.clear();
        save_new_image(main);
    }
    return !main.save_image_path.empty();
}

std::string remedy(const platform_error & error)
{
    if (error.number == error_number::out_of_memory)
        return "Save it in a smaller size.";
    return "The collage is still here. Save it in another folder or under another name.";
}

bool write_picture(frmMain & main, int save_size)
{
    try {
        const busy pointer(main.desk);
        // Another core encodes it, and waits for the disk.
        with_platform_errors([&] {
            alone_beside(main.desk, main.workers,
                         [&] { save_flurn(main.run.canvas, save_size, main.save_image_path); });
        });
        return true;
    } catch (const platform_error & error) {
        main.desk.message("The collage could not be saved:\r\n" + main.save_image_path + "\r\n\r\n" +
                          error.what() + "\r\n\r\n" + remedy(error));
        return false;
    }
}

}  // namespace

void save_new_image(frmMain & main)
{
    file_request asked{
        .title = "Save Image file", .filter = "Image files |*.jpg", .folder = "", .extension = ".jpg"};
    for (;;) {
        const std::optional<std::string> chosen = main.desk.choose_save(asked);
        if (!chosen || chosen->empty())
            return;
        if (const std::optional<std::string> path = jpeg_path(*chosen)) {
            main.save_image_path = *path;
            return;
        }
        asked.name = name_of(*chosen);
        main.desk.message("A collage is saved as a JPEG file, so its name has to end in .jpg or .jpeg:\r\n" +
                          asked.name);
    }
}

bool write_collage(frmMain & main, int save_size)
{
    if (!may_write(main))
        return false;
    const bool written = write_picture(main, save_size);
    set_enable(main, true);
    return written;
}
