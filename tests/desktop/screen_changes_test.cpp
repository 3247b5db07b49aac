#include "tests/desktop/screen_changes.h"

#include "../temporary_folder.h"

#include <QFile>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

QImage window(const QString & caption, int shift = 0)
{
    QImage drawn(1000, 700, QImage::Format_RGB32);
    drawn.fill(QColor(30 + shift, 40 + shift, 50 + shift));
    QPainter painter(&drawn);
    painter.setPen(Qt::white);
    painter.drawText(100, 100, caption);
    return drawn;
}

// The same with a cursor behind the caption.
QImage with_cursor(QImage drawn)
{
    QPainter(&drawn).fillRect(300, 88, 1, 16, Qt::white);
    return drawn;
}

QString saved(const temporary_folder & folder, const char * name, const QImage & drawn)
{
    const QString path = QString::fromStdString(folder.at(name));
    EXPECT_TRUE(drawn.save(path));
    return path;
}

struct screens_of_two_days : testing::Test {
    QStringList redrawn() const
    {
        return redraw_changed(QString::fromStdString(today.path()), QString::fromStdString(before.path()));
    }
    temporary_folder before, today;
};

TEST(share_changed, counts_the_pixels_that_look_different)
{
    QImage one(10, 10, QImage::Format_RGB32);
    one.fill(qRgb(100, 100, 100));
    QImage other = one;
    other.setPixel(3, 4, qRgb(100, 149, 100));
    other.setPixel(4, 4, qRgb(51, 100, 100));
    other.setPixel(5, 4, qRgb(100, 100, 148));
    EXPECT_DOUBLE_EQ(share_changed(one, other), 0.02);
    EXPECT_DOUBLE_EQ(share_changed(other, one), 0.02);
    EXPECT_DOUBLE_EQ(share_changed(one, one), 0);
}

TEST(share_changed, is_all_where_the_sizes_differ_or_there_is_nothing)
{
    const QImage one(10, 10, QImage::Format_RGB32);
    EXPECT_DOUBLE_EQ(share_changed(one, QImage(10, 11, QImage::Format_RGB32)), 1);
    EXPECT_DOUBLE_EQ(share_changed(QImage(), one), 1);
    EXPECT_DOUBLE_EQ(share_changed(QImage(), QImage()), 1);
}

TEST_F(screens_of_two_days, noise_leaves_the_screen_as_it_is)
{
    const QString path = saved(before, "noise.png", window("Summer by the sea"));
    saved(today, "noise.png", with_cursor(window("Summer by the sea", 3)));
    EXPECT_EQ(redrawn(), QStringList());
    EXPECT_EQ(QImage(path), window("Summer by the sea"));
}

TEST_F(screens_of_two_days, another_word_or_another_size_redraws_it)
{
    const QString word = saved(before, "word.png", window("Summer by the sea"));
    saved(today, "word.png", window("Winter in the hills"));
    saved(before, "size.png", window("Summer").copy(0, 0, 900, 700));
    saved(today, "size.png", window("Summer"));
    EXPECT_EQ(redrawn(), QStringList({"size.png", "word.png"}));
    EXPECT_EQ(QImage(word), window("Winter in the hills"));
    EXPECT_EQ(redrawn(), QStringList());
}

TEST_F(screens_of_two_days, what_only_one_of_them_has_stays_there)
{
    saved(before, "gone.png", window("Gone"));
    saved(today, "new.png", window("New"));
    EXPECT_EQ(redrawn(), QStringList());
    EXPECT_FALSE(QFile::exists(QString::fromStdString(before.at("new.png"))));
    EXPECT_TRUE(QFile::exists(QString::fromStdString(before.at("gone.png"))));
}

TEST_F(screens_of_two_days, one_that_cannot_be_read_is_replaced)
{
    before.write("torn.png", "no picture");
    saved(today, "torn.png", window("Whole"));
    EXPECT_EQ(redrawn(), QStringList({"torn.png"}));
}

}  // namespace
