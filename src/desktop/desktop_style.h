#pragma once

#include <QtWidgets/QProxyStyle>

namespace zelvor {

// The style of the whole program: Qt's own, with a line around lists and texts that shows where the focus
// is, fields and ticks that keep their outline on dark ground, and choosers that open as lists with a scroll
// bar and do not turn under a passing mouse wheel.
class DesktopStyle : public QProxyStyle {
    Q_OBJECT

public:
    DesktopStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace zelvor
