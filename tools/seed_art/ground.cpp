#include "ground.h"

#include "noise.h"
#include "textures.h"

#include <QFile>
#include <QPainter>
#include <QRgba64>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

constexpr float grain = 2.2F;  // levels: what hides a step of one level, and no more

/// The words of the drawing's <desc>, or nothing.
QString described(const QString & drawing)
{
    QFile file(drawing);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(drawing.toStdString() + ": can't be read");
    const QString text = QString::fromUtf8(file.readAll());
    const auto from = text.indexOf("<desc>"), to = text.indexOf("</desc>");
    return from < 0 ? QString() : text.mid(from + 6, to - from - 6);
}

/// Noise about 0 that belongs to a pixel and a little to its neighbours: single pixels would be lost in a
/// JPEG.
void grain_from(int x, int y, many & found)
{
    many own{}, shared{};
    hashed_from(x, y, 11, own);
    value_noise(divided(counted(x), 2.3F), same(static_cast<float>(y) / 2.3F), 12, shared);
    for (std::size_t at = 0; at < together; ++at)
        found[at] = own[at] - 0.5F + shared[at] - 0.5F;
}

std::array<std::uint8_t, 3> lowered(QRgba64 seen, float change)
{
    const auto level = [&](quint16 fine) {
        return static_cast<std::uint8_t>(
            std::clamp(static_cast<float>(fine) / 257 + change + 0.5F, 0.0F, 255.0F));
    };
    return {level(seen.red()), level(seen.green()), level(seen.blue())};
}

}  // namespace

QImage ground(const QString & drawing, int width, int height)
{
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        throw std::runtime_error(drawing.toStdString() + ": no drawing");
    QImage page(width, height, QImage::Format_RGBX64);
    page.fill(Qt::white);
    if (const QString stuff = described(drawing); !stuff.isEmpty())
        paint_texture(stuff, page);
    QPainter painter(&page);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    renderer.render(&painter, QRectF(0, 0, width, height));
    painter.end();
    QImage found(width, height, QImage::Format_RGB32);
    many change{};
    for (int y = 0; y < height; ++y) {
        const auto * from = reinterpret_cast<const QRgba64 *>(page.constScanLine(y));
        auto * to = reinterpret_cast<QRgb *>(found.scanLine(y));
        for (int x = 0; x < width; x += static_cast<int>(together)) {
            grain_from(x, y, change);
            for (int at = x; at < std::min(width, x + static_cast<int>(together)); ++at) {
                const auto levels = lowered(from[at], grain * change[static_cast<std::size_t>(at - x)]);
                to[at] = qRgb(levels[0], levels[1], levels[2]);
            }
        }
    }
    return found;
}
