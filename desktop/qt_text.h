#pragma once

#include "support/forms.h"

#include <QFont>
#include <QString>

#include <string>

/// Bytes as they are shown: as UTF-8, and as Latin-1 where they aren't valid UTF-8.
QString shown(const std::string & bytes);

/// A text of the toolkit as the session holds it: UTF-8.
std::string bytes_of(const QString & text);

/// A font at 96 dots an inch, whatever the screen: 72 points are 96 pixels. Without a name, the application's
/// own family.
QFont pixel_font(const font_style & style);
