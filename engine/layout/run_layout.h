#pragma once

#include "engine/layout/location_bends.h"
#include "session/frmMain.h"

/// What the settings mean for the layout of a run.

/// Stands in `landscape_turn` for a saved landscape design once a preview has turned it.
inline constexpr int16 saved_landscape_turn = 100;

/// Grids for the styles "Fill" and "Matrix", places for all others.
layout layout_of(const frmMain & main);

/// The run that is going on.
run_size size_of_run(const frmMain & main);

/// True for a design saved from a quick style while the output is landscape: its template is upright,
/// whatever its record says of the background.
bool is_saved_landscape(const frmMain & main);

/// True when the locations are turned by a quarter after they were bent. A preview turns a saved landscape
/// design before that.
bool is_turned_afterwards(const frmMain & main);

/// Replaces every location by what `change(location, role)` makes of it.
template <typename Change>
void change_locations(frmMain & main, Change change)
{
    location_table & table = main.design_locations;
    const layout style = layout_of(main);
    for (int i = 0; i < table.count; ++i)
        table[i] = change(table[i], role_of(style, i));
}
