#include "desktop/printing/print_page.h"

#include "desktop/qt_text.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QPen>

#include <algorithm>

namespace {

constexpr double points_an_inch = 72;
constexpr int dots_an_inch = 1200;

QRectF scaled(const QRectF & place, double by)
{
    return {place.topLeft() * by, place.size() * by};
}

// In memory first: the toolkit's writer doesn't tell of a disk that fills up.
QByteArray pdf_of(const QImage & picture, const QPageLayout & page, const std::string & title)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(dots_an_inch);
    writer.setPageLayout(page);
    writer.setTitle(shown(title));
    writer.setCreator(QStringLiteral("Tessaloom"));
    QPainter painter(&writer);
    paint_page(painter, dots_an_inch, picture, page);
    painter.end();
    return bytes.data();
}

}  // namespace

QPageLayout page_of(const QPageSize & paper, const QMarginsF & upright_margins, QPageLayout::Orientation lies)
{
    const double across = std::max(upright_margins.left(), upright_margins.right());
    const double along = std::max(upright_margins.top(), upright_margins.bottom());
    const QMarginsF margins = lies == QPageLayout::Landscape ? QMarginsF(along, across, along, across)
                                                             : QMarginsF(across, along, across, along);
    QPageLayout page(paper, lies, margins, QPageLayout::Point);
    page.setMode(QPageLayout::FullPageMode);
    return page;
}

QPageLayout::Orientation page_orientation(orientation page)
{
    return page == orientation::landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

QRectF picture_place(const QSizeF & picture, const QPageLayout & page)
{
    const QRectF sheet = page.fullRect(QPageLayout::Point);
    const QRectF room = sheet.marginsRemoved(page.margins(QPageLayout::Point));
    QRectF place(QPointF(0, 0), picture.scaled(room.size(), Qt::KeepAspectRatio));
    place.moveCenter(room.center());
    return place;
}

void paint_page(QPainter & painter, double dots, const QImage & picture, const QPageLayout & page)
{
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    painter.drawImage(scaled(picture_place(picture.size(), page), dots / points_an_inch), picture,
                      picture.rect());
}

void mark_margins(QPainter & painter, double dots, const QPageLayout & page)
{
    const QRectF room = page.fullRect(QPageLayout::Point).marginsRemoved(page.margins(QPageLayout::Point));
    QPen pen(Qt::darkGray, 0, Qt::DashLine);  // as thin as the screen shows a line
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawRect(scaled(room, dots / points_an_inch));
}

std::string write_page(const QString & path, const QImage & picture, const QPageLayout & page,
                       const std::string & title)
{
    const QByteArray bytes = pdf_of(picture, page, title);
    QFile file(path);
    const bool is_whole =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return is_whole ? std::string() : bytes_of(file.errorString());
}
