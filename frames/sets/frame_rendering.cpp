#include "frames/sets/frame_rendering.h"

#include "frames/sets/frame_layout.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/numbers.h"

namespace {

constexpr double icon_part = 0.8;  // of its size, in a frame across

text_request request_of(const frame_look & look, const std::string & text, double size)
{
    text_request request{.text = text,
                         .font = look.font,
                         .color = split_color(look.caption_fore),
                         .background = split_color(look.caption_back)};
    request.font.size = size;
    return request;
}

picture_size measured(desktop & desk, const frame_look & look, const std::string & caption, double size)
{
    const int width = caption.empty() ? 0 : desk.text_size(request_of(look, caption, size)).width;
    return {.width = width, .height = desk.text_size(request_of(look, " ", size)).height};
}

// By way of a file: what the image library loads is what comes into the frame.
bitmap drawn_caption(desktop & desk, const frame_look & look, const std::string & caption,
                     const caption_band & band, const std::string & work_folder)
{
    const double size =
        caption_size(band, [&](double wanted) { return measured(desk, look, caption, wanted); });
    const bitmap text = caption.empty() ? bitmap() : desk.draw_text(request_of(look, caption, size));
    const std::string path = joined(work_folder, "caption1.bmp");
    save_bmp(caption_surface(band, split_color(look.caption_back), text), path);
    return load_picture(picture_format::bmp, path);
}

bitmap icon_of(const frame_look & look)
{
    return look.icon_path.empty() ? bitmap() : load_picture(picture_format::bmp, look.icon_path);
}

std::string landscape_path(const std::string & path)
{
    constexpr std::size_t name_length = 12;  // "pframeNN.jpg"
    std::string across = path;
    across.at(path.size() - name_length) = 'l';
    return across;
}

std::string work_folder(const frmMain & main)
{
    return work_path(main, "tmp");
}

}  // namespace

bitmap portrait_frame(desktop & desk, const frame_look & look, const std::string & caption,
                      const std::string & work_folder)
{
    bitmap frame = portrait_ground(split_color(look.outside), split_color(look.inside));
    const caption_band band = portrait_band(look.icon_path.empty() ? icon_room::none : icon_room::left);
    paste_caption(frame, drawn_caption(desk, look, caption, band, work_folder), band);
    const bitmap icon = icon_of(look);
    if (const auto key = pixel_at(icon, 0, 0))
        lay_icon(frame, icon, *key);
    return frame;
}

bitmap landscape_frame(desktop & desk, const frame_look & look, const std::string & caption,
                       const std::string & work_folder)
{
    const rgb_triple inside = split_color(look.inside);
    bitmap frame = landscape_ground(split_color(look.outside), inside, split_color(look.caption_back));
    const caption_band band = landscape_band();
    paste_caption(frame, drawn_caption(desk, look, caption, band, work_folder), band);
    chamfer_band(frame, inside);
    const bitmap whole = icon_of(look);
    const bitmap icon =
        rescaled(whole, nearest(whole.width() * icon_part), nearest(whole.height() * icon_part));
    if (const auto key = pixel_at(icon, 1, 1))
        lay_icon(frame, icon, *key);
    return frame;
}

frame_look look_of(const frmMain & main)
{
    const frmFrames & editor = main.all->frames;
    frame_look look{.outside = editor.picOutside.back_color(),
                    .inside = editor.picInside.back_color(),
                    .caption_back = editor.picFont_BG.back_color(),
                    .caption_fore = editor.picFont_FG.back_color(),
                    .font = editor.lblFont.font(),
                    .icon_path = {}};
    const int item = editor.cmbIcons.list_index();
    if (item > 0)
        look.icon_path = joined(joined(main.data_folder, "icons"),
                                editor.icon_files.at(static_cast<std::size_t>(item) - 1));
    return look;
}

void render_portrait_frame(frmMain & main, const std::string & path)
{
    const std::string & caption = main.all->frames.txtCaption.text();
    replace_file(path, jpeg_bytes(portrait_frame(main.desk, look_of(main), caption, work_folder(main))));
    render_landscape_frame(main, path);
}

void render_landscape_frame(frmMain & main, const std::string & path)
{
    const std::string & caption = main.all->frames.txtCaption.text();
    replace_file(landscape_path(path),
                 jpeg_bytes(landscape_frame(main.desk, look_of(main), caption, work_folder(main))));
}

void preview_frame(frmMain & main)
{
    const std::string path = joined(work_folder(main), "new_frame.jpg");
    const std::string & caption = main.all->frames.txtCaption.text();
    save_jpeg(portrait_frame(main.desk, look_of(main), caption, work_folder(main)), path);
    main.all->frames.picFrame.load(path);
}
