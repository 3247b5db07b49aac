#pragma once

#include "support/orientation.h"

#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QRectF>

#include <string>

/// The page of that paper in that orientation, as the whole sheet. Its margins are the printer's for the
/// upright sheet, in points, of two that face each other the wider one: so a picture in the middle of them
/// stands in the middle of the sheet, and nothing is lost whichever way round the printer lays the sheet.
QPageLayout page_of(const QPageSize & paper, const QMarginsF & upright_margins,
                    QPageLayout::Orientation lies);

QPageLayout::Orientation page_orientation(orientation page);

/// Where a picture of that size stands on the page: whole, as large as its margins let it, centred,
/// proportions kept. In points from the sheet's upper left.
QRectF picture_place(const QSizeF & picture, const QPageLayout & page);

/// Paints the picture at its place, every pixel kept. `dots` is the painter's number of dots an inch, its
/// origin the corner of the sheet.
void paint_page(QPainter & painter, double dots, const QImage & picture, const QPageLayout & page);

/// Marks the margins, for a page that is only shown.
void mark_margins(QPainter & painter, double dots, const QPageLayout & page);

/// Writes the page to a PDF file with that title. What was wrong, in words; nothing when all of it was
/// written.
std::string write_page(const QString & path, const QImage & picture, const QPageLayout & page,
                       const std::string & title);
