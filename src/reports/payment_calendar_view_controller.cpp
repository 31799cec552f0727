#include "reports/payment_calendar_view_controller.h"

#include "core/localized.h"
#include "documents/product_document.h"
#include "documents/property_document.h"

#include <algorithm>

namespace zelvor {

using enum DocType;

namespace {

bool isToCome(DocType type)
{
    return type == SellProduct || type == SellIntangibles || type == SellProperty;
}

void enterDebt(PaymentCalendarRow& row, DocType type, const Decimal& left)
{
    if (isToCome(type))
        row.setInnerLeftToPayIn(left);
    else
        row.setInnerLeftToPayOut(left);
}

std::shared_ptr<PaymentCalendarRow> summaryLine(const QString& name)
{
    auto row = std::make_shared<PaymentCalendarRow>();
    row->total = true;
    row->name = name;
    return row;
}

// What is left when both sides of the total are set against each other.
std::shared_ptr<PaymentCalendarRow> saldoOf(const PaymentCalendarRow& total)
{
    auto saldo = summaryLine(localized("SALDO:"));
    const Decimal& in = total.innerLeftToPayIn;
    const Decimal& out = total.innerLeftToPayOut;
    if (in > out)
        saldo->setInnerLeftToPayIn(in.minus(out, PaymentCalendarRow::handler));
    else if (out > in)
        saldo->setInnerLeftToPayOut(out.minus(in, PaymentCalendarRow::handler));
    return saldo;
}

} // namespace

PaymentCalendarViewController::PaymentCalendarViewController(AppDelegate& owner)
    : ModelController(owner), mainView(*this)
{
    const auto update = [this](const Notification&) { updateReport(); };
    NotificationCenter& center = appDelegate.notifications;
    m_balanceChanged = center.observe(NotificationName::ContragentBalanceChangedNotification, update);
    m_documentChanged = center.observe(NotificationName::DocWithContragentChangedNotification, update);
}

// Earliest first; documents of one second stay by kind and in the order in which they were made.
std::vector<std::shared_ptr<DocumentModel>> PaymentCalendarViewController::readDocuments()
{
    std::vector<std::shared_ptr<DocumentModel>> documents;
    // The open ones may be found by their counterparties.
    const auto append = [&documents](auto read) {
        std::ranges::sort(read, {}, [](const auto& document) { return document->id; });
        documents.insert(documents.end(), read.begin(), read.end());
    };
    Connector& connector = appDelegate.connector;
    append(connector.freeSQL<ProductDocument>(
        "WHERE left_to_pay>? AND is_confirmed=1"
        " AND (doc_type_id=? OR doc_type_id=? OR doc_type_id=? OR doc_type_id=?)",
        {0, BuyProduct, SellProduct, Return, SellIntangibles}, Fill::Heads));
    append(connector.freeSQL<PropertyDocument>(
        "WHERE left_to_pay>? AND is_confirmed=1 AND (doc_type_id=? OR doc_type_id=?)",
        {0, BuyProperty, SellProperty}, Fill::Heads));
    std::ranges::stable_sort(documents, {}, &DocumentModel::date);
    return documents;
}

void PaymentCalendarViewController::prepareReport()
{
    m_stale = false;
    PaymentCalendarView::Rows rows;
    const auto total = summaryLine(localized("TOTAL:"));
    for (const auto& document : readDocuments()) {
        const auto row = std::make_shared<PaymentCalendarRow>();
        row->document = document;
        enterDebt(*row, document->docType(), document->innerLeftToPay);
        enterDebt(*total, document->docType(), document->innerLeftToPay);
        rows.push_back(row);
    }
    rows.push_back(total);
    rows.push_back(saldoOf(*total));
    mainView.setRows(std::move(rows));
}

void PaymentCalendarViewController::updateReport()
{
    m_stale = true;
    if (mainView.isVisible())
        prepareReport();
}

void PaymentCalendarViewController::refresh()
{
    if (m_stale)
        prepareReport();
}

void PaymentCalendarViewController::forget()
{
    mainView.setRows({});
    m_stale = true;
}

void PaymentCalendarViewController::openDocument(int row)
{
    const PaymentCalendarRow* line = mainView.rowAt(row);
    if (!line || !line->document)
        return;
    const bool isProduct = dynamic_cast<const ProductDocument*>(line->document.get()) != nullptr;
    appDelegate.workspace().openDocWithID(line->document->id,
                                          isProduct ? QStringLiteral("Product") : QStringLiteral("Property"));
}

bool PaymentCalendarViewController::isOverdue(const PaymentCalendarRow& row) const
{
    return row.document && row.document->payToDate < appDelegate.now();
}

} // namespace zelvor
