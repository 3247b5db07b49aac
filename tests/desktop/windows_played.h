#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>

/// Plays the user in the next box or window that waits other than `before`, however many events are let
/// through until then.
template <typename Box>
void when_other_asked(QWidget * before, std::function<void(Box &)> play, int patience = 2000)
{
    QTimer::singleShot(0, [play, patience, before] {
        QWidget * const waiting = QApplication::activeModalWidget();
        auto * const box = qobject_cast<Box *>(waiting);
        if (box && waiting != before && box->isVisible())
            play(*box);
        else if (patience > 0)
            when_other_asked<Box>(before, play, patience - 1);
        else
            ADD_FAILURE() << "no box waits";
    });
}

/// The same for the next one after the one that waits now.
template <typename Box>
void when_asked(std::function<void(Box &)> play)
{
    when_other_asked<Box>(QApplication::activeModalWidget(), std::move(play));
}

/// Screens for looking at, in the folder TESSALOOM_SCREENS, where somebody wants them.
inline void keep_screen(QWidget & window, const char * name)
{
    const QString folder = qEnvironmentVariable("TESSALOOM_SCREENS");
    if (!folder.isEmpty())
        window.grab().save(folder + QLatin1Char('/') + QLatin1String(name));
}
