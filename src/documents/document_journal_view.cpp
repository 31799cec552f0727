#include "documents/document_journal_view.h"

#include "catalogs/catalog_list.h"
#include "core/localized.h"
#include "core/localized_as.h"
#include "core/text_order.h"
#include "documents/document_journal_view_controller.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

DocumentJournalView::DocumentJournalView(DocumentJournalViewController& controller)
    : TableView(localized("Documents Journal"), blackColor), m_controller(controller)
{}

std::vector<ViewColumn> DocumentJournalView::columns() const
{
    using enum CellKind;
    using enum CellAlignment;
    return {
        {u"number"_s, localized("Number"), Integer, Right, false, u"number"_s},
        {u"journalName"_s, localized("Document")},
        {u"date"_s, localized("Date"), Date, Left, false, u"date"_s},
        {u"confirmed"_s, localized("Confirmed"), CheckBox, Center},
        {u"correction"_s, localized("Correction"), CheckBox, Center},
        {u"sum"_s, localized("Sum"), Amount, Right, false, u"sum"_s},
        {u"contragent"_s, localized("Counterparty"), Text, Left, false, u"contragent"_s},
        {u"stockFrom"_s, localizedAs("From", "warehouse")},
        {u"stockTo"_s, localizedAs("To", "warehouse")},
        {u"manager"_s, localized("Employee")},
        {u"comment"_s, localized("Comment")},
    };
}

int DocumentJournalView::numberOfRows() const
{
    m_controller.readIfStale();
    return static_cast<int>(documents.size());
}

std::shared_ptr<DocumentModel> DocumentJournalView::documentAt(int row) const
{
    if (row < 0 || row >= numberOfRows())
        return nullptr;
    return documents[static_cast<std::size_t>(row)];
}

QVariant DocumentJournalView::value(int row, const QString& identifier) const
{
    if (row < 0 || row >= numberOfRows())
        return QString();
    const DocumentModel& document = *documents[static_cast<std::size_t>(row)];
    return identifier == u"journalName" ? journalName(document) : document.valueForIdentifier(identifier);
}

QString DocumentJournalView::journalName(const DocumentModel& document) const
{
    QString& start = m_titleStarts[static_cast<std::size_t>(rawValue(document.docType()))];
    if (start.isEmpty())
        start = document.titleStart();
    return document.journalNameFrom(start);
}

CellStyle DocumentJournalView::cellStyle(int row, const QString& identifier) const
{
    CellStyle style = TableView::cellStyle(row, identifier);
    if (const std::shared_ptr<DocumentModel> document = documentAt(row))
        style.color = document->titleFontColor();
    return style;
}

void DocumentJournalView::sort(const QString& key, bool ascending)
{
    m_controller.readIfStale();
    const auto sortBy = [this, ascending](auto less) {
        const std::shared_ptr<DocumentModel> selected = documentAt(selectedRow());
        std::ranges::stable_sort(
            documents, [&](const auto& a, const auto& b) { return ascending ? less(*a, *b) : less(*b, *a); });
        selectDocument(selected.get());
        reloadData();
    };
    using Document = DocumentModel;
    if (key == u"number")
        sortBy([](const Document& a, const Document& b) { return a.docNumber < b.docNumber; });
    else if (key == u"date")
        sortBy([](const Document& a, const Document& b) { return a.date < b.date; });
    else if (key == u"sum")
        sortBy([](const Document& a, const Document& b) { return amountLess(a.innerDocSum, b.innerDocSum); });
    else if (key == u"contragent")
        sortBy([](const Document& a, const Document& b) {
            return textLess(a.contragent->name, b.contragent->name);
        });
}

void DocumentJournalView::selectDocument(const DocumentModel* document)
{
    const auto place = std::ranges::find_if(documents, [document](const auto& shown) {
        return document && shown->id == document->id && shown->docTypeID == document->docTypeID;
    });
    selectRow(place == documents.end() ? -1 : static_cast<int>(place - documents.begin()));
}

void DocumentJournalView::doubleAction(int row)
{
    m_controller.openDocument(row);
}

} // namespace zelvor
