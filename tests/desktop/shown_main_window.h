#pragma once

#include "../scripted_desktop.h"
#include "session/windows.h"
#include "tests/desktop/stages.h"
#include "tests/temporary_folder.h"

#include <QSize>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

/// The main window with no session behind it, bound and shown, on a screen with that room; without one no
/// room is too small.
struct shown_main_window {
    explicit shown_main_window(std::function<QSize()> room = {});
    /// Brings it to each of its stages, for posters of each of these shapes.
    void in_each_stage(const std::vector<shape> & shapes, const std::function<void(look)> & look_at);

    scripted_desktop desk;
    frmMain main;
    std::unique_ptr<QWidget> window;
};

/// The main window with all its handlers.
struct finishing_window {
    finishing_window();
    /// Binds it and brings it to a finishing stage of an upright poster.
    void bind_at(look stage);
    /// Shows it with the keyboard in it.
    void show_active() const;

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, seeded_random(7)};
    std::unique_ptr<QWidget> window;
};
