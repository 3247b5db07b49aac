#include "desktop/binder/growing_room.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QList>
#include <QMargins>
#include <QVariant>

#include <algorithm>

namespace {

int spacing_across(const QLayout & layout)
{
    const auto * const grid = qobject_cast<const QGridLayout *>(&layout);
    return grid ? grid->horizontalSpacing() : layout.spacing();
}

// Half of what was drawn, across alone.
void set_spacing(QLayout & layout, layout_spacing wanted)
{
    if (!layout.property("drawnSpacing").isValid()) {
        layout.setProperty("drawnSpacing", spacing_across(layout));
        layout.setProperty("drawnMargins", QVariant::fromValue(layout.contentsMargins()));
    }
    const int share = wanted == layout_spacing::tight ? 2 : 1;
    const int spacing = layout.property("drawnSpacing").toInt() / share;
    QMargins margins = layout.property("drawnMargins").value<QMargins>();
    margins.setLeft(margins.left() / share);
    margins.setRight(margins.right() / share);
    layout.setContentsMargins(margins);
    if (auto * const grid = qobject_cast<QGridLayout *>(&layout))
        grid->setHorizontalSpacing(spacing);
    else if (qobject_cast<QHBoxLayout *>(&layout))
        layout.setSpacing(spacing);
    layout.activate();
}

}  // namespace

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
    const QVariant right = widget->property("right"), bottom = widget->property("bottom");
    const QSize most(right.isValid() ? right.toInt() - widget->x() : whole.width(),
                     bottom.isValid() ? bottom.toInt() - widget->y() : whole.height());
    widget->resize(most.expandedTo(widget->minimumSizeHint()).boundedTo(whole));
    return whole - drawn;
}

void end_above(QWidget & growing, int bottom)
{
    growing.setProperty("bottom", bottom);
    growth_of(*growing.window());
}

void set_spacing(QWidget & growing, layout_spacing wanted)
{
    const bool is_tight = growing.property("isTight").toBool();
    const bool may_be = is_tight || growth_of(*growing.window()).width() == 0;
    const bool to_be = wanted == layout_spacing::tight && may_be;
    if (to_be == is_tight)
        return;
    growing.setProperty("isTight", to_be);
    QList<QLayout *> layouts = growing.findChildren<QLayout *>();
    std::ranges::reverse(layouts);  // the inner ones first: what they need is what the outer ones lay out
    for (QLayout * each : layouts)
        set_spacing(*each, to_be ? layout_spacing::tight : layout_spacing::drawn);
}

int narrowed_by(QWidget & growing, int wanted)
{
    const QSize growth = growth_of(*growing.window());
    const int whole = growing.property("drawnSize").toSize().width() + growth.width();
    const int given = std::clamp(wanted, 0, std::max(0, whole - growing.minimumSizeHint().width()));
    growing.setProperty("right", given > 0 ? QVariant(growing.x() + whole - given) : QVariant());
    growth_of(*growing.window());
    return given;
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
