#include "desktop/binder/captions.h"

#include <QStringList>

#include <algorithm>

QColor shown_color(std::uint32_t color)
{
    return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

std::uint32_t control_color(const QColor & color)
{
    return static_cast<std::uint32_t>(color.red() | color.green() << 8 | color.blue() << 16);
}

QString unspaced(const QString & title)
{
    const QString trimmed = title.trimmed();
    QStringList words;
    for (const QString & word : trimmed.split(QStringLiteral("   "))) {
        const QStringList letters = word.split(QLatin1Char(' '));
        if (std::any_of(letters.begin(), letters.end(),
                        [](const QString & letter) { return letter.size() != 1; }))
            return trimmed;
        words.append(letters.join(QString()));
    }
    return words.join(QLatin1Char(' '));
}

QString with_mnemonic(const QString & caption, const QString & letters)
{
    if (caption.contains(QLatin1Char('&')))
        return caption;
    for (const QChar letter : letters) {
        const qsizetype at = caption.indexOf(letter, 0, Qt::CaseInsensitive);
        if (at >= 0)
            return QString(caption).insert(at, QLatin1Char('&'));
    }
    return caption;
}

QString with_mnemonic_in_any_text(const QString & caption, const QString & letters)
{
    if (!caption.contains(QLatin1Char('&')))
        return with_mnemonic(caption, letters);
    return QString(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}
