#include "desktop/looks/letter_room.h"

#include "desktop/binder/picture_view.h"
#include "desktop/looks/letters.h"

#include <QFrame>

namespace {

int widened(int pixels)
{
    return pixels >= QWIDGETSIZE_MAX ? pixels : pixels * letters() / roomy_letters;
}

QSize widened(QSize size)
{
    return {widened(size.width()), widened(size.height())};
}

// Frames around other widgets follow these.
bool has_letters(const QWidget & widget)
{
    const QMetaObject * const kind = widget.metaObject();
    return kind != &QWidget::staticMetaObject && kind != &QFrame::staticMetaObject &&
           kind != &picture_view::staticMetaObject;
}

}  // namespace

void give_letters_room(QWidget & window)
{
    if (letters() <= roomy_letters)
        return;
    QList<QWidget *> all = window.findChildren<QWidget *>();
    all.append(&window);
    for (QWidget * each : all)
        if (has_letters(*each)) {
            each->setMaximumSize(widened(each->maximumSize()));
            each->setMinimumSize(widened(each->minimumSize()));
        }
}
