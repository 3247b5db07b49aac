#pragma once

struct windows;

/// Hooks the popup menu of the photos in the grid, and their keys.
void connect_frmPictures_popup(windows & all);
