#include "desktop/binder/primary_button.h"

#include <QDialog>
#include <QPushButton>
#include <QVariant>

#include <algorithm>

namespace {

constexpr const char * drawn_so = "drawnDefault";

// As the Designer file has it: what is marked later is noted nowhere else.
QPushButton * drawn_default(const QList<QPushButton *> & buttons)
{
    for (QPushButton * each : buttons)
        if (each->property(drawn_so).toBool())
            return each;
    for (QPushButton * each : buttons)
        if (each->isDefault()) {
            each->setProperty(drawn_so, true);
            return each;
        }
    return nullptr;
}

}  // namespace

void mark_primary(QWidget & window)
{
    if (!qobject_cast<QDialog *>(&window))
        return;
    QList<QPushButton *> buttons = window.findChildren<QPushButton *>();
    QPushButton * const drawn = drawn_default(buttons);
    if (!drawn)
        return;
    buttons.removeIf([&window](const QPushButton * each) { return !each->isVisibleTo(&window); });
    QPushButton * const primary = buttons.size() == 1 ? buttons.front() : drawn;
    primary->setDefault(true);
}
