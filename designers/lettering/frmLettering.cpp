#include "designers/lettering/frmLettering.h"

#include "designers/lettering/lettering_plan.h"
#include "designers/poster_area.h"
#include "designers/work_template.h"
#include "designs/catalogue/chosen_design.h"
#include "designs/templates/location_line.h"
#include "session/start/start_up.h"
#include "session/windows.h"
#include "support/colors.h"
#include "support/files/paths.h"

#include <algorithm>
#include <array>

// The lettering designer.

namespace {

// Pixels of the poster to one of the box that has its shape.
constexpr int box_divisor = 7;

constexpr std::uint32_t paper = 0xFFFFFF, ink = about_background;

// The options of a set stand in the order of their enumerators; none selected is the first.
template <typename Choice>
Choice chosen(const option_set & options)
{
    const auto selected =
        std::ranges::find_if(options, [](const option_button * each) { return each->selected(); });
    return selected == options.end() ? Choice{} : static_cast<Choice>(selected - options.begin());
}

template <typename Choice>
void select(const option_set & options, Choice choice)
{
    options.at(static_cast<std::size_t>(choice))->select();
}

lettering_choices lettering_of(const frmLettering & window)
{
    return {.text = window.txtLettering.text(),
            .placing = chosen<letter_placing>(window.placing_options),
            .overlap = window.chkOverlap.ticked(),
            .center = window.chkCenter.ticked(),
            .shape = chosen<poster_shape>(window.orientation_options),
            .alphabet = chosen<letter_alphabet>(window.alphabet_options)};
}

struct shown_alphabet {
    picture frmLettering::*sample;
    option_button frmLettering::*option;
    const char * file;
};
constexpr std::array<shown_alphabet, 3> alphabets{
    {{&frmLettering::picRounded, &frmLettering::optRounded, "images/letters_rounded.png"},
     {&frmLettering::picSturdy, &frmLettering::optSturdy, "images/letters_sturdy.png"},
     {&frmLettering::picSerif, &frmLettering::optSerif, "images/letters_serif.png"}}};

void shape_box(frmLettering & window)
{
    const poster_area poster = whole_poster(chosen<poster_shape>(window.orientation_options));
    window.txtLettering.move({.width = poster.width / box_divisor, .height = poster.height / box_divisor});
}

void text_changed(frmLettering & window)
{
    window.cmdOk.enable(!window.txtLettering.text().empty());
}

void load_lettering(windows & all)
{
    frmLettering & window = all.lettering;
    const lettering_choices & last = all.main.lettering;
    window.txtLettering.set_back_color(paper);
    window.txtLettering.set_fore_color(ink);
    window.txtLettering.set_text(last.text);
    window.chkCenter.tick(last.center);
    window.chkOverlap.tick(last.overlap);
    select(window.placing_options, last.placing);
    select(window.orientation_options, last.shape);
    select(window.alphabet_options, last.alphabet);
    for (const shown_alphabet & each : alphabets)
        (window.*each.sample).load(joined(all.main.install_folder, each.file));
    text_changed(window);
}

void take_lettering(frmMain & main)
{
    clear_matrix_design(main);
    const updating quiet(main);
    take_design(main, {.section = "Lettering", .name = "Lettering", .shape = main.lettering.shape});
    main.design_record.file = "__lettering";
    main.picSample.show(false);
}

void cmdOk_click(windows & all)
{
    frmMain & main = all.main;
    main.lettering = lettering_of(all.lettering);
    if (main.lettering.text.empty()) {
        all.lettering.unload();
        return;
    }
    const std::string fault = lettering_fault(main.lettering);
    if (!fault.empty()) {
        main.desk.message(fault);
        return;
    }
    write_work_template(main, "__lettering", template_lines(lettering_plan(main.lettering, main.random)));
    take_lettering(main);
    all.lettering.unload();
}

}  // namespace

void connect_frmLettering(windows & all)
{
    frmLettering & window = all.lettering;
    window.on_load = [&all] { load_lettering(all); };
    window.txtLettering.on_change = [&window] { text_changed(window); };
    for (option_button * option : window.orientation_options)
        option->on_click = [&window] { shape_box(window); };
    for (const shown_alphabet & each : alphabets)
        (window.*each.sample).on_click = [&window, each] { (window.*each.option).select(); };
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
}
