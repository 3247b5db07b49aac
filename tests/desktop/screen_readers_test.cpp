#include "../scripted_desktop.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/captions.h"
#include "desktop/binder/windows_made.h"
#include "session/windows.h"
#include "tests/desktop/bound_form.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/told_widgets.h"
#include "tests/desktop/window_views.h"

#include <QAccessible>
#include <QApplication>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

QAccessibleInterface & told(QWidget & widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

// The name of the nearest group around the widget that has one, else that of its window.
std::string group_of(QWidget & widget)
{
    for (QWidget * above = widget.parentWidget(); above; above = above->parentWidget()) {
        const QAccessible::Role role = told(*above).role();
        const QString name = told(*above).text(QAccessible::Name);
        if (!name.isEmpty() && (role == QAccessible::Grouping || above->isWindow()))
            return name.toStdString();
    }
    return {};
}

TEST(screen_readers, are_told_every_option_as_one_of_its_group)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    std::vector<form *> forms = all.others();
    forms.push_back(&all.main);
    int options = 0;
    for (form * each : forms) {
        const std::unique_ptr<QWidget> window = make_window(each->name());
        bind(*each, *window, {});
        for (QRadioButton * option : window->findChildren<QRadioButton *>()) {
            SCOPED_TRACE(each->name() + " " + option->objectName().toStdString());
            EXPECT_EQ(told(*option).role(), QAccessible::RadioButton);
            EXPECT_TRUE(told(*option).state().checkable);
            EXPECT_EQ(bool(told(*option).state().checked), option->isChecked());
            EXPECT_NE(group_of(*option), "");
            EXPECT_NE(group_of(*option), "QWidget");
            ++options;
        }
    }
    EXPECT_GE(options, 68);
}

TEST(screen_readers, are_told_every_widget_of_every_window_as_it_is)
{
    filled_session session;
    int widgets = 0;
    session.look_at_each([&](const window_view & view, QWidget & window) {
        EXPECT_EQ(told_otherwise(*view.window, window), std::vector<std::string>());
        EXPECT_EQ(told(window).text(QAccessible::Name), unspaced(window.windowTitle()));
        widgets += told_widgets(*view.window, window);
    });
    EXPECT_GT(widgets, 500);
}

TEST(screen_readers, are_told_every_widget_of_the_main_window_as_it_is)
{
    shown_main_window shown;
    shown.in_each_stage(all_shapes, [&](look) {
        EXPECT_EQ(told_otherwise(shown.main, *shown.window), std::vector<std::string>());
    });
}

TEST(screen_readers, would_be_told_of_another_value_another_state_and_a_name_that_is_spelt)
{
    bound_form shown;
    const auto before = told_otherwise(shown.held, shown.window);
    const QSignalBlocker box_is_quiet(shown.name), scale_is_quiet(shown.scale);
    shown.keep->setChecked(true);
    shown.name->setText(QStringLiteral("Summer"));
    shown.right->setAccessibleName(QStringLiteral("R i g h t"));
    shown.scale->setValue(7);
    shown.go->setText(QStringLiteral("Stay"));
    shown.names->addItem(QStringLiteral("Sea"));
    std::string all;
    for (const std::string & fault : told_otherwise(shown.held, shown.window))
        if (std::ranges::find(before, fault) == before.end())
            all += fault.substr(fault.find(' ') + 1) + '\n';
    EXPECT_EQ(
        all,
        "txtName: value, called \"\"\ncmdGo: name, called \"Stay\"\nchkKeep: value, called \"Keep\"\n"
        "optRight: spelt, called \"R i g h t\"\nlstNames: value, called \"\"\nScrSize: value, called \"\"\n");
}

TEST(screen_readers, are_told_the_group_by_its_name)
{
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {});
    const auto group = [&](const char * name) {
        return group_of(*window->findChild<QWidget *>(QLatin1String(name)));
    };
    EXPECT_EQ(group("optPortrait"), "Orientation");
    EXPECT_EQ(group("optTiny"), "Border Size");
    EXPECT_EQ(group("optAlignTop"), "Align");
    EXPECT_EQ(group("optPreview"), "Preview");
}

TEST(screen_readers, select_an_option_that_is_pressed_by_them)
{
    bound_form shown;
    QAccessibleInterface & option = told(*shown.right);
    EXPECT_EQ(option.text(QAccessible::Name), "Right");
    option.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    while (!shown.held.optRight.selected())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_TRUE(option.state().checked);
    EXPECT_FALSE(told(*shown.left).state().checked);
}

TEST(screen_readers, tick_a_box_as_a_click_does)
{
    bound_form shown;
    QAccessibleInterface & box = told(*shown.keep);
    EXPECT_EQ(box.role(), QAccessible::CheckBox);
    box.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    while (!shown.keep->isChecked())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_TRUE(shown.held.chkKeep.ticked());
    EXPECT_TRUE(box.state().checked);
}

TEST(screen_readers, are_told_a_picture_as_a_button_where_it_is_one)
{
    bound_form shown;
    shown.held.picColor.on_click = {};
    shown.held.picColor.set_back_color(0xFF00);
    EXPECT_EQ(told(*shown.color).role(), QAccessible::Graphic);
    EXPECT_EQ(told(*shown.color).actionInterface()->actionNames(), QStringList());
    shown.held.picColor.on_click = [] {};
    shown.held.picColor.set_back_color(0xFF);
    EXPECT_EQ(told(*shown.color).role(), QAccessible::Button);
    EXPECT_TRUE(told(*shown.color)
                    .actionInterface()
                    ->actionNames()
                    .contains(QAccessibleActionInterface::pressAction()));
}

TEST(screen_readers, enter_texts_for_the_user)
{
    bound_form shown;
    told(*shown.name).editableTextInterface()->replaceText(0, 0, "Summer");
    EXPECT_EQ(shown.held.txtName.text(), "Summer");
    told(*shown.size->lineEdit()).editableTextInterface()->replaceText(0, 2, "30");
    EXPECT_EQ(shown.held.cmbSize.text(), "30");
    EXPECT_EQ(shown.size->currentText(), "30");
}

TEST(screen_readers, enter_nothing_when_the_session_shows_a_text)
{
    bound_form shown;
    shown.name->setMaxLength(6);
    int changes = 0;
    shown.held.txtName.on_change = [&] { ++changes; };
    shown.held.txtName.set_text("Another summer");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(shown.held.txtName.text(), "Another summer");
}

}  // namespace
