#include "desktop/looks/screen_readers.h"

#include "desktop/binder/picture_view.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QFrame>
#include <QRadioButton>

namespace {

QString without_mark(const QString & caption)
{
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&'))
            ++i;
        text += caption.mid(i, 1);
    }
    return text.trimmed();
}

// Whatever is pressed by its only action.
class pressed_widget : public QAccessibleWidget {
public:
    explicit pressed_widget(QAbstractButton & its_button) : QAccessibleWidget(&its_button), button(its_button)
    {}

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (can_be_pressed())
            names.prepend(pressing());
        return names;
    }

    void doAction(const QString & name) override
    {
        if (name == pressing() && can_be_pressed())
            button.animateClick();
        else
            QAccessibleWidget::doAction(name);
    }

    QStringList keyBindingsForAction(const QString & name) const override
    {
        return name == pressing() && !button.shortcut().isEmpty()
                   ? QStringList(button.shortcut().toString(QKeySequence::NativeText))
                   : QStringList();
    }

    QString text(QAccessible::Text wanted) const override
    {
        if (wanted == QAccessible::Accelerator)
            return button.shortcut().toString(QKeySequence::NativeText);
        const bool by_caption = wanted == QAccessible::Name && button.accessibleName().isEmpty();
        return by_caption ? without_mark(button.text()) : QAccessibleWidget::text(wanted);
    }

protected:
    virtual bool can_be_pressed() const { return button.isEnabled(); }
    virtual QString pressing() const { return pressAction(); }
    QAbstractButton & button;
};

class told_mark : public pressed_widget {
public:
    using pressed_widget::pressed_widget;
    QAccessible::State state() const override
    {
        QAccessible::State known = pressed_widget::state();
        known.checkable = true;
        known.checked = button.isChecked();
        return known;
    }
};

class told_option : public told_mark {
public:
    using told_mark::told_mark;
    QAccessible::Role role() const override { return QAccessible::RadioButton; }
};

// Left to the toolkit, a reader's toggle would be none of the user's clicks.
class told_check_box : public told_mark {
public:
    using told_mark::told_mark;
    QAccessible::Role role() const override { return QAccessible::CheckBox; }

protected:
    QString pressing() const override { return toggleAction(); }
};

class told_picture : public pressed_widget {
public:
    using pressed_widget::pressed_widget;
    QAccessible::Role role() const override { return has_use() ? QAccessible::Button : QAccessible::Graphic; }

protected:
    bool can_be_pressed() const override { return has_use() && pressed_widget::can_be_pressed(); }

private:
    bool has_use() const { return button.focusPolicy() != Qt::NoFocus; }
};

// The toolkit would call one without a name by the title of the group it stands in.
class told_frame : public QAccessibleWidget {
public:
    explicit told_frame(QWidget & its_frame) : QAccessibleWidget(&its_frame), frame(its_frame) {}
    QAccessible::Role role() const override
    {
        return frame.accessibleName().isEmpty() ? QAccessible::Client : QAccessible::Grouping;
    }
    QString text(QAccessible::Text wanted) const override
    {
        return wanted == QAccessible::Name ? frame.accessibleName() : QAccessibleWidget::text(wanted);
    }

private:
    QWidget & frame;
};

QAccessibleInterface * told(const QString & kind, QObject * object)
{
    if (auto * const option = qobject_cast<QRadioButton *>(object))
        return new told_option(*option);  // owned by the toolkit
    if (auto * const box = qobject_cast<QCheckBox *>(object))
        return new told_check_box(*box);
    if (auto * const picture = qobject_cast<picture_view *>(object))
        return new told_picture(*picture);
    auto * const frame = qobject_cast<QWidget *>(object);
    const bool is_plain = kind == QLatin1String("QFrame") || kind == QLatin1String("QWidget");
    if (!frame || frame->isWindow() || !is_plain || kind != QLatin1String(object->metaObject()->className()))
        return nullptr;
    return new told_frame(*frame);
}

}  // namespace

void tell_screen_readers()
{
    QAccessible::installFactory(told);
}
