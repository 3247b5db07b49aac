#include "tests/designers/designer_session.h"

#include "support/files/text_file.h"
#include "tests/pictures.h"

designer_session::designer_session()
{
    folder.write("data/designs.ini", read_file(std::string(SEED_FOLDER) + "/designs.ini"));
    folder.at("data/designs/x");
    folder.at("data/frames/x");
    save_jpeg(plain(15, 20, {200, 100, 50}), folder.at("photos/tall.jpg"));
    save_jpeg(plain(20, 15, {50, 100, 200}), folder.at("photos/wide.jpg"));
    list = folder.write("data/piclists/mine.pls", "P " + folder.at("photos/tall.jpg") + "\r\nL " +
                                                      folder.at("photos/wide.jpg") + "\r\n");
    main.load();
}

void designer_session::will_cancel_photos()
{
    desk.on_modal<frmSelectPhotos>([](frmSelectPhotos & chooser) { chooser.cmdCancel.click(); });
}

std::vector<std::string> designer_session::lines_of(const std::string & name) const
{
    std::vector<std::string> lines;
    const std::string path = joined(joined(main.data_folder, "designs"), name);
    if (!file_exists(path))
        return lines;
    for (line_source source(path); !source.at_end();)
        lines.push_back(source.read_line());
    return lines;
}

void designer_session::make_frame_set(const std::string & name, int captions) const
{
    folder.write(
        "data/frames/" + name + "/design.ini",
        "[Frame Design]\r\nPicture List=None\r\nNumber of Captions=" + std::to_string(captions) + "\r\n");
}
