#pragma once

#include "../drawing_desktop.h"
#include "../temporary_folder.h"
#include "session/windows.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A state of a window that is worth looking at.
struct window_view {
    std::string name;  ///< "frmImage_landscape"
    form * window = nullptr;
    std::function<void()> prepare;  ///< runs before the window is loaded
    std::function<void()> fill;     ///< runs when it is open
};

/// Pictures of a few hundred pixels, which open at once, or the sample photos, as a person would have them.
enum class chosen_photos { small, real };

/// A session in the midst of its work: the program's own data, a folder of photos, a saved list and a
/// selection. A person sits at it who answers nothing.
struct filled_session {
    explicit filled_session(chosen_photos photos = chosen_photos::small);
    /// Every window but the main one, in one state or several.
    std::vector<window_view> views();
    /// Shows each of these and looks at it.
    void look_at_each(const std::function<void(const window_view &, QWidget &)> & look);

    std::string collage;  ///< a finished one to show, if there is one
    temporary_folder folder;
    drawing_desktop desk;
    windows all{desk, seeded_random(7)};

private:
    void add_image_views(std::vector<window_view> & views);
    void add_small_views(std::vector<window_view> & views);
    void add_design_views(std::vector<window_view> & views);
    void add_photo_views(std::vector<window_view> & views);
    void add_frame_views(std::vector<window_view> & views);
    void add_designer_views(std::vector<window_view> & views);
};

/// The window of a view while it lives: open, bound and shown on a screen with that room for it, or with any.
class shown_view {
public:
    explicit shown_view(const window_view & wanted, std::optional<QSize> room = {});
    shown_view(const shown_view &) = delete;
    shown_view & operator=(const shown_view &) = delete;
    ~shown_view();
    QWidget & window() const { return *widget; }

private:
    form & held;
    std::unique_ptr<QWidget> widget;
};
