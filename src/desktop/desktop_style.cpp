#include "desktop/desktop_style.h"

#include "desktop/theme.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

bool hasOutline(QStyle::PrimitiveElement element)
{
    return element == QStyle::PE_FrameLineEdit || element == QStyle::PE_PanelLineEdit ||
           element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton;
}

// Outlines are made by darkening the window's colour, which nobody sees on dark ground: a lighter one to
// darken.
void lighten(QPalette& palette)
{
    palette.setColor(QPalette::Window, QColor(0xa4, 0xa6, 0xac));
}

} // namespace

DesktopStyle::DesktopStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_ComboBox_Popup:
    case SH_ComboBox_AllowWheelScrolling:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    if (!hasOutline(element) || !isDark(option->palette)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const auto draw = [&](auto outlined) {
        lighten(outlined.palette);
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    };
    if (const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option))
        draw(*frame);
    else if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option))
        draw(*button);
    else
        draw(*option);
}

void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const
{
    const auto* const spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control != CC_SpinBox || !spin || !isDark(option->palette)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionSpinBox outlined = *spin;
    lighten(outlined.palette);
    QProxyStyle::drawComplexControl(control, &outlined, painter, widget);
}

void DesktopStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const auto* const area = qobject_cast<const QAbstractScrollArea*>(widget);
    if (element != CE_ShapedFrame || !frame || frame->frameShape != QFrame::StyledPanel || !area ||
        area->focusPolicy() == Qt::NoFocus) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QColor line = option->palette.color(QPalette::WindowText);
    line.setAlphaF(0.3F);
    painter->setPen(area->hasFocus() ? option->palette.color(QPalette::Highlight) : line);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

} // namespace zelvor
