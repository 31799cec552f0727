#include "desktop/tab_strip.h"

#include "core/localized.h"
#include "desktop/tab_strip_accessible.h"
#include "desktop/theme.h"

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr double closeSize = 12;
constexpr double titleHeight = 14;
constexpr double titleBottom = 4;  // above the tab's lower edge
constexpr double titlePadding = 2; // inside the title's own place
constexpr double leastContrast = 4.5;

// Grey levels of the tab's ground, from its lower edge up.
struct Shade {
    double bottom;
    double top;
};

Shade shadeOf(bool active, bool dark)
{
    if (dark)
        return active ? Shade{0.235, 0.30} : Shade{0.14, 0.19};
    return active ? Shade{0.906, 1.0} : Shade{0.8, 0.9};
}

QColor grey(double level)
{
    return QColor::fromRgbF(static_cast<float>(level), static_cast<float>(level), static_cast<float>(level));
}

// A flat top between two shoulders that leave the lower edge level and reach the top level.
QPainterPath shapeOf(const QRectF& tab)
{
    const double size = TabViewHeaderTab::curveSize;
    const double delta = TabViewHeaderTab::curveDelta;
    QPainterPath path(tab.bottomLeft());
    path.cubicTo({tab.left() + size, tab.bottom()}, {tab.left() + delta - size, tab.top()},
                 {tab.left() + delta, tab.top()});
    path.lineTo(tab.right() - delta, tab.top());
    path.cubicTo({tab.right() - delta + size, tab.top()}, {tab.right() - size, tab.bottom()},
                 tab.bottomRight());
    path.closeSubpath();
    return path;
}

// The ink, deepened or lightened until it can be read on the ground.
QColor legible(QColor ink, const QColor& ground)
{
    const bool darken = ground.lightness() >= 128;
    for (int step = 0; step < 20 && contrast(ink, ground) < leastContrast; ++step)
        ink = darken ? ink.darker(108) : ink.lighter(108);
    return ink;
}

} // namespace

TabStrip::TabStrip(TabViewHeader& header, QWidget* parent) : QWidget(parent), m_header(header)
{
    installTabStripAccessibility();
    setObjectName(u"tabStrip"_s);
    setAccessibleName(localized("Open pages"));
    setFixedHeight(static_cast<int>(TabViewHeader::height));
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    m_header.onDisplay = [this] { headerChanged(); };
}

TabStrip::~TabStrip()
{
    m_header.onDisplay = {};
}

int TabStrip::activeTab() const
{
    const int active = m_header.activTab.value_or(-1);
    return active < count() ? active : -1;
}

QRectF TabStrip::tabRect(int position) const
{
    const double top = TabViewHeader::height - TabViewHeader::tabBottom - TabViewHeader::tabHeight;
    return {m_header.leftEdge(position), top, m_header.tabWidth(), TabViewHeader::tabHeight};
}

QRectF TabStrip::titleRect(int position) const
{
    const QRectF tab = tabRect(position);
    const double width = tab.width() - TabViewHeader::titleLeft - TabViewHeader::titleRight;
    return {tab.left() + TabViewHeader::titleLeft, tab.bottom() - titleBottom - titleHeight,
            std::max(width, 0.0), titleHeight};
}

// Its middle stands the given distance from the tab's right edge.
QRectF TabStrip::closeButtonRect(int position) const
{
    const QRectF tab = tabRect(position);
    return {tab.right() - TabViewHeader::closeButtonRight - closeSize / 2, tab.center().y() - closeSize / 2,
            closeSize, closeSize};
}

int TabStrip::closeButtonAt(const QPointF& point) const
{
    const int position = m_header.positionAt(point.x());
    return position >= 0 && closeButtonRect(position).contains(point) ? position : -1;
}

void TabStrip::requestClose(int position)
{
    if (position >= 0 && position < count())
        Q_EMIT closeRequested(position);
}

// --- drawing

void TabStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const TabViewHeaderTab& tab : m_header.tabs())
        drawTab(painter, tab);
}

