#include "desktop/looks/letters.h"
#include "tests/desktop/seen_pixels.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/window_check.h"

#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QStyleOptionGroupBox>

#include <algorithm>
#include <gtest/gtest.h>

// The title of a group interrupts the line around it: nothing of that line is seen behind the letters.

namespace {

using faults = std::vector<std::string>;

// In pixels of the box, the blanks around the letters included.
QRect title_place(const QGroupBox & box)
{
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.textAlignment = box.alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.features = QStyleOptionFrame::None;
    option.lineWidth = 1;
    return box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box);
}

QImage dense_part(const QImage & whole, const QRect & place)
{
    const double density = whole.devicePixelRatio();
    return whole.copy(QRect(place.topLeft() * density, place.size() * density) & whole.rect());
}

struct titles_seen {
    int count = 0;
    faults struck{}, without_line{};
};

void look_at_title(const QGroupBox & box, const QImage & whole, titles_seen & seen)
{
    const QRect title = title_place(box).translated(box.mapTo(box.window(), QPoint()));
    const QRect beside(title.right() + 1, title.top(), box.width() - title_place(box).right() - 10,
                       title.height());
    const int longest = longest_line(dense_part(whole, title));
    ++seen.count;
    if (longest > 2)
        seen.struck.push_back(box.objectName().toStdString() + ": " + std::to_string(longest));
    if (beside.width() > 20 && longest_line(dense_part(whole, beside)) < 15)
        seen.without_line.push_back(box.objectName().toStdString());
}

titles_seen titles_of(QWidget & window)
{
    titles_seen seen;
    const QImage whole = window.grab().toImage();
    for (const QGroupBox * box : window.findChildren<QGroupBox *>())
        if (!box->title().trimmed().isEmpty() && box->isEnabled() && !box->visibleRegion().isEmpty())
            look_at_title(*box, whole, seen);
    return seen;
}

// How many they are.
int unstruck_titles(QWidget & window)
{
    const titles_seen seen = titles_of(window);
    EXPECT_EQ(seen.struck, faults());
    EXPECT_EQ(seen.without_line, faults()) << "no line was found where there is one";
    return seen.count;
}

struct group_titles : testing::TestWithParam<int> {
    group_titles() { set_letters(GetParam()); }
    ~group_titles() override { set_letters(smallest_letters); }
};

const window_check struck_check([](form &, QWidget & window, window_findings & found) {
    const titles_seen seen = titles_of(window);
    found.seen += seen.count;
    for (const std::string & title : seen.struck)
        found.faults.push_back(title);
    for (const std::string & title : seen.without_line)
        found.faults.push_back(title + ": no line was found where there is one");
});

TEST_P(group_titles, of_all_windows_are_struck_by_no_line)
{
    EXPECT_EQ(struck_check.in_letters(GetParam()).faults, faults());
    EXPECT_GT(struck_check.in_letters(GetParam()).seen, 5);
}

TEST_P(group_titles, of_the_main_window_are_struck_by_no_line)
{
    shown_main_window shown;
    int titles = 0;
    shown.in_each_stage(all_shapes, [&](look) { titles += unstruck_titles(*shown.window); });
    EXPECT_GT(titles, 50);
}

INSTANTIATE_TEST_SUITE_P(letters, group_titles, testing::Values(9 * 4 / 3, 12 * 4 / 3, 16 * 4 / 3),
                         [](const auto & each) { return std::to_string(each.param) + "_pixels"; });

TEST(group_title, that_a_line_strikes_is_told)
{
    QWidget window;
    QGroupBox box(QStringLiteral("Frame Style"), &window);
    box.setObjectName(QStringLiteral("struck"));
    box.setGeometry(10, 10, 300, 100);
    window.resize(320, 120);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(titles_of(window).struck, faults());
    box.setStyleSheet(QStringLiteral("QGroupBox::title { background: transparent; }"));
    EXPECT_EQ(titles_of(window).struck.size(), 1u);
}

}  // namespace
