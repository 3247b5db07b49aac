#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>

/// Plays the user in the next box or window that waits and isn't the one that waits now, however many events
/// are let through before.
template <typename Box>
void when_asked(std::function<void(Box &)> play, int patience = 2000)
{
    QWidget * const now = QApplication::activeModalWidget();
    QTimer::singleShot(0, [play, patience, now] {
        QWidget * const waiting = QApplication::activeModalWidget();
        auto * const box = qobject_cast<Box *>(waiting);
        if (box && waiting != now && box->isVisible())
            play(*box);
        else if (patience > 0)
            when_asked<Box>(play, patience - 1);
        else
            ADD_FAILURE() << "no box waits";
    });
}

/// Screens for looking at, in the folder TESSALOOM_SCREENS, where somebody wants them.
inline void keep_screen(QWidget & window, const char * name)
{
    const QString folder = qEnvironmentVariable("TESSALOOM_SCREENS");
    if (!folder.isEmpty())
        window.grab().save(folder + QLatin1Char('/') + QLatin1String(name));
}
