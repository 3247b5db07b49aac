#pragma once

#include "support/desktop.h"

#include <QPainter>
#include <QPrinter>

/// Where a picture of that size stands on a page: whole, as large as it goes, centred, proportions kept.
QRect fitted(const QSize & picture, const QRect & page);

/// Prints on that printer, on one page of its paper in that orientation. False when the printer refuses.
bool print_on(QPrinter & printer, const bitmap & image, orientation page);
