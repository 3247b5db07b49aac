#include "desktop/binder/binder.h"
#include "desktop/binder/captions.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/layout_checks.h"
#include "tests/desktop/window_check.h"
#include "tests/desktop/window_views.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using faults = std::vector<std::string>;

// One that tells its faults in lines.
template <faults (*check)(const form &, const QWidget &)>
void noted(form & held, QWidget & window, window_findings & found)
{
    for (const std::string & fault : check(held, window))
        found.faults.push_back(fault);
}

const window_check overlap_check(noted<overlaps>), stray_check(noted<strays>), cut_check(noted<cut_texts>),
    tab_order_check(noted<tab_order_faults>), name_check(noted<names_missing>);

struct every_window_in_letters : testing::TestWithParam<int> {};

TEST_P(every_window_in_letters, has_no_two_widgets_that_overlap)
{
    EXPECT_EQ(overlap_check.in_letters(GetParam()).faults, faults());
}

TEST_P(every_window_in_letters, keeps_its_widgets_in_their_groups)
{
    EXPECT_EQ(stray_check.in_letters(GetParam()).faults, faults());
}

TEST_P(every_window_in_letters, cuts_no_text)
{
    EXPECT_EQ(cut_check.in_letters(GetParam()).faults, faults());
}

TEST_P(every_window_in_letters, lets_the_tab_key_follow_the_eye)
{
    EXPECT_EQ(tab_order_check.in_letters(GetParam()).faults, faults());
}

// Larger letters are for larger screens.
struct every_window_in_usual_letters : testing::TestWithParam<int> {};

const window_check size_check([](form &, QWidget & window, window_findings & found) {
    if (window.width() > widest_window || window.height() > highest_window)
        found.faults.push_back(std::to_string(window.width()) + " by " + std::to_string(window.height()));
});

TEST_P(every_window_in_usual_letters, is_no_larger_than_a_small_screen)
{
    EXPECT_EQ(size_check.in_letters(GetParam()).faults, faults());
}

faults in_usual_letters(const window_check & check)
{
    return check.in_letters(smallest_letters).faults;
}

const window_check focus_check([](form &, QWidget & window, window_findings & found) {
    const QWidget * const focus = window.focusWidget();
    if (focus && focus->focusPolicy() == Qt::NoFocus)
        found.faults.push_back(named(*focus));
});

TEST(every_window, gives_the_keyboard_to_nothing_that_does_not_take_it)
{
    EXPECT_EQ(in_usual_letters(focus_check), faults());
}

TEST(every_window, has_a_name_for_each_widget_that_the_keyboard_reaches)
{
    EXPECT_EQ(in_usual_letters(name_check), faults());
}

const window_check letter_check([](form &, QWidget & window, window_findings & found) {
    for (const std::string & fault : shared_letters(window))
        found.faults.push_back(fault);
});

TEST(every_window, has_no_letter_twice)
{
    EXPECT_EQ(in_usual_letters(letter_check), faults());
}

const window_check title_check([](form &, QWidget & window, window_findings & found) {
    if (window.windowTitle().isEmpty() || window.accessibleName() != unspaced(window.windowTitle()))
        found.faults.push_back("\"" + window.windowTitle().toStdString() + "\", called \"" +
                               window.accessibleName().toStdString() + "\"");
});

TEST(every_window, is_called_by_its_title_without_the_blanks_between_the_letters)
{
    EXPECT_EQ(in_usual_letters(title_check), faults());
}

const window_check default_check([](form &, QWidget & window, window_findings & found) {
    const auto buttons = window.findChildren<QPushButton *>();
    const auto count = std::ranges::count_if(buttons, [](auto * each) { return each->isDefault(); });
    if (count != (buttons.isEmpty() ? 0 : 1))
        found.faults.push_back(std::to_string(count) + " of " + std::to_string(buttons.size()));
});

TEST(every_window, has_a_button_for_enter_but_where_there_is_none_at_all)
{
    EXPECT_EQ(in_usual_letters(default_check), faults());
}

// The space bar, pressed unawares, would be taken for the answer.
const window_check beginning_check([](form &, QWidget & window, window_findings & found) {
    QApplication::processEvents();
    const QWidget * const focus = window.focusWidget();
    if (window.findChildren<QPushButton *>().isEmpty())
        return;
    const auto * const button = qobject_cast<const QPushButton *>(focus);
    const QString text = button ? button->text().remove(QLatin1Char('&')) : QString();
    if (!focus || text == QLatin1String("Cancel") || text == QLatin1String("Help"))
        found.faults.push_back("the focus is on \"" + text.toStdString() + "\"");
});

TEST(every_window, begins_where_its_work_begins)
{
    EXPECT_EQ(in_usual_letters(beginning_check), faults());
}

const window_check ok_check([](form & held, QWidget & window, window_findings & found) {
    for (const char * name : {"cmdOk", "cmdOK"})
        if (held.find(name)) {
            ++found.seen;
            if (!window.findChild<QPushButton *>(QLatin1String(name))->isDefault())
                found.faults.emplace_back(name);
        }
});

TEST(every_window, takes_enter_for_its_ok)
{
    EXPECT_EQ(in_usual_letters(ok_check), faults());
    EXPECT_GE(ok_check.in_letters(smallest_letters).seen, 5);
}

