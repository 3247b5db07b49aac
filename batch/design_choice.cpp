#include "batch/design_choice.h"

#include "designs/browser/browser_page.h"
#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/chosen_design.h"
#include "designs/templates/template_path.h"
#include "frames/sets/frame_sets.h"
#include "frames/sets/frames_template.h"
#include "support/files/paths.h"
#include "support/in_a_row.h"
#include "support/platform_error.h"

#include <algorithm>
#include <cstdio>

namespace {

bool is_the_session_s_own(const design_record & design)
{
    return !is_offered(design.name) || !design_passes_family(design, design_family::all);
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
    const orientation view =
        shape == poster_shape::landscape ? orientation::landscape : orientation::portrait;
    if (shape != poster_shape::square && !fits_orientation(design, view))
        std::fprintf(stderr, "%s isn't made for a %s poster; it is used all the same.\n", design.name.c_str(),
                     view == orientation::landscape ? "landscape" : "portrait");
}

bool wears_frames(const frmMain & main)
{
    return main.design_record.design == "Frame";
}

std::vector<std::string> frame_sets(const frmMain & main)
{
    const std::string place = joined(main.data_folder, "frames");
    std::vector<std::string> sets;
    for (const std::string & name : folder_exists(place) ? folders_in(place) : sets)
        if (file_exists(joined(frame_set_folder(main, name), "design.ini")))
            sets.push_back(name);
    std::ranges::sort(sets);
    return sets;
}

std::string sets_there_are(const std::vector<std::string> & sets)
{
    return sets.empty() ? "there are none" : "there are " + in_a_row(sets);
}

// What the set or the design lacks has been told by a message.
void wear_frame_set(frmMain & main, const std::string & set)
{
    if (!wears_frames(main)) {
        if (!set.empty())
            std::fprintf(stderr, "%s wears no custom frames; it is made without \"%s\".\n",
                         main.design_record.name.c_str(), set.c_str());
        return;
    }
    main.collage.frame_set_name = set;
    if (!build_frames_template(main))
        throw bad_arguments{"\"" + main.design_record.name + "\" can't wear the frames \"" + set + "\""};
    main.design_record.file = "__frames";
}

}  // namespace

void print_designs(frmMain & main)
{
    bool more = true;
    for (catalogue_start start = catalogue_start::first; more; start = catalogue_start::next) {
        more = read_design(main, start);
        const design_record & design = main.design_record;
        if (!design.section.empty() && !is_the_session_s_own(design))
            std::printf("%s\t%s\t%s\t%s\n", design.section.c_str(), design.name.c_str(),
                        design.design.c_str(), design.count.c_str());
    }
    close_catalogue(main);
}

void check_frames(const frmMain & main, const batch_arguments & arguments)
{
    if (arguments.frames.empty())
        return;
    const std::vector<std::string> sets = frame_sets(main);
    if (std::ranges::find(sets, arguments.frames) == sets.end())
        throw bad_arguments{"there is no set of frames named \"" + arguments.frames + "\"; " +
                            sets_there_are(sets)};
}

void check_design(frmMain & main, const batch_arguments & arguments)
{
    const found_design found = find_shown_design(main, arguments.design);
    close_catalogue(main);
    if (found == found_design::several)
        throw bad_arguments{"several designs are named \"" + arguments.design +
                            "\"; --list shows their sections, by which one of them can be asked for"};
    if (found == found_design::none)
        throw bad_arguments{"there is no design named \"" + arguments.design +
                            "\"; --list shows the designs"};
    if (is_the_session_s_own(main.design_record))
        throw bad_arguments{
            "\"" + main.design_record.name +
            "\" is a name that the program keeps for itself: its layout is written by a quick "
            "style or a designer of the window; --list shows the designs"};
    if (wears_frames(main) && arguments.frames.empty())
        throw bad_arguments{"\"" + arguments.design + "\" wears custom frames: --frames names a set; " +
                            sets_there_are(frame_sets(main))};
    if (!keep_template(main))
        throw platform_error(error_number::permission_denied,
                             "Another program is changing this design: try again.", arguments.design);
}

void choose_design(frmMain & main, const batch_arguments & arguments)
{
    check_design(main, arguments);
    const poster_shape shape = shape_of(main.design_record, arguments.orientation);
    note_misfit(main.design_record, shape);
    settle_caption_clear(main.design_record);
    const updating guard(main);  // the photos are not there yet, so there is nothing to preview
    make_room_for_background(main);
    wear_frame_set(main, arguments.frames);
    take_design(main,
                {.section = main.design_record.section, .name = main.design_record.name, .shape = shape});
}
