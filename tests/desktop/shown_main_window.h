#pragma once

#include "../scripted_desktop.h"
#include "tests/desktop/stages.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

/// The main window with no session behind it, bound and shown.
struct shown_main_window {
    shown_main_window();
    /// Brings it to each of its stages, for posters of each of these shapes.
    void in_each_stage(const std::vector<shape> & shapes, const std::function<void(look)> & look_at);

    scripted_desktop desk;
    frmMain main;
    std::unique_ptr<QWidget> window;
};
