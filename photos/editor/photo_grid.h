#pragma once

#include "session/windows.h"

#include <optional>
#include <string>
#include <vector>

/// The grid of the list editor, filled, emptied and rearranged.

/// What the user is told when photos find no room.
std::string truncation_message();

bool is_empty(const picture & cell);
bool is_empty(const frmPictures & window);

/// Empties a cell: tag "0", hidden, of portrait shape again.
void clear_cell(frmPictures & window, int cell);

/// Moves a photo to an empty cell; nothing happens when that one holds a photo. Raises subscript (9).
void move_cell(frmPictures & window, int from, int to);

/// Swaps two photos, geometry included.
void swap_cells(frmPictures & window, int one, int other);

/// Moves the photos from `cell` up to the next gap behind it on by one, so that `cell` is empty. False when
/// there is no gap.
bool make_gap(frmPictures & window, int cell);

/// Fills the grid from a list: its first 60 photos. What can't be loaded ends the filling with a box; what
/// was filled so far stays. Photos that found no place, or didn't come that far, are left behind, and a list
/// of more than 60 is told.
void load_photo_grid(frmMain & main, const std::string & path);

/// Adds photos where `cell` is, those there move on into the gaps behind; without a cell, or where no gap is
/// left, they take the first free ones. Those for which there is no room are told. What can't be loaded ends
/// the adding with a box.
void add_photos_at(frmMain & main, const std::vector<std::string> & photos, std::optional<int> cell);

/// Writes the photos of the grid in the order of their cells, and those of `behind` after them, as a list; an
/// empty cell leaves no trace. Empties the grid and gives the number of photos written. Raises 61, 70, 75,
/// 76; old list and grid then stay.
int write_photo_grid(frmMain & main, const std::string & path, const std::vector<std::string> & behind = {});
