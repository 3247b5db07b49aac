#include "desktop/binder/binder.h"
#include "desktop/binder/captions.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/layout_checks.h"
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

// What the smallest screens have room for.
constexpr int widest_window = 1040, highest_window = 740;

// One session for all: its making takes longer than the looking.
struct every_window : testing::Test {
    static void SetUpTestSuite()
    {
        kept = std::make_unique<filled_session>();
        kept->desk.room = {.width = widest_window, .height = highest_window};
    }
    static void TearDownTestSuite() { kept.reset(); }

    template <typename Look>
    void look_at_each(Look look)
    {
        for (const window_view & view : kept->views()) {
            SCOPED_TRACE(view.name);
            const shown_view shown(view);
            ASSERT_TRUE(view.window->loaded()) << "closes itself in a session like this one";
            look(*view.window, shown.window());
        }
    }
    static std::unique_ptr<filled_session> kept;
};

std::unique_ptr<filled_session> every_window::kept;

// In letters of so many pixels.
struct every_window_in_letters : every_window, testing::WithParamInterface<int> {
    every_window_in_letters() { set_letters(GetParam()); }
    ~every_window_in_letters() override { set_letters(smallest_letters); }
};

TEST_P(every_window_in_letters, has_no_two_widgets_that_overlap)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(overlaps(held, window), faults()); });
}

TEST_P(every_window_in_letters, keeps_its_widgets_in_their_groups)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(strays(held, window), faults()); });
}

TEST_P(every_window_in_letters, cuts_no_text)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(cut_texts(held, window), faults()); });
}

// Larger letters are for larger screens.
struct every_window_in_usual_letters : every_window_in_letters {};

TEST_P(every_window_in_usual_letters, is_no_larger_than_a_small_screen)
{
    look_at_each([](form &, QWidget & window) {
        EXPECT_LE(window.width(), widest_window);
        EXPECT_LE(window.height(), highest_window);
    });
}

TEST_F(every_window, gives_the_keyboard_to_nothing_that_does_not_take_it)
{
    look_at_each([](form &, QWidget & window) {
        const QWidget * const focus = window.focusWidget();
        EXPECT_TRUE(!focus || focus->focusPolicy() != Qt::NoFocus) << focus->objectName().toStdString();
    });
}

TEST_P(every_window_in_letters, lets_the_tab_key_follow_the_eye)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(tab_order_faults(held, window), faults()); });
}

TEST_F(every_window, has_a_name_for_each_widget_that_the_keyboard_reaches)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(names_missing(held, window), faults()); });
}

TEST_F(every_window, has_no_letter_twice)
{
    look_at_each([](form &, QWidget & window) { EXPECT_EQ(shared_letters(window), faults()); });
}

TEST_F(every_window, is_called_by_its_title_without_the_blanks_between_the_letters)
{
    look_at_each([](form &, QWidget & window) {
        EXPECT_FALSE(window.windowTitle().isEmpty());
        EXPECT_EQ(window.accessibleName(), unspaced(window.windowTitle()));
    });
}

TEST_F(every_window, has_a_button_for_enter_but_where_there_is_none_at_all)
{
    look_at_each([](form &, QWidget & window) {
        const auto buttons = window.findChildren<QPushButton *>();
        const auto count = std::ranges::count_if(buttons, [](auto * each) { return each->isDefault(); });
        EXPECT_EQ(count, buttons.isEmpty() ? 0 : 1);
    });
}

// The space bar, pressed unawares, would be taken for the answer.
TEST_F(every_window, begins_where_its_work_begins)
{
    look_at_each([](form &, QWidget & window) {
        QApplication::processEvents();
        const QWidget * const focus = window.focusWidget();
        if (window.findChildren<QPushButton *>().isEmpty())
            return;
        ASSERT_TRUE(focus);
        const auto * const button = qobject_cast<const QPushButton *>(focus);
        const QString text = button ? button->text().remove(QLatin1Char('&')) : QString();
        EXPECT_TRUE(text != QLatin1String("Cancel") && text != QLatin1String("Help"))
            << "the focus is on " << text.toStdString();
    });
}

TEST_F(every_window, takes_enter_for_its_ok)
{
    look_at_each([](form & held, QWidget & window) {
        for (const char * name : {"cmdOk", "cmdOK"})
            if (held.find(name)) {
                EXPECT_TRUE(window.findChild<QPushButton *>(QLatin1String(name))->isDefault());
            }
    });
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
