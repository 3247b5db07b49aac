#include "batch/tiff_file.h"

#include "support/platform_error.h"

#include <memory>
#include <sstream>
#include <tiffio.h>
#include <tiffio.hxx>
#include <vector>

namespace {

using open_tiff = std::unique_ptr<TIFF, void (*)(TIFF *)>;

[[noreturn]] void refuse()
{
    throw platform_error(error_number::invalid_call, "The picture can't be encoded.");
}

void describe(TIFF * file, const bitmap & image)
{
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, image.width());
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, image.height());
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(file, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(file, TIFFTAG_COMPRESSION, COMPRESSION_LZW);  // which every program reads
    TIFFSetField(file, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(file, 0));
}

void note(TIFF * file, const picture_notes & notes)
{
    TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(file, TIFFTAG_XRESOLUTION, static_cast<double>(notes.dpi));
    TIFFSetField(file, TIFFTAG_YRESOLUTION, static_cast<double>(notes.dpi));
    TIFFSetField(file, TIFFTAG_SOFTWARE, std::string(notes.made_with).c_str());
    TIFFSetField(file, TIFFTAG_ICCPROFILE, static_cast<unsigned>(notes.color_profile.size()),
                 notes.color_profile.data());
}

// Rows of the file count from the top and have red first.
void write_rows(TIFF * file, const bitmap & image)
{
    std::vector<rgb_triple> row;
    for (int y = 0; y < image.height(); ++y) {
        const std::span<const pixel> pixels = image.row(image.height() - 1 - y);
        row.assign(pixels.begin(), pixels.end());
        if (TIFFWriteScanline(file, row.data(), static_cast<unsigned>(y), 0) < 0)
            refuse();
    }
}

}  // namespace

std::string tiff_bytes(const bitmap & image, const picture_notes & notes)
{
    static_assert(sizeof(rgb_triple) == 3);
    if (!image)
        refuse();
    std::ostringstream bytes;
    {
        const open_tiff file(TIFFStreamOpen("poster", &bytes), TIFFClose);
        if (!file)
            refuse();
        describe(file.get(), image);
        note(file.get(), notes);
        write_rows(file.get(), image);
        if (TIFFFlush(file.get()) == 0)
            refuse();
    }
    return std::move(bytes).str();
}