// A desktop's users press these anywhere.
TEST(keys, escape_closes_every_window_that_asks_and_those_of_the_main_window_close_none)
{
    filled_session session;
    for (const window_view & view : session.views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view);
        QWidget * const focus = shown.window().focusWidget();
        QWidget & aim = focus ? *focus : shown.window();
        QTest::keyClick(&aim, Qt::Key_F10);
        QTest::keyClick(&aim, Qt::Key_Q, Qt::ControlModifier);
        EXPECT_TRUE(view.window->loaded());
        QTest::keyClick(&aim, Qt::Key_Escape);
        // A window that only tells how far the work is goes with it.
        EXPECT_EQ(view.window->loaded(), shown.window().findChildren<QPushButton *>().isEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(letters, every_window_in_usual_letters,
                         testing::Values(smallest_letters, roomy_letters),
                         [](const auto & each) { return std::to_string(each.param) + "_pixels"; });
INSTANTIATE_TEST_SUITE_P(letters, every_window_in_letters,
                         testing::Values(9 * 4 / 3, 12 * 4 / 3, 14 * 4 / 3, 16 * 4 / 3),
                         [](const auto & each) { return std::to_string(each.param) + "_pixels"; });

// ---- lists

TEST(lists, those_of_entries_alone_are_not_typed_into)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    std::vector<form *> forms = all.others();
    forms.push_back(&all.main);
    for (const form * each : forms) {
        const std::unique_ptr<QWidget> window = make_window(each->name());
        for (const control * held : each->controls())
            if (const auto * const list = dynamic_cast<const combo_box *>(held)) {
                const auto * const widget =
                    window->findChild<QComboBox *>(QString::fromStdString(list->name()));
                ASSERT_TRUE(widget) << each->name() << " " << list->name();
                EXPECT_EQ(widget->isEditable(), !dynamic_cast<const entry_box *>(list)) << list->name();
            }
    }
}

void turn_wheel_over(QWidget & widget, int steps)
{
    const QPointF middle = widget.rect().center();
    QWheelEvent turned(middle, widget.mapToGlobal(middle), {}, {0, steps * 120}, Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turned);
}

// What a wheel may change in passing.
template <typename Widget, typename Value>
int left_alone(QWidget & window, Value value)
{
    int looked_at = 0;
    for (Widget * each : window.findChildren<Widget *>()) {
        if (!each->isVisible() || each->hasFocus() || qobject_cast<QScrollBar *>(each))
            continue;
        const QPointer<QWidget> focus = window.focusWidget();
        const auto before = (each->*value)();
        for (const int steps : {-1, 2}) {
            turn_wheel_over(*each, steps);
            EXPECT_EQ((each->*value)(), before) << each->objectName().toStdString();
        }
        EXPECT_EQ(window.focusWidget(), focus) << each->objectName().toStdString();
        ++looked_at;
    }
    return looked_at;
}

TEST(lists, of_every_window_are_left_alone_by_a_wheel_that_passes)
{
    filled_session session;
    int looked_at = 0;
    session.look_at_each([&](const window_view &, QWidget & window) {
        looked_at += left_alone<QComboBox>(window, &QComboBox::currentIndex);
        looked_at += left_alone<QAbstractSlider>(window, &QAbstractSlider::value);
    });
    EXPECT_GT(looked_at, 20);
}

// ---- what a reader of the screen hears

// The toolkit's own events can't be heard without a reader of the screen, so the announcements are counted.
TEST(announcements, what_is_going_on_is_told_once_for_each_new_text)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    const std::unique_ptr<QWidget> main = make_window("frmMain"), count = make_window("frmPhotoCnt");
    bind(all.main, *main, {});
    bind(all.photo_count, *count, {});
    const auto told = [](QWidget & window, const char * name) {
        return window.findChild<QWidget *>(QLatin1String(name))->property("announcements").toInt();
    };
    all.main.txtDoing.set_text("Image number 1");
    all.main.txtDoing.set_text("Image number 2");
    all.main.txtDoing.enable(false);
    all.main.lblOutput.set_caption("Photos from a folder");
    all.photo_count.lblAnnounce.set_caption("a.jpg");
    EXPECT_EQ(told(*main, "txtDoing"), 2);
    EXPECT_EQ(told(*main, "lblOutput"), 1);
    EXPECT_EQ(told(*count, "lblAnnounce"), 1);
    EXPECT_EQ(told(*main, "lblDesign"), 0);
}

TEST(announcements, every_label_of_a_state_is_one_that_is_told)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    std::vector<form *> forms = all.others();
    forms.push_back(&all.main);
    for (const form * each : forms) {
        const std::unique_ptr<QWidget> window = make_window(each->name());
        for (const char * name :
             {"txtDoing", "lblOutput", "lblCount", "lblAnnounce", "txtCounting", "lblFilling"})
            if (const auto * const widget = window->findChild<QWidget *>(QLatin1String(name))) {
                EXPECT_TRUE(widget->property("announced").toBool()) << each->name() << " " << name;
            }
    }
}

TEST(swatches, say_their_colour)
{
    scripted_desktop desk;
    windows all(desk, listed({}));
    for (picture * swatch : {&all.main.picFrameColor, &all.main.picShadowColor, &all.main.picBGcolor})
        swatch->on_click = [] {};
    const std::unique_ptr<QWidget> main = make_window("frmMain");
    bind(all.main, *main, {});
    all.main.picFrameColor.set_back_color(0x0000FF);
    auto * const swatch = main->findChild<QWidget *>(QLatin1String("picFrameColor"));
    QAccessibleInterface * const reader = QAccessible::queryAccessibleInterface(swatch);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->text(QAccessible::Name).toStdString(), "Color of the frames");
    EXPECT_EQ(reader->text(QAccessible::Description).toStdString(), "#ff0000");
    EXPECT_EQ(reader->role(), QAccessible::Button);
}

}  // namespace
