#include "desktop/printing.h"

#include <algorithm>

namespace {

// Rows of a bitmap count from the bottom.
QImage image_of(const bitmap & source)
{
    QImage image(source.width(), source.height(), QImage::Format_BGR888);
    for (int y = 0; y < source.height(); ++y) {
        const auto row = source.row(source.height() - 1 - y);
        std::copy(row.begin(), row.end(), image.scanLine(y));
    }
    return image;
}

}  // namespace

QRect fitted(const QSize & picture, const QRect & page)
{
    QRect place(QPoint(0, 0), picture.scaled(page.size(), Qt::KeepAspectRatio));
    place.moveCenter(page.center());
    return place;
}

bool print_on(QPrinter & printer, const bitmap & image, page orientation)
{
    printer.setPageOrientation(orientation == page::landscape ? QPageLayout::Landscape
                                                              : QPageLayout::Portrait);
    QPainter painter;
    if (!image || !painter.begin(&printer))
        return false;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage picture = image_of(image);
    painter.drawImage(fitted(picture.size(), painter.viewport()), picture);
    return painter.end() && printer.printerState() != QPrinter::Error;
}
