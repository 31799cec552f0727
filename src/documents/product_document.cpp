#include "documents/product_document.h"

#include "core/localized.h"
#include "documents/document_columns.h"

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
    if (key == u"stockFrom")
        return stockFromName();
    if (key == u"stockTo")
        return stockToName();
    return DocumentModel::valueForIdentifier(key);
}

const TableInfo& ProductDocument::table()
{
    using Document = ProductDocument;
    static constexpr auto columns = withDocumentColumns({
        integerColumn<&Document::stockFromID>("stock_from_id"),
        integerColumn<&Document::stockToID>("stock_to_id"),
        realColumn<Document, &Document::vatSum, &Document::setVatSum>("vat_sum"),
        realColumn<Document, &Document::gstSum, &Document::setGstSum>("gst_sum"),
        realColumn<Document, &Document::shipment, &Document::setShipment>("shipment"),
        realColumn<Document, &Document::contragentDiscount, &Document::setContragentDiscount>(
            "contragent_discount"),
        booleanColumn<&Document::withVAT>("is_with_vat"),
        booleanColumn<&Document::withGST>("is_with_gst"),
    });
    static constexpr LinkInfo links[] = {
        linkOf<&Document::managerID, &Document::manager>(),
        linkOf<&Document::contragentID, &Document::contragent>(),
        linkOf<&Document::stockFromID, &Document::stockFrom>(),
        linkOf<&Document::stockToID, &Document::stockTo>(),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_product_doc_date", "product_doc(date)"},
        {"ix_product_doc_contragent", "product_doc(contragent_id, date) WHERE contragent_id<>0"},
        // Partial: open debts stay few, while an index on the counterparty alone makes a first load of a
        // hundred thousand sales fifteen times slower.
        {"ix_product_doc_open", "product_doc(contragent_id, doc_type_id) WHERE left_to_pay>0"},
    };
    static constexpr RowListInfo rows = rowsOf<&Document::documentRows, &ProductDocumentRow::docID>("doc_id");
    static constexpr TableInfo info{"product_doc", columns, links, indexes, &rows, makeRecord<Document>};
    return info;
}

} // namespace zelvor