void TabStrip::drawTab(QPainter& painter, const TabViewHeaderTab& tab) const
{
    const bool dark = isDark(palette());
    const bool active = tab.position == activeTab();
    const QRectF rect = tabRect(tab.position);
    const Shade shade = shadeOf(active, dark);
    QLinearGradient ground(rect.bottomLeft(), rect.topLeft());
    ground.setColorAt(0, grey(shade.bottom));
    ground.setColorAt(1, grey(shade.top));
    const QPainterPath shape = shapeOf(rect.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.fillPath(shape, ground);
    QColor outline = dark ? Qt::white : Qt::black;
    outline.setAlphaF(0.2F);
    painter.strokePath(shape, QPen(outline, 1));
    if (active && hasFocus()) {
        const QColor ring = palette().color(QPalette::Highlight);
        painter.strokePath(shape, QPen(dark ? ring.lighter(140) : ring, 2));
    }
    drawTitle(painter, tab);
    drawCloseButton(painter, tab.position);
}

void TabStrip::drawTitle(QPainter& painter, const TabViewHeaderTab& tab) const
{
    const Shade shade = shadeOf(tab.position == activeTab(), isDark(palette()));
    const QFont font = noteFont(this->font());
    const QRectF rect = titleRect(tab.position).adjusted(titlePadding, 0, 0, 0);
    const QString title = QFontMetricsF(font).elidedText(tab.title, Qt::ElideRight, rect.width());
    painter.setFont(font);
    painter.setPen(legible(textColor(tab.titleColor, palette()), grey((shade.bottom + shade.top) / 2)));
    // A big font has no room in the title's own height; the tab has.
    painter.drawText(rect.adjusted(0, -titleBottom, 0, titleBottom),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title);
}

void TabStrip::drawCloseButton(QPainter& painter, int position) const
{
    const QRectF button = closeButtonRect(position);
    QColor ink = palette().color(QPalette::WindowText);
    if (position == m_hoveredClose) {
        QColor ground = ink;
        ground.setAlphaF(position == m_pressedClose ? 0.3F : 0.15F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawEllipse(button.adjusted(-1, -1, 1, 1));
    } else {
        ink.setAlphaF(0.65F);
    }
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap));
    const QRectF cross = button.adjusted(3, 3, -3, -3);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.bottomLeft(), cross.topRight());
}

// --- mouse and keys

bool TabStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int position = m_header.positionAt(help->pos().x());
    if (position < 0) {
        QToolTip::hideText();
        return true;
    }
    const TabViewHeaderTab& tab = m_header.tabs()[static_cast<std::size_t>(position)];
    const QString tip = tab.toolTip.isEmpty() ? tab.title : tab.toolTip;
    QToolTip::showText(help->globalPos(), tip.toHtmlEscaped(), this, tabRect(position).toRect());
    return true;
}

void TabStrip::mousePressEvent(QMouseEvent* event)
{
    m_pressed = m_header.positionAt(event->position().x());
    m_pressedClose = event->button() == Qt::LeftButton ? closeButtonAt(event->position()) : -1;
    update();
}

void TabStrip::mouseMoveEvent(QMouseEvent* event)
{
    const int hovered = closeButtonAt(event->position());
    if (hovered == m_hoveredClose)
        return;
    m_hoveredClose = hovered;
    update();
}

// A press counts where it is let go of; beside it, nothing happens.
void TabStrip::mouseReleaseEvent(QMouseEvent* event)
{
    const int pressed = std::exchange(m_pressed, -1);
    const int pressedClose = std::exchange(m_pressedClose, -1);
    const bool inside = rect().contains(event->position().toPoint());
    const int position = inside ? m_header.positionAt(event->position().x()) : -1;
    update();
    if (position < 0 || position != pressed)
        return;
    if (event->button() == Qt::MiddleButton)
        requestClose(position);
    else if (event->button() == Qt::LeftButton && pressedClose < 0)
        selectTab(position);
    else if (event->button() == Qt::LeftButton && closeButtonAt(event->position()) == pressedClose)
        requestClose(position);
}

void TabStrip::leaveEvent(QEvent*)
{
    m_hoveredClose = -1;
    update();
}

void TabStrip::keyPressEvent(QKeyEvent* event)
{
    const int last = count() - 1;
    switch (event->key()) {
    case Qt::Key_Left:
        selectTab(std::max(activeTab() - 1, 0));
        break;
    case Qt::Key_Right:
        selectTab(std::min(activeTab() + 1, last));
        break;
    case Qt::Key_Home:
        selectTab(0);
        break;
    case Qt::Key_End:
        selectTab(last);
        break;
    case Qt::Key_Delete:
        requestClose(activeTab());
        break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT pageRequested();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void TabStrip::resizeEvent(QResizeEvent*)
{
    m_header.setWidth(width());
}

// --- what others hear

void TabStrip::headerChanged()
{
    m_hoveredClose = -1;
    update();
    tellScreenReader();
}

void TabStrip::tellScreenReader()
{
    if (m_toldCount != count()) {
        m_toldCount = count();
        QAccessibleEvent reordered(this, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&reordered);
    }
    if (m_toldActive == activeTab())
        return;
    m_toldActive = activeTab();
    if (m_toldActive < 0)
        return;
    QAccessibleEvent selected(this, QAccessible::Selection);
    selected.setChild(m_toldActive);
    QAccessible::updateAccessibility(&selected);
    if (!hasFocus())
        return;
    QAccessibleEvent focused(this, QAccessible::Focus);
    focused.setChild(m_toldActive);
    QAccessible::updateAccessibility(&focused);
}

} // namespace zelvor
