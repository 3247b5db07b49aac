#include "tests/desktop/layout_checks.h"

#include "desktop/binder/captions.h"
#include "desktop/binder/picture_view.h"
#include "desktop/looks/elided_label.h"

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>
#include <map>

std::string named(const QWidget & widget)
{
    return widget.objectName().toStdString();
}

QRect place_in(const QWidget & window, const QWidget & widget)
{
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

bool related(const QWidget & one, const QWidget & other)
{
    return one.isAncestorOf(&other) || other.isAncestorOf(&one);
}

namespace {

bool is_scrolled(const QWidget & widget)
{
    for (const QWidget * above = widget.parentWidget(); above; above = above->parentWidget())
        if (qobject_cast<const QScrollArea *>(above))
            return true;
    return false;
}

int widest_item(const QComboBox & list)
{
    int widest = 0;
    for (int i = 0; i < list.count(); ++i)
        widest = std::max(widest, list.fontMetrics().horizontalAdvance(list.itemText(i)));
    return widest;
}

QSize needed_by_list(const QComboBox & list)
{
    const int around = list.lineEdit() ? list.width() - list.lineEdit()->width() + 6 : 36;
    return {around + widest_item(list), list.minimumSizeHint().height()};
}

QSize needed_by_label(const QLabel & label)
{
    if (label.wordWrap())
        return {0, label.heightForWidth(label.width())};
    return label.sizeHint();
}

QSize needed(const QWidget & widget)
{
    if (const auto * const list = qobject_cast<const QComboBox *>(&widget))
        return needed_by_list(*list);
    if (qobject_cast<const picture_view *>(&widget))
        return {};
    if (qobject_cast<const elided_label *>(&widget))
        return {0, widget.minimumSizeHint().height()};
    if (const auto * const box = qobject_cast<const QGroupBox *>(&widget))
        return {box->title().isEmpty() ? 0 : box->fontMetrics().horizontalAdvance(box->title()) + 20,
                box->minimumSizeHint().height()};
    if (qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QAbstractScrollArea *>(&widget))
        return {0, widget.fontMetrics().height() + 2};
    if (const auto * const button = qobject_cast<const QPushButton *>(&widget))
        return {button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + 10,
                button->fontMetrics().height() + 4};
    if (const auto * const label = qobject_cast<const QLabel *>(&widget))
        return needed_by_label(*label);
    if (qobject_cast<const QAbstractButton *>(&widget))
        return widget.sizeHint();
    return {0, widget.minimumSizeHint().height()};
}

bool is_reached(const QWidget & widget)
{
    return widget.isVisible() && widget.focusPolicy() & Qt::TabFocus;
}

QString read_out(QWidget & widget)
{
    QAccessibleInterface * const reader = QAccessible::queryAccessibleInterface(&widget);
    return reader ? reader->text(QAccessible::Name) : QString();
}

// The widgets whose caption may hold a letter, with their captions.
std::vector<std::pair<const QWidget *, QString>> captions(const QWidget & window)
{
    std::vector<std::pair<const QWidget *, QString>> found;
    for (const QAbstractButton * one : window.findChildren<QAbstractButton *>())
        found.emplace_back(one, one->text());
    for (const QLabel * one : window.findChildren<QLabel *>())
        if (one->buddy())
            found.emplace_back(one, one->text());
    return found;
}

}  // namespace

std::vector<QWidget *> seen_widgets(const form & shown, const QWidget & window)
{
    std::vector<QWidget *> seen;
    for (const control * held : shown.controls()) {
        auto * const widget = window.findChild<QWidget *>(QString::fromStdString(held->name()));
        if (widget && widget->isVisible())
            seen.push_back(widget);
    }
    return seen;
}

std::vector<std::string> overlaps(const form & shown, const QWidget & window)
{
    std::vector<std::string> faults;
    const std::vector<QWidget *> seen = seen_widgets(shown, window);
    for (const QWidget * one : seen)
        for (const QWidget * other : seen)
            if (one < other && !related(*one, *other) && is_scrolled(*one) == is_scrolled(*other) &&
                place_in(window, *one).intersects(place_in(window, *other)))
                faults.push_back(named(*one) + " and " + named(*other));
    return faults;
}

std::vector<std::string> strays(const form & shown, const QWidget & window)
{
    std::vector<std::string> faults;
    for (const QWidget * one : seen_widgets(shown, window)) {
        const bool in_group = one->parentWidget()->rect().contains(one->geometry());
        if (!in_group || (!is_scrolled(*one) && !window.rect().contains(place_in(window, *one))))
            faults.push_back(named(*one));
    }
    return faults;
}

std::vector<std::string> cut_texts(const form & shown, const QWidget & window)
{
    std::vector<std::string> faults;
    for (const QWidget * one : seen_widgets(shown, window)) {
        const QSize wanted = needed(*one);
        if (wanted.width() > one->width() || wanted.height() > one->height())
            faults.push_back(named(*one) + " has " + std::to_string(one->width()) + "x" +
                             std::to_string(one->height()) + " and needs " + std::to_string(wanted.width()) +
                             "x" + std::to_string(wanted.height()));
    }
    return faults;
}

std::vector<std::string> tab_order_faults(const form & shown, const QWidget & window)
{
    std::vector<std::string> faults;
    const std::vector<QWidget *> seen = seen_widgets(shown, window);
    const QWidget * before = nullptr;
    for (const QWidget * one = window.nextInFocusChain(); one != &window; one = one->nextInFocusChain()) {
        if (!is_reached(*one) || std::find(seen.begin(), seen.end(), one) == seen.end())
            continue;
        if (before && before->parentWidget() == one->parentWidget()) {
            const QRect from = place_in(window, *before), to = place_in(window, *one);
            const bool next_row = to.center().y() > from.bottom();
            if (!next_row && (to.left() < from.right() || to.bottom() < from.top()))
                faults.push_back(named(*before) + " to " + named(*one));
        }
        before = one;
    }
    return faults;
}

std::vector<std::string> names_missing(const form & shown, const QWidget & window)
{
    std::vector<std::string> faults;
    for (QWidget * one : seen_widgets(shown, window)) {
        const QString name = read_out(*one);
        const bool is_group = qobject_cast<QGroupBox *>(one);
        if ((is_reached(*one) && name.trimmed().isEmpty()) ||
            ((is_reached(*one) || is_group) && unspaced(name) != name.trimmed()))
            faults.push_back(named(*one) + ": \"" + name.toStdString() + "\"");
    }
    return faults;
}

std::vector<std::string> shared_letters(const QWidget & window)
{
    std::vector<std::string> faults;
    std::map<QString, std::string> owners;
    for (const auto & [widget, caption] : captions(window)) {
        const qsizetype at = QString(caption).replace(QLatin1String("&&"), QLatin1String("  ")).indexOf('&');
        if (at < 0)
            continue;
        const QString letter = caption.mid(at + 1, 1).toUpper();
        if (owners.contains(letter))
            faults.push_back(letter.toStdString() + ": " + owners[letter] + ", " + named(*widget));
        owners[letter] = named(*widget);
    }
    return faults;
}
