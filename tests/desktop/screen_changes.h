#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

/// The share of the pixels, 0 to 1, that look different in two screens: by more levels of some colour than
/// the smoothing of letters makes between two drawings. 1 where the screens are not of one size.
double share_changed(const QImage & before, const QImage & after);

/// Copies each screen of the folder `drawn` over that of the same name in `shown` where more has changed than
/// a cursor that blinks; what only one of them holds stays. Gives the names of those copied. A screen that
/// can't be read counts as changed.
QStringList redraw_changed(const QString & drawn, const QString & shown);
