#include "tests/desktop/contrast.h"

#include "tests/desktop/seen_pixels.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr double usual_least = 4.5, disabled_least = 3;

double light_of(const QColor & color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

bool has_text(const QWidget & widget)
{
    if (const auto * const button = qobject_cast<const QAbstractButton *>(&widget))
        return !button->text().trimmed().isEmpty();
    if (const auto * const label = qobject_cast<const QLabel *>(&widget))
        return !label->text().trimmed().isEmpty();
    if (const auto * const line = qobject_cast<const QLineEdit *>(&widget))
        return !line->text().trimmed().isEmpty() || !line->placeholderText().isEmpty();
    if (const auto * const list = qobject_cast<const QComboBox *>(&widget))
        return !list->lineEdit() && !list->currentText().trimmed().isEmpty();
    if (const auto * const text = qobject_cast<const QPlainTextEdit *>(&widget))
        return !text->toPlainText().trimmed().isEmpty();
    const auto * const group = qobject_cast<const QGroupBox *>(&widget);
    return group && !group->title().trimmed().isEmpty();
}

// Where the text stands: marks beside it and frames around it aren't text.
QRect text_place(const QWidget & widget)
{
    const int line = widget.fontMetrics().height();
    if (qobject_cast<const QGroupBox *>(&widget))
        return {14, 0,
                widget.fontMetrics().horizontalAdvance(qobject_cast<const QGroupBox *>(&widget)->title()),
                line};
    const auto * const button = qobject_cast<const QAbstractButton *>(&widget);
    const bool marked = button && button->isCheckable();
    const int left = marked ? widget.style()->pixelMetric(QStyle::PM_IndicatorWidth) + 4 : 3;
    const int right = qobject_cast<const QComboBox *>(&widget) ? 24 : 3;
    return widget.rect().adjusted(left, 2, -right, -2);
}

struct text_spot {
    std::string name;
    QRect place;  // in its widget
    bool enabled = true;
};

// Entries have a colour each.
template <typename Bar>
std::vector<text_spot> entry_spots(const Bar & bar)
{
    std::vector<text_spot> spots;
    for (const QAction * entry : bar.actions())
        if (entry->isVisible() && !entry->text().trimmed().isEmpty())
            spots.push_back({.name = entry->text().toStdString(),
                             .place = bar.actionGeometry(const_cast<QAction *>(entry)).adjusted(4, 2, -4, -2),
                             .enabled = entry->isEnabled()});
    return spots;
}

std::vector<text_spot> row_spots(const QListWidget & list)
{
    std::vector<text_spot> spots;
    for (int i = 0; i < list.count(); ++i) {
        const QRect place =
            list.visualItemRect(list.item(i)).translated(list.viewport()->pos()) & list.rect();
        if (!place.isEmpty())
            spots.push_back(
                {.name = list.item(i)->text().toStdString(), .place = place, .enabled = list.isEnabled()});
    }
    return spots;
}

std::vector<text_spot> text_spots(const QWidget & widget)
{
    if (const auto * const menu = qobject_cast<const QMenu *>(&widget))
        return entry_spots(*menu);
    if (const auto * const bar = qobject_cast<const QMenuBar *>(&widget))
        return entry_spots(*bar);
    if (const auto * const list = qobject_cast<const QListWidget *>(&widget))
        return row_spots(*list);
    if (!has_text(widget))
        return {};
    return {{.name = {}, .place = text_place(widget), .enabled = widget.isEnabled()}};
}

// The colour of most pixels, and the one that stands out most from it.
double contrast_in(const QImage & pixels)
{
    const std::map<QRgb, int> counts = colors_of(pixels);
    const QColor ground(ground_color(counts));
    double most = 1;
    for (const auto & [color, unused] : counts)
        most = std::max(most, contrast(QColor(color), ground));
    return most;
}

std::string named_with_window(const QWidget & widget)
{
    return widget.objectName().toStdString() + " of " + widget.window()->objectName().toStdString();
}

}  // namespace

double contrast(const QColor & one, const QColor & other)
{
    const double brighter = std::max(light_of(one), light_of(other));
    return (brighter + 0.05) / (std::min(light_of(one), light_of(other)) + 0.05);
}

std::vector<std::string> faint_texts(QWidget & window)
{
    std::vector<std::string> faults;
    const QImage whole = window.grab().toImage();
    const double density = whole.devicePixelRatio();
    QList<QWidget *> widgets = window.findChildren<QWidget *>();
    widgets.prepend(&window);
    for (const QWidget * each : widgets)
        for (const text_spot & spot : text_spots(*each)) {
            if (!each->isVisible() || each->visibleRegion().isEmpty() ||
                (each != &window && each->isWindow()))
                continue;
            const QRect place(each->mapTo(&window, spot.place.topLeft()), spot.place.size());
            const QRect dense(place.topLeft() * density, place.size() * density);
            const double least = spot.enabled ? usual_least : disabled_least;
            const double found = contrast_in(whole.copy(dense & whole.rect()));
            if (found < least)
                faults.push_back(named_with_window(*each) + " " + spot.name + " has " +
                                 std::to_string(found));
        }
    return faults;
}

std::vector<std::string> unseen_focus(QWidget & window)
{
    std::vector<std::string> faults;
    for (QWidget * each : window.findChildren<QWidget *>()) {
        if (!each->isVisible() || !each->isEnabled() || !(each->focusPolicy() & Qt::TabFocus) ||
            each->focusProxy())
            continue;
        if (window.focusWidget())
            window.focusWidget()->clearFocus();
        QApplication::processEvents();
        const QImage without = window.grab().toImage();
        each->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        const QImage with = window.grab().toImage();
        if (!each->hasFocus() || with == without)
            faults.push_back(named_with_window(*each));
    }
    return faults;
}
