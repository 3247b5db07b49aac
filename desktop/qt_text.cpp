#include "desktop/qt_text.h"

#include <QStringDecoder>

#include <algorithm>
#include <cmath>

namespace {

constexpr double dots_per_inch = 96, points_per_inch = 72;

}  // namespace

QString shown(const std::string & bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(QByteArray::fromStdString(bytes));
    return decoder.hasError() ? QString::fromLatin1(QByteArray::fromStdString(bytes)) : text;
}

std::string bytes_of(const QString & text)
{
    return text.toStdString();
}

QFont pixel_font(const font_style & style)
{
    QFont font;
    if (!style.name.empty())
        font.setFamily(shown(style.name));
    font.setPixelSize(
        std::max(1, static_cast<int>(std::lround(style.size * dots_per_inch / points_per_inch))));
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setUnderline(style.underline);
    font.setStrikeOut(style.strikethrough);
    return font;
}
