#include "desktop/binder/growing_room.h"

#include <QEvent>
#include <QVariant>

#include <algorithm>

QWidget * growing_widget(const QWidget & window)
{
    const QByteArray name = window.property("grows").toByteArray();
    return name.isEmpty() ? nullptr : window.findChild<QWidget *>(QString::fromUtf8(name));
}

QSize growth_of(const QWidget & window)
{
    QWidget * const widget = growing_widget(window);
    if (!widget)
        return {0, 0};
    if (!widget->property("drawnSize").isValid())
        widget->setProperty("drawnSize", widget->size());
    const QSize drawn = widget->property("drawnSize").toSize();
    const QSize whole = drawn.expandedTo(widget->minimumSizeHint());
    const QVariant bottom = widget->property("bottom");
    const int most = bottom.isValid() ? bottom.toInt() - widget->y() : whole.height();
    widget->resize(whole.width(), std::clamp(most, widget->minimumSizeHint().height(), whole.height()));
    return whole - drawn;
}

void end_above(QWidget & growing, int bottom)
{
    growing.setProperty("bottom", bottom);
    growth_of(*growing.window());
}

QPoint shift_of(const QWidget & widget, const box & at)
{
    const QWidget & window = *widget.window();
    const QWidget * const grown = growing_widget(window);
    if (!grown || widget.parentWidget() != grown->parentWidget())
        return {};
    const QSize growth = growth_of(window), drawn = grown->property("drawnSize").toSize();
    return {at.left >= grown->x() + drawn.width() ? growth.width() : 0,
            at.top >= grown->y() + drawn.height() ? growth.height() : 0};
}

growth_watcher::growth_watcher(QWidget & watched, std::function<void()> changed)
    : QObject(&watched), on_change(std::move(changed)), known(growth_of(*watched.window()))
{
    watched.installEventFilter(this);
}

bool growth_watcher::eventFilter(QObject * watched, QEvent * event)
{
    if (event->type() == QEvent::LayoutRequest) {
        const QSize growth = growth_of(*static_cast<QWidget *>(watched)->window());
        if (std::exchange(known, growth) != growth)
            on_change();
    }
    return QObject::eventFilter(watched, event);
}
