#include "../pictures.h"

#include "../temporary_folder.h"
#include "desktop/binder/captions.h"
#include "desktop/binder/picture_view.h"
#include "desktop/file_filter.h"

#include <QFile>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const QColor red(255, 0, 0), green(0, 255, 0), black(0, 0, 0);

std::string colored_file(const temporary_folder & folder, const char * name, QSize size, const QColor & color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    image.setPixelColor(0, 0, black);
    image.save(QString::fromStdString(folder.at(name)));
    return folder.at(name);
}

// The view as it is seen, one pixel a point whatever the screen's density.
QImage seen_view(picture_view & view)
{
    QImage image(view.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    view.render(&image);
    return image;
}

TEST(picture_view, shows_the_file_unscaled_from_the_top_left_and_cut_at_its_edge)
{
    const temporary_folder folder;
    picture_view view;
    view.resize(30, 20);
    view.set_back_color(green);
    view.show_file(colored_file(folder, "large.png", {50, 12}, red));
    const QImage seen = seen_view(view);
    EXPECT_EQ(seen.pixelColor(0, 0), black);
    EXPECT_EQ(seen.pixelColor(1, 0), red);
    EXPECT_EQ(seen.pixelColor(29, 11), red);
    EXPECT_EQ(seen.pixelColor(29, 12), QColor(view.palette().color(QPalette::Window)))
        << "beside it, the window";
}

TEST(picture_view, fitted_shows_a_larger_picture_whole_and_leaves_a_smaller_one_as_it_is)
{
    const temporary_folder folder;
    picture_view view;
    view.setProperty("fitted", true);
    view.resize(60, 40);
    view.show_file(colored_file(folder, "high.png", {80, 80}, red));
    const QColor beside(view.palette().color(QPalette::Window));
    EXPECT_EQ(seen_view(view).pixelColor(8, 20), beside);
    EXPECT_EQ(seen_view(view).pixelColor(12, 1), red);
    EXPECT_EQ(seen_view(view).pixelColor(48, 38), red);
    EXPECT_EQ(seen_view(view).pixelColor(51, 20), beside);
    view.show_file(colored_file(folder, "small.png", {20, 20}, red));
    EXPECT_EQ(seen_view(view).pixelColor(20, 10), black);
    EXPECT_EQ(seen_view(view).pixelColor(39, 29), red);
    EXPECT_EQ(seen_view(view).pixelColor(40, 30), beside);
}

// Noise doesn't become smaller in any file.
std::string large_file(const temporary_folder & folder)
{
    QImage image(800, 600, QImage::Format_RGB32);
    quint32 state = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, state = state * 1664525 + 1013904223);
    const QString path = QString::fromStdString(folder.at("noise.png"));
    image.save(path);
    EXPECT_GT(QFile(path).size(), 1'000'000);
    return path.toStdString();
}

TEST(picture_view, lets_the_windows_be_drawn_while_a_large_file_is_read)
{
    const temporary_folder folder;
    const std::string path = large_file(folder);
    for (const bool filled : {false, true}) {
        picture_view view;
        view.set_filled(filled);
        view.resize(80, 60);
        bool seen = false;
        QTimer::singleShot(0, &view, [&] { seen = true; });
        view.show_file(path);
        EXPECT_TRUE(seen) << filled;
        EXPECT_EQ(view.image().width(), filled ? 80 * view.devicePixelRatioF() : 800);
    }
}

TEST(picture_view, reads_a_file_again_that_has_changed_under_its_name)
{
    const temporary_folder folder;
    picture_view view;
    view.resize(10, 10);
    view.show_file(colored_file(folder, "a.png", {10, 10}, red));
    view.show_file(colored_file(folder, "a.png", {10, 10}, green));
    EXPECT_EQ(seen_view(view).pixelColor(5, 5), green);
}

TEST(picture_view, without_a_picture_shows_its_back_colour)
{
    const temporary_folder folder;
    picture_view view;
    view.resize(10, 10);
    view.set_back_color(green);
    view.show_file(folder.write("no picture.jpg", "text"));
    EXPECT_EQ(seen_view(view).pixelColor(5, 5), green);
    view.show_file(folder.at("missing.jpg"));
    EXPECT_EQ(seen_view(view).pixelColor(5, 5), green);
    view.show_file("");
    EXPECT_EQ(seen_view(view).pixelColor(5, 5), green);
}

