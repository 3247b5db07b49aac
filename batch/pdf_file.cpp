#include "batch/pdf_file.h"

#include "support/color_profile.h"
#include "support/platform_error.h"

#include <qpdf/qpdf-c.h>

#include <array>
#include <charconv>
#include <memory>

namespace {

constexpr const char * oldest_version = "1.6";  // that knows profiles of this kind

// A file on its way. Its objects are numbers, which the library gives and takes.
class pdf {
public:
    pdf()
    {
        qpdf_silence_errors(file());
        qpdf_empty_pdf(file());
    }
    qpdf_data file() const { return data.get(); }

    qpdf_oh parsed(const std::string & text) const { return qpdf_oh_parse(file(), text.c_str()); }
    void put(qpdf_oh dictionary, const char * key, qpdf_oh value) const
    {
        qpdf_oh_replace_key(file(), dictionary, key, value);
    }
    void put(qpdf_oh dictionary, const char * key, const std::string & value) const
    {
        put(dictionary, key, parsed(value));
    }
    // What was packed by no filter is packed when the file is written.
    qpdf_oh stream(std::string_view bytes, const std::string & filter = "null") const
    {
        const qpdf_oh made = qpdf_oh_new_stream(file());
        qpdf_oh_replace_stream_data(file(), made, reinterpret_cast<const unsigned char *>(bytes.data()),
                                    bytes.size(), parsed(filter), parsed("null"));
        return made;
    }
    qpdf_oh told_of(qpdf_oh stream) const { return qpdf_oh_get_dict(file(), stream); }

private:
    struct closer {
        void operator()(qpdf_data opened) const { qpdf_cleanup(&opened); }
    };
    std::unique_ptr<std::remove_pointer_t<qpdf_data>, closer> data{qpdf_init()};
};

// Up to a ten-thousandth, with a point in every language.
std::string number(double value)
{
    std::array<char, 64> text{};
    char * const end = text.data() + text.size();
    return {text.data(), std::to_chars(text.data(), end, value, std::chars_format::fixed, 4).ptr};
}

std::string numbers_in_a_row(const std::array<double, 4> & values)
{
    std::string text;
    for (const double value : values)
        text += number(value) + " ";
    return text;
}

qpdf_oh color_space(const pdf & file)
{
    const qpdf_oh profile = file.stream(srgb_profile());
    file.put(file.told_of(profile), "/N", "3");
    file.put(file.told_of(profile), "/Alternate", "/DeviceRGB");
    const qpdf_oh space = file.parsed("[ /ICCBased ]");
    qpdf_oh_append_item(file.file(), space, profile);
    return qpdf_make_indirect_object(file.file(), space);
}

qpdf_oh image(const pdf & file, const page_picture & picture, qpdf_oh space)
{
    const qpdf_oh made = file.stream(picture.jpeg, "/DCTDecode"), told = file.told_of(made);
    file.put(told, "/Type", "/XObject");
    file.put(told, "/Subtype", "/Image");
    file.put(told, "/Width", std::to_string(picture.size.width));
    file.put(told, "/Height", std::to_string(picture.size.height));
    file.put(told, "/BitsPerComponent", "8");
    file.put(told, "/ColorSpace", space);
    return made;
}

std::string drawn(const std::string & name, const std::array<double, 4> & area)
{
    const auto & [left, bottom, width, height] = area;
    return "q " + numbers_in_a_row({width, 0, 0, height}) + number(left) + " " + number(bottom) + " cm " +
           name + " Do Q\n";
}

std::string painted(const page_plan & plan, rgb_triple color)
{
    constexpr double full = 255;
    return "q /sRGB cs " + number(color.red / full) + " " + number(color.green / full) + " " +
           number(color.blue / full) + " sc " +
           numbers_in_a_row({0, 0, plan.whole_width(), plan.whole_height()}) + "re f Q\n";
}

std::string content(const page_plan & plan, const page_ground & ground)
{
    std::string steps = painted(plan, ground.color);
    if (ground.picture)
        steps += drawn("/ground", {0, 0, plan.whole_width(), plan.whole_height()});
    return steps + drawn("/poster", {plan.left, plan.bottom, plan.poster_width, plan.poster_height});
}

qpdf_oh resources(const pdf & file, const page_picture & poster, const page_ground & ground)
{
    const qpdf_oh space = color_space(file), images = file.parsed("<< >>"), spaces = file.parsed("<< >>");
    file.put(images, "/poster", image(file, poster, space));
    if (ground.picture)
        file.put(images, "/ground", image(file, *ground.picture, space));
    file.put(spaces, "/sRGB", space);
    const qpdf_oh used = file.parsed("<< >>");
    file.put(used, "/XObject", images);
    file.put(used, "/ColorSpace", spaces);
    return used;
}

qpdf_oh page(const pdf & file, const page_plan & plan, const page_ground & ground, qpdf_oh used)
{
    const std::string whole = "[ " + numbers_in_a_row({0, 0, plan.whole_width(), plan.whole_height()}) + "]";
    const qpdf_oh sheet = file.parsed("<< /Type /Page >>");
    file.put(sheet, "/MediaBox", whole);
    file.put(sheet, "/BleedBox", whole);
    file.put(
        sheet, "/TrimBox",
        "[ " + numbers_in_a_row({plan.bleed, plan.bleed, plan.bleed + plan.width, plan.bleed + plan.height}) +
            "]");
    file.put(sheet, "/Resources", used);
    file.put(sheet, "/Contents", file.stream(content(plan, ground)));
    return qpdf_make_indirect_object(file.file(), sheet);
}

std::string written(const pdf & file)
{
    qpdf_init_write_memory(file.file());
    qpdf_set_minimum_pdf_version(file.file(), oldest_version);
    qpdf_set_deterministic_ID(file.file(), QPDF_TRUE);  // made of what the file holds, not of the time
    if ((qpdf_write(file.file()) & QPDF_ERRORS) != 0)
        throw platform_error(error_number::invalid_call, "The page can't be encoded.");
    return {reinterpret_cast<const char *>(qpdf_get_buffer(file.file())),
            qpdf_get_buffer_length(file.file())};
}

}  // namespace

std::string pdf_bytes(const page_plan & plan, const page_picture & poster, const page_ground & ground)
{
    const pdf file;
    const qpdf_oh sheet = page(file, plan, ground, resources(file, poster, ground));
    qpdf_add_page(file.file(), file.file(), sheet, QPDF_FALSE);
    file.put(qpdf_get_trailer(file.file()), "/Info",
             qpdf_make_indirect_object(file.file(),
                                       file.parsed("<< /Creator (Tessaloom) /Producer (Tessaloom) >>")));
    return written(file);
}
