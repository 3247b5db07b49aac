#include "desktop/binder/narrow_picture.h"

#include "desktop/binder/picture_view.h"

#include <QVariant>

#include <algorithm>

namespace {

constexpr int air_at_right = 8;   // pixels
constexpr int least_width = 150;  // what is narrower shows nothing of a collage
constexpr const char * form_place = "formPlace";

QWidget * named_by(const QWidget & window, const char * property)
{
    const QString name = window.property(property).toString();
    return name.isEmpty() ? nullptr : window.findChild<QWidget *>(name);
}

// At the same share of the way from the picture's corner, and no farther right than the picture.
void place_below(QWidget & widget, const QRect & picture, double share)
{
    const QRect own = widget.property(form_place).toRect();
    const auto moved = [share](int way) { return qRound(way * share); };
    const int least = std::min(own.width(), widget.minimumSizeHint().width());
    const int width = std::max(moved(own.width()), least);
    const int left = picture.left() + moved(own.left() - picture.left());
    const int right = picture.left() + moved(picture.width());
    widget.setGeometry(share < 1 ? std::min(left, right - width) : left,
                       picture.top() + moved(own.top() - picture.top()), width, own.height());
}

}  // namespace

void note_form_place(QWidget & widget, const QRect & place)
{
    widget.setProperty(form_place, place);
    if (auto * const picture = qobject_cast<picture_view *>(&widget))
        picture->set_drawn_width(place.width());
}

int narrowed_width(const QWidget & window, int wanted, int most, int bar)
{
    QWidget * const picture = named_by(window, "narrows");
    if (!picture || picture->isHidden() || !picture->property(form_place).isValid())
        return wanted;
    const QRect own = picture->property(form_place).toRect();
    const int left = std::min(most - bar - air_at_right - own.left(), own.width());
    const bool is_narrowed = wanted > most && left >= least_width;
    const double share = is_narrowed ? double(left) / own.width() : 1;
    picture->setGeometry(own.left(), own.top(), is_narrowed ? left : own.width(),
                         qRound(own.height() * share));
    if (QWidget * const below = named_by(window, "belowNarrowed");
        below && below->property(form_place).isValid())
        place_below(*below, own, share);
    return is_narrowed ? most - bar : wanted;
}
