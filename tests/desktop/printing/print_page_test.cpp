#include "desktop/printing/print_page.h"

#include "desktop/qt_desktop.h"
#include "desktop/qt_picture.h"
#include "tests/desktop/printing/pdf_page.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

constexpr double near_enough = 0.5;  // points
const QMarginsF uneven(12, 24, 18, 36);

struct sheet {
    QPageSize::PageSizeId size;
    double width, height;  // points, upright
};

constexpr sheet sheets[] = {{QPageSize::A4, 595, 842}, {QPageSize::Letter, 612, 792}};

struct collage {
    int width, height;
    orientation page;
};

constexpr collage collages[] = {
    {200, 300, orientation::portrait}, {300, 200, orientation::landscape}, {200, 200, orientation::portrait}};

pdf_page written(const sheet & paper, const collage & made)
{
    const temporary_folder folder;
    const QString path = QString::fromStdString(folder.at("page.pdf"));
    const QPageLayout page = page_of(QPageSize(paper.size), uneven, page_orientation(made.page));
    EXPECT_EQ(write_page(path, image_of(graded(made.width, made.height)), page, "Flurn"), "");
    return read_page(folder.at("page.pdf"));
}

template <typename Check>
void write_each(Check check)
{
    for (const sheet & paper : sheets)
        for (const collage & made : collages) {
            SCOPED_TRACE(std::to_string(made.width) + "x" + std::to_string(made.height) + " on " +
                         std::to_string(paper.width));
            check(paper, made, written(paper, made));
        }
}

TEST(write_page, is_one_page_of_the_paper_in_the_collage_s_orientation)
{
    write_each([](const sheet & paper, const collage & made, const pdf_page & page) {
        const bool lies = made.page == orientation::landscape;
        EXPECT_EQ(page.pages, 1);
        EXPECT_NEAR(page.paper.width(), lies ? paper.height : paper.width, near_enough);
        EXPECT_NEAR(page.paper.height(), lies ? paper.width : paper.height, near_enough);
    });
}

TEST(write_page, the_whole_picture_stands_inside_the_margins_and_fills_them_one_way)
{
    write_each([](const sheet &, const collage & made, const pdf_page & page) {
        const bool lies = made.page == orientation::landscape;
        const double width = page.paper.width() - 2 * (lies ? 36 : 18);
        const double height = page.paper.height() - 2 * (lies ? 18 : 36);
        EXPECT_LE(page.picture.width(), width + near_enough);
        EXPECT_LE(page.picture.height(), height + near_enough);
        EXPECT_TRUE(page.picture.width() > width - near_enough ||
                    page.picture.height() > height - near_enough);
    });
}

TEST(write_page, the_picture_stands_in_the_middle_and_keeps_its_proportions)
{
    write_each([](const sheet &, const collage & made, const pdf_page & page) {
        EXPECT_NEAR(page.picture.center().x(), page.paper.width() / 2, near_enough);
        EXPECT_NEAR(page.picture.center().y(), page.paper.height() / 2, near_enough);
        EXPECT_NEAR(page.picture.width() / page.picture.height(), 1.0 * made.width / made.height, 0.005);
    });
}

TEST(write_page, keeps_every_pixel_and_the_title)
{
    const temporary_folder folder;
    const QString path = QString::fromStdString(folder.at("page.pdf"));
    write_page(path, image_of(graded(123, 77)),
               page_of(QPageSize(QPageSize::A4), uneven, QPageLayout::Portrait), "Flurn");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.contains("/Width 123\n/Height 77"));
    EXPECT_FALSE(bytes.contains("DCTDecode"));  // which would lose some
    EXPECT_TRUE(bytes.contains(QByteArray("\0F\0l\0u\0r\0n", 10)));
}

TEST(write_page, says_why_it_could_not_be_written)
{
    const QPageLayout page = page_of(QPageSize(QPageSize::A4), uneven, QPageLayout::Portrait);
    EXPECT_NE(write_page(QStringLiteral("/no/such/folder/page.pdf"), image_of(graded(20, 30)), page, "Flurn"),
              "");
    EXPECT_NE(write_page(QStringLiteral("/dev/full"), image_of(graded(20, 30)), page, "Flurn"), "");
}

TEST(print, without_a_printer_the_desktop_says_so)
{
    qt_desktop desk;
    desk.printer = [] { return QPrinterInfo(); };
    EXPECT_EQ(desk.print(plain(20, 30, {}), orientation::portrait).result, print_result::no_printer);
}

}  // namespace
