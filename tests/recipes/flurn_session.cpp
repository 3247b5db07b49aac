#include "tests/recipes/flurn_session.h"

#include "support/files/text_file.h"
#include "tests/pictures.h"

flurn_session::flurn_session()
{
    main.random = seeded_random(5);
    desk.keeps_messages = true;
}

void flurn_session::paint() const
{
    for (std::size_t i = 0; i < photos.size(); ++i) {
        const auto shade = static_cast<std::uint8_t>(37 * i % 256);
        const bool tall = i < photos.size() / 2;
        save_jpeg(plain(tall ? 15 : 20, tall ? 20 : 15, {shade, static_cast<std::uint8_t>(255 - shade), 90}),
                  photos[i]);
    }
}

void flurn_session::begin(int count)
{
    make_photos(count / 2, count - count / 2);
    paint();
    start();
}

std::string flurn_session::make()
{
    return made_in(main, desk);
}

std::string flurn_session::preview() const
{
    return read_file(finished_path(main));
}

std::string flurn_session::kept() const
{
    const auto all_kept = kept_recipes(main);
    return all_kept.empty() ? std::string() : all_kept.front().file;
}

started_again::started_again(const opened_session & before) : all(desk, seeded_random(99)), main(all.main)
{
    main.install_folder = before.main.install_folder;
    main.data_folder = before.main.data_folder;
    connect_all(all);
    main.load();
}

void started_again::open(const std::string & file)
{
    desk.on_modal<frmRecent>([&](frmRecent & window) {
        window.result = file;
        window.unload();
    });
    main.mnuRecent.click();
}

std::string started_again::make()
{
    return made_in(main, desk);
}

std::string started_again::preview() const
{
    return read_file(finished_path(main));
}

std::string made_in(frmMain & main, scripted_desktop & desk,
                    const std::function<void(frmImage &)> & while_shown)
{
    std::string bytes;
    desk.on_modal<frmImage>([&](frmImage & window) {
        bytes = read_file(finished_path(main));
        if (while_shown)
            while_shown(window);
    });
    main.cmdFlurn.click();
    return bytes;
}

std::string laid_out_anew(const std::string & news)
{
    return news + "\r\n\r\nThe flurn is laid out with the photos as they are now.";
}
