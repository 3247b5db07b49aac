#include "desktop/binder/wheel.h"

#include <QAbstractSlider>
#include <QComboBox>
#include <QCoreApplication>
#include <QWheelEvent>

namespace {

// As if the widget weren't there.
void pass_on(const QWidget & from, const QWheelEvent & turned)
{
    QWidget * const beneath = from.parentWidget();
    if (!beneath)
        return;
    QWheelEvent passed(from.mapTo(beneath, turned.position()), turned.globalPosition(), turned.pixelDelta(),
                       turned.angleDelta(), turned.buttons(), turned.modifiers(), turned.phase(),
                       turned.inverted(), turned.source(), turned.pointingDevice());
    QCoreApplication::sendEvent(beneath, &passed);
}

class wheel_guard : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject * watched, QEvent * event) override
    {
        const auto * const widget = static_cast<const QWidget *>(watched);
        if (event->type() != QEvent::Wheel || widget->hasFocus())
            return false;
        pass_on(*widget, *static_cast<QWheelEvent *>(event));
        event->accept();
        return true;
    }
};

}  // namespace

void leave_wheel_to_focus(QWidget & widget)
{
    if (!qobject_cast<QComboBox *>(&widget) && !qobject_cast<QAbstractSlider *>(&widget))
        return;
    if (widget.focusPolicy() == Qt::WheelFocus)
        widget.setFocusPolicy(Qt::StrongFocus);
    widget.installEventFilter(new wheel_guard(&widget));
}
