#pragma once

#include <QUrl>

/// Opens a file or an address with the user's own program for it. False when there is none: where the
/// desktop's opener is a program of its own, its word is waited for, though not for long, since some stay as
/// long as what they have opened.
bool opened_by_desktop(const QUrl & target);
