#include "quick/matrix/matrix_shapes.h"

#include "quick/template_text.h"

namespace {

constexpr int most_alike = 2;  // rows that begin with the same shape

}  // namespace

matrix_shapes::matrix_shapes(std::string_view shapes, int count, int grid_columns, row_starts wanted)
    : columns(grid_columns), starts(wanted)
{
    const std::vector<std::string> entries = fields_of(shapes);
    for (int i = 0; i < count; ++i) {
        const std::string & entry = field_at(entries, static_cast<std::size_t>(i));
        photos.push_back(entry.empty() ? ' ' : entry.front());
    }
}

std::string matrix_shapes::for_landscape(std::string_view shapes)
{
    std::string text;
    for (const char sign : shapes)
        text += sign == 'l' ? 'p' : sign == 'p' ? 'l' : sign;
    return text;
}

void matrix_shapes::begin_row()
{
    retry_at = -1;
}

bool matrix_shapes::takes_two(int column)
{
    const std::size_t from = retry_at > -1 ? static_cast<std::size_t>(retry_at) : 0;
    retry_at = -1;
    taken found = scan(from, column);
    if (found == taken::nothing && retry_at == -1) {
        begin_anew();
        found = scan(0, column);
    }
    // A photo that only fits elsewhere is left: one cell, for a photo that was used before.
    return found == taken::two;
}

matrix_shapes::taken matrix_shapes::scan(std::size_t from, int column)
{
    for (std::size_t i = from; i < photos.size(); ++i) {
        const taken found = taken_by(i, column);
        if (found != taken::nothing)
            return found;
        if (photos[i] == 'l' && retry_at == -1)
            retry_at = static_cast<int>(i);
    }
    return taken::nothing;
}

matrix_shapes::taken matrix_shapes::taken_by(std::size_t photo, int column)
{
    if (starts == row_starts::balanced && column == 0)
        return taken_at_start(photo);
    if (photos[photo] == 'p') {
        photos[photo] = 'P';
        return taken::one;
    }
    if (photos[photo] == 'l' && column < columns - 1) {
        photos[photo] = 'L';
        return taken::two;
    }
    return taken::nothing;
}

matrix_shapes::taken matrix_shapes::taken_at_start(std::size_t photo)
{
    const char shape = photos[photo];
    if ((shape == 'p' && lead < 0) || (shape == 'l' && lead > 0))
        lead = 0;
    if (shape == 'p' && lead < most_alike) {
        ++lead;
        photos[photo] = 'P';
        return taken::one;
    }
    if (shape == 'l' && columns > 1 && lead > -most_alike) {
        --lead;
        photos[photo] = 'L';
        return taken::two;
    }
    return taken::nothing;
}

// Portraits that wait count as landscape photos from here on; that is meant, it keeps the rows mixed.
void matrix_shapes::begin_anew()
{
    for (char & photo : photos)
        photo = photo == 'P' ? 'p' : 'l';
}
