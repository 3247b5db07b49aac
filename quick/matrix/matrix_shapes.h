#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Deals the cells of a quick matrix: a portrait photo takes one, a landscape photo two side by side, in the
/// order of the photos as far as the rows come out full.
class matrix_shapes {
public:
    enum class row_starts { as_they_come, balanced };

    /// `shapes` is "p:" or "l:" for each photo. A landscape poster is turned later: its photos change places.
    matrix_shapes(std::string_view shapes, int photos, int columns, row_starts starts);
    static std::string for_landscape(std::string_view shapes);

    void begin_row();
    /// True when the next photo takes two cells from `column` on; a photo that doesn't fit there waits for
    /// the cell behind.
    bool takes_two(int column);

private:
    enum class taken { nothing, one, two };
    taken taken_by(std::size_t photo, int column);
    taken taken_at_start(std::size_t photo);
    taken scan(std::size_t from, int column);
    void begin_anew();

    std::vector<char> photos;  ///< p, l; P, L once used
    int columns;
    row_starts starts;
    int lead = 0;  ///< rows in a run that begin alike: above 0 with a portrait, below with a landscape photo
    int retry_at = -1;
};
