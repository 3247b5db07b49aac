#include "desktop/looks/elided_option.h"

#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

QSize elided_option::minimumSizeHint() const
{
    return {0, QRadioButton::minimumSizeHint().height()};
}

QString elided_option::fitting_text() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int room = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this).width();
    return fontMetrics().elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
}

void elided_option::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = fitting_text();
    QStylePainter(this).drawControl(QStyle::CE_RadioButton, option);
}

bool elided_option::event(QEvent * event)
{
    if (event->type() != QEvent::ToolTip || fitting_text() == text())
        return QRadioButton::event(event);
    const QString whole = QString(text()).replace(QLatin1String("&&"), QLatin1String("&"));
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), whole + QLatin1Char('\n') + toolTip(),
                       this);
    return true;
}
