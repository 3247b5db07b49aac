#pragma once

#include "designers/matrix/frmMatrix.h"
#include "designs/templates/run_size.h"
#include "session/frmMain.h"
#include "support/list_controls.h"

/// The matrix designer's procedures on its own controls.

/// What the controls say. Raises overflow (6) for a number beyond a double.
matrix_choices matrix_choices_of(const frmMatrix & window);

/// Redraws the sample from the controls. Raises 61, 70, 75.
void draw_sample(frmMatrix & window, const frmMain & main);

/// Writes the template of that size, `__matrix` for the preview and `__matrix_` for the full size, and turns
/// the collage as the poster stands. Tells the user of gaps that can't be kept. Raises 61, 70, 75, 76.
void write_matrix_design(const frmMatrix & window, frmMain & main, run_size size);

/// Offers the counts that keep the cells in the shape of the photos, and takes the lowest. Any count while
/// neither is locked; nothing happens for a count below 1 in the other direction.
void fit_rows(frmMatrix & window);
void fit_columns(frmMatrix & window);

/// Cuts the borders to their limits.
void fit_borders(frmMatrix & window);

/// Gives all four borders the value of `changed`, each as far as its limit lets it.
void move_borders_together(frmMatrix & window, const combo_box & changed);

/// The limits for a poster that stands like that, and lists up to them.
void offer_borders(frmMatrix & window, poster_shape poster);

/// The poster that is selected.
poster_shape poster_of(const frmMatrix & window);
