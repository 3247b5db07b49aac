#pragma once

#include <QRectF>
#include <QSizeF>

#include <string>

/// A page with one picture on it, in points from its bottom left.
struct pdf_page {
    int pages = 0;
    QSizeF paper;
    QRectF picture;
};

/// Reads the page that the toolkit wrote: the last picture of its only page.
pdf_page read_page(const std::string & path);
