#include "documents/product_document_row.h"

namespace zelvor {

namespace {

constexpr Decimal hundred{100};

} // namespace

void ProductDocumentRow::setInnerAmount(const Decimal& value)
{
    innerAmount = value.rounded(decimalHandler);
    innerPriceCostSum = innerAmount.times(innerPriceCost, decimalHandler);
    innerBaseCostSum = innerAmount.times(innerBaseCost, decimalHandler);
}

void ProductDocumentRow::setInnerBaseCost(const Decimal& value)
{
    innerBaseCost = value.rounded(decimalHandler);
    innerBaseCostSum = innerAmount.times(innerBaseCost, decimalHandler);
}

void ProductDocumentRow::setInnerPriceCost(const Decimal& value)
{
    innerPriceCost = value.rounded(decimalHandler);
    innerPriceCostSum = innerAmount.times(innerPriceCost, decimalHandler);
}

void ProductDocumentRow::insertProduct(const std::shared_ptr<Product>& record)
{
    product = Link<Product>(record);
    productID = record->id;
    setInnerBaseCost(record->innerBaseCost);
    setInnerPriceCost(record->innerPriceCost);
    innerCurrentPriceCost = record->innerPriceCost;
}

Decimal ProductDocumentRow::onePlusVatRate() const
{
    return innerVATRate.dividedBy(hundred, taxHandler).plus(Decimal(1), taxHandler);
}

Decimal ProductDocumentRow::vatValue() const
{
    return innerPriceCostSum.minus(beforeVatValue(), decimalHandler);
}

Decimal ProductDocumentRow::beforeVatValue() const
{
    return innerPriceCostSum.dividedBy(onePlusVatRate(), decimalHandler);
}

Decimal ProductDocumentRow::gstValue() const
{
    return innerGSTRate.dividedBy(hundred, taxHandler)
        .times(innerPriceCostSum, taxHandler)
        .rounded(decimalHandler);
}

Decimal ProductDocumentRow::plusGST() const
{
    return innerPriceCostSum.plus(gstValue(), decimalHandler);
}

Decimal ProductDocumentRow::packs() const
{
    const Decimal& packAmount = product->innerPackAmount;
    return packAmount.isPositive() ? innerAmount.dividedBy(packAmount, decimalHandler) : Decimal();
}

QVariant ProductDocumentRow::valueForIdentifier(QStringView key) const
{
    if (key == u"includeShipment")
        return includeShipment;
    if (key == u"vatRate")
        return innerVATRate.dividedBy(hundred, taxHandler).toDouble();
    if (key == u"gstRate")
        return innerGSTRate.dividedBy(hundred, taxHandler).toDouble();
    if (key == u"vat")
        return vatValue().toDouble();
    if (key == u"gst")
        return gstValue().toDouble();
    if (key == u"minusVAT")
        return beforeVatValue().toDouble();
    if (key == u"plusGST")
        return plusGST().toDouble();
    if (key == u"name")
        return product->name;
    if (key == u"amount")
        return amount();
    if (key == u"price")
        return priceCost();
    if (key == u"packs")
        return product->innerPackAmount.isPositive() ? QVariant(packs().toDouble()) : QVariant(0);
    if (key == u"total")
        return priceCostSum();
    if (key == u"measurement")
        return product->measurementName();
    return QString();
}

const TableInfo& ProductDocumentRow::table()
{
    using Row = ProductDocumentRow;
    // The sums stand behind what renews them, so that a read keeps them as stored.
    static constexpr ColumnInfo columns[] = {
        integerColumn<&Row::docID>("doc_id"),
        integerColumn<&Row::productID>("product_id"),
        realColumn<Row, &Row::amount, &Row::setAmount>("amount"),
        realColumn<Row, &Row::baseCost, &Row::setBaseCost>("base_cost"),
        realColumn<Row, &Row::priceCost, &Row::setPriceCost>("price_cost"),
        realColumn<Row, &Row::currentPriceCost, &Row::setCurrentPriceCost>("current_price_cost"),
        realColumn<Row, &Row::baseCostSum, &Row::setBaseCostSum>("base_cost_sum"),
        realColumn<Row, &Row::priceCostSum, &Row::setPriceCostSum>("price_cost_sum"),
        realColumn<Row, &Row::vatRate, &Row::setVatRate>("vat_rate"),
        realColumn<Row, &Row::gstRate, &Row::setGstRate>("gst_rate"),
        booleanColumn<&Row::includeShipment>("is_include_shipment"),
    };
    static constexpr LinkInfo links[] = {linkOf<&Row::productID, &Row::product>()};
    // None on the product: the planner would take it for sums over a period, fifty times slower.
    static constexpr IndexInfo indexes[] = {{"ix_product_doc_row_doc", "product_doc_row(doc_id)"}};
    static constexpr TableInfo info{"product_doc_row", columns, links, indexes, nullptr, makeRecord<Row>};
    return info;
}

} // namespace zelvor
