#include "tests/quick/quick_session.h"

#include "photos/lists/photo_list.h"
#include "support/files/text_file.h"
#include "tests/photo_lists.h"
#include "tests/pictures.h"

#include <filesystem>

void write_quick_tables(const temporary_folder & folder)
{
    folder.write("install/quick_block.ini",
                 text_of({"#PORT", "02X01:three:0:0", "02X02:four:0:0", "#LAND", "02X01:three:0:0",
                          "02X02:four:0:0", "#SQUA", "02X01:square:0:0", "02X02:square:0:1", "#END"}));
    folder.write("install/block_templates",
                 text_of({"[three]", "0:0:1500:1000", "0:1000:1500:1000", "1500:0:1500:2000", "[four]",
                          "0:0:1800:1000", "0:1000:1800:1000", "1800:0:600:2000", "2400:0:600:2000",
                          "[square]", "0:0:1200:2000", "1200:0:800:1000", "1200:1000:800:1000"}));
    folder.write("install/quick_scatter.ini",
                 text_of({"03:02:01:three", "04:02:02:four", "12:06:06:four", "SQUARES", "03:02:01:three",
                          "04:02:02:four", "12:06:06:four"}));
    folder.write("install/scatter_templates",
                 text_of({"[three]", "1:300:300:800:600:-10", "2:1000:900:800:600:5", "3:1900:400:600:800:10",
                          "[four]", "1:300:300:800:600:-10", "2:1000:900:800:600:5", "3:1900:400:600:800:10",
                          "4:500:1100:600:800:-5"}));
    folder.write("install/quick_matrix.ini",
                 text_of({"# grids", "4:2:2:20:20:100:100:130", "6:2:3:20:20:100:100:130",
                          "8:2:4:20:20:100:100:130", "9:3:3:20:20:100:100:130", "12:3:4:20:20:100:100:130",
                          "#SQUARE", "4:2:2:20:20:100:100:130", "9:3:3:20:20:100:100:130"}));
}

quick_session::quick_session()
{
    write_quick_tables(folder);
    folder.write("data/designs.ini",
                 "[Design001]\r\nName=Match\r\nFile=__match\r\nStyle=Place\r\nDesign=Block\r\n"
                 "Background=Portrait\r\nSystem=Yes\r\n"
                 "[Design002]\r\nName=Quick matrix\r\nFile=__quick\r\nStyle=Place\r\nDesign=Block\r\n"
                 "Background=Portrait\r\nSystem=Yes\r\n");
    folder.at("data/designs/x");
    folder.at("data/piclists/x");
    main.load();
    make_photos(2, 2);
}

void quick_session::make_photos(int portrait, int landscape)
{
    std::filesystem::remove_all(folder.at("photos/x").substr(0, folder.at("photos/x").size() - 2));
    photos.clear();
    for (int i = 0; i < portrait + landscape; ++i) {
        const bool tall = i < portrait;
        photos.push_back(folder.at("photos/" + std::to_string(i) + ".jpg"));
        save_jpeg(plain(tall ? 15 : 20, tall ? 20 : 15, {200, 100, 50}), photos.back());
    }
    list = folder.write("data/piclists/mine.pls", list_text(photos));
}

void quick_session::will_choose_list()
{
    opened_session::will_choose_list(list);
}

void quick_session::will_choose_folder()
{
    desk.on_modal<frmSelectPhotos>([this](frmSelectPhotos & chooser) {
        const std::string chosen = folder.path() + "/photos";
        std::filesystem::create_directories(chosen);
        photos_of_folder(main, chosen);
        set_photo_source_kind(main, photo_source::folder);
        main.txtPhotos.set_text(chosen);
        main.txtPhotos.tag = chosen;
        main.photo_choice_cancelled = false;
        chooser.unload();
    });
}

void quick_session::will_choose_selection()
{
    desk.on_modal<frmSelectPhotos>([this](frmSelectPhotos & chooser) {
        set_photo_source_kind(main, photo_source::selection);
        main.selected_count = narrow(static_cast<long>(photos.size()));
        main.txtPhotos.tag = list;
        main.photo_choice_cancelled = false;
        chooser.unload();
    });
}

void quick_session::will_cancel()
{
    desk.on_modal<frmSelectPhotos>([](frmSelectPhotos & chooser) { chooser.cmdCancel.click(); });
}

void quick_session::start()
{
    will_choose_list();
    main.mnuQuick.click();
    main.table.reshuffle_choice = photo_table::reshuffle::no;
}

void quick_session::start(int portrait, int landscape)
{
    make_photos(portrait, landscape);
    start();
}

std::vector<std::string> quick_session::written() const
{
    std::vector<std::string> lines;
    const std::string path = joined(main.data_folder, "designs/__quick");
    if (!file_exists(path))
        return lines;
    for (line_source source(path); !source.at_end();)
        lines.push_back(source.read_line());
    return lines;
}

void quick_session::forget_written()
{
    delete_file(joined(main.data_folder, "designs/__quick"));
}

bool draws_anew(quick_session & session, const std::function<void()> & step)
{
    session.forget_written();
    const int previews = session.previews_of(step);
    return previews == 1 && !session.written().empty();
}
