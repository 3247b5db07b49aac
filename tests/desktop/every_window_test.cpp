#include "desktop/binder/binder.h"
#include "desktop/binder/captions.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/layout_checks.h"
#include "tests/desktop/stages.h"
#include "tests/desktop/window_views.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace {

using faults = std::vector<std::string>;

// What the smallest screens have room for.
constexpr int widest_window = 1040, highest_window = 740;

// One session for all: its making takes longer than the looking.
struct every_window : testing::TestWithParam<int> {
    static void SetUpTestSuite()
    {
        kept = std::make_unique<filled_session>();
        kept->desk.room = {.width = widest_window, .height = highest_window};
    }
    static void TearDownTestSuite() { kept.reset(); }
    every_window() { set_letters(GetParam()); }
    ~every_window() override { set_letters(smallest_letters); }

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

TEST_P(every_window, has_no_two_widgets_that_overlap)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(overlaps(held, window), faults()); });
}

TEST_P(every_window, keeps_its_widgets_in_their_groups)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(strays(held, window), faults()); });
}

TEST_P(every_window, cuts_no_text)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(cut_texts(held, window), faults()); });
}

TEST_P(every_window, is_no_larger_than_a_small_screen)
{
    if (GetParam() > roomy_letters)
        GTEST_SKIP() << "such letters are for larger screens";
    look_at_each([](form &, QWidget & window) {
        EXPECT_LE(window.width(), widest_window);
        EXPECT_LE(window.height(), highest_window);
    });
}

TEST_P(every_window, gives_the_keyboard_to_nothing_that_does_not_take_it)
{
    look_at_each([](form &, QWidget & window) {
        const QWidget * const focus = window.focusWidget();
        EXPECT_TRUE(!focus || focus->focusPolicy() != Qt::NoFocus) << focus->objectName().toStdString();
    });
}

TEST_P(every_window, lets_the_tab_key_follow_the_eye)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(tab_order_faults(held, window), faults()); });
}

TEST_P(every_window, has_a_name_for_each_widget_that_the_keyboard_reaches)
{
    look_at_each([](form & held, QWidget & window) { EXPECT_EQ(names_missing(held, window), faults()); });
}

TEST_P(every_window, has_no_letter_twice)
{
    look_at_each([](form &, QWidget & window) { EXPECT_EQ(shared_letters(window), faults()); });
}

TEST_P(every_window, is_called_by_its_title_without_the_blanks_between_the_letters)
{
    look_at_each([](form &, QWidget & window) {
        EXPECT_FALSE(window.windowTitle().isEmpty());
        EXPECT_EQ(window.accessibleName(), unspaced(window.windowTitle()));
    });
}

TEST_P(every_window, takes_enter_for_its_ok)
{
    look_at_each([](form & held, QWidget & window) {
        for (const char * name : {"cmdOk", "cmdOK"})
            if (held.find(name)) {
                EXPECT_TRUE(window.findChild<QPushButton *>(QLatin1String(name))->isDefault());
            }
    });
}

INSTANTIATE_TEST_SUITE_P(letters, every_window,
                         testing::Values(9 * 4 / 3, 12 * 4 / 3, 14 * 4 / 3, 16 * 4 / 3),
                         [](const auto & each) { return std::to_string(each.param) + "_pixels"; });

// ---- on small screens

struct small_screens : testing::TestWithParam<std::tuple<QSize, int>> {
    ~small_screens() override { set_letters(smallest_letters); }
};

// Nothing stands outside the window, but what scrolling brings into it.
faults out_of_reach(const form & shown, const QWidget & window)
{
    faults found;
    for (QWidget * one : seen_widgets(shown, window)) {
        bool scrolled = false;
        for (QWidget * above = one->parentWidget(); above; above = above->parentWidget())
            if (auto * const view = qobject_cast<QScrollArea *>(above)) {
                view->ensureWidgetVisible(one, 0, 0);
                scrolled = true;
            }
        const QRect place(one->mapTo(&window, QPoint(0, 0)), one->size());
        if (scrolled ? !window.rect().intersects(place) : !window.rect().contains(place))
            found.push_back(one->objectName().toStdString());
    }
    return found;
}

TEST_P(small_screens, have_room_for_every_window_and_show_all_that_stands_in_it)
{
    const auto [room, pixels] = GetParam();
    set_letters(pixels);
    filled_session session;
    session.desk.room = {.width = room.width() * 9 / 10, .height = room.height() * 9 / 10};
    for (const window_view & view : session.views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view, room);
        EXPECT_EQ(shown.window().size(), shown.window().size().boundedTo(room));
        EXPECT_EQ(out_of_reach(*view.window, shown.window()), faults());
    }
}

TEST_P(small_screens, have_room_for_the_main_window_in_all_its_stages)
{
    const auto [room, pixels] = GetParam();
    set_letters(pixels);
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {.report = {}, .unloaded = {}, .room = [size = room] { return size; }});
    main.load();
    window->show();
    for (const look stage : all_looks)
        for (const shape poster : all_shapes) {
            SCOPED_TRACE(name_of(stage, poster));
            bring_to(main, stage, poster);
            QApplication::processEvents();
            EXPECT_EQ(window->size(), window->size().boundedTo(room));
            EXPECT_EQ(out_of_reach(main, *window), faults());
        }
}

// Without the frame of a window and the bar of the desktop: 1280 by 720 pixels, 1366 by 768, and 1280 by 720
// at two and at three times the usual density.
INSTANTIATE_TEST_SUITE_P(sizes, small_screens,
                         testing::Combine(testing::Values(QSize(1272, 644), QSize(1358, 692), QSize(632, 284),
                                                          QSize(418, 180)),
                                          testing::Values(smallest_letters, roomy_letters)));

TEST(the_main_window, gives_up_what_it_does_not_need_before_it_scrolls)
{
    scripted_desktop desk;
    frmMain main(desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    const QSize room(1272, 644);
    bind(main, *window, {.report = {}, .unloaded = {}, .room = [&room] { return room; }});
    main.load();
    bring_to(main, look::designed, shape::portrait);
    window->show();
    QApplication::processEvents();
    EXPECT_EQ(window->height(), room.height());
    EXPECT_EQ(window->findChild<QScrollArea *>(QLatin1String("view_area"))->verticalScrollBar()->maximum(),
              0);
    EXPECT_EQ(strays(main, *window), faults());
    EXPECT_EQ(cut_texts(main, *window), faults());
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
        for (const char * name : {"txtDoing", "lblOutput", "lblCount", "lblAnnounce", "txtCounting"})
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
