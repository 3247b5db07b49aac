#include "tests/desktop/window_views.h"

#include "../photo_lists.h"
#include "../pictures.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "photos/lists/photo_list.h"
#include "session/connect_all.h"
#include "session/start/start_up.h"
#include "support/colors.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <QApplication>

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

void save_lists(const filled_session & session, const frmMain & main)
{
    const auto first = main.table.photos.begin();
    const std::string lines = list_text({first, first + main.table.last_photo + 1});
    for (const char * name : {"Summer by the sea", "Grandmother's birthday", "last_photos"})
        session.folder.write(std::string("piclists/") + name + ".pls", lines);
}

void choose_photos(filled_session & session)
{
    frmMain & main = session.all.main;
    photos_of_folder(main, session.folder.at("photos"));
    save_lists(session, main);
    set_photo_source_kind(main, photo_source::folder);
    main.lblPhotos.set_caption("Folder:");
    main.txtPhotos.set_text("photos");
    main.txtPhotos.tag = session.folder.at("photos");
}

void begin_caption(frmMain & main)
{
    main.txtCaption.set_font({.name = "DejaVu Serif", .size = 20, .italic = true});
    main.txtCaption.tag = "120";
    main.txtCaption.set_back_color(0);
    main.txtCaption.set_fore_color(0xFFFFFF);
    main.font_extended = true;
}

std::string square_of(const filled_session & session, const std::string & picture)
{
    const std::string path = session.folder.at("tmp/square.jpg");
    save_jpeg(copied(load_picture(picture_format::jpeg, picture), 0, 0, 2000, 2000), path);
    return path;
}

// As many as there are sample photos.
void copy_small_photos(const std::string & folder)
{
    constexpr std::size_t count = 48;
    std::vector<fs::path> pictures;
    for (const auto & each : fs::directory_iterator(BUILT_SEED "/samples"))
        pictures.push_back(each.path());
    std::ranges::sort(pictures);
    pictures.resize(std::min(pictures.size(), count));
    fs::create_directory(folder);
    for (const fs::path & each : pictures)
        fs::copy(each, folder);
}

}  // namespace

filled_session::filled_session(chosen_photos photos)
{
    desk.keeps_messages = true;
    stage_program(BUILT_SEED, folder.path());
    if (photos == chosen_photos::real)
        fs::copy(SAMPLE_PHOTOS, folder.at("photos"));
    else
        copy_small_photos(folder.at("photos"));
    all.main.install_folder = folder.path();
    prepare_data_folder(all.main, {});
    connect_all(all);
    all.main.load();
    desk.fonts = {"Bitstream Charter", "Bitstream Charter", "DejaVu Sans",
                  "DejaVu Sans Mono",  "DejaVu Serif",      "Liberation Sans"};
    choose_photos(*this);
    begin_caption(all.main);
}

void filled_session::add_image_views(std::vector<window_view> & views)
{
    const auto add = [&](const std::string & name, const std::string & picture, image_face face) {
        views.push_back({.name = "frmImage_" + name,
                         .window = &all.image,
                         .prepare =
                             [this, picture, face] {
                                 all.main.image_to_show = picture;
                                 all.main.shown_as = face;
                             },
                         .fill = {}});
    };
    const std::string autumn = folder.at("images/autumn.jpg"), night = folder.at("images/starry_night.jpg");
    add("portrait", collage.empty() ? autumn : collage, image_face::finished);
    add("landscape", folder.at("images/autumn_wide.jpg"), image_face::finished);
    add("square", square_of(*this, night), image_face::finished);
    add("sample", folder.at("samples/not_yet.jpg"), image_face::sample);
}

