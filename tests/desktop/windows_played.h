#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <functional>
#include <gtest/gtest.h>

/// A test that waited in vain must end: what is still open is closed.
inline void close_all_modal()
{
    ADD_FAILURE() << "no box waits";
    while (QWidget * const open = QApplication::activeModalWidget()) {
        open->close();
        if (QApplication::activeModalWidget() == open)
            return;
    }
}

/// Plays the user in the next box or window that waits other than `before`, within half a minute.
template <typename Box>
void when_other_asked(QWidget * before, std::function<void(Box &)> play,
                      QDeadlineTimer patience = QDeadlineTimer(std::chrono::seconds(30)))
{
    QTimer::singleShot(1, [play, patience, before] {
        QWidget * const waiting = QApplication::activeModalWidget();
        auto * const box = qobject_cast<Box *>(waiting);
        if (box && waiting != before && box->isVisible()) {
            EXPECT_TRUE(QTest::qWaitFor([box] { return QApplication::activeWindow() == box; }))
                << "the keyboard has no aim";
            play(*box);
        } else if (!patience.hasExpired())
            when_other_asked<Box>(before, play, patience);
        else
            close_all_modal();
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
