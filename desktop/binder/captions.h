#pragma once

#include <QColor>
#include <QString>

#include <cstdint>

/// Captions and colours of controls on their way to widgets.

/// A colour of a control, red in the low byte, and the way back.
QColor shown_color(std::uint32_t color);
std::uint32_t control_color(const QColor & color);

/// A title that is spaced out letter by letter as a reader would say it: "   F r a m e   S t y l e   " is
/// "Frame Style". Any other text only loses the blanks around it.
QString unspaced(const QString & title);

/// The caption with "&" before the first of `letters` that it holds, in either case; letters in front are
/// tried first. A caption that marks its own letter stays as it is.
QString with_mnemonic(const QString & caption, const QString & letters);

/// The same for a text that may hold anything: a "&" of its own is shown.
QString with_mnemonic_in_any_text(const QString & text, const QString & letters);
