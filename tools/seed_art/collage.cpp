#include "collage.h"

#include <QDir>
#include <QPainter>

#include <FreeImage.h>
#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct unloader {
    void operator()(FIBITMAP * image) const { FreeImage_Unload(image); }
};
using image_owner = std::unique_ptr<FIBITMAP, unloader>;

struct place {
    double left, top, width, height, tilt;
    bool tall() const { return height > width; }
};

struct page {
    double width = 0, height = 0, frame = 0;
    std::vector<place> places;
};

constexpr int shadow_steps = 5;

page read_page(const QString & layout)
{
    std::ifstream file(layout.toStdString());
    page found;
    file >> found.width >> found.height >> found.frame;
    for (place one{}; file >> one.left >> one.top >> one.width >> one.height >> one.tilt;)
        found.places.push_back(one);
    if (found.places.empty())
        throw std::runtime_error(layout.toStdString() + ": no layout");
    return found;
}

image_owner photo_at(const QString & path, int flags = 0)
{
    return image_owner(FreeImage_Load(FIF_JPEG, path.toUtf8().constData(), flags));
}

/// Where the photos of the folder are: first the wide ones, then the tall ones. A collage shows few of them,
/// so none is decoded here.
std::array<std::vector<QString>, 2> photos_of(const QString & folder)
{
    std::array<std::vector<QString>, 2> photos;
    for (const QString & name : QDir(folder).entryList({"*.jpg"}, QDir::Files, QDir::Name)) {
        const QString path = folder + "/" + name;
        if (const image_owner header = photo_at(path, FIF_LOAD_NOPIXELS))
            photos[FreeImage_GetHeight(header.get()) > FreeImage_GetWidth(header.get())].push_back(path);
    }
    if (photos[0].empty() || photos[1].empty())
        throw std::runtime_error(folder.toStdString() + ": no photos");
    return photos;
}

QImage as_page(const image_owner & image)
{
    const int width = static_cast<int>(FreeImage_GetWidth(image.get()));
    const int height = static_cast<int>(FreeImage_GetHeight(image.get()));
    QImage found(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        const BYTE * from = FreeImage_GetScanLine(image.get(), height - 1 - y);
        auto * to = reinterpret_cast<QRgb *>(found.scanLine(y));
        for (int x = 0; x < width; ++x, from += 3)
            to[x] = qRgb(from[FI_RGBA_RED], from[FI_RGBA_GREEN], from[FI_RGBA_BLUE]);
    }
    return found;
}

/// The middle of the photo in the shape asked for.
QImage cut(const image_owner & photo, int width, int height)
{
    const int full_width = static_cast<int>(FreeImage_GetWidth(photo.get()));
    const int full_height = static_cast<int>(FreeImage_GetHeight(photo.get()));
    const double scale = std::min(1.0 * full_width / width, 1.0 * full_height / height);
    const int left = static_cast<int>((full_width - scale * width) / 2);
    const int top = static_cast<int>((full_height - scale * height) / 2);
    const image_owner part(FreeImage_Copy(photo.get(), left, top, left + static_cast<int>(scale * width),
                                          top + static_cast<int>(scale * height)));
    return as_page(image_owner(FreeImage_Rescale(part.get(), width, height, FILTER_CATMULLROM)));
}

/// A shadow that softens outwards, on the right and below.
void draw_shadow(QPainter & painter, const QRectF & area)
{
    painter.setPen(Qt::NoPen);
    for (int step = shadow_steps; step > 0; --step) {
        painter.setBrush(QColor(0, 0, 0, 26));
        painter.drawRect(area.adjusted(2, 2, step * 0.8, step * 0.8));
    }
}

void draw_place(QPainter & painter, const place & one, double scale, double frame, const image_owner & photo)
{
    const QRectF area = one.tilt == 0
                            ? QRectF(QRect(QPoint(qRound(one.left * scale), qRound(one.top * scale)),
                                           QPoint(qRound((one.left + one.width) * scale) - 1,
                                                  qRound((one.top + one.height) * scale) - 1)))
                            : QRectF(0, 0, one.width * scale, one.height * scale);
    painter.save();
    if (one.tilt != 0) {
        painter.translate(one.left * scale, one.top * scale);
        painter.rotate(one.tilt);
    }
    const QRectF card = area.adjusted(-frame, -frame, frame, frame);
    if (frame > 0) {
        draw_shadow(painter, card);
        painter.fillRect(card, Qt::white);
    }
    painter.drawImage(area,
                      cut(photo, std::max(1, qRound(area.width())), std::max(1, qRound(area.height()))));
    painter.restore();
}

}  // namespace

QImage collage(const QString & layout, const QString & photo_folder, int width, int height)
{
    const page wanted = read_page(layout);
    const auto photos = photos_of(photo_folder);
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const double scale = std::max(width / wanted.width, height / wanted.height);
    std::array<std::size_t, 2> next{};
    for (const place & one : wanted.places) {
        const auto & fitting = photos[one.tall()];
        const image_owner photo = photo_at(fitting[next[one.tall()]++ % fitting.size()]);
        if (!photo)
            throw std::runtime_error(layout.toStdString() + ": a photo can't be read");
        draw_place(painter, one, scale, wanted.frame * scale, photo);
    }
    return image;
}
