#include "desktop/binder/window_foot.h"

#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int air_above_row = 8;                 // pixels
constexpr QMargins around_panel{12, 4, 12, 10};  // as it stands in the form of a main window

bool holds_default(const QLayout & row)
{
    for (int i = 0; i < row.count(); ++i) {
        const auto * const button = qobject_cast<const QPushButton *>(row.itemAt(i)->widget());
        if (button && button->isDefault())
            return true;
    }
    return false;
}

}  // namespace

bool is_main_window(const QWidget & window)
{
    return qobject_cast<const QMainWindow *>(&window) != nullptr;
}

QLayout * last_row(const QWidget & window)
{
    auto * const lines = qobject_cast<QVBoxLayout *>(window.layout());
    QLayout * const row = lines && lines->count() > 1 ? lines->itemAt(lines->count() - 1)->layout() : nullptr;
    return row && holds_default(*row) ? row : nullptr;
}

QWidget * panel_of_buttons(const QWidget & window)
{
    const bool is_main = is_main_window(window);
    for (QPushButton * each : window.findChildren<QPushButton *>())
        if (QWidget * const panel = each->parentWidget();
            each->isDefault() &&
            (is_main || (panel->parentWidget() == &window && panel->property("placed").toBool())))
            return panel;
    return nullptr;
}

QWidget * foot_around(QWidget & window, QWidget & panel)
{
    auto * const foot = new QWidget(&window);
    foot->setObjectName(QStringLiteral("foot_area"));
    foot->setProperty("hidesEmpty", true);
    foot->setVisible(!panel.isHidden());
    auto * const row = new QHBoxLayout(foot);
    row->setContentsMargins(around_panel);
    row->addWidget(&panel);
    return foot;
}

QWidget * taken_row(QWidget & window, QLayout & row)
{
    QMargins around = window.layout()->contentsMargins();
    window.layout()->removeItem(&row);
    row.setParent(nullptr);
    auto * const foot = new QWidget(&window);
    foot->setObjectName(QStringLiteral("foot_area"));
    around.setTop(air_above_row);
    row.setContentsMargins(around);
    foot->setLayout(&row);
    foot->show();
    around.setTop(window.layout()->contentsMargins().top());
    around.setBottom(0);
    window.layout()->setContentsMargins(around);
    return foot;
}

QWidget * stacked(QWidget & window, QWidget & view, QWidget & foot)
{
    auto * const whole = new QWidget(&window);
    whole->setObjectName(QStringLiteral("whole_area"));
    auto * const lines = new QVBoxLayout(whole);
    lines->setContentsMargins({});
    lines->setSpacing(0);
    lines->addWidget(&view);
    lines->addWidget(&foot);
    return whole;
}
