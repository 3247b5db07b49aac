#include "tests/desktop/told_widgets.h"

#include "desktop/binder/captions.h"
#include "desktop/binder/control_pairs.h"
#include "desktop/looks/elided_label.h"
#include "desktop/qt_text.h"

#include <QAccessible>
#include <QListWidget>

#include <algorithm>

namespace {

QAccessibleInterface & told(QObject & widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

QString value_of(QAccessibleInterface & reader)
{
    QAccessibleTextInterface * const text = reader.textInterface();
    return text ? text->text(0, text->characterCount()) : reader.text(QAccessible::Value);
}

QString without_marks(const std::string & caption)
{
    QString text = shown(caption);
    text.replace(QLatin1String("&&"), QLatin1String("\n")).remove(QLatin1Char('&'));
    return unspaced(text.replace(QLatin1Char('\n'), QLatin1Char('&')));
}

// What is wrong, in a word; nothing when all is right. One function a kind of control.
struct hearer {
    QAccessibleInterface & reader;

    QString name() const { return reader.text(QAccessible::Name); }
    bool is(QAccessible::Role role) const { return reader.role() == role; }
    bool is_checked() const { return reader.state().checked; }
    bool is_called(const control & held, const QWidget & widget) const
    {
        return !widget.accessibleName().isEmpty() || name() == without_marks(held.caption());
    }

    std::string operator()(const button & held, const QPushButton & widget) const
    {
        return !is(QAccessible::Button) ? "role" : !is_called(held, widget) ? "name" : "";
    }
    std::string operator()(const check_box & held, const QCheckBox & widget) const
    {
        if (!is(QAccessible::CheckBox))
            return "role";
        return is_checked() != held.ticked() ? "value" : !is_called(held, widget) ? "name" : "";
    }
    std::string operator()(const option_button & held, const QRadioButton & widget) const
    {
        if (!is(QAccessible::RadioButton))
            return "role";
        return is_checked() != held.selected() ? "value" : !is_called(held, widget) ? "name" : "";
    }
    std::string operator()(const text_box & held, const QLineEdit &) const
    {
        return !is(QAccessible::EditableText)           ? "role"
               : value_of(reader) != shown(held.text()) ? "value"
                                                        : "";
    }
    std::string operator()(const text_box & held, const QPlainTextEdit &) const
    {
        const QString text = shown(held.text()).remove(QLatin1Char('\r'));
        return !is(QAccessible::EditableText) ? "role" : value_of(reader) != text ? "value" : "";
    }
    std::string operator()(const combo_box & held, const QComboBox &) const
    {
        const QString text = shown(held.text());
        return !is(QAccessible::ComboBox) ? "role" : reader.text(QAccessible::Value) != text ? "value" : "";
    }
    std::string operator()(const list_box & held, const QListWidget &) const
    {
        if (!is(QAccessible::List))
            return "role";
        const auto items = static_cast<int>(held.items().size());
        if (reader.childCount() != items)
            return "value";
        for (int i = 0; i < items; ++i)
            if (reader.child(i)->text(QAccessible::Name) !=
                    shown(held.items()[static_cast<std::size_t>(i)]) ||
                bool(reader.child(i)->state().selected) != (i == held.list_index()))
                return "entry " + std::to_string(i);
        return {};
    }
    std::string operator()(const slider & held, const QSlider &) const
    {
        if (!is(QAccessible::Slider))
            return "role";
        return reader.valueInterface()->currentValue().toInt() != held.position() ? "value" : "";
    }
    std::string operator()(const progress_bar & held, const QProgressBar &) const
    {
        if (!is(QAccessible::ProgressBar))
            return "role";
        return reader.valueInterface()->currentValue().toInt() != held.done() ? "value" : "";
    }
    // Where a long one is elided the reader hears all of it.
    std::string operator()(const label & held, const QLabel & widget) const
    {
        const QString text = shown(held.caption()).remove(QLatin1Char('\r'));
        const bool is_told = name() == text || name() == unspaced(text) || !widget.accessibleName().isEmpty();
        return !is(QAccessible::StaticText) ? "role" : !is_told ? "name" : "";
    }
    std::string operator()(const picture & held, const picture_view & widget) const
    {
        const bool usable = held.on_click && widget.focusPolicy() != Qt::NoFocus;
        const bool fits = is(QAccessible::Button) || (is(QAccessible::Graphic) && !usable);
        return !fits ? "role" : name().isEmpty() ? "name" : "";
    }
    std::string operator()(const group & held, const QWidget &) const
    {
        const bool is_named = !held.caption().empty();
        if (is_named && !is(QAccessible::Grouping))
            return "role";
        return is_named && name() != unspaced(shown(held.caption())) ? "name" : "";
    }
    std::string operator()(const menu_entry &, const QAction &) const { return {}; }
};

bool is_spelt(const QString & name)
{
    return !name.trimmed().isEmpty() && unspaced(name) != name.trimmed();
}

// What a buddy says counts where the toolkit has no name of its own.
bool has_name(QAccessibleInterface & reader)
{
    return !reader.text(QAccessible::Name).trimmed().isEmpty() ||
           !reader.relations(QAccessible::Label).isEmpty();
}

std::string fault_of_state(const control & held, const QWidget & widget, QAccessibleInterface & reader)
{
    const QAccessible::State state = reader.state();
    if (bool(state.disabled) == widget.isEnabled())
        return "enabled";
    if (state.invisible)
        return "invisible";
    const bool is_reached = widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus;
    if (is_reached && !state.focusable)
        return "focus";
    if (is_reached && !has_name(reader))
        return "no name";
    return is_spelt(reader.text(QAccessible::Name)) ||
                   (held.caption().size() > 1 && is_spelt(reader.text(QAccessible::Description)))
               ? "spelt"
               : "";
}

std::string fault_of(control & held, QWidget & widget)
{
    QAccessibleInterface & reader = told(widget);
    std::string fault = fault_of_state(held, widget, reader);
    visit_pair(held, widget, [&](auto & known, auto & its_widget) {
        const std::string of_kind = hearer{reader}(known, its_widget);
        if (!of_kind.empty())
            fault = of_kind;
    });
    return fault;
}

std::vector<std::pair<control *, QWidget *>> seen_pairs(const form & shown, const QWidget & window)
{
    std::vector<std::pair<control *, QWidget *>> seen;
    for (control * held : shown.controls()) {
        auto * const widget = window.findChild<QWidget *>(QString::fromStdString(held->name()));
        if (widget && widget->isVisible())
            seen.emplace_back(held, widget);
    }
    return seen;
}

}  // namespace

std::vector<std::string> told_otherwise(const form & shown, const QWidget & window)
{
    std::vector<std::string> faults;
    for (const auto & [held, widget] : seen_pairs(shown, window))
        if (const std::string fault = fault_of(*held, *widget); !fault.empty())
            faults.push_back(shown.name() + " " + held->name() + ": " + fault + ", called \"" +
                             told(*widget).text(QAccessible::Name).toStdString() + "\"");
    return faults;
}

int told_widgets(const form & shown, const QWidget & window)
{
    return static_cast<int>(seen_pairs(shown, window).size());
}
