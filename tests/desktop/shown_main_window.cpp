#include "tests/desktop/shown_main_window.h"

#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "session/connect_all.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>
#include <utility>

shown_main_window::shown_main_window(std::function<QSize()> room)
    : main(desk, listed({})), window(make_window("frmMain"))
{
    bind(main, *window, {.report = {}, .unloaded = {}, .room = std::move(room)});
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

finishing_window::finishing_window()
{
    all.main.data_folder = folder.path();
    all.main.install_folder = folder.path();
    connect_all(all);
}

void finishing_window::bind_at(look stage)
{
    window = make_window("frmMain");
    bind(all.main, *window, {});
    bring_to(all.main, stage, shape::portrait);
}

void finishing_window::show_active() const
{
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
}
