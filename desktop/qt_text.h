#pragma once

#include <QString>

#include <string>

/// Bytes as they are shown: as UTF-8, and as Latin-1 where they aren't valid UTF-8.
QString shown(const std::string & bytes);

/// A text of the toolkit as the session holds it: UTF-8.
std::string bytes_of(const QString & text);
