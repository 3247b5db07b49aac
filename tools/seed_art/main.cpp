// Renders the seed data's drawings. One picture a call, so that the build makes only what has changed.
//
//     seed_art mask IN.svg OUT.gif SIZE
//         a square of that side, grey levels
//     seed_art picture IN.svg OUT.jpg W H
//         a JPEG of that size
//     seed_art ground IN.svg OUT.jpg W H SMALL.jpg W H
//         what photos lie on, with its stuff and grain, and its preview
//     seed_art icon IN.svg OUT.bmp W H
//         a Windows bitmap of that size, 24 bits
//     seed_art smaller IN.jpg OUT.jpg QUALITY
//         the same picture in less bytes, as a JPEG of that quality
//     seed_art shrunk IN OUT.jpg WIDTH
//         a picture or a screen, narrower, as a JPEG for a page
//     seed_art unlike ONE.jpg OTHER.jpg LEVELS
//         fails when they differ by more levels on average
//     seed_art png IN.svg OUT.png W H
//         a PNG of that size, clear where nothing is drawn
//     seed_art collage LAYOUT OUT.jpg W H FOLDER
//         a small collage of the photos of that folder
//     seed_art white OUT.jpg SIZE
//         a white JPEG, every pixel of which is checked
#include "collage.h"
#include "ground.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <FreeImage.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

constexpr int picture_quality = 92;
constexpr int ground_quality = 95 | JPEG_SUBSAMPLING_444 | JPEG_OPTIMIZE;
constexpr int page_quality = 84;

struct unloader {
    void operator()(FIBITMAP * image) const { FreeImage_Unload(image); }
};
using image_owner = std::unique_ptr<FIBITMAP, unloader>;

