#include "desktop/printing.h"

#include "desktop/qt_picture.h"

QRect fitted(const QSize & picture, const QRect & page)
{
    QRect place(QPoint(0, 0), picture.scaled(page.size(), Qt::KeepAspectRatio));
    place.moveCenter(page.center());
    return place;
}

bool print_on(QPrinter & printer, const bitmap & image, orientation page)
{
    printer.setPageOrientation(page == orientation::landscape ? QPageLayout::Landscape
                                                              : QPageLayout::Portrait);
    QPainter painter;
    if (!image || !painter.begin(&printer))
        return false;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage picture = image_of(image);
    painter.drawImage(fitted(picture.size(), painter.viewport()), picture);
    return painter.end() && printer.printerState() != QPrinter::Error;
}
