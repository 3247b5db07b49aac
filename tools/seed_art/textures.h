#pragma once
#include <QImage>
#include <QString>

/// What photos lie on, by the pixel: wood, cloth, cork, felt, paper, painted walls, grass. Light comes from
/// the upper left.

/// Fills a page of the format RGBX64 with what `words` say: a kind, then NAME=VALUE of the kind's own,
/// colours as #rrggbb, more than one parted by commas. `seed` is every kind's; a kind and its values:
///
///     wood board=270 tones=… seam=…
///         boards across the page, of that height
///     cloth pitch=8 warp=… weft=… twill=0 checks=0
///         threads so far apart; squares of the weft's colour, that large
///     cork tones=…
///         grains pressed together
///     felt color=… hairs=…
///     paper color=… flecks=…
///         with fibres in it, each of one of the colours, or without
///     wall color=…
///         painted with a broad brush
///     lawn color=… blades=…
///         seen from above
///
/// Throws std::runtime_error.
void paint_texture(const QString & words, QImage & page);
