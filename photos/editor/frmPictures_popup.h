#pragma once

struct windows;

/// Hooks the editor's menu of a photo.
void connect_frmPictures_popup(windows & all);
