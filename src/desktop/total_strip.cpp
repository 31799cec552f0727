#include "desktop/total_strip.h"

#include "core/localized.h"
#include "desktop/table_list.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemDelegate>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

TotalStrip::TotalStrip(TableList* list, int rows) : QWidget(list->parentWidget()), m_list(list), m_rows(rows)
{
    setObjectName(u"totalStrip"_s);
    setAccessibleName(localized("Totals"));
    hide();
    list->installEventFilter(this);
    const auto redraw = [this] { update(); };
    connect(list->tableModel(), &TableViewModel::reloaded, this, &TotalStrip::arrange);
    connect(list->tableModel(), &QAbstractItemModel::dataChanged, this, redraw);
    connect(list->horizontalHeader(), &QHeaderView::sectionResized, this, redraw);
    connect(list->horizontalScrollBar(), &QScrollBar::valueChanged, this, redraw);
}

TotalStrip* TotalStrip::addBelow(TableList* list, int rows, QVBoxLayout* page)
{
    auto* const strip = new TotalStrip(list, rows);
    auto* const together = new QVBoxLayout;
    together->setSpacing(0);
    const int place = page->indexOf(list);
    page->removeWidget(list);
    together->addWidget(list, 1);
    together->addWidget(strip);
    page->insertLayout(place, together, 1);
    return strip;
}

bool TotalStrip::isNeeded() const
{
    const TableViewModel& model = *m_list->tableModel();
    const int last = model.rowCount() - 1;
    if (last < m_rows || !model.filter().isEmpty())
        return false;
    const int place = m_list->height() + (isHidden() ? 0 : height()) - m_list->horizontalHeader()->height();
    return (last + 1) * m_list->verticalHeader()->defaultSectionSize() > place;
}

void TotalStrip::arrange()
{
    const bool needed = isNeeded();
    const int count = m_list->tableModel()->rowCount();
    const int first = needed ? count - m_rows : count;
    // The table keeps hidden what it hid before the rows were read anew; other rows may stand there now.
    for (int row = 0; row < count; ++row) {
        if (m_list->isRowHidden(row) != (row >= first))
            m_list->setRowHidden(row, row >= first);
    }
    setFixedHeight(m_rows * m_list->verticalHeader()->defaultSectionSize());
    setVisible(needed);
    update();
}

bool TotalStrip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        QMetaObject::invokeMethod(this, &TotalStrip::arrange, Qt::QueuedConnection); // the page is laid out
    return QWidget::eventFilter(watched, event);
}

void TotalStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_list->palette().color(QPalette::Base));
    const TableViewModel& model = *m_list->tableModel();
    const int height = m_list->verticalHeader()->defaultSectionSize();
    const int first = model.rowCount() - m_rows;
    QStyleOptionViewItem option;
    option.initFrom(m_list);
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.widget = m_list;
    const int left = m_list->viewport()->x();
    painter.setClipRect(left, 0, m_list->viewport()->width(), this->height());
    for (int row = std::max(0, first); row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            if (m_list->isColumnHidden(column))
                continue;
            option.rect = {left + m_list->columnViewportPosition(column), (row - first) * height,
                           m_list->columnWidth(column), height};
            m_list->itemDelegate()->paint(&painter, option, model.index(row, column));
        }
    }
    painter.setPen(m_list->palette().color(QPalette::Mid));
    painter.drawLine(0, 0, width(), 0);
}

} // namespace zelvor
