#include "desktop/text_drawing.h"

#include "desktop/qt_picture.h"
#include "desktop/qt_text.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int widest_text = 32000;  // a bitmap's side has 16 bits

QColor color_of(rgb_triple color)
{
    return {color.red, color.green, color.blue};
}

// Names for whichever family the system takes for that kind.
bool is_stand_in(std::string_view family)
{
    return family == "Monospace" || family == "Sans Serif" || family == "Serif";
}

// At least one pixel: a text of marks without a width of their own is still a text.
QSize measured(const QFontMetrics & metrics, const QString & text, int extra_width)
{
    const int width = std::min(widest_text, metrics.horizontalAdvance(text) + extra_width);
    return {std::max(1, width), metrics.height()};
}

// Letters that a face shapes by a program of its own come out a little differently by the size in which the
// face was used before. Used in a large one first, they are the same each time.
void forget_former_size(QFont font, const QString & text)
{
    constexpr int large = 1000, other = 500;
    font.setPixelSize(font.pixelSize() == large ? other : large);
    QPainterPath().addText(0, 0, font, text.left(1));
}

}  // namespace

bitmap drawn_text(const text_request & request)
{
    const QString text = shown(request.text);
    if (text.isEmpty())
        return {};
    const QFont font = pixel_font(request.font);
    const QFontMetrics metrics(font);
    QImage painted(measured(metrics, text, request.extra_width), QImage::Format_RGB32);
    painted.fill(color_of(request.background));
    forget_former_size(font, text);
    QPainter painter(&painted);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.setPen(color_of(request.color));
    painter.drawText(0, metrics.ascent(), text);
    painter.end();
    return bitmap_of(painted);
}

picture_size size_of_text(const text_request & request)
{
    const QString text = shown(request.text);
    if (text.isEmpty())
        return {};
    const QSize size = measured(QFontMetrics(pixel_font(request.font)), text, request.extra_width);
    return {.width = size.width(), .height = size.height()};
}

std::vector<std::string> installed_fonts()
{
    std::vector<std::string> names;
    for (const QString & family : QFontDatabase::families())
        names.push_back(bytes_of(family));
    std::stable_partition(names.begin(), names.end(), is_stand_in);
    return names;
}
