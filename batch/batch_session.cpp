#include "batch/batch_session.h"

#include "batch/design_choice.h"
#include "batch/given_photos.h"
#include "batch/intake_step.h"
#include "batch/kept_files.h"
#include "batch/missing_pictures.h"
#include "batch/output_file.h"
#include "batch/output_kind.h"
#include "batch/poster_file.h"
#include "batch/print_size.h"
#include "batch/recipe_step.h"
#include "batch/settings.h"
#include "engine/preview.h"
#include "engine/run_steps.h"
#include "photos/left_out.h"
#include "photos/lists/photo_list.h"
#include "quick/no_template.h"
#include "quick/quick_match.h"
#include "quick/quick_template.h"
#include "quick/shapes/quick_shapes.h"
#include "quick/start_quick.h"
#include "session/start_designed.h"
#include "session/window_state.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/free_memory.h"
#include "support/platform_error.h"

#include <cstdio>
#include <functional>
#include <optional>

namespace {

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

void bring_photos(frmMain & main, const batch_arguments & arguments)
{
    take_photos(main, arguments.intake ? prepared_for_collage(main, arguments) : arguments.photos,
                arguments.out);
}

bool start_quick_style(frmMain & main, const batch_arguments & arguments)
{
    if (!arguments.frames.empty())
        std::fprintf(stderr, "A quick style wears no custom frames; it is made without \"%s\".\n",
                     arguments.frames.c_str());
    {
        const updating guard(main);  // one picture at the end instead of one a setting
        if (!begin_quick(main, [&] { bring_photos(main, arguments); }))
            return false;
        style_option(main, arguments.quick).select();
        orientation_option(main, arguments.orientation).select();
        main.optPreview.select();
    }
    apply_settings(main, arguments);
    return template_found(main);
}

// A design is only applied where there are photos: to be looked at, none stand for some.
void apply_without_photos(frmMain & main)
{
    start_designed(main, [&main] { set_photo_source_kind(main, photo_source::selection); });
    set_photo_source_kind(main, photo_source::none);
}

bool start_design(frmMain & main, const batch_arguments & arguments)
{
    choose_design(main, arguments);
    if (arguments.photos.empty()) {
        apply_without_photos(main);
    } else {
        bring_photos(main, arguments);
        start_designed(main);
    }
    apply_settings(main, arguments);
    return true;
}

// ---- the collage

bool went_well(const std::function<void()> & step)
{
    try {
        step();
        return true;
    } catch (const platform_error & error) {
        std::fprintf(stderr, "%s\n", in_one_line(told(error)).c_str());
        return false;
    }
}

constexpr const char * none_usable = "None of the photos could be used.";

// Whether the last run has laid what was asked for. Its messages have told what went wrong, but a template
// without places and a picture of the design that is gone are passed over without a word.
bool is_whole(const open_session & running)
{
    const frmMain & main = running.all.main;
    if (running.desk.told_of_an_error())
        return false;
    const std::string missing = missing_picture(main);
    if (!has_usable_photo(main))
        std::fprintf(stderr, "%s\n", none_usable);
    else if (main.run.image_number <= 1)
        std::fprintf(stderr,
                     "None of the photos found a place: the template of this design is missing or empty.\n");
    else if (!missing.empty())
        std::fprintf(stderr, "A picture of this collage is missing: %s\n", missing.c_str());
    else
        return true;
    return false;
}

bool goes_out(open_session & running, const batch_arguments & arguments, const made_poster & poster)
{
    return is_whole(running) &&
           went_well([&] { write_output(arguments.out, poster_file(running.all.main, arguments, poster)); });
}

// `went_out` is nothing where the run drew no picture at all: there are settings that keep it from drawing
// one.
exit_status outcome_of(const open_session & running, const std::optional<bool> & went_out)
{
    if (!went_out && !running.desk.told_of_an_error())
        std::fprintf(stderr, "%s\n",
                     has_usable_photo(running.all.main) ? "These settings make no picture." : none_usable);
    return went_out.value_or(false) ? exit_status::made : exit_status::not_made;
}

picture_size size_wanted(picture_size own, std::optional<int> size)
{
    return size ? saved_size(own, *size) : own;
}

std::string encoded(const bitmap & image, std::optional<int> size, const picture_encoder & encode)
{
    return size ? encoded_in_size(image, *size, encode) : encode(image);
}

// The run has encoded its poster already.
made_poster poster_of_run(const frmMain & main, std::optional<int> size)
{
    const bitmap & image = main.run.canvas;
    return {.size = size_wanted({.width = image.width(), .height = image.height()}, size),
            .jpeg = [&, size] { return size ? flurn_bytes(image, *size) : read_file(finished_path(main)); },
            .encoded = [&, size](const picture_encoder & encode) { return encoded(image, size, encode); }};
}

exit_status make_full_size(open_session & running, const batch_arguments & arguments)
{
    std::optional<bool> went_out;
    running.desk.on_modal = [&](form & window) {
        if (&window == &running.all.image)
            went_out = goes_out(running, arguments, poster_of_run(running.all.main, arguments.size));
    };
    running.all.main.run.drawn_at = drawn_scale(arguments);
    check_memory(running.all.main.run.drawn_at, free_memory());
    // The grid of shapes is laid out by a preview; the full size draws it as it stands.
    if (arguments.recipe.empty() && running.all.main.collage.quick_active &&
        running.all.main.optShapes.selected())
        write_quick_shapes(running.all.main);
    running.desk.forget_errors();
    running.all.main.cmdFlurn.click();
    return outcome_of(running, went_out);
}

// The preview's own bytes, unless it has to be scaled.
made_poster poster_of_preview(const std::string & picture, std::optional<int> size)
{
    const picture_size own = jpeg_size(picture).value_or(picture_size{});
    const picture_size wanted = size_wanted(own, size);
    const auto image = [picture] { return load_picture(picture_format::jpeg, picture); };
    return {.size = wanted,
            .jpeg = [=] { return wanted == own ? read_file(picture) : flurn_bytes(image(), *size); },
            .encoded = [=](const picture_encoder & encode) { return encoded(image(), size, encode); }};
}

exit_status make_small(open_session & running, const batch_arguments & arguments)
{
    frmMain & main = running.all.main;
    const std::string picture = finished_path(main);
    delete_file(picture);
    running.desk.forget_errors();
    if (main.collage.quick_active)
        make_preview(main, make_quick_template);
    else
        gen_sample(main);
    std::optional<bool> went_out;
    if (file_exists(picture))
        went_out = goes_out(running, arguments, poster_of_preview(picture, arguments.size));
    return outcome_of(running, went_out);
}

bool is_started(frmMain & main, const batch_arguments & arguments)
{
    if (arguments.recipe.empty())
        return arguments.quick.empty() ? start_design(main, arguments) : start_quick_style(main, arguments);
    start_recipe(main, arguments, [&] { bring_photos(main, arguments); });
    return true;
}

exit_status make(open_session & running, const batch_arguments & arguments)
{
    frmMain & main = running.all.main;
    if (!is_started(main, arguments))
        return exit_status::not_made;
    if (arguments.wanted == batch_arguments::task::dump)
        print_controls(main);
    if (arguments.out.empty())
        return exit_status::made;
    return arguments.preview ? make_small(running, arguments) : make_full_size(running, arguments);
}

}  // namespace

void check_against(frmMain & main, const batch_arguments & arguments)
{
    check_settings(main, arguments);
    check_frames(main, arguments);
    if (!arguments.recipe.empty())
        check_recipe_file(main, arguments);
    else if (arguments.quick.empty())
        check_design(main, arguments);
}

exit_status make_collage(open_session & running, const batch_arguments & arguments)
{
    check_against(running.all.main, arguments);
    const auto look_back = [&] {
        name_left_out(running.all.main);
        if (!arguments.keep.empty())
            keep_work_files(running.all.main, arguments.keep);
    };
    try {
        const exit_status status = make(running, arguments);
        look_back();
        return status;
    } catch (const platform_error &) {
        look_back();
        throw;
    }
}

exit_status run_batch(const batch_arguments & arguments, const batch_folders & folders)
{
    // What can't be written is told before the work, not after it.
    if (!arguments.out.empty()) {
        check_output_kind(arguments);
        checked_output(arguments.out);
    }
    if (!arguments.keep.empty())
        make_folders(arguments.keep);
    open_session running(arguments, folders);
    if (arguments.wanted == batch_arguments::task::list) {
        print_designs(running.all.main);
        return exit_status::made;
    }
    return make_collage(running, arguments);
}
