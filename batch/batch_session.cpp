#include "batch/batch_session.h"

#include "batch/batch_desktop.h"
#include "designs/browser_page.h"
#include "designs/catalogue.h"
#include "designs/chosen_design.h"
#include "engine/flurn_driver.h"
#include "engine/flurn_file.h"
#include "frames/frame_sets.h"
#include "frames/frames_template.h"
#include "photos/photo_list.h"
#include "quick/quick_controls.h"
#include "quick/quick_match.h"
#include "quick/quick_shapes.h"
#include "quick/start_quick.h"
#include "session/connect_all.h"
#include "session/new_poster.h"
#include "session/windows.h"
#include "support/paths.h"
#include "support/platform_error.h"
#include "support/scratch_folder.h"
#include "support/text_file.h"

#include <cstdio>

namespace {

random_source chance_of(const batch_arguments & arguments)
{
    return arguments.seed ? seeded_random(*arguments.seed) : clock_random();
}

// A session as the program with a window has it, up to the point where the window would be shown.
struct session {
    scratch_folder scratch;
    batch_desktop desk;
    windows all;
    session(const batch_arguments & arguments, const batch_folders & folders)
        : scratch(folders.scratch),
          desk(arguments.answers_yes ? answer::yes : answer::no),
          all(desk, chance_of(arguments))
    {
        all.main.install_folder = folders.install_folder;
        share_data_folder(all.main, folders.data, scratch.path());
        connect_all(all);
        all.main.load();
        desk.progress = [this] { return all.main.txtDoing.text(); };
    }
};

// ---- designs

void print_designs(frmMain & main)
{
    bool more = true;
    for (catalogue_start start = catalogue_start::first; more; start = catalogue_start::next) {
        more = read_design(main, start);
        const design_record & design = main.design_record;
        if (!design.section.empty())
            std::printf("%s\t%s\t%s\t%s\n", design.section.c_str(), design.name.c_str(),
                        design.design.c_str(), design.count.c_str());
    }
    close_catalogue(main);
}

poster_shape shape_of(const design_record & design, const std::string & asked)
{
    const std::string wanted = !asked.empty()                     ? asked
                               : design.background == "Landscape" ? "landscape"
                                                                  : "portrait";
    if (wanted == "square")
        return poster_shape::square;
    return wanted == "landscape" ? poster_shape::landscape : poster_shape::portrait;
}

// The window offers a design only where it fits; here it is up to the caller.
void note_misfit(const design_record & design, poster_shape shape)
{
    const design_view view =
        shape == poster_shape::landscape ? design_view::landscape : design_view::portrait;
    if (shape != poster_shape::square && !fits_orientation(design, view))
        std::fprintf(stderr, "%s isn't made for a %s poster; it is used all the same.\n", design.name.c_str(),
                     view == design_view::landscape ? "landscape" : "portrait");
}

// What the set or the design lacks has been told by a message.
void wear_frame_set(frmMain & main, const std::string & set)
{
    if (main.design_record.design != "Frame")
        return;
    if (set.empty() || !file_exists(joined(frame_set_folder(main, set), "design.ini")))
        throw bad_arguments{"\"" + main.design_record.name + "\" wears custom frames: --frames names a set"};
    main.frame_set_name = set;
    if (!build_frames_template(main))
        throw bad_arguments{"\"" + main.design_record.name + "\" can't wear the frames \"" + set + "\""};
    main.design_record.file = "__frames";
}

// Leaves the session as the design browser leaves it after its Ok.
void choose_design(frmMain & main, const batch_arguments & arguments)
{
    if (!find_design(main, arguments.design))
        throw bad_arguments{"there is no design named \"" + arguments.design +
                            "\"; --list shows the designs"};
    close_catalogue(main);
    const poster_shape shape = shape_of(main.design_record, arguments.orientation);
    note_misfit(main.design_record, shape);
    settle_caption_clear(main.design_record);
    const updating guard(main);  // the photos are not there yet, so there is nothing to preview
    make_room_for_background(main);
    wear_frame_set(main, arguments.frames);
    take_design(main,
                {.section = main.design_record.section, .name = main.design_record.name, .shape = shape});
}

// ---- photos

void use_folder(frmMain & main, const std::string & folder)
{
    photos_of_folder(main, folder);
    set_photo_source_kind(main, photo_source::folder);
    main.lblPhotos.set_caption("Folder:");
    main.txtPhotos.set_text(folder);
    main.txtPhotos.tag = folder;
}

void use_list(frmMain & main, const std::string & list)
{
    main.txtPhotos.tag = list;
    set_photo_source_kind(main, photo_source::list);
    main.lblPhotos.set_caption("Photo List:");
    main.txtPhotos.set_text(name_of(list));
    get_photos(main);
}

void use_selection(frmMain & main, const std::vector<std::string> & files)
{
    append_to_list(main, files);
    set_photo_source_kind(main, photo_source::selection);
    main.lblPhotos.set_caption("Selected:");
    main.txtPhotos.set_text(std::to_string(main.selected_count) + " selected photos");
    get_photos(main);
}

void choose_photos(frmMain & main, const std::vector<std::string> & given)
{
    std::vector<std::string> paths;
    for (const std::string & path : given)
        paths.push_back(absolute_path(path));
    for (const std::string & path : paths)
        if (!file_exists(path) && !folder_exists(path))
            throw platform_error(error_number::file_not_found, "There is no such photo, folder or list.",
                                 path);
    if (paths.size() == 1 && folder_exists(paths.front()))
        use_folder(main, paths.front());
    else if (paths.size() == 1 && lower_case(paths.front()).ends_with(".pls"))
        use_list(main, paths.front());
    else
        use_selection(main, paths);
    if (main.table.last_photo < 0)
        throw platform_error(error_number::file_not_found, "There are no photos in that folder.",
                             given.front());
}

// ---- settings

void apply_setting(frmMain & main, const std::string & name, const std::string & value)
{
    control * const found = main.find(name);
    if (found == nullptr)
        throw bad_arguments{"there is no control named \"" + name + "\"; --dump shows the controls"};
    if (!found->enabled())
        std::fprintf(stderr, "%s is disabled for this design; it is set all the same.\n", name.c_str());
    if (!found->set_as_user(value))
        throw bad_arguments{name + " can't be set to \"" + value + "\""};
}

void apply_settings(frmMain & main, const batch_arguments & arguments)
{
    const updating guard(main);  // one picture at the end instead of one a setting
    if (arguments.caption)
        main.txtCaption.set_as_user(*arguments.caption);
    for (const auto & [name, value] : arguments.settings)
        apply_setting(main, name, value);
}

std::string escaped(const std::string & text)
{
    std::string line;
    for (const char sign : text)
        line += sign == '\t' ? "\\t" : sign == '\n' ? "\\n" : sign == '\r' ? "\\r" : std::string(1, sign);
    return line;
}

void print_controls(const frmMain & main)
{
    for (const control * shown : main.controls())
        std::printf("%s\t%d\t%d\t%s\t%s\n", shown->name().c_str(), shown->visible() ? 1 : 0,
                    shown->enabled() ? 1 : 0, escaped(shown->value()).c_str(), escaped(shown->tag).c_str());
}

// ---- quick styles

option_button & style_option(frmMain & main, const std::string & style)
{
    if (style == "scattered")
        return main.optScatter;
    if (style == "matrix")
        return main.optMatrix;
    return style == "shapes" ? main.optShapes : main.optBlock;
}

option_button & orientation_option(frmMain & main, const std::string & orientation)
{
    if (orientation == "landscape")
        return main.optLandscape;
    return orientation == "square" ? main.optSquare : main.optPortrait;
}

bool template_found(frmMain & main)
{
    const bool block = main.optBlock.selected();
    if (!block && !main.optScatter.selected())
        return true;
    const bool found = match_quick_style(main);
    if (!found)
        tell_no_template(main, block ? block_caller : scatter_caller);
    return found;
}

bool start_quick_style(frmMain & main, const batch_arguments & arguments)
{
    {
        const updating guard(main);  // one picture at the end instead of one a setting
        if (!begin_quick(main, [&] { choose_photos(main, arguments.photos); }))
            return false;
        style_option(main, arguments.quick).select();
        orientation_option(main, arguments.orientation).select();
        main.optPreview.select();
    }
    apply_settings(main, arguments);
    return template_found(main);
}

bool start_design(frmMain & main, const batch_arguments & arguments)
{
    choose_design(main, arguments);
    if (!arguments.photos.empty())
        choose_photos(main, arguments.photos);
    start_designed(main);
    apply_settings(main, arguments);
    return true;
}

// ---- the collage

bool save_result(const bitmap & image, const batch_arguments & arguments)
{
    try {
        const int own = std::max(image.width(), image.height());
        save_flurn(image, arguments.size.value_or(own), arguments.out);
        return true;
    } catch (const platform_error & error) {
        std::fprintf(stderr, "%s\n", in_one_line(told(error)).c_str());
        return false;
    }
}

exit_status make_full_size(session & running, const batch_arguments & arguments)
{
    bool saved = false;
    running.desk.on_modal = [&](form & window) {
        if (&window == &running.all.image)
            saved = save_result(running.all.main.run.canvas, arguments);
    };
    // The grid of shapes is laid out by a preview; the full size draws it as it stands.
    if (running.all.main.quick_active && running.all.main.optShapes.selected())
        write_quick_shapes(running.all.main);
    running.all.main.cmdFlurn.click();
    return saved ? exit_status::made : exit_status::not_made;
}

exit_status make_small(session & running, const batch_arguments & arguments)
{
    frmMain & main = running.all.main;
    const std::string picture = work_path(main, "tmp/finished.jpg");
    delete_file(picture);
    if (main.quick_active)
        make_preview(main);
    else
        gen_sample(main);
    const bitmap image = load_picture(picture_format::jpeg, picture);
    return image && save_result(image, arguments) ? exit_status::made : exit_status::not_made;
}

exit_status make_collage(session & running, const batch_arguments & arguments)
{
    frmMain & main = running.all.main;
    if (!(arguments.quick.empty() ? start_design(main, arguments) : start_quick_style(main, arguments)))
        return exit_status::not_made;
    if (arguments.wanted == batch_arguments::task::dump)
        print_controls(main);
    if (arguments.out.empty())
        return exit_status::made;
    return arguments.preview ? make_small(running, arguments) : make_full_size(running, arguments);
}

}  // namespace

exit_status run_batch(const batch_arguments & arguments, const batch_folders & folders)
{
    session running(arguments, folders);
    if (arguments.wanted == batch_arguments::task::list) {
        print_designs(running.all.main);
        return exit_status::made;
    }
    return make_collage(running, arguments);
}
