#include "desktop/looks/elided_label.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

QSize elided_label::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void elided_label::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString fitting = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, fitting);
}

bool elided_label::event(QEvent * event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() &&
        fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}
