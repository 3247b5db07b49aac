#pragma once

#include <QProxyStyle>

/// The toolkit's own style with boxes and circles that stand out from dark panels: a light outline, and the
/// accent when ticked or selected. The button that has the keyboard has a ring. Menus that their bar has no
/// room for stand behind a button that says so.
class indicator_style : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::polish;

    indicator_style();
    QSize sizeFromContents(ContentsType type, const QStyleOption * option, const QSize & content,
                           const QWidget * widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption * option, const QWidget * widget) const override;
    void polish(QWidget * widget) override;
    int styleHint(StyleHint hint, const QStyleOption * option, const QWidget * widget,
                  QStyleHintReturn * result) const override;
    void drawControl(ControlElement element, const QStyleOption * option, QPainter * painter,
                     const QWidget * widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption * option, QPainter * painter,
                       const QWidget * widget) const override;
};
