#include "desktop/product_document_totals.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/cell_text.h"
#include "desktop/measures.h"
#include "desktop/paper_field.h"
#include "desktop/theme.h"
#include "documents/product_document_view_controller.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int amounts = 0; // first column of the left figures
constexpr int sums = 3;    // first column of the right figures
constexpr int figureIndent = 5;

QLabel* boundLabel(Label& outlet)
{
    auto* const label = new QLabel;
    bind(outlet, label);
    return label;
}

} // namespace

ProductDocumentTotals::ProductDocumentTotals(ProductDocumentViewController& form, QWidget* parent)
    : QWidget(parent), m_form(form), m_grid(new QGridLayout(this))
{
    ProductDocumentView& view = form.mainView;
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(measures::rowGap);
    m_grid->setVerticalSpacing(measures::labelGap);
    m_grid->setColumnMinimumWidth(amounts + 2, measures::groupGap);
    const int width = fontMetrics().horizontalAdvance(u"000 000 000.00"_s);
    m_grid->setColumnMinimumWidth(amounts + 1, fontMetrics().horizontalAdvance(u"000 000.00"_s));
    m_grid->setColumnMinimumWidth(sums + 1, width);
    addFigure(0, amounts, new QLabel(localized("Amount")), figure(form.totalAmount));
    addFigure(1, amounts, new QLabel(localized("Packs")), figure(form.totalPacks));
    addFigure(0, sums, boundLabel(view.totalLabel), figure(form.totalSum));
    addFigure(1, sums, boundLabel(view.vatAmountLabel), figure(form.vatAmount));
    if (form.shipmentEnabled())
        addShipment(2);
    addFigure(3, sums, boundLabel(view.balanceDueLabel), due());
}

void ProductDocumentTotals::addFigure(int row, int column, QLabel* label, QWidget* figure)
{
    m_grid->addWidget(label, row, column, Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(figure, row, column + 1);
}

QLabel* ProductDocumentTotals::figure(NumberField& outlet)
{
    auto* const label = new QLabel;
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setContentsMargins(0, 0, figureIndent, 0);
    bind(outlet, label);
    return label;
}

QLabel* ProductDocumentTotals::due()
{
    QLabel* const label = figure(m_form.balanceDue);
    label->setFont(titleFont(font()));
    return label;
}

void ProductDocumentTotals::addShipment(int row)
{
    auto* const edit = new QLineEdit;
    bind(m_form.shipment, edit, localized("Shipment"));
    edit->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    const NumberField& outlet = m_form.shipment;
    m_shipment = new PaperField(
        edit, [&outlet] { return screenAmount(outlet.value(), QLocale()); }, Qt::AlignRight);
    QLabel* const label = boundLabel(m_form.mainView.shipmentLabel);
    label->setBuddy(edit);
    addFigure(row, sums, label, m_shipment);
}

void ProductDocumentTotals::setPaper(bool paper)
{
    if (m_shipment)
        m_shipment->setPaper(paper);
}

} // namespace zelvor
