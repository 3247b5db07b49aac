#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "desktop/qt_desktop.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/window_check.h"
#include "tests/desktop/window_views.h"
#include "tests/desktop/windows_played.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>

// One order of the buttons in all windows: help first, then what else the window does, then the way out, and
// last, at the right edge, what Enter presses; a question whose yes takes something away stands on its no.

namespace {

std::string caption_of(const QAbstractButton & button)
{
    return button.text().remove(QLatin1Char('&')).toStdString();
}

bool stands_in_row_of(const QWidget & window, const QWidget & one, const QWidget & other)
{
    return one.isVisible() && std::abs(one.mapTo(&window, one.rect().center()).y() -
                                       other.mapTo(&window, other.rect().center()).y()) < 8;
}

// Those in the row of the button that Enter presses, from the left.
std::vector<QPushButton *> row_of_default(const QWidget & window)
{
    const auto buttons = window.findChildren<QPushButton *>();
    const auto found = std::ranges::find_if(
        buttons, [](const auto * each) { return each->isDefault() && each->isVisible(); });
    if (found == buttons.end())
        return {};
    std::vector<QPushButton *> row;
    for (QPushButton * each : buttons)
        if (stands_in_row_of(window, *each, **found))
            row.push_back(each);
    std::ranges::sort(row, {}, [&](const QPushButton * each) { return each->mapTo(&window, QPoint()).x(); });
    return row;
}

bool is_way_out(const std::string & caption)
{
    return caption == "Cancel" || caption == "No";
}

// A line for each button that stands elsewhere.
std::vector<std::string> misplaced(const QWidget & window)
{
    std::vector<std::string> faults;
    const auto row = row_of_default(window);
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::string caption = caption_of(*row[i]);
        const bool is_default = row[i]->isDefault();
        const bool wrong_end = is_default != (i + 1 == row.size());
        const bool wrong_help = caption == "Help" && i > 0;
        const bool wrong_way_out =
            caption == "Cancel" && i + 2 < row.size() && !is_way_out(caption_of(*row[i + 1]));
        if (wrong_end || wrong_help || wrong_way_out)
            faults.push_back(caption + " as number " + std::to_string(i + 1) + " of " +
                             std::to_string(row.size()));
    }
    return faults;
}

// What a button of one short word is wide.
int shortest_width(const QPushButton & like)
{
    return like.text().size() > 5 ? 0 : like.sizeHint().width();
}

using faults = std::vector<std::string>;

const window_check neighbour_check([](form &, QWidget & window, window_findings & found) {
    const auto row = row_of_default(window);
    for (const QPushButton * each : row)
        if (each->height() != row.back()->height() || shortest_width(*each) > row.back()->width())
            found.faults.push_back(caption_of(*each));
});

TEST(buttons, the_one_that_enter_presses_is_as_large_as_its_neighbours)
{
    for (const int letters : {smallest_letters, roomy_letters, 21})
        EXPECT_EQ(neighbour_check.in_letters(letters).faults, faults()) << letters;
}

// There is no other way out of a window that only shows something.
TEST(buttons, a_lone_one_is_what_enter_presses)
{
    filled_session session;
    int lone = 0;
    for (const window_view & view : session.views()) {
        SCOPED_TRACE(view.name);
        const shown_view shown(view);
        QList<QPushButton *> seen = shown.window().findChildren<QPushButton *>();
        seen.removeIf([](const QPushButton * each) { return !each->isVisible(); });
        if (seen.size() != 1)
            continue;
        ++lone;
        EXPECT_TRUE(seen.front()->isDefault());
        QTest::keyClick(&shown.window(), Qt::Key_Return);
        EXPECT_FALSE(view.window->loaded());
    }
    EXPECT_GE(lone, 2);
}

const window_check order_check([](form &, QWidget & window, window_findings & found) {
    found.seen += row_of_default(window).size() > 1;
    for (const std::string & fault : misplaced(window))
        found.faults.push_back(fault);
});

