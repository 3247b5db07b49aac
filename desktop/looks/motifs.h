#pragma once

#include <QPainter>

/// Small pictures of the ways to begin a collage, drawn anew in any size.
enum class motif { blocks, cards, grid, letter, pieces };

void draw_motif(QPainter & painter, motif wanted, const QRectF & place);
