#include "tests/engine/tilt_stage.h"

#include "engine/layout/worn_ornaments.h"
#include "engine/photo/lay_photo.h"
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

void tilt_stage::wear(int of_list, int of_shadow_list)
{
    main.cmbFrame.set_text(std::to_string(of_list));
    frame = of_list;
    shadow = of_shadow_list;
    if (main.in_preview) {
        frame = of_list < 1 ? 0 : of_list / 6 + 1;
        shadow = nearest(of_shadow_list / 4.0);
    }
}

ornaments tilt_stage::worn(int rotation) const
{
    ornaments found = worn_by_boxes(main, rotation);
    found.frame = frame;
    found.shadow = shadow;
    return found;
}

void tilt_stage::draw(const bitmap & photo, const rectangle & area, int rotation)
{
    lay_photo(main, copied(photo, 0, 0, photo.width(), photo.height()),
              {.area = area, .rotation = rotation, .worn = worn(rotation)});
}
