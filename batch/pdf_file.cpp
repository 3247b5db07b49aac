#include "batch/pdf_file.h"

#include "support/color_profile.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <array>

namespace {

using object = QPDFObjectHandle;

constexpr const char * program = "Tessaloom";
constexpr const char * oldest_version = "1.6";  // that knows profiles of this kind

// Up to a ten-thousandth of a point.
std::string number(double value)
{
    return object::newReal(value, 4).unparse();
}

object box(double left, double bottom, double right, double top)
{
    return object::newArray(object::Rectangle(left, bottom, right, top));
}

object color_space(QPDF & file)
{
    object profile = object::newStream(&file, std::string(srgb_profile()));
    profile.getDict().replaceKey("/N", object::newInteger(3));
    profile.getDict().replaceKey("/Alternate", object::newName("/DeviceRGB"));
    return file.makeIndirectObject(object::newArray({object::newName("/ICCBased"), profile}));
}

object image(QPDF & file, const page_picture & picture, const object & space)
{
    object stream = object::newStream(&file);
    stream.replaceStreamData(std::string(picture.jpeg), object::newName("/DCTDecode"), object::newNull());
    object told = stream.getDict();
    told.replaceKey("/Type", object::newName("/XObject"));
    told.replaceKey("/Subtype", object::newName("/Image"));
    told.replaceKey("/Width", object::newInteger(picture.size.width));
    told.replaceKey("/Height", object::newInteger(picture.size.height));
    told.replaceKey("/BitsPerComponent", object::newInteger(8));
    told.replaceKey("/ColorSpace", space);
    return stream;
}

std::string drawn(const std::string & name, const std::array<double, 4> & area)
{
    const auto & [left, bottom, width, height] = area;
    return "q " + number(width) + " 0 0 " + number(height) + " " + number(left) + " " + number(bottom) +
           " cm " + name + " Do Q\n";
}

std::string painted(const page_plan & plan, rgb_triple color)
{
    constexpr double full = 255;
    return "q /sRGB cs " + number(color.red / full) + " " + number(color.green / full) + " " +
           number(color.blue / full) + " sc 0 0 " + number(plan.whole_width()) + " " +
           number(plan.whole_height()) + " re f Q\n";
}

std::string content(const page_plan & plan, const page_ground & ground)
{
    std::string steps = painted(plan, ground.color);
    if (ground.picture)
        steps += drawn("/ground", {0, 0, plan.whole_width(), plan.whole_height()});
    return steps + drawn("/poster", {plan.left, plan.bottom, plan.poster_width, plan.poster_height});
}

object page(QPDF & file, const page_plan & plan, const page_picture & poster, const page_ground & ground)
{
    const object space = color_space(file);
    object images = object::newDictionary(), spaces = object::newDictionary();
    images.replaceKey("/poster", image(file, poster, space));
    if (ground.picture)
        images.replaceKey("/ground", image(file, *ground.picture, space));
    spaces.replaceKey("/sRGB", space);
    object used = object::newDictionary();
    used.replaceKey("/XObject", images);
    used.replaceKey("/ColorSpace", spaces);
    object sheet = object::newDictionary();
    sheet.replaceKey("/Type", object::newName("/Page"));
    sheet.replaceKey("/MediaBox", box(0, 0, plan.whole_width(), plan.whole_height()));
    sheet.replaceKey("/BleedBox", box(0, 0, plan.whole_width(), plan.whole_height()));
    sheet.replaceKey("/TrimBox",
                     box(plan.bleed, plan.bleed, plan.bleed + plan.width, plan.bleed + plan.height));
    sheet.replaceKey("/Resources", used);
    sheet.replaceKey("/Contents", object::newStream(&file, content(plan, ground)));
    return file.makeIndirectObject(sheet);
}

}  // namespace

std::string pdf_bytes(const page_plan & plan, const page_picture & poster, const page_ground & ground)
{
    QPDF file;
    file.emptyPDF();
    QPDFPageDocumentHelper(file).addPage(page(file, plan, poster, ground), false);
    object told = object::newDictionary();
    told.replaceKey("/Creator", object::newString(program));
    told.replaceKey("/Producer", object::newString(program));
    file.getTrailer().replaceKey("/Info", file.makeIndirectObject(told));
    QPDFWriter writer(file);
    writer.setOutputMemory();
    writer.setMinimumPDFVersion(oldest_version);
    writer.setDeterministicID(true);  // made of what the file holds, not of the time
    writer.write();
    const auto bytes = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char *>(bytes->getBuffer()), bytes->getSize()};
}
