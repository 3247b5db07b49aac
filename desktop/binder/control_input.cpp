#include "desktop/binder/control_input.h"

#include "desktop/binder/control_display.h"
#include "desktop/qt_text.h"

#include <QPointer>

namespace {

struct listener {
    QObject & owner;
    const user_action & act;

    void operator()(button & held, QPushButton & widget) const
    {
        connect_click(widget, [&held] { held.click(); });
    }

    void operator()(check_box & held, QCheckBox & widget) const
    {
        connect_click(widget, [&held, &widget] { held.tick(widget.isChecked()); });
    }

    // A click on the selected option would deselect it in the widget; the session knows no such thing.
    void operator()(option_button & held, QRadioButton & widget) const
    {
        connect_click(widget, [&held] { held.select(); });
    }

    void operator()(picture & held, picture_view & widget) const
    {
        connect_click(widget, [&held] { held.click(); });
        QObject::connect(&widget, &picture_view::dropped, &owner,
                         [run = act, &held](QPoint at) { run([&held, at] { held.drop(at.x(), at.y()); }); });
        QObject::connect(&widget, &picture_view::asked, &owner,
                         [run = act, &held](picture_key what) { run([&held, what] { held.press(what); }); });
        QObject::connect(&widget, &picture_view::popup_wanted, &owner,
                         [run = act, &held, &widget](QPoint global) {
                             widget.window()->setProperty("popup_at", global);
                             run([&held] { held.ask_popup(); });
                         });
    }

    void operator()(menu_entry & held, QAction & widget) const
    {
        QObject::connect(&widget, &QAction::triggered, &owner,
                         [run = act, &held] { run([&held] { held.click(); }); });
    }

    // A box that loses the focus tells of the entry that its text stands for, as if it had been chosen: that
    // text is the control's already, and choosing it again means nothing. Nor is what is typed completed: who
    // wants 60 would get an entry 600.
    void operator()(combo_box & held, QComboBox & widget) const
    {
        QObject::connect(&widget, &QComboBox::activated, &owner,
                         [run = act, &held](int index) { run([&held, index] { held.choose(index); }); });
        if (!widget.lineEdit())
            return;
        widget.setCompleter(nullptr);
        widget.lineEdit()->setAccessibleName(widget.accessibleName());
        QObject::connect(widget.lineEdit(), &QLineEdit::textEdited, &owner,
                         [run = act, &held, line = QPointer(widget.lineEdit())](const QString & text) {
                             run([&] { held.set_text(bytes_of(text)); });
                             // Another text than the typed one isn't to be typed on.
                             if (line && shown(held.text()) != text)
                                 line->selectAll();
                         });
        hear_reader(held, widget, *widget.lineEdit());
    }

    void operator()(text_box & held, QLineEdit & widget) const
    {
        QObject::connect(&widget, &QLineEdit::textEdited, &owner, [run = act, &held](const QString & text) {
            run([&] { held.set_text(bytes_of(text)); });
        });
        hear_reader(held, widget, widget);
    }

    // A reader of the screen enters a text for the user, which the toolkit doesn't take for an edit. A text
    // that an entry of the list gave comes with its choice.
    template <typename Control>
    void hear_reader(Control & held, QWidget & widget, QLineEdit & line) const
    {
        QObject::connect(&line, &QLineEdit::textChanged, &owner, [run = act, &held, &widget, &line] {
            const auto * const list = qobject_cast<const QComboBox *>(&widget);
            const bool chosen = list && list->itemText(list->currentIndex()) == line.text();
            if (!is_being_shown(widget) && !chosen && line.text() != shown(held.text()))
                run([&] { held.set_text(bytes_of(line.text())); });
        });
    }

    // The next three have no signal for the user alone: who shows the control blocks theirs meanwhile.

    void operator()(text_box & held, QPlainTextEdit & widget) const
    {
        QObject::connect(&widget, &QPlainTextEdit::textChanged, &owner, [run = act, &held, &widget] {
            run([&] { held.set_text(bytes_of(widget.toPlainText())); });
        });
    }

    // A list that gets the focus makes its first entry the current one, which is no choice yet.
    void operator()(list_box & held, QListWidget & widget) const
    {
        QObject::connect(&widget, &QListWidget::itemSelectionChanged, &owner,
                         [run = act, &held, &widget] { run([&] { held.select(selected_row(widget)); }); });
        QObject::connect(&widget, &QListWidget::itemDoubleClicked, &owner,
                         [run = act, &held, &widget](const QListWidgetItem * entry) {
                             run([&held, row = widget.row(entry)] { held.double_click(row); });
                         });
    }

    void operator()(slider & held, QSlider & widget) const
    {
        QObject::connect(&widget, &QSlider::valueChanged, &owner, [run = act, &held](int value) {
            run([&held, value] { held.set_position(value); });
        });
    }

    void operator()(label &, QLabel &) const {}
    void operator()(group &, QWidget &) const {}

    template <typename Step>
    void connect_click(QAbstractButton & widget, Step step) const
    {
        QObject::connect(&widget, &QAbstractButton::clicked, &owner, [run = act, step] { run(step); });
    }
};

}  // namespace

void listen(control & held, QObject & widget, QObject & owner, const user_action & act)
{
    visit_pair(held, widget, listener{owner, act});
}
