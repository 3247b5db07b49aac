#include "desktop/looks/motifs.h"

#include <QPainterPath>

#include <array>

namespace {

// A drawing stands in 72 by 48 units.
constexpr double drawn_width = 72, drawn_height = 48;

const std::array<QColor, 6> colors{QColor("#8ec5e8"), QColor("#f0b050"), QColor("#7fbf6a"),
                                   QColor("#e2694e"), QColor("#8b6fb0"), QColor("#f6e3b8")};

QColor color_of(int number)
{
    return colors[static_cast<std::size_t>(number) % colors.size()];
}

// A photo: sky, and a hill in front of it.
void draw_photo(QPainter & painter, const QRectF & at, int number)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setClipRect(at, Qt::IntersectClip);
    painter.fillRect(at, color_of(number));
    painter.setBrush(color_of(number).darker(165));
    painter.drawEllipse(QPointF(at.left() + at.width() * 0.3, at.bottom() + at.height() * 0.1),
                        at.width() * 0.7, at.height() * 0.5);
    painter.restore();
}

void draw_blocks(QPainter & painter)
{
    const std::array<QRectF, 6> places{QRectF(2, 2, 30, 28),   QRectF(34, 2, 17, 13), QRectF(53, 2, 17, 13),
                                       QRectF(34, 17, 36, 29), QRectF(2, 32, 14, 14), QRectF(18, 32, 14, 14)};
    for (int i = 0; i < 6; ++i)
        draw_photo(painter, places[static_cast<std::size_t>(i)], i);
}

void draw_cards(QPainter & painter)
{
    const std::array<double, 3> angles{-16, 14, -3};
    const std::array<QPointF, 3> centres{QPointF(20, 25), QPointF(52, 25), QPointF(36, 23)};
    for (int i = 0; i < 3; ++i) {
        painter.save();
        painter.translate(centres[static_cast<std::size_t>(i)]);
        painter.rotate(angles[static_cast<std::size_t>(i)]);
        painter.fillRect(QRectF(-13, -17, 26, 34), QColor("#f4f1ea"));
        draw_photo(painter, {-11, -15, 22, 22}, i + 1);
        painter.restore();
    }
}

void draw_grid(QPainter & painter)
{
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            draw_photo(painter, QRectF(3 + column * 17, 1.5 + row * 15.5, 15, 14), row * 5 + column);
}

// An A, from photos as a letter of such a collage is.
void draw_letter(QPainter & painter)
{
    QPainterPath letter;
    letter.addPolygon(
        QPolygonF{{29, 2}, {43, 2}, {61, 46}, {48, 46}, {44.5, 37}, {27.5, 37}, {24, 46}, {11, 46}});
    letter.closeSubpath();
    letter.addPolygon(QPolygonF{{36, 14}, {31, 27}, {41, 27}});
    letter.closeSubpath();
    painter.setClipPath(letter, Qt::IntersectClip);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            draw_photo(painter, QRectF(8 + column * 14.0, 1 + row * 16.0, 14, 16), row * 2 + column);
}

void draw_pieces(QPainter & painter)
{
    painter.setPen(QPen(QColor("#1a1c1f"), 1));
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column) {
            const QPointF at(5 + column * 21.0, 3 + row * 21.0);
            QPainterPath piece;
            piece.addRect({at, QSizeF(21, 21)});
            if (column < 2) {
                QPainterPath knob;
                knob.addEllipse(at + QPointF(22.5, 10.5), 4, 4);
                piece = piece.united(knob);
            }
            if (column > 0) {
                QPainterPath hollow;
                hollow.addEllipse(at + QPointF(1.5, 10.5), 4, 4);
                piece = piece.subtracted(hollow);
            }
            painter.setBrush(color_of(row * 2 + column));
            painter.drawPath(piece);
        }
}

}  // namespace

void draw_motif(QPainter & painter, motif wanted, const QRectF & place)
{
    constexpr std::array drawings{draw_blocks, draw_cards, draw_grid, draw_letter, draw_pieces};
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / drawn_width, place.height() / drawn_height);
    drawings[static_cast<std::size_t>(wanted)](painter);
    painter.restore();
}