void filled_session::add_small_views(std::vector<window_view> & views)
{
    views.push_back({.name = "frmPhotoCnt", .window = &all.photo_count, .prepare = {}, .fill = [this] {
                         all.photo_count.lblAnnounce.set_caption(
                             "photos/of a long summer by the sea/beach_012.jpg");
                     }});
    views.push_back({.name = "frmFilling", .window = &all.filling, .prepare = {}, .fill = [this] {
                         all.filling.lblFilling.set_caption("Getting things ready: 84 of 100 files");
                     }});
    views.push_back({.name = "frmSize", .window = &all.size, .prepare = {}, .fill = {}});
    views.push_back({.name = "frmSize_custom", .window = &all.size, .prepare = {}, .fill = [this] {
                         all.size.optCustom.select();
                         all.size.txtSize.set_text("4200");
                     }});
    views.push_back({.name = "frmRecent_empty", .window = &all.recent, .prepare = {}, .fill = {}});
    views.push_back({.name = "frmRecent", .window = &all.recent, .prepare = {}, .fill = [this] {
                         all.recent.flurns.resize(3);
                         all.recent.lblEmpty.show(false);
                         all.recent.lstFlurns.set_items({"2026-11-22 15:30   Quick Block",
                                                         "2026-11-21 09:05   Grandmother's birthday",
                                                         "2026-11-20 18:44   Quick Shapes Stars"});
                         all.recent.lstFlurns.set_pictures({folder.at("images/autumn.jpg"),
                                                            folder.at("images/starry_night.jpg"),
                                                            folder.at("samples/not_yet.jpg")});
                         all.recent.lstFlurns.select(1);
                     }});
    views.push_back({.name = "frmFont_plain",
                     .window = &all.font,
                     .prepare = [this] { all.main.font_extended = false; },
                     .fill = [this] { all.main.font_extended = true; }});
}

// The windows of the photos that have more than one face.
void filled_session::add_photo_views(std::vector<window_view> & views)
{
    frmMain & main = all.main;
    views.push_back({.name = "frmSelectPhotos", .window = &all.select_photos, .prepare = {}, .fill = [this] {
                         all.select_photos.txtCards.set_text("/home/someone/pictures/summer");
                     }});
    views.push_back({.name = "frmSelectPhotos_selection",
                     .window = &all.select_photos,
                     .prepare =
                         [&main] {
                             main.selected_count = 24;
                             set_photo_source_kind(main, photo_source::selection);
                         },
                     .fill = [&main] { set_photo_source_kind(main, photo_source::folder); }});
    views.push_back(
        {.name = "frmPhotoList_counting", .window = &all.photo_list, .prepare = {}, .fill = [this] {
             all.photo_list.txtCounting.set_caption(
                 "Checking  /home/someone/pictures/of a long summer by the sea/beach_012.jpg...");
             all.photo_list.txtCounting.show(true);
         }});
    views.push_back({.name = "frmPictureList_manager",
                     .window = &all.picture_list,
                     .prepare = [&main] { main.photo_list_edit_mode = true; },
                     .fill =
                         [this] {
                             all.main.photo_list_edit_mode = false;
                             all.picture_list.lstPictures.select(0);
                         }});
    const auto edit = [this] {
        all.pictures.edit_mode = editing::saved_list;
        all.pictures.edit_list_path = folder.at("piclists/Summer by the sea.pls");
    };
    views.push_back({.name = "frmPictures", .window = &all.pictures, .prepare = edit, .fill = {}});
    views.push_back(
        {.name = "frmPictures_counting", .window = &all.pictures, .prepare = edit, .fill = [this] {
             for (button * each : {&all.pictures.cmdAdd, &all.pictures.cmdSave, &all.pictures.cmdCancel,
                                   &all.pictures.cmdHelp})
                 each->show(false);
             all.pictures.txtCounting.set_caption("Checking  /home/someone/pictures/summer/beach_012.jpg...");
             all.pictures.txtCounting.show(true);
         }});
}

void filled_session::add_design_views(std::vector<window_view> & views)
{
    views.push_back({.name = "frmNewDesign", .window = &all.new_design, .prepare = {}, .fill = [this] {
                         all.new_design.txtName.set_text("Summer wall");
                         all.new_design.txtDescription.set_text(
                             "Eleven photos on a wall, the large one in the middle.\n"
                             "Best with many portraits.");
                     }});
    views.push_back({.name = "frmDesigns",
                     .window = &all.designs,
                     .prepare =
                         [this] {
                             all.designs.lstDesigns.set_items({"Summer wall", "Grandmother's birthday",
                                                               "Three by four", "Stars at night"});
                         },
                     .fill = [this] { all.designs.lstDesigns.select(1); }});
}