TEST(buttons, of_every_window_stand_in_one_order)
{
    EXPECT_EQ(order_check.in_letters(smallest_letters).faults, faults());
    EXPECT_GE(order_check.in_letters(smallest_letters).seen, 20);
}

TEST(buttons, of_the_main_window_stand_in_that_order_too)
{
    shown_main_window shown;
    shown.in_each_stage({shape::portrait}, [&](look stage) {
        EXPECT_EQ(misplaced(*shown.window), faults());
        EXPECT_EQ(row_of_default(*shown.window).size(), stage == look::choosing ? 0U : 3U);
    });
}

const window_check colour_check([](form &, QWidget & window, window_findings & found) {
    const auto row = row_of_default(window);
    if (row.empty() || !row.back()->isEnabled())
        return;
    ++found.seen;
    const QPoint left(6, row.back()->height() / 2);
    const QImage drawn = row.back()->grab().toImage();
    if (drawn.pixelColor(left * row.back()->devicePixelRatio()) !=
        QApplication::palette().color(QPalette::Highlight))
        found.faults.push_back(caption_of(*row.back()));
});

TEST(buttons, that_enter_presses_look_alike_in_every_window_and_stand_out)
{
    EXPECT_EQ(colour_check.in_letters(smallest_letters).faults, faults());
    EXPECT_GE(colour_check.in_letters(smallest_letters).seen, 20);
}

TEST(buttons, of_questions_and_messages_stand_in_that_order_too)
{
    qt_desktop desk;
    faults order;
    const auto note = [&](QWidget & box) {
        for (const QPushButton * each : row_of_default(box))
            order.push_back(caption_of(*each));
    };
    when_asked<QMessageBox>([&](QMessageBox & box) {
        note(box);
        box.button(QMessageBox::Cancel)->click();
    });
    desk.ask({.title = "File", .text = "Replace it?", .offered = answers::yes_no_cancel});
    EXPECT_EQ(order, (faults{"Cancel", "No", "Yes"}));
    order.clear();
    when_asked<QMessageBox>([&](QMessageBox & box) {
        note(box);
        box.button(QMessageBox::Ok)->click();
    });
    desk.message("Done.", {});
    EXPECT_EQ(order, faults{"Ok"});
    order.clear();
    when_asked<QColorDialog>([&](QColorDialog & box) {
        note(box);
        box.reject();
    });
    EXPECT_EQ(desk.choose_color(0xFF), std::nullopt);
    EXPECT_EQ(order, (faults{"Cancel", "Ok"}));
}

TEST(buttons, of_a_question_stand_on_yes_unless_that_would_take_something_away)
{
    qt_desktop desk;
    for (const answers offered : {answers::yes_no, answers::yes_no_cancel})
        for (const answer on_enter : {answer::yes, answer::no}) {
            when_asked<QMessageBox>([&](QMessageBox & box) {
                const auto buttons = box.findChildren<QPushButton *>();
                EXPECT_EQ(std::ranges::count_if(buttons, &QPushButton::isDefault), 1);
                EXPECT_TRUE(QTest::qWaitFor([&box] { return box.focusWidget() != nullptr; }));
                QTest::keyClick(box.focusWidget(), Qt::Key_Return);
            });
            EXPECT_EQ(desk.ask({.title = "File", .text = "?", .offered = offered, .on_enter = on_enter}),
                      on_enter);
        }
}

// Where the system's texts don't fix it.
const window_check spelling_check([](form &, QWidget & window, window_findings & found) {
    for (const QPushButton * each : window.findChildren<QPushButton *>())
        if (each->objectName() != QLatin1String("OKButton") && each->objectName() != QLatin1String("cmdOK") &&
            caption_of(*each) == "OK")
            found.faults.push_back(each->objectName().toStdString());
});

TEST(buttons, spell_ok_in_one_way)
{
    EXPECT_EQ(spelling_check.in_letters(smallest_letters).faults, faults());
}

}  // namespace
