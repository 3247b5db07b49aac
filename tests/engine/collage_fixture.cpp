#include "tests/engine/collage_fixture.h"

#include "engine/flurn_driver.h"
#include "photos/thumbnails/thumbnails.h"
#include "quick/quick_template.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/pictures.h"

#include <cstdlib>
#include <gtest/gtest.h>

collage_fixture::collage_fixture() : all(desk, seeded_random(7)), main(all.main)
{
    main.data_folder = folder_of(home.at("data/tmp/x"));
    main.data_folder = folder_of(main.data_folder);
    main.install_folder = folder_of(home.at("install/x"));
    main.design_record.name = "test";
    main.design_record.file = "test";
    main.design_record.style = "Place";
    main.design_record.system = "No";
    main.work_style = "Place";
    main.cmbFrame.set_text("0");
    main.cmbShadow.set_text("0");
    main.picBGcolor.set_back_color(0x808080);
    use_template({});
}

void collage_fixture::use_template(const std::vector<std::string> & lines)
{
    home.write("data/designs/test", text_of(lines));
}

std::string collage_fixture::picture(const std::string & name, rgb_triple color, int width, int height) const
{
    const std::string path = home.at(name);
    save_jpeg(plain(width, height, color), path);
    return path;
}

void collage_fixture::add_photo(rgb_triple color, int width, int height)
{
    const std::string name = "photos/" + std::to_string(main.table.last_photo + 1) + ".jpg";
    add_path(picture(name, color, width, height));
}

void collage_fixture::add_path(const std::string & path)
{
    ++main.table.last_photo;
    main.table[main.table.last_photo] = path;
}

void collage_fixture::use_thumbnails()
{
    for (int i = 0; i <= main.table.last_photo; ++i)
        main.table[i] = chk_sample_thumb(main, main.table[i]);
}

void collage_fixture::use_canvas(int width, int height)
{
    main.run.canvas = plain(width, height, grey);
    main.run.collage_margin = 0;
    main.collage_width = narrow(width);
    main.collage_height = narrow(height);
    main.run.image_number = 1;
}

void collage_fixture::add_location(const location & place)
{
    main.design_locations.add(place);
}

bitmap collage_fixture::full_run()
{
    bitmap shown;
    desk.on_modal<frmImage>([&](frmImage &) {
        shown = copied(main.run.canvas, 0, 0, main.run.canvas.width(), main.run.canvas.height());
    });
    make_flurn(main, make_quick_template);
    return shown;
}

bitmap collage_fixture::finished() const
{
    return load_picture(picture_format::jpeg, joined(main.data_folder, "tmp/finished.jpg"));
}

std::vector<std::string> quarters()
{
    return {"0:0:1500:1000:0:0:0:0:", "0:1000:1500:1000:0:0:0:0:", "1500:0:1500:1000:0:0:0:0:",
            "1500:1000:1500:1000:0:0:0:0:"};
}

four_photos::four_photos()
{
    use_template(quarters());
    for (const rgb_triple color : {red, green, blue, yellow})
        add_photo(color);
}

void look_at_start(collage_fixture & run, const std::function<void()> & look)
{
    bool looked = false;
    run.desk.on_pump(1, [&] {
        looked = true;
        look();
        run.main.run.cancel_requested = true;
    });
    make_flurn(run.main, make_quick_template);
    EXPECT_TRUE(looked);
    EXPECT_EQ(run.desk.next_message(), "Flurning has been canceled.");
}

void expect_usable(const frmMain & main)
{
    EXPECT_FALSE(main.run.run_active);
    EXPECT_FALSE(main.run.cancel_requested);
    EXPECT_FALSE(main.run.canvas);
    EXPECT_FALSE(main.txtDoing.visible());
    EXPECT_TRUE(main.enabling.last);
    EXPECT_TRUE(main.frmOutput.enabled());
    EXPECT_TRUE(main.cmdFlurn.enabled());
    EXPECT_TRUE(main.cmdHelp.enabled());
    EXPECT_FALSE(main.updating_controls);
}

char letter_of(rgb_triple color)
{
    struct named {
        char letter;
        rgb_triple color;
    };
    constexpr named colors[] = {{'r', red},
                                {'g', green},
                                {'b', blue},
                                {'y', yellow},
                                {'.', grey},
                                {'k', {}},
                                {'w', {.red = 255, .green = 255, .blue = 255}}};
    const auto near = [](int left, int right) { return std::abs(left - right) <= 12; };
    for (const named & each : colors)
        if (near(color.red, each.color.red) && near(color.green, each.color.green) &&
            near(color.blue, each.color.blue))
            return each.letter;
    return '?';
}

std::string sampled(const bitmap & image, int start, int step)
{
    std::string text;
    for (int y = start; y < image.height(); y += step) {
        for (int x = start; x < image.width(); x += step)
            text += letter_of(seen(image, x, y));
        text += '\n';
    }
    return text;
}

char letter_at(const bitmap & image, int x, int y)
{
    return letter_of(seen(image, x, y));
}