// At one and a half times the usual density as well.
TEST(picture_view, has_its_edge_on_all_four_sides_where_it_can_be_clicked)
{
    picture_view view;
    view.setFocusPolicy(Qt::StrongFocus);
    view.resize(41, 23);
    view.set_back_color(QColor(250, 240, 230));
    const QColor edge = view.palette().color(QPalette::Mid);
    for (const double density : {1.0, 1.5, 2.0}) {
        QPixmap drawn(view.size() * density);
        drawn.setDevicePixelRatio(density);
        view.render(&drawn);
        const QImage pixels = drawn.toImage();
        const int right = pixels.width() - 1, bottom = pixels.height() - 1;
        for (const QPoint at : {QPoint(0, bottom / 2), QPoint(right, bottom / 2), QPoint(right / 2, 0),
                                QPoint(right / 2, bottom), QPoint(0, 0), QPoint(right, bottom)})
            EXPECT_EQ(pixels.pixelColor(at), edge) << density << ": " << at.x() << ", " << at.y();
        EXPECT_EQ(pixels.pixelColor(right - 3, bottom - 3), view.back_color()) << density;
    }
}

TEST(picture_view, a_path_may_be_any_bytes)
{
    const temporary_folder folder;
    const std::string plain_path = colored_file(folder, "plain.png", {10, 10}, red);
    const std::string path = folder.at("caf\xE9.png");
    ASSERT_EQ(std::rename(plain_path.c_str(), path.c_str()), 0);
    picture_view view;
    view.resize(10, 10);
    view.show_file(path);
    EXPECT_EQ(seen_view(view).pixelColor(5, 5), red);
}

TEST(picture_view, a_twin_of_double_density_stands_in_for_the_file_on_such_a_screen_alone)
{
    const temporary_folder folder;
    const std::string path = colored_file(folder, "a.png", {10, 10}, red);
    colored_file(folder, "a@2x.png", {20, 20}, green);
    picture_view view;
    view.resize(10, 10);
    view.show_file(path);
    EXPECT_EQ(view.sizeHint(), QSize(10, 10));
    EXPECT_EQ(seen_view(view).pixelColor(5, 5), view.devicePixelRatioF() > 1 ? green : red);
}

TEST(picture_view, scaled_to_its_width_it_asks_for_the_height_that_keeps_the_proportions)
{
    const temporary_folder folder;
    picture_view view;
    view.set_scaled(true);
    view.show_file(colored_file(folder, "wide.png", {40, 20}, red));
    EXPECT_EQ(view.heightForWidth(100), 50);
}

TEST(captions, a_spaced_title_is_read_as_words_and_others_as_they_are)
{
    EXPECT_EQ(unspaced("   F r a m e   S t y l e   "), "Frame Style");
    EXPECT_EQ(unspaced("  Shake the Design  "), "Shake the Design");
    EXPECT_EQ(unspaced(""), "");
}

TEST(captions, the_first_letter_found_is_marked_and_a_caption_s_own_mark_stays)
{
    EXPECT_EQ(with_mnemonic("Caption top", "T"), "Cap&tion top");
    EXPECT_EQ(with_mnemonic("Right", "PR"), "&Right");
    EXPECT_EQ(with_mnemonic(" &Quick flurn", "F"), " &Quick flurn");
    EXPECT_EQ(with_mnemonic("Top", "XZ"), "Top");
    EXPECT_EQ(with_mnemonic_in_any_text("A & B", "B"), "A && B");
}

TEST(captions, colours_have_red_in_the_low_byte)
{
    EXPECT_EQ(shown_color(0x010203), QColor(3, 2, 1));
    EXPECT_EQ(control_color(QColor(3, 2, 1)), 0x010203u);
}

TEST(file_filter, pairs_become_the_toolkit_s_filters)
{
    EXPECT_EQ(toolkit_filter("Image files |*.jpg"), "Image files (*.jpg *.JPG)");
    EXPECT_EQ(toolkit_filter("Image files (*.jpg)|*.jpg;*.gif|All files|*"),
              "Image files (*.jpg *.JPG *.gif *.GIF);;All files (*)");
    EXPECT_EQ(toolkit_filter(""), "");
}

}  // namespace
