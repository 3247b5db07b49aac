#include "desktop/looks/indicator_style.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOption>
#include <QToolButton>

namespace {

constexpr int button_air = 10;  // beside the text
constexpr int line_air = 2;     // above and below the text
const QString more_menus = QStringLiteral("More");

QColor fill_of(const QStyleOption & option)
{
    if (!(option.state & QStyle::State_On))
        return option.palette.color(QPalette::Base);
    return option.palette.color(QPalette::Highlight);
}

QColor outline_of(const QStyleOption & option)
{
    const bool marked = option.state & (QStyle::State_On | QStyle::State_MouseOver);
    return option.palette.color(marked ? QPalette::Highlight : QPalette::PlaceholderText);
}

void draw_box(const QStyleOption & option, QPainter & painter)
{
    const QRectF place = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(place, 2.5, 2.5);
    if (!(option.state & QStyle::State_On))
        return;
    const auto at = [&](double x, double y) {
        return QPointF(place.left() + place.width() * x, place.top() + place.height() * y);
    };
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), place.width() / 7, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.72), at(0.78, 0.30)});
}

void draw_circle(const QStyleOption & option, QPainter & painter)
{
    const QRectF place = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawEllipse(place);
    if (!(option.state & QStyle::State_On))
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::HighlightedText));
    painter.drawEllipse(place.center(), place.width() * 0.2, place.height() * 0.2);
}

}  // namespace

indicator_style::indicator_style() : QProxyStyle(QStringLiteral("Fusion")) {}

QSize indicator_style::sizeFromContents(ContentsType type, const QStyleOption * option, const QSize & content,
                                        const QWidget * widget) const
{
    const QSize usual = QProxyStyle::sizeFromContents(type, option, content, widget);
    if (type == CT_LineEdit)
        return usual.expandedTo({0, option->fontMetrics.height() + 2 * line_air});
    return type == CT_PushButton ? usual.expandedTo({content.width() + 2 * button_air, 0}) : usual;
}

// A bar of menus without room for all has a button for the others, which the toolkit makes a square.
int indicator_style::pixelMetric(PixelMetric metric, const QStyleOption * option,
                                 const QWidget * widget) const
{
    const auto * const bar = qobject_cast<const QMenuBar *>(widget);
    if (metric != PM_ToolBarExtensionExtent || !bar)
        return QProxyStyle::pixelMetric(metric, option, widget);
    return bar->fontMetrics().horizontalAdvance(more_menus) + 2 * button_air;
}

void indicator_style::polish(QWidget * widget)
{
    QProxyStyle::polish(widget);
    auto * const button = qobject_cast<QToolButton *>(widget);
    if (!button || button->objectName() != QLatin1String("qt_menubar_ext_button"))
        return;
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setText(more_menus);
}

int indicator_style::styleHint(StyleHint hint, const QStyleOption * option, const QWidget * widget,
                               QStyleHintReturn * result) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    // Boxes of the toolkit have their buttons in the order of the program's windows, on every desktop.
    if (hint == SH_DialogButtonLayout)
        return QDialogButtonBox::GnomeLayout;
    return QProxyStyle::styleHint(hint, option, widget, result);
}

void indicator_style::drawPrimitive(PrimitiveElement element, const QStyleOption * option, QPainter * painter,
                                    const QWidget * widget) const
{
    // Inside a row that is marked as a whole it would be a seam beside the text.
    if (element == PE_FrameFocusRect && option->state & State_Selected &&
        qobject_cast<const QAbstractItemView *>(widget))
        return;
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(outline_of(*option));
    painter->setBrush(fill_of(*option));
    if (element == PE_IndicatorCheckBox)
        draw_box(*option, *painter);
    else
        draw_circle(*option, *painter);
    painter->restore();
}

// The button that Enter presses and the one that has the keyboard would look alike.
void indicator_style::drawControl(ControlElement element, const QStyleOption * option, QPainter * painter,
                                  const QWidget * widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element != CE_PushButton || !(option->state & State_HasFocus))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(option->palette.color(QPalette::ButtonText));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(2.5, 2.5, -2.5, -2.5), 2, 2);
    painter->restore();
}
