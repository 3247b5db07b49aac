#include "desktop/binder/narrow_picture.h"

#include "desktop/binder/growing_room.h"
#include "desktop/binder/picture_view.h"

#include <QBoxLayout>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int air_at_right = 8;  // pixels
constexpr int gap_at_left = 14;  // at the left
// A picture that is narrower than the first has the settings beside it give up width; what is narrower than
// the second shows nothing of a collage.
constexpr int good_width = 150, least_width = 120;
constexpr const char * form_place = "formPlace";
constexpr const char * stacked_now = "stackedNow";

// What stands beside the picture gives up width where the picture has too little of its own: by how many
// pixels, at most those that are missing.
int moved_left(const QWidget & window, int missing)
{
    QWidget * const beside = growing_widget(window);
    if (beside == nullptr)
        return 0;
    set_spacing(*beside, missing > 0 ? layout_spacing::tight : layout_spacing::drawn);
    const int given = narrowed_by(*beside, missing);
    const bool helps = given >= missing - (good_width - least_width);
    return helps ? given : narrowed_by(*beside, 0);
}

QWidget * named_by(const QWidget & window, const char * property)
{
    const QString name = window.property(property).toString();
    return name.isEmpty() ? nullptr : window.findChild<QWidget *>(name);
}

int width_in_a_row(const QBoxLayout & layout)
{
    const QMargins around = layout.contentsMargins();
    int width = around.left() + around.right() + layout.spacing() * std::max(0, layout.count() - 1);
    for (int i = 0; i < layout.count(); ++i)
        width += layout.itemAt(i)->minimumSize().width();
    return width;
}

// What has no room beside each other stands below each other. Gives the height that this takes.
int stacked_height(QWidget & widget, int room, int drawn_height)
{
    auto * const layout = qobject_cast<QBoxLayout *>(widget.layout());
    if (layout == nullptr)
        return drawn_height;
    const bool is_stacked = room < width_in_a_row(*layout);
    layout->setDirection(is_stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    widget.setProperty(stacked_now, is_stacked);
    return is_stacked ? layout->minimumSize().height() : drawn_height;
}

// At the same share of the way from the picture's corner, and no farther right than the picture.
void place_below(QWidget & widget, const QRect & picture, int left_by, double share)
{
    const QRect own = widget.property(form_place).toRect().translated(-left_by, 0);
    const auto moved = [share](int way) { return qRound(way * share); };
    const int left = picture.left() + moved(own.left() - picture.left());
    const int right = picture.left() + moved(picture.width());
    const int height = stacked_height(widget, right - picture.left() + gap_at_left, own.height());
    const int least = std::min(own.width(), widget.minimumSizeHint().width());
    const int width = std::max(moved(own.width()), least);
    widget.setGeometry(share < 1 ? std::min(left, right - width) : left,
                       picture.top() + moved(own.top() - picture.top()), width, height);
}

}  // namespace

void note_form_place(QWidget & widget, const QRect & place)
{
    widget.setProperty(form_place, place);
    if (auto * const picture = qobject_cast<picture_view *>(&widget))
        picture->set_drawn_width(place.width());
}

void lay_as_drawn(QWidget & widget)
{
    auto * const layout = qobject_cast<QBoxLayout *>(widget.layout());
    if (layout != nullptr && widget.property(stacked_now).toBool())
        layout->setDirection(QBoxLayout::LeftToRight);
}

int narrowed_width(const QWidget & window, int wanted, int most, int bar)
{
    QWidget * const picture = named_by(window, "narrows");
    if (!picture || picture->isHidden() || !picture->property(form_place).isValid())
        return wanted;
    QRect own = picture->property(form_place).toRect();
    const int beside = most - bar - air_at_right - own.left();
    const int moved = moved_left(window, wanted > most ? std::max(0, good_width - beside) : 0);
    const int left = std::min(beside + moved, own.width());
    const bool is_narrowed = wanted > most && left >= least_width;
    own.translate(-moved, 0);
    const double share = is_narrowed ? double(left) / own.width() : 1;
    picture->setGeometry(own.left(), own.top(), is_narrowed ? left : own.width(),
                         qRound(own.height() * share));
    if (QWidget * const below = named_by(window, "belowNarrowed");
        below && below->property(form_place).isValid())
        place_below(*below, own, moved, share);
    return is_narrowed ? most - bar : wanted;
}
