#include "desktop/qt_picture.h"

#include <algorithm>

QImage image_of(const bitmap & source)
{
    QImage image(source.width(), source.height(), QImage::Format_BGR888);
    for (int y = 0; y < image.height(); ++y)
        std::ranges::copy(channels(source.row(image.height() - 1 - y)), image.scanLine(y));
    return image;
}

bitmap bitmap_of(const QImage & source)
{
    const QImage image = source.convertToFormat(QImage::Format_BGR888);
    bitmap copy(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const std::span<std::uint8_t> row = channels(copy.row(image.height() - 1 - y));
        std::copy_n(image.constScanLine(y), row.size(), row.begin());
    }
    return copy;
}
