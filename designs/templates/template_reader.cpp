#include "designs/templates/template_reader.h"

#include "designs/templates/bent_location.h"
#include "designs/templates/location_line.h"
#include "designs/templates/location_mixing.h"
#include "designs/templates/template_path.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

#include <algorithm>

namespace {

constexpr int line_limit = 1001;  // of the format; comments count
constexpr int16 largest_min_location = 100;
constexpr double margin_of_smallest = 0.7;

// Pixels of the side along which the old top was measured.
struct edges {
    int full, preview;
};
constexpr edges portrait_edges{.full = 3000, .preview = 435};
constexpr edges landscape_edges{.full = 2000, .preview = 290};

bool is_work_file(const std::string & file)
{
    return file == "__matrix" || file == "__lettering" || file == "__puzzle" || file == "__quick";
}

line_source section_of_design_list(const frmMain & main)
{
    line_source lines(joined(main.install_folder, "design_list"));
    const std::string header = "[" + main.design_record.file + "]";
    while (!lines.at_end() && lines.read_line() != header) {}
    return lines;
}

line_source opened_template(const frmMain & main, run_size size)
{
    const ::design_record & design = main.design_record;
    if (main.collage.from_recipe)
        return line_source(template_path(main, "__recipe"));
    if (design.file == "__matrix" && size == run_size::full)
        return line_source(template_path(main, "__matrix_"));
    if (is_work_file(design.file) || design.system == "No" || design.design == "Frame")
        return line_source(template_path(main, design.file));
    return section_of_design_list(main);
}

void set_matrix_switches(frmMain & main, const location & first)
{
    if (first.rotation == 1)
        main.collage.matrix_both = true;
    if (first.frame == 1)
        main.collage.matrix_rotate = true;
    if (first.shadow == 1)
        main.collage.matrix_resize = true;
}

bool enlarges_for_soft_edges(const frmMain & main)
{
    return main.chkSoftEdge.ticked() && main.frmOrnaments.visible() && main.work_style != "Fill";
}

void add_location(frmMain & main, const location & place)
{
    if (main.design_record.style == "Matrix" && main.design_locations.count == 0)
        set_matrix_switches(main, place);
    main.min_location = std::min({main.min_location, place.height, place.width});
    main.design_locations.add(enlarges_for_soft_edges(main) ? softened(place) : place);
}

void read_locations(frmMain & main, line_source & lines)
{
    for (int count = 0; count < line_limit && !lines.at_end(); ++count) {
        const std::string line = lines.read_line();
        if (line.starts_with('['))
            return;
        if (line.starts_with('#'))
            continue;
        const std::optional<location> place = parse_location(line);
        if (!place)
            return;
        add_location(main, *place);
    }
}

void read_opened_template(frmMain & main, run_size size)
{
    const bool matrix = main.design_record.style == "Matrix";
    main.work_style = matrix ? "Fill" : main.design_record.style;
    main.collage.matrix_both = false;
    line_source lines = opened_template(main, size);
    main.design_locations.clear();
    main.min_location = largest_min_location;
    read_locations(main, lines);
    main.run.collage_margin = nearest16(main.min_location * margin_of_smallest);
    if (main.lblDesign.caption() == "Lettering")
        mix_locations(main, mixing::forced);
}

// A landscape template has its own height there: with that of a portrait one it would leave the poster.
int turning_edge(const frmMain & main)
{
    const edges & sides = main.collage.landscape_turn == -90 ? landscape_edges : portrait_edges;
    return main.in_preview ? sides.preview : sides.full;
}

void stretch_grid(location_table & table, stretch by)
{
    table[0] = corner_stretched(table[0], by);  // its other two are the counts of rows and columns
    table[1] = stretched(table[1], by);
}

}  // namespace

void read_template(frmMain & main, run_size size)
{
    try {
        with_platform_errors([&] { read_opened_template(main, size); });
    } catch (const platform_error & error) {
        main.desk.message(" XXY " + main.trace + "YY CAUGHT AN ERROR " + std::to_string(code(error)) + "\n" +
                          told(error));
    }
}

std::vector<std::string> lines_of_template(const frmMain & main, run_size size)
{
    std::vector<std::string> lines;
    for (line_source source = opened_template(main, size); !source.at_end();) {
        std::string line = source.read_line();
        if (line.starts_with('[') || static_cast<int>(lines.size()) == line_limit)
            break;
        lines.push_back(std::move(line));
    }
    return lines;
}

void turn_locations(frmMain & main)
{
    location_table & table = main.design_locations;
    const int edge = turning_edge(main);
    const int step = main.work_style == "Fill" ? 2 : 1;
    for (int i = step - 1; i <= table.count; i += step)
        table[i] = turned(table[i], edge);
}

void stretch_locations(frmMain & main)
{
    location_table & table = main.design_locations;
    const stretch by = main.poster_tall ? tall_stretch : wide_stretch;
    if (main.design_record.style == "Matrix") {
        stretch_grid(table, by);
        return;
    }
    for (int i = 0; i <= table.count; ++i)
        table[i] = stretched(table[i], by);
}
