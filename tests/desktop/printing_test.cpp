#include "desktop/printing.h"

#include "../pictures.h"
#include "../temporary_folder.h"
#include "desktop/qt_desktop.h"
#include "tests/desktop/pdf_page.h"

#include <QPrinterInfo>

#include <gtest/gtest.h>

namespace {

constexpr double margin = 36, near_enough = 1;  // points

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

pdf_page printed(const sheet & paper, const collage & made)
{
    const temporary_folder folder;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(folder.at("page.pdf")));
    printer.setPageSize(QPageSize(paper.size));
    printer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
    EXPECT_TRUE(print_on(printer, graded(made.width, made.height), made.page));
    return read_page(folder.at("page.pdf"));
}

template <typename Check>
void print_each(Check check)
{
    for (const sheet & paper : sheets)
        for (const collage & made : collages) {
            SCOPED_TRACE(std::to_string(made.width) + "x" + std::to_string(made.height) + " on " +
                         std::to_string(paper.width));
            check(paper, made, printed(paper, made));
        }
}

TEST(print_on, one_page_of_the_paper_in_the_collage_s_orientation)
{
    print_each([](const sheet & paper, const collage & made, const pdf_page & page) {
        const bool lies = made.page == orientation::landscape;
        EXPECT_EQ(page.pages, 1);
        EXPECT_NEAR(page.paper.width(), lies ? paper.height : paper.width, near_enough);
        EXPECT_NEAR(page.paper.height(), lies ? paper.width : paper.height, near_enough);
    });
}

TEST(print_on, the_whole_picture_stands_inside_the_margins_and_fills_them_one_way)
{
    print_each([](const sheet &, const collage &, const pdf_page & page) {
        const double width = page.paper.width() - 2 * margin, height = page.paper.height() - 2 * margin;
        EXPECT_LE(page.picture.width(), width + near_enough);
        EXPECT_LE(page.picture.height(), height + near_enough);
        EXPECT_TRUE(page.picture.width() > width - near_enough ||
                    page.picture.height() > height - near_enough);
    });
}

TEST(print_on, the_picture_is_centred)
{
    print_each([](const sheet &, const collage &, const pdf_page & page) {
        EXPECT_NEAR(page.picture.center().x(), page.paper.width() / 2, near_enough);
        EXPECT_NEAR(page.picture.center().y(), page.paper.height() / 2, near_enough);
    });
}

TEST(print_on, the_picture_keeps_its_proportions)
{
    print_each([](const sheet &, const collage & made, const pdf_page & page) {
        EXPECT_NEAR(page.picture.width() / page.picture.height(), 1.0 * made.width / made.height, 0.005);
    });
}

TEST(print_on, without_a_printer_the_desktop_says_so)
{
    qt_desktop desk;
    desk.printer = [] { return QPrinterInfo(); };
    EXPECT_EQ(desk.print(plain(20, 30, {}), orientation::portrait), print_result::no_printer);
}

}  // namespace
