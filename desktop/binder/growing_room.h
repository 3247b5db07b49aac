#pragma once

#include "support/forms.h"

#include <QObject>
#include <QPoint>
#include <QSize>
#include <QWidget>

#include <functional>

/// A window whose controls stand where its form says has one widget that takes more room than it was drawn
/// with where its content needs it: the letters of the system may be large. The window's property `grows`
/// names it.

/// None in most windows.
QWidget * growing_widget(const QWidget & window);

/// Pixels that the widget needs beyond its drawn size; it is resized to them.
QSize growth_of(const QWidget & window);

/// From now on the widget ends above that row of its parent, as far as its content allows. Its growth is
/// counted as if it didn't.
void end_above(QWidget & growing, int bottom);

enum class layout_spacing { drawn, tight };

/// Gives what stands in the widget the margins and distances across that it was drawn with, or half of them.
/// Those of one that needs more room than it was drawn with stay: its growth doesn't come and go with them.
void set_spacing(QWidget & growing, layout_spacing wanted);

/// From now on the widget is narrower by that many pixels, or by as many as its content allows; 0 gives it
/// its width back. Tells by how many. Its growth is counted as if it weren't.
int narrowed_by(QWidget & growing, int wanted);

/// Pixels that a widget beside or below the growing one moves; {0, 0} for all others.
QPoint shift_of(const QWidget & widget, const box & at);

/// Tells each change of the growth.
class growth_watcher : public QObject {
public:
    growth_watcher(QWidget & watched, std::function<void()> changed);
    bool eventFilter(QObject * watched, QEvent * event) override;

private:
    std::function<void()> on_change;
    QSize known;
};
