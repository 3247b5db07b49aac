#include "designers/lettering_plan.h"
#include "designers/poster_area.h"
#include "designers/work_template.h"
#include "designs/chosen_design.h"
#include "session/handlers.h"
#include "support/show_help.h"

// The lettering designer.

namespace {

// Pixels of the poster to one of the box that has its shape.
constexpr int box_divisor = 7;

poster_shape shape_of(const frmLettering & window)
{
    if (window.optSquare.selected())
        return poster_shape::square;
    return window.optLandscape.selected() ? poster_shape::landscape : poster_shape::portrait;
}

letter_placing placing_of(const frmLettering & window)
{
    if (window.optSerpent.selected())
        return letter_placing::serpent;
    return window.optOffset.selected() ? letter_placing::offset : letter_placing::align;
}

lettering_choices lettering_of(const frmLettering & window)
{
    return {.text = window.txtLettering.text(),
            .placing = placing_of(window),
            .overlap = window.chkOverlap.ticked(),
            .center = window.chkCenter.ticked(),
            .shape = shape_of(window)};
}

void shape_box(frmLettering & window)
{
    const poster_area poster = whole_poster(shape_of(window));
    window.txtLettering.move({.width = poster.width / box_divisor, .height = poster.height / box_divisor});
}

option_button & placing_option(frmLettering & window, letter_placing placing)
{
    switch (placing) {
        case letter_placing::serpent:
            return window.optSerpent;
        case letter_placing::offset:
            return window.optOffset;
        default:
            return window.optAlign;
    }
}

option_button & shape_option(frmLettering & window, poster_shape shape)
{
    switch (shape) {
        case poster_shape::landscape:
            return window.optLandscape;
        case poster_shape::square:
            return window.optSquare;
        default:
            return window.optPortrait;
    }
}

void text_changed(frmLettering & window)
{
    window.cmdOk.enable(!window.txtLettering.text().empty());
}

void load_lettering(windows & all)
{
    frmLettering & window = all.lettering;
    const lettering_choices & last = all.main.lettering;
    window.txtLettering.set_text(last.text);
    window.chkCenter.tick(last.center);
    window.chkOverlap.tick(last.overlap);
    placing_option(window, last.placing).select();
    shape_option(window, last.shape).select();
    text_changed(window);
}

void take_lettering(frmMain & main)
{
    reset_for_design(main);
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
    write_work_template(main, "__lettering", lettering_lines(main.lettering, main.random));
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
    window.cmdOk.on_click = [&all] { cmdOk_click(all); };
    window.cmdCancel.on_click = [&window] { window.unload(); };
    window.cmdHelp.on_click = [&all] { show_help(all.main, "lettering.htm"); };
    window.on_key = [&all](key) { show_help(all.main, "lettering.htm"); };
}
