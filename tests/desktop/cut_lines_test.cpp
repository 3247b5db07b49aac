#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "tests/desktop/window_views.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

constexpr const char * longer = "A caption that is longer than any box of a window has room for";

// A line of that text beside another widget, which takes the keyboard.
struct cut_lines : testing::Test {
    cut_lines()
    {
        line.setGeometry(0, 0, 200, 30);
        other.setGeometry(0, 40, 200, 30);
        window.show();
        window.activateWindow();
        other.setFocus();
        QApplication::processEvents();
    }
    QImage end_of(const QString & text)
    {
        line.setText(text);
        line.setCursorPosition(0);
        return line.grab(end).toImage();
    }
    void ask_for_tip()
    {
        QHelpEvent asked(QEvent::ToolTip, QPoint(5, 5), line.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&line, &asked);
    }
    const QRect end{130, 4, 64, 22};  // inside the frame
    QWidget window;
    QLineEdit line{&window}, other{&window};
};

// As the toolkit draws the letters that have room, and an ellipsis.
TEST_F(cut_lines, end_in_an_ellipsis)
{
    const QString text = QLatin1String(longer),
                  shown = line.fontMetrics().elidedText(text, Qt::ElideRight, line.width() - 8);
    ASSERT_TRUE(shown.endsWith(QChar(0x2026)));
    EXPECT_EQ(end_of(text), end_of(shown));
}

TEST_F(cut_lines, show_both_ends_of_what_cannot_be_changed)
{
    line.setReadOnly(true);
    const QString text = QLatin1String(longer),
                  shown = line.fontMetrics().elidedText(text, Qt::ElideMiddle, line.width() - 8);
    EXPECT_EQ(end_of(text), end_of(shown));
}

TEST_F(cut_lines, keep_their_text_and_show_it_where_it_is_written)
{
    const QImage marked = end_of(QLatin1String(longer));
    EXPECT_EQ(line.text(), QLatin1String(longer));
    line.setFocus();
    line.setCursorPosition(0);
    EXPECT_NE(line.grab(end).toImage(), marked);
}

TEST_F(cut_lines, tell_the_whole_text_as_a_tip)
{
    line.setText(QLatin1String(longer));
    ask_for_tip();
    EXPECT_EQ(QToolTip::text(), QLatin1String(longer));
    QToolTip::hideText();
}

TEST_F(cut_lines, need_no_tip_where_the_text_has_room)
{
    QToolTip::hideText();
    QApplication::processEvents();
    line.setText(QStringLiteral("Short"));
    ask_for_tip();
    EXPECT_FALSE(QToolTip::isVisible() && QToolTip::text() == QStringLiteral("Short"));
}

// Those of the frame sets that are supplied are up to nineteen letters long.
TEST(captions, of_the_usual_length_are_seen_whole_beside_a_photo_list)
{
    for (const int pixels : {9 * 4 / 3, 12 * 4 / 3, 14 * 4 / 3, 16 * 4 / 3}) {
        set_letters(pixels);
        filled_session session;
        int seen = 0;
        for (const window_view & view : session.views())
            if (view.window == &session.all.captions) {
                const shown_view shown(view);
                for (const QLineEdit * each : shown.window().findChildren<QLineEdit *>()) {
                    EXPECT_LE(each->fontMetrics().horizontalAdvance(each->text()) + 10, each->width())
                        << view.name << ", " << each->text().toStdString() << " in " << pixels;
                    seen += each->text().isEmpty() ? 0 : 1;
                }
            }
        EXPECT_GE(seen, 12);
    }
    set_letters(smallest_letters);
}

}  // namespace
