#include "batch/output_kind.h"

#include "batch/arguments.h"

#include <gtest/gtest.h>

namespace {

struct page_words {
    std::string page{}, around{};
    std::optional<int> bleed{};
};

std::string kind_fault(const std::string & out, const page_words & words = {})
{
    batch_arguments arguments;
    arguments.out = out;
    arguments.page = words.page;
    arguments.around = words.around;
    arguments.bleed = words.bleed;
    try {
        check_output_kind(arguments);
        return {};
    } catch (const bad_arguments & fault) {
        return fault.what;
    }
}

}  // namespace

TEST(output_kind, is_what_the_ending_says)
{
    for (const char * name : {"a.jpg", "a.JPG", "a.jpeg", "a.pdf.Jpeg", ".jpg", "-"})
        EXPECT_EQ(kind_of_output(name), output_kind::jpeg) << name;
    for (const char * name : {"a.png", "b/a.PNG"})
        EXPECT_EQ(kind_of_output(name), output_kind::png) << name;
    for (const char * name : {"a.tif", "a.TIFF"})
        EXPECT_EQ(kind_of_output(name), output_kind::tiff) << name;
    for (const char * name : {"a.pdf", "a.jpg.Pdf"})
        EXPECT_EQ(kind_of_output(name), output_kind::pdf) << name;
    for (const std::string name : {"a.bmp", "a", "a.jpg.part", "a.jpe", "pdf", "a.pdf/a"})
        EXPECT_EQ(kind_fault(name),
                  "\"" + name +
                      "\" doesn't end in .jpg, .jpeg, .png, .tif, .tiff or .pdf, which tells the kind of "
                      "the file");
}

TEST(output_kind, a_page_belongs_to_a_pdf)
{
    const std::string refused = "--page, --around and --bleed belong to a PDF, and \"a.png\" isn't one";
    EXPECT_EQ(kind_fault("a.png", {.page = "A4"}), refused);
    EXPECT_EQ(kind_fault("a.png", {.around = "white"}), refused);
    EXPECT_EQ(kind_fault("a.png", {.bleed = 3}), refused);
    EXPECT_EQ(kind_fault("a.pdf", {.page = "A4", .around = "ground", .bleed = 3}), "");
    EXPECT_EQ(kind_fault("a.png"), "");
}
