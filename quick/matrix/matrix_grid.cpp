#include "quick/matrix/matrix_grid.h"

#include "quick/template_text.h"

namespace {

bool find_square_grids(line_source & table)
{
    while (!table.at_end())
        if (table.read_line().starts_with("#SQUARE"))
            return true;
    return false;
}

bool is_comment(const std::string & line)
{
    return line.starts_with('#');
}

}  // namespace

matrix_grid matrix_grid_of(const std::string & line)
{
    const std::vector<std::string> fields = fields_of(line);
    return {.cells = number_at(fields, 0),
            .rows = number_at(fields, 1),
            .columns = number_at(fields, 2),
            .row_gap = number_at(fields, 3),
            .column_gap = number_at(fields, 4),
            .side_margin = number_at(fields, 5),
            .top_margin = number_at(fields, 6),
            .bottom_margin = number_at(fields, 7)};
}

int cells_of(const std::string & line)
{
    return number_at(fields_of(line), 0);
}

matrix_lines find_matrix(line_source & table, poster_shape poster, int wanted)
{
    if (poster == poster_shape::square && !find_square_grids(table))
        return {.line = default_matrix_line, .previous = {}, .corrupt = true};
    matrix_lines found{.line = "#", .previous = {}};
    while (!table.at_end()) {
        if (!is_comment(found.line))
            found.previous = found.line;
        found.line = table.read_line();
        if (!is_comment(found.line) && cells_of(found.line) >= wanted)
            break;
    }
    return found;
}
