#include "desktop/file_filter.h"

#include "desktop/qt_text.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

// "*.jpg" and "*.JPG" are one kind of file, but not to the toolkit's own chooser.
QString both_cases(const QString & patterns)
{
    QStringList all;
    for (const QString & pattern : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        all.append(pattern.trimmed());
        if (pattern.toUpper() != pattern)
            all.append(pattern.trimmed().toUpper());
    }
    return all.join(QLatin1Char(' '));
}

}  // namespace

QString toolkit_filter(std::string_view filter)
{
    const QStringList parts = shown(std::string(filter)).split(QLatin1Char('|'));
    QStringList kinds;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString name = parts[i];
        name.remove(QRegularExpression(QStringLiteral("\\s*\\([^)]*\\)\\s*$")));
        kinds.append(name.trimmed() + QStringLiteral(" (") + both_cases(parts[i + 1]) + QLatin1Char(')'));
    }
    return kinds.join(QStringLiteral(";;"));
}
