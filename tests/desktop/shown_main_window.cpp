#include "tests/desktop/shown_main_window.h"

#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"

#include <QApplication>

#include <gtest/gtest.h>

shown_main_window::shown_main_window() : main(desk, listed({})), window(make_window("frmMain"))
{
    bind(main, *window, {});
    main.load();
    window->show();
}

void shown_main_window::in_each_stage(const std::vector<shape> & shapes,
                                      const std::function<void(look)> & look_at)
{
    for (const look stage : all_looks)
        for (const shape poster : shapes) {
            SCOPED_TRACE(name_of(stage, poster));
            bring_to(main, stage, poster);
            QApplication::processEvents();
            look_at(stage);
        }
}
