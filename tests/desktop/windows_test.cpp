#include "session/windows.h"

#include "../scripted_desktop.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "tests/desktop/layout_checks.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

namespace {

std::vector<form *> all_forms(windows & all)
{
    std::vector<form *> forms = all.others();
    forms.push_back(&all.main);
    return forms;
}

TEST(windows, every_control_has_its_widget_and_every_named_widget_its_control)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    for (form * one : all_forms(all)) {
        const std::unique_ptr<QWidget> window = make_window(one->name());
        ASSERT_NE(window, nullptr) << "no Designer file for " << one->name();
        bind(*one, *window, {});
        EXPECT_EQ(binding_faults(*one, *window), std::vector<std::string>()) << one->name();
        EXPECT_EQ(window->objectName().toStdString(), one->name());
    }
}

TEST(windows, a_control_without_a_widget_and_a_widget_without_a_control_are_told)
{
    struct odd : form {
        odd() : form("odd") {}
        button cmdGone{*this, "cmdGone"};
        button cmdWrong{*this, "cmdWrong"};
        button cmdRight{*this, "cmdRight"};
    } held;
    QWidget window;
    QLabel wrong(&window), extra(&window), helper(&window);
    QPushButton right(&window);
    wrong.setObjectName("cmdWrong");
    right.setObjectName("cmdRight");
    extra.setObjectName("lblExtra");
    helper.setObjectName("work_area");
    EXPECT_EQ(binding_faults(held, window),
              (std::vector<std::string>{"odd: no widget for cmdGone", "odd: no widget for cmdWrong",
                                        "odd: no control for lblExtra"}));
}

TEST(windows, no_two_controls_of_a_window_share_a_letter)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    for (form * one : all_forms(all)) {
        const std::unique_ptr<QWidget> window = make_window(one->name());
        bind(*one, *window, {});
        EXPECT_EQ(shared_letters(*window), std::vector<std::string>()) << one->name();
    }
}

TEST(windows, exclusion_is_the_session_s_alone)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    for (form * one : all_forms(all)) {
        const std::unique_ptr<QWidget> window = make_window(one->name());
        bind(*one, *window, {});
        for (const QRadioButton * option : window->findChildren<QRadioButton *>())
            EXPECT_FALSE(option->autoExclusive()) << option->objectName().toStdString();
    }
}

TEST(windows, every_list_and_box_has_a_name_for_those_who_listen)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    for (form * one : all_forms(all)) {
        const std::unique_ptr<QWidget> window = make_window(one->name());
        bind(*one, *window, {});
        for (const control * held : one->controls()) {
            const auto * const widget = window->findChild<QWidget *>(QString::fromStdString(held->name()));
            const bool needs_name = dynamic_cast<const combo_box *>(held) ||
                                    dynamic_cast<const text_box *>(held) ||
                                    dynamic_cast<const picture *>(held);
            EXPECT_TRUE(!needs_name || !widget->accessibleName().isEmpty()) << held->name();
        }
    }
}

// ---- menus

struct menu_bar_test : testing::Test {
    menu_bar_test() { bind(main, *window, {}); }
    QAction * action(const char * name) { return window->findChild<QAction *>(QLatin1String(name)); }
    scripted_desktop desk;
    frmMain main{desk, listed({})};
    std::unique_ptr<QWidget> window = make_window("frmMain");
};

TEST_F(menu_bar_test, entries_of_the_bar_and_of_its_menus_are_found_by_name_and_fire_their_handlers)
{
    std::string chosen;
    main.mnuQuick.on_click = [&] { chosen += "quick "; };
    main.mnuHelpAbout.on_click = [&] { chosen += "about"; };
    action("mnuQuick")->trigger();
    action("mnuHelpAbout")->trigger();
    EXPECT_EQ(chosen, "quick about");
    EXPECT_EQ(action("mnuFile")->menu()->actions(),
              (QList<QAction *>{action("mnuRecent"), action("mnuQuit")}));
}

TEST_F(menu_bar_test, an_entry_without_entries_of_its_own_stands_in_the_bar)
{
    const QList<QAction *> bar = window->findChild<QMenuBar *>()->actions();
    EXPECT_EQ(bar.size(), 11);
    EXPECT_EQ(bar[1], action("mnuQuick"));
    EXPECT_EQ(bar[1]->menu(), nullptr);
    EXPECT_EQ(bar[1]->text(), " &Quick flurn");
}

TEST_F(menu_bar_test, the_divider_can_t_be_chosen)
{
    EXPECT_EQ(action("mnuSeparator")->text(), " || ");
    EXPECT_FALSE(action("mnuSeparator")->isEnabled());
    EXPECT_TRUE(main.mnuSeparator.enabled());
}

TEST_F(menu_bar_test, the_bar_goes_with_its_last_entry)
{
    const auto * const bar = window->findChild<QMenuBar *>();
    const auto shown = main.controls();
    main.mnuHelp.show(false);
    EXPECT_FALSE(action("mnuHelp")->isVisible());
    EXPECT_FALSE(bar->isHidden());
    for (control * one : shown)
        if (dynamic_cast<menu_entry *>(one))
            one->show(false);
    EXPECT_TRUE(bar->isHidden());
    main.mnuFile.show(true);
    EXPECT_FALSE(bar->isHidden());
}

TEST_F(menu_bar_test, a_disabled_entry_is_shown_disabled)
{
    main.mnuSaveDesign.enable(false);
    EXPECT_FALSE(action("mnuSaveDesign")->isEnabled());
}

}  // namespace
