#include "documents/product_document.h"

#include "core/localized.h"

#include <QtCore/QStringBuilder>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void ProductDocument::insertStockFrom(const std::shared_ptr<Stock>& record)
{
    stockFrom = Link<Stock>(record);
    stockFromID = record ? record->id : 0;
}

void ProductDocument::insertStockTo(const std::shared_ptr<Stock>& record)
{
    stockTo = Link<Stock>(record);
    stockToID = record ? record->id : 0;
}

Decimal ProductDocument::subtotal() const
{
    const Decimal goods = innerDocSum.minus(innerShipment, decimalHandler);
    if (withVAT)
        return goods.minus(innerVATSum, decimalHandler);
    if (withGST)
        return goods.minus(innerGSTSum, decimalHandler);
    return goods;
}

QString ProductDocument::titleOpener() const
{
    return localized("Product Document '");
}

QString ProductDocument::journalNameFrom(const QString& start) const
{
    return start % u"' #"_s % QString::number(docNumber);
}

QVariant ProductDocument::valueForIdentifier(QStringView key) const
{
    if (key == u"number")
        return docNumber;
    if (key == u"date")
        return date;
    if (key == u"confirmed")
        return confirmed;
    if (key == u"correction")
        return correction;
    if (key == u"journalName")
        return journalName();
    if (key == u"sum")
        return docSum();
    if (key == u"contragent")
        return contragentName();
    if (key == u"stockFrom")
        return stockFromName();
    if (key == u"stockTo")
        return stockToName();
    if (key == u"manager")
        return managerName();
    if (key == u"comment")
        return comment;
    return QString();
}

const TableInfo& ProductDocument::table()
{
    using Document = ProductDocument;
    static constexpr ColumnInfo columns[] = {
        integerColumn<&Document::docTypeID>("doc_type_id"),
        integerColumn<&Document::date>("date"),
        integerColumn<&Document::docNumber>("doc_number"),
        integerColumn<&Document::contragentID>("contragent_id"),
        realColumn<Document, &Document::docSum, &Document::setDocSum>("doc_sum"),
        integerColumn<&Document::managerID>("manager_id"),
        textColumn<&Document::comment>("comment"),
        booleanColumn<&Document::confirmed>("is_confirmed"),
        booleanColumn<&Document::correction>("is_correction"),
        integerColumn<&Document::parentDocID>("parent_doc_id"),
        integerColumn<&Document::parentDocTypeID>("parent_doc_type_id"),
        integerColumn<&Document::payToDate>("pay_to_date"),
        realColumn<Document, &Document::leftToPay, &Document::setLeftToPay>("left_to_pay"),
        realColumn<Document, &Document::contragentBalance, &Document::setContragentBalance>(
            "contragent_balance"),
        integerColumn<&Document::stockFromID>("stock_from_id"),
        integerColumn<&Document::stockToID>("stock_to_id"),
        realColumn<Document, &Document::vatSum, &Document::setVatSum>("vat_sum"),
        realColumn<Document, &Document::gstSum, &Document::setGstSum>("gst_sum"),
        realColumn<Document, &Document::shipment, &Document::setShipment>("shipment"),
        realColumn<Document, &Document::contragentDiscount, &Document::setContragentDiscount>(
            "contragent_discount"),
        booleanColumn<&Document::withVAT>("is_with_vat"),
        booleanColumn<&Document::withGST>("is_with_gst"),
    };
    static constexpr LinkInfo links[] = {
        linkOf<&Document::managerID, &Document::manager>(),
        linkOf<&Document::contragentID, &Document::contragent>(),
        linkOf<&Document::stockFromID, &Document::stockFrom>(),
        linkOf<&Document::stockToID, &Document::stockTo>(),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_product_doc_date", "product_doc(date)"},
        // Partial: open debts stay few, while an index on the counterparty alone makes a first load of a
        // hundred thousand sales fifteen times slower.
        {"ix_product_doc_open", "product_doc(contragent_id, doc_type_id) WHERE left_to_pay>0"},
    };
    static constexpr RowListInfo rows = rowsOf<&Document::documentRows, &ProductDocumentRow::docID>("doc_id");
    static constexpr TableInfo info{"product_doc", columns, links, indexes, &rows, makeRecord<Document>};
    return info;
}

} // namespace zelvor
