#include "desktop/looks/letter_room.h"

#include "desktop/binder/picture_view.h"
#include "desktop/looks/letters.h"

#include <QFrame>
#include <QLineEdit>

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

// A line of text is as wide as it takes for a text of usual length.
void give_texts_room(const QWidget & window)
{
    constexpr int around = 10;  // pixels of frame and air
    for (QLineEdit * each : window.findChildren<QLineEdit *>())
        if (const QString usual = each->property("usualText").toString(); !usual.isEmpty())
            each->setMinimumWidth(each->fontMetrics().horizontalAdvance(usual) + around);
}

}  // namespace

void give_letters_room(QWidget & window)
{
    give_texts_room(window);
    if (letters() <= roomy_letters)
        return;
    QList<QWidget *> all = window.findChildren<QWidget *>();
    all.append(&window);
    for (QWidget * each : all)
        if (has_letters(*each) && !each->property("usualText").isValid()) {
            each->setMaximumSize(widened(each->maximumSize()));
            each->setMinimumSize(widened(each->minimumSize()));
        }
}
