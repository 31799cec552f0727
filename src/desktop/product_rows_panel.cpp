#include "desktop/product_rows_panel.h"

#include "core/localized.h"
#include "desktop/product_entry_line.h"
#include "desktop/product_rows_table.h"
#include "desktop/theme.h"
#include "documents/product_document_view_controller.h"

#include <QtCore/QMimeData>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

ProductRowsPanel::ProductRowsPanel(ProductDocumentViewController& form, QWidget* parent)
    : QFrame(parent), m_form(form), m_table(new ProductRowsTable(form.mainView, form.appDelegate.calendar)),
      m_entry(new ProductEntryLine(form)),
      m_empty(new QLabel(localized("No rows yet. Type a product, or drag one from the list on the right.")))
{
    setObjectName(u"documentSheet"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setAcceptDrops(true);
    m_table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_empty->setObjectName(u"emptyText"_s);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_table);
    layout->addWidget(m_entry);
    layout->addWidget(m_empty, 1);
    connectRows();
    rowsChanged();
}

void ProductRowsPanel::connectRows()
{
    connect(m_table->tableModel(), &TableViewModel::reloaded, this, [this] { rowsChanged(); });
    connect(m_table->horizontalScrollBar(), &QScrollBar::rangeChanged, this, [this] { fitHeight(); });
    connect(m_table, &TableList::currentRowChanged, this, [this] { m_form.mainView.selectionChanged(); });
    connect(m_table, &ProductRowsTable::leftDownwards, m_entry, [this] { m_entry->setFocus(); });
    connect(m_table, &ProductRowsTable::deleteRequested, this, [this] { deleteRow(); });
    connect(m_table, &ProductRowsTable::nameTyped, this, [this](const QString& text) {
        if (m_paper)
            return;
        m_entry->setFocus();
        m_entry->setText(text);
        Q_EMIT m_entry->textEdited(text);
    });
    connect(m_entry, &ProductEntryLine::productTyped, this, &ProductRowsPanel::takeProduct);
    connect(m_entry, &ProductEntryLine::leftUpwards, this, [this] {
        const int rows = m_form.mainView.numberOfRows();
        if (rows == 0)
            return;
        // Onto the name: the first figure typed there is the amount.
        const TableViewModel& model = *m_table->tableModel();
        m_table->setCurrentIndex(
            model.index(model.shownRow(rows - 1), model.columnWithIdentifier(u"name"_s)));
        m_table->setFocus();
    });
}

void ProductRowsPanel::takeProduct(const std::shared_ptr<Product>& product)
{
    if (!m_table->finishEditing())
        return;
    const int row = m_form.addProduct(product);
    if (row >= 0)
        m_table->editCell(row, u"amount"_s);
}

// The next row takes the place, so that several can be deleted one by one.
void ProductRowsPanel::deleteRow()
{
    const int row = m_form.mainView.selectedRow();
    const int before = m_form.mainView.numberOfRows();
    m_form.mainView.deleteSelectedRowsButton.userChanged();
    const int left = m_form.mainView.numberOfRows();
    if (left == before)
        return;
    if (left == 0) {
        m_entry->setFocus();
        return;
    }
    m_table->selectViewRow(std::min(row, left - 1));
    m_table->setFocus();
}

void ProductRowsPanel::setPaper(bool paper)
{
    m_paper = paper;
    m_entry->setVisible(!paper);
    setAcceptDrops(!paper);
    setReceiving(false);
    rowsChanged();
}

void ProductRowsPanel::rowsChanged()
{
    const bool empty = m_form.mainView.numberOfRows() == 0;
    m_empty->setText(empty && !m_paper
                         ? localized("No rows yet. Type a product, or drag one from the list on the right.")
                         : QString());
    fitHeight();
    paintGround();
}

// The line to type into stands right below the last row, and below the table where that scrolls.
void ProductRowsPanel::fitHeight()
{
    m_table->setMaximumHeight(m_table->contentHeight());
}

void ProductRowsPanel::paintGround()
{
    const QPalette plain = QGuiApplication::palette();
    const QColor ground = groundColor(m_form.mainView.groundColor(), plain);
    QPalette colors = plain;
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::Base, ground);
    if (colors != palette())
        setPalette(colors);
    QPalette note = colors;
    note.setColor(QPalette::WindowText, plain.color(QPalette::PlaceholderText));
    m_empty->setPalette(note);
}

void ProductRowsPanel::setReceiving(bool receiving)
{
    if (receiving)
        setFrameShape(QFrame::Box);
    else
        setFrameShape(m_paper ? QFrame::NoFrame : QFrame::StyledPanel);
    setLineWidth(receiving ? 2 : 1);
}

void ProductRowsPanel::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasText() || !m_form.mainView.validateDrop(event->mimeData()->text()))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setReceiving(true);
}

void ProductRowsPanel::dragLeaveEvent(QDragLeaveEvent* event)
{
    setReceiving(false);
    QFrame::dragLeaveEvent(event);
}

void ProductRowsPanel::dropEvent(QDropEvent* event)
{
    setReceiving(false);
    if (!m_table->finishEditing() || !m_form.mainView.acceptDrop(event->mimeData()->text()))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_table->selectViewRow(m_form.mainView.selectedRow());
    m_table->setFocus();
}

void ProductRowsPanel::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        paintGround();
}

void ProductRowsPanel::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    fitHeight();
}

} // namespace zelvor
