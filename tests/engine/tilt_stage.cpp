#include "tests/engine/tilt_stage.h"

#include "support/files/text_file.h"
#include "tests/pictures.h"

const temporary_folder & tilt_folder()
{
    static const temporary_folder folder;
    static const bool made = [] {
        folder.write("rotate.ini", read_file(SEED_FOLDER "/rotate.ini"));
        save_jpeg(plain(white_side, white_side, {255, 255, 255}), folder.at("images/white.jpg"));
        return true;
    }();
    static_cast<void>(made);
    return folder;
}

tilt_stage::tilt_stage() : main(desk, listed({}))
{
    main.install_folder = tilt_folder().path();
    main.run.frame_color = {.red = 250, .green = 240, .blue = 230};
    main.run.shadow_color = {.red = 20, .green = 20, .blue = 30};
}

void tilt_stage::wear(int frame, int shadow)
{
    main.cmbFrame.set_text(std::to_string(frame));
    main.run.frame_size = narrow(frame);
    main.run.shadow_size = narrow(shadow);
    if (main.in_preview) {
        main.run.frame_size = narrow(frame < 1 ? 0 : frame / 6 + 1);
        main.run.shadow_size = nearest16(shadow / 4.0);
    }
}
