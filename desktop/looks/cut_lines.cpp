#include "desktop/looks/cut_lines.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace {

struct line_option : QStyleOptionFrame {
    explicit line_option(const QLineEdit & line)
    {
        initFrom(&line);
        rect = line.rect();
        lineWidth = line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, this, &line);
        midLineWidth = 0;
        state |= QStyle::State_Sunken;
        if (line.isReadOnly())
            state |= QStyle::State_ReadOnly;
    }
};

// Where the toolkit itself draws the text.
QRect text_place(const QLineEdit & line, const line_option & option)
{
    constexpr int beside = 2;
    return line.style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, &line)
        .marginsRemoved(line.textMargins())
        .adjusted(beside, 0, -beside, 0);
}

bool is_cut(const QLineEdit & line)
{
    return !qobject_cast<const QComboBox *>(line.parentWidget()) &&
           line.fontMetrics().horizontalAdvance(line.displayText()) >
               text_place(line, line_option(line)).width();
}

void draw_cut(const QLineEdit & line)
{
    const line_option option(line);
    QPainter painter(const_cast<QLineEdit *>(&line));
    line.style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, &line);
    const QRect place = text_place(line, option);
    const QString text = line.fontMetrics().elidedText(
        line.displayText(), line.isReadOnly() ? Qt::ElideMiddle : Qt::ElideRight, place.width());
    painter.setPen(line.palette().color(QPalette::Text));
    painter.drawText(place, static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft) | Qt::TextSingleLine, text);
}

class cut_marker : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject * watched, QEvent * event) override
    {
        if (event->type() != QEvent::Paint && event->type() != QEvent::ToolTip)
            return false;
        const auto * const line = qobject_cast<const QLineEdit *>(watched);
        if (!line || !is_cut(*line))
            return false;
        if (event->type() == QEvent::ToolTip)
            return is_told(*line, static_cast<const QHelpEvent &>(*event));
        if (line->window()->focusWidget() == line)
            return false;
        draw_cut(*line);
        return true;
    }

private:
    // A tip of the line's own says more.
    static bool is_told(const QLineEdit & line, const QHelpEvent & event)
    {
        if (!line.toolTip().isEmpty())
            return false;
        QToolTip::showText(event.globalPos(), line.displayText());
        return true;
    }
};

}  // namespace

void mark_cut_lines(QApplication & application)
{
    application.installEventFilter(new cut_marker(&application));
}
