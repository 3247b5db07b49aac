#include "tests/desktop/screen_changes.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int smoothing = 48;     // levels of 255
constexpr double blink = 0.0002;  // of a window of usual size: a hundred pixels, a letter or two

bool looks_different(QRgb one, QRgb other)
{
    const int farthest = std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                                   std::abs(qBlue(one) - qBlue(other))});
    return farthest > smoothing;
}

bool copied_over(const QString & from, const QString & to)
{
    return QFile::remove(to) && QFile::copy(from, to);
}

}  // namespace

double share_changed(const QImage & before, const QImage & after)
{
    if (before.isNull() || before.size() != after.size())
        return 1;
    qint64 changed = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            changed += looks_different(before.pixel(x, y), after.pixel(x, y)) ? 1 : 0;
    return static_cast<double>(changed) / (static_cast<double>(before.width()) * before.height());
}

QStringList redraw_changed(const QString & drawn, const QString & shown)
{
    const QDir from(drawn), to(shown);
    QStringList changed;
    for (const QString & name : to.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name)) {
        const QString fresh = from.filePath(name), kept = to.filePath(name);
        if (QFile::exists(fresh) && share_changed(QImage(kept), QImage(fresh)) > blink &&
            copied_over(fresh, kept))
            changed << name;
    }
    return changed;
}
