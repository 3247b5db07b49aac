#pragma once

#include "engine/pixels/scaling_rows.h"
#include "support/MFreeImage.h"
#include "support/rectangle.h"

/// Scaling by rows: a photo's rows come one by one and are never all there at once. Every byte is the one
/// that `rescaled`, and then `copied`, would give.

/// How a picture is scaled, and what of the result is wanted.
struct scaling_plan {
    picture_size source, scaled;
    rectangle wanted;  ///< has to lie in the scaled picture
};

/// The plan that wants all of the scaled picture.
scaling_plan all_scaled(picture_size source, picture_size scaled);

/// The same plan for a result that has that many pixels for one, in each direction.
scaling_plan enlarged(const scaling_plan & plan, int scale);

/// True for a plan that can be carried out: every size at least 1, that of the source and of the wanted part
/// below 32,768, that of the scaled picture below eight times as much, the wanted part inside.
bool is_possible(const scaling_plan & plan);

/// What a scaler needs of memory. Handed on from photo to photo it is asked of the system once; each thread
/// has its own.
struct scaling_memory {
    std::vector<std::uint8_t> rows, summed, widest, waiting;
    std::vector<pixel> padded;
    std::vector<const std::uint8_t *> window;
};

/// Scales one picture whose rows come from the top.
class row_scaler {
public:
    /// Raises out_of_memory (7). The plan has to be possible; `memory` has to last.
    row_scaler(const scaling_plan & plan, scaling_memory & memory, arithmetic way = best_arithmetic());

    /// The source rows that are needed, from the top, the latter exclusive; the others needn't be asked for,
    /// but they have to be counted.
    int first_row() const { return plan.source.height - highest; }
    int end_row() const { return plan.source.height - lowest; }

    /// The next row, with `room_behind` its end; one that isn't needed may be empty.
    void take(std::span<const pixel> row);

    /// The wanted part, complete when all rows up to `end_row` were taken.
    bitmap result() && { return std::move(made); }

private:
    std::uint8_t * slot_of(int row);
    bool is_kept_waiting(std::span<const pixel> row);
    void keep(std::span<const pixel> row);
    void finish_row(int row);

    scaling_plan plan;
    scaling_memory & memory;
    row_scaling across;
    scaling_weights down;
    bool across_first;       // the library's order: what becomes wider is made higher or lower first
    std::size_t slot_size;   // bytes of a kept row
    int slots;               // kept rows
    int lowest, highest;     // the rows needed, from the bottom, the latter exclusive
    int source_row;          // the row taken last, from the bottom
    int next_row;            // of the scaled picture, from its bottom: the next to be finished
    bool one_waits = false;  // the row before the one taken last isn't scaled across yet
    bitmap made;
};

/// The wanted part of a picture that is in memory.
bitmap scaled_by_rows(const bitmap & image, const scaling_plan & plan, scaling_memory & memory,
                      arithmetic way = best_arithmetic());