QImage rendered(const QString & drawing, int width, int height, Qt::GlobalColor ground = Qt::white)
{
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        throw std::runtime_error(drawing.toStdString() + ": no drawing");
    QImage page(width, height, ground == Qt::white ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    page.fill(ground);
    QPainter painter(&page);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    renderer.render(&painter, QRectF(0, 0, width, height));
    return page;
}

image_owner in_colour(const QImage & page)
{
    image_owner copy(FreeImage_Allocate(page.width(), page.height(), 24));
    for (int y = 0; y < page.height(); ++y) {
        const auto * from = reinterpret_cast<const QRgb *>(page.constScanLine(page.height() - 1 - y));
        BYTE * to = FreeImage_GetScanLine(copy.get(), y);
        for (int x = 0; x < page.width(); ++x, to += 3) {
            to[FI_RGBA_RED] = static_cast<BYTE>(qRed(from[x]));
            to[FI_RGBA_GREEN] = static_cast<BYTE>(qGreen(from[x]));
            to[FI_RGBA_BLUE] = static_cast<BYTE>(qBlue(from[x]));
        }
    }
    return copy;
}

void save(FREE_IMAGE_FORMAT format, const image_owner & image, const char * path, int flags)
{
    if (!image || !FreeImage_Save(format, image.get(), path, flags))
        throw std::runtime_error(std::string(path) + ": can't be written");
}

image_owner in_grey(const QImage & page)
{
    const image_owner colour = in_colour(page);
    return image_owner(FreeImage_ConvertToGreyscale(colour.get()));
}

// A mask with a shadow in it has as much green as red in each pixel: sixteen levels of both by sixteen of
// blue.
image_owner in_mask_colours(const QImage & page)
{
    constexpr int levels = 16, step = 17;
    const auto level = [](int value) { return (value + step / 2) / step; };
    image_owner copy(FreeImage_Allocate(page.width(), page.height(), 8));
    RGBQUAD * palette = FreeImage_GetPalette(copy.get());
    for (int i = 0; i < levels * levels; ++i) {
        const auto red = static_cast<BYTE>(i / levels * step), blue = static_cast<BYTE>(i % levels * step);
        palette[i] = {.rgbBlue = blue, .rgbGreen = red, .rgbRed = red, .rgbReserved = 0};
    }
    for (int y = 0; y < page.height(); ++y) {
        const auto * from = reinterpret_cast<const QRgb *>(page.constScanLine(page.height() - 1 - y));
        BYTE * to = FreeImage_GetScanLine(copy.get(), y);
        for (int x = 0; x < page.width(); ++x)
            to[x] = static_cast<BYTE>(level(qRed(from[x])) * levels + level(qBlue(from[x])));
    }
    return copy;
}

void render_mask(const char * drawing, const char * target, int size)
{
    const QImage page = rendered(drawing, size, size);
    save(FIF_GIF, page.allGray() ? in_grey(page) : in_mask_colours(page), target, GIF_DEFAULT);
}

void render_picture(const char * drawing, const char * target, int width, int height)
{
    save(FIF_JPEG, in_colour(rendered(drawing, width, height)), target, picture_quality);
}

void render_ground(char ** words)
{
    const QImage page = ground(words[2], std::stoi(words[4]), std::stoi(words[5]));
    save(FIF_JPEG, in_colour(page), words[3], ground_quality);
    const QImage small =
        page.scaled(std::stoi(words[7]), std::stoi(words[8]), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    save(FIF_JPEG, in_colour(small), words[6], ground_quality);
}

// An edge mixed with the ground would stay as a rim on the band: a pixel is drawn or it isn't. The first
// pixel of the drawing tells the colour of the ground.
void render_icon(const char * drawing, const char * target, int width, int height)
{
    QImage page = rendered(drawing, width, height, Qt::transparent);
    const QRgb ground = page.pixel(0, 0);
    for (int y = 0; y < height; ++y) {
        auto * row = reinterpret_cast<QRgb *>(page.scanLine(y));
        for (int x = 0; x < width; ++x)
            row[x] = qAlpha(row[x]) < 128 ? ground : row[x] | 0xff000000U;
    }
    save(FIF_BMP, in_colour(page), target, BMP_DEFAULT);
}

void compress(const char * picture, const char * target, int quality)
{
    const image_owner image(FreeImage_Load(FIF_JPEG, picture, 0));
    save(FIF_JPEG, image, target, quality | JPEG_OPTIMIZE);
}

void shrink(const char * picture, const char * target, int width)
{
    const QImage whole(QString::fromLocal8Bit(picture));
    if (whole.isNull())
        throw std::runtime_error(std::string(picture) + ": no picture");
    const QImage narrow = whole.convertToFormat(QImage::Format_RGB32)
                              .scaledToWidth(std::min(width, whole.width()), Qt::SmoothTransformation);
    save(FIF_JPEG, in_colour(narrow), target, page_quality | JPEG_OPTIMIZE | JPEG_SUBSAMPLING_444);
}

void hold_against(const char * one, const char * other, double limit)
{
    const image_owner left(FreeImage_Load(FIF_JPEG, one, 0)), right(FreeImage_Load(FIF_JPEG, other, 0));
    if (!left || !right || FreeImage_GetWidth(left.get()) != FreeImage_GetWidth(right.get()) ||
        FreeImage_GetHeight(left.get()) != FreeImage_GetHeight(right.get()))
        throw std::runtime_error(std::string(one) + ": no two pictures of one size");
    double sum = 0, count = 0;
    for (unsigned y = 0; y < FreeImage_GetHeight(left.get()); ++y) {
        const BYTE * from = FreeImage_GetScanLine(left.get(), static_cast<int>(y));
        const BYTE * to = FreeImage_GetScanLine(right.get(), static_cast<int>(y));
        for (unsigned x = 0; x < FreeImage_GetLine(left.get()); ++x, ++count)
            sum += std::abs(from[x] - to[x]);
    }
    std::printf("%s: %.2f levels\n", other, sum / count);
    if (sum > limit * count)
        throw std::runtime_error(std::string(one) + " differs from " + other);
}

void render_collage(char ** arguments)
{
    const QImage page = collage(arguments[2], arguments[6], std::stoi(arguments[4]), std::stoi(arguments[5]));
    save(FIF_JPEG, in_colour(page), arguments[3], picture_quality);
}

void render_png(const char * drawing, const char * target, int width, int height)
{
    if (!rendered(drawing, width, height, Qt::transparent).save(target))
        throw std::runtime_error(std::string(target) + ": can't be written");
}

bool is_white(const char * path)
{
    const image_owner image(FreeImage_Load(FIF_JPEG, path, 0));
    if (!image)
        return false;
    const std::string white(FreeImage_GetLine(image.get()), '\xff');
    for (unsigned y = 0; y < FreeImage_GetHeight(image.get()); ++y) {
        if (std::memcmp(FreeImage_GetScanLine(image.get(), static_cast<int>(y)), white.data(),
                        white.size()) != 0)
            return false;
    }
    return true;
}

void render_white(const char * target, int size)
{
    QImage page(size, size, QImage::Format_RGB32);
    page.fill(Qt::white);
    save(FIF_JPEG, in_colour(page), target, JPEG_QUALITYSUPERB);
    if (!is_white(target))
        throw std::runtime_error(std::string(target) + ": isn't white all over");
}

void render(int count, char ** arguments)
{
    const std::string kind = count > 1 ? arguments[1] : "";
    if (kind == "mask" && count == 5)
        render_mask(arguments[2], arguments[3], std::stoi(arguments[4]));
    else if (kind == "picture" && count == 6)
        render_picture(arguments[2], arguments[3], std::stoi(arguments[4]), std::stoi(arguments[5]));
    else if (kind == "ground" && count == 9)
        render_ground(arguments);
    else if (kind == "icon" && count == 6)
        render_icon(arguments[2], arguments[3], std::stoi(arguments[4]), std::stoi(arguments[5]));
    else if (kind == "smaller" && count == 5)
        compress(arguments[2], arguments[3], std::stoi(arguments[4]));
    else if (kind == "shrunk" && count == 5)
        shrink(arguments[2], arguments[3], std::stoi(arguments[4]));
    else if (kind == "unlike" && count == 5)
        hold_against(arguments[2], arguments[3], std::stod(arguments[4]));
    else if (kind == "png" && count == 6)
        render_png(arguments[2], arguments[3], std::stoi(arguments[4]), std::stoi(arguments[5]));
    else if (kind == "collage" && count == 7)
        render_collage(arguments);
    else if (kind == "white" && count == 4)
        render_white(arguments[2], std::stoi(arguments[3]));
    else
        throw std::runtime_error(
            "mask IN OUT SIZE, picture, icon or png IN OUT WIDTH HEIGHT, ground IN OUT WIDTH HEIGHT "
            "SMALL WIDTH HEIGHT, collage IN OUT WIDTH HEIGHT "
            "PHOTOS, smaller IN OUT QUALITY, shrunk IN OUT WIDTH, unlike ONE OTHER LEVELS, or white OUT "
            "SIZE");
}

}  // namespace

int main(int count, char ** arguments)
{
    try {
        render(count, arguments);
        return 0;
    } catch (const std::exception & error) {
        std::fprintf(stderr, "seed_art: %s\n", error.what());
        return 1;
    }
}
