#include "reports/contragent_report_view_controller.h"

#include "core/localized.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "documents/property_document.h"
#include "reports/contragent_direction.h"
#include "reports/filter_popover.h"

#include <algorithm>

namespace zelvor {

using Documents = std::vector<std::shared_ptr<DocumentModel>>;

namespace {

// By the index over counterparty and date, whose condition the statement repeats so that it is taken.
template <class Document>
void appendDocuments(Documents& documents, Connector& connector, std::span<const Parameter> params)
{
    const auto read = connector.freeSQL<Document>("WHERE date>? AND date<=? AND contragent_id=? AND "
                                                  "contragent_id<>0 AND is_confirmed=1 ORDER BY date, id",
                                                  params, Fill::Nothing);
    documents.insert(documents.end(), read.begin(), read.end());
}

void move(const DocumentModel& document, StatementRow& row, StatementRow& end)
{
    if (raisesContragentBalance(document.docType())) {
        row.setCreditSum(document.docSum());
        end.addToCredit(document.innerDocSum);
    } else {
        row.setDebitSum(document.docSum());
        end.addToDebit(document.innerDocSum);
    }
}

} // namespace

ContragentReportViewController::ContragentReportViewController(AppDelegate& owner)
    : ReportViewController(owner), mainView(owner), contragentSelectView(owner)
{
    contragentSelectView.sender = this;
    mainView.computeAgain = [this] { prepareReport(); };
    NotificationCenter& center = appDelegate.notifications;
    m_contragentsChanged = center.observe(NotificationName::ContragentChangedNotification,
                                          [this](const Notification&) { updateContragents(); });
    m_documentConfirmed = staleWhen(center, NotificationName::DocWithContragentChangedNotification, mainView);
}

void ContragentReportViewController::prepareData()
{
    setCurrentDate();
    mainView.setName(getNameForTabView());
}

QString ContragentReportViewController::getNameForTabView() const
{
    return localized("Report By Counterparty '") + selectedContragent.text() + QLatin1Char('\'') +
           periodText();
}

void ContragentReportViewController::updateContragents()
{
    contragentSelectView.markStale();
    if (m_contragent)
        setContragentFromID(m_contragent->id);
}

void ContragentReportViewController::selectContragent()
{
    contragentSelectView.selectPopover.open();
}

void ContragentReportViewController::setNewContragent(const std::shared_ptr<Contragent>& contragent)
{
    m_contragent = contragent;
    selectedContragent.setText(contragent ? contragent->name : QString());
}

bool ContragentReportViewController::setContragentFromID(qint64 id)
{
    const auto contragent = appDelegate.connector.select<Contragent>(id, Fill::Nothing);
    if (contragent)
        setNewContragent(contragent);
    return contragent != nullptr;
}

bool ContragentReportViewController::openReport(qint64 contragentID, qint64 start, qint64 finish)
{
    prepareData();
    if (!setContragentFromID(contragentID))
        return false;
    dateFrom.setMoment(start);
    dateTo.setMoment(finish);
    mainView.setName(getNameForTabView());
    prepareReport();
    return true;
}

// By date; documents of one second stand by kind and in the order in which they were made.
Documents ContragentReportViewController::readDocuments() const
{
    const Parameter params[] = {dateFrom.moment(), dateTo.moment(), m_contragent->id};
    Documents documents;
    appendDocuments<ProductDocument>(documents, appDelegate.connector, params);
    appendDocuments<PropertyDocument>(documents, appDelegate.connector, params);
    appendDocuments<MoneyDocument>(documents, appDelegate.connector, params);
    std::ranges::stable_sort(documents, {}, &DocumentModel::date);
    return documents;
}

// Kept: without documents it is today's balance, for a period long past too.
Decimal ContragentReportViewController::startBalance(const Documents& documents) const
{
    if (!documents.empty())
        return documents.front()->innerContragentBalance;
    const auto contragent = appDelegate.connector.select<Contragent>(m_contragent->id, Fill::Nothing);
    return contragent ? contragent->innerBalance : Decimal();
}

void ContragentReportViewController::updateReport()
{
    if (!m_contragent)
        return;
    progress.start();
    mainView.setPeriod(dateFrom.moment(), dateTo.moment());
    const Documents documents = readDocuments();
    mainView.setRows(statementRows(startBalance(documents), documents, move), selectedContragent.text());
    mainView.setName(getNameForTabView());
    progress.stop();
}

} // namespace zelvor
