#pragma once

#include "session/frmMain.h"
#include "tests/scripted_desktop.h"

#include <future>
#include <utility>

/// What the session hands to another core for the disk waits until the window was let through once.
class waiting_disk {
public:
    waiting_disk(frmMain & main, scripted_desktop & desk)
    {
        main.workers.begin_at_once([has_it = promised.get_future().share()] { has_it.wait(); });
        desk.on_breath = [this] { has_it(); };
    }
    waiting_disk(const waiting_disk &) = delete;
    waiting_disk & operator=(const waiting_disk &) = delete;
    ~waiting_disk() { has_it(); }
    bool window_was_let_through() const { return has; }

private:
    void has_it()
    {
        if (!std::exchange(has, true))
            promised.set_value();
    }

    std::promise<void> promised;
    bool has = false;
};
