#include "desktop/tab_strip.h"

#include "desktop/theme.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

TabStrip::TabStrip(TabViewHeader& header, QWidget* parent) : QWidget(parent), m_header(header)
{
    setObjectName(u"tabStrip"_s);
    setFixedHeight(static_cast<int>(TabViewHeader::height));
}

QRectF TabStrip::tabRect(int position) const
{
    const double top = TabViewHeader::height - TabViewHeader::tabBottom - TabViewHeader::tabHeight;
    return {m_header.leftEdge(position), top, m_header.tabWidth(), TabViewHeader::tabHeight};
}

QRectF TabStrip::closeButtonRect(int position) const
{
    const QRectF tab = tabRect(position);
    return {tab.right() - TabViewHeader::closeButtonRight - 6, tab.center().y() - 6, 12, 12};
}

void TabStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (const TabViewHeaderTab& tab : m_header.tabs()) {
        painter.setPen(textColor(tab.titleColor, palette()));
        painter.drawText(tabRect(tab.position).adjusted(6, 0, -22, 0), Qt::AlignVCenter, tab.title);
    }
}

void TabStrip::mouseReleaseEvent(QMouseEvent* event)
{
    const int position = m_header.positionAt(event->position().x());
    if (position < 0)
        return;
    if (closeButtonRect(position).contains(event->position()))
        Q_EMIT closeRequested(position);
    else
        m_header.changeActivTab(position);
}

void TabStrip::resizeEvent(QResizeEvent*)
{
    m_header.setWidth(width());
}

} // namespace zelvor