// A set that is supplied with the program, as it is edited.
void filled_session::add_frame_views(std::vector<window_view> & views)
{
    const auto edit = [this] { all.custom.edit_frame_name = "cardinals"; };
    views.push_back({.name = "frmCustom_manager",
                     .window = &all.custom,
                     .prepare = [this] { all.main.frame_manage_mode = true; },
                     .fill =
                         [this] {
                             all.main.frame_manage_mode = false;
                             all.custom.lstFrames.select(1);
                         }});
    views.push_back({.name = "frmFrames", .window = &all.frames, .prepare = edit, .fill = {}});
    views.push_back(
        {.name = "frmFrames_rendering", .window = &all.frames, .prepare = edit, .fill = [this] {
             for (button * each : {&all.frames.cmdSave, &all.frames.cmdCancel, &all.frames.cmdHelp})
                 each->show(false);
             all.frames.lblCount.set_caption("Generating number  12 of  36 frames");
             all.frames.lblCount.show(true);
         }});
    for (const char * list : {"None", "Summer by the sea"})
        views.push_back({.name = std::string("frmCaptions") + (list[0] == 'N' ? "" : "_with_list"),
                         .window = &all.captions,
                         .prepare =
                             [this, edit, list] {
                                 edit();
                                 all.frames.cmbPhotos.set_text(list);
                             },
                         .fill = {}});
}

// The designers as they look in the middle of the work.
void filled_session::add_designer_views(std::vector<window_view> & views)
{
    views.push_back({.name = "frmMatrix_shaken", .window = &all.matrix, .prepare = {}, .fill = [this] {
                         all.matrix.optLandscapePoster.select();
                         all.matrix.optBoth.select();
                         all.matrix.cmbRows.set_text("4");
                         all.matrix.chkResize.tick(true);
                         all.matrix.chkRotate.tick(true);
                     }});
    const auto letter = [this](const char * text, option_button & placing, option_button & shape) {
        all.main.lettering.text = text;
        all.lettering.txtLettering.set_text(text);
        placing.select();
        shape.select();
    };
    views.push_back({.name = "frmLettering", .window = &all.lettering, .prepare = {}, .fill = [this, letter] {
                         letter("Summer\n2026", all.lettering.optAlign, all.lettering.optPortrait);
                     }});
    views.push_back(
        {.name = "frmLettering_landscape", .window = &all.lettering, .prepare = {}, .fill = [this, letter] {
             letter("Happy birthday, Grandmother!", all.lettering.optSerpent, all.lettering.optLandscape);
             all.lettering.optSerif.select();
         }});
    views.push_back({.name = "frmPuzzle", .window = &all.puzzle, .prepare = {}, .fill = [this] {
                         all.puzzle.chkEdges.tick(true);
                         all.puzzle.chkBest.tick(true);
                     }});
}

std::vector<window_view> filled_session::views()
{
    std::vector<window_view> views;
    add_design_views(views);
    add_image_views(views);
    add_small_views(views);
    add_photo_views(views);
    add_frame_views(views);
    add_designer_views(views);
    for (form * each : all.others()) {
        const auto is_its = [&](const window_view & view) { return view.name == each->name(); };
        if (each != &all.image && std::none_of(views.begin(), views.end(), is_its))
            views.push_back({.name = each->name(), .window = each, .prepare = {}, .fill = {}});
    }
    return views;
}

void filled_session::look_at_each(const std::function<void(const window_view &, QWidget &)> & look)
{
    for (const window_view & view : views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view);
        look(view, shown.window());
    }
}

shown_view::shown_view(const window_view & wanted, std::optional<QSize> room)
    : held(*wanted.window), widget(make_window(wanted.window->name()))
{
    window_hooks hooks;
    if (room)
        hooks.room = [size = *room] { return size; };
    bind(held, *widget, hooks);
    fire(wanted.prepare);
    held.load();
    fire(wanted.fill);
    widget->show();
    widget->activateWindow();
    QApplication::processEvents();
}

shown_view::~shown_view()
{
    held.unload();
}
