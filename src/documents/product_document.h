#pragma once

#include "catalogs/stock.h"
#include "documents/document_model.h"
#include "documents/product_document_row.h"

#include <memory>
#include <vector>

namespace zelvor {

// Goods or services that move: purchase, sale, sale of intangibles, transfer, stock-in, write-off, return.
class ProductDocument : public DocumentModel {
public:
    qint64 stockFromID = 0; // the warehouse that goods leave
    qint64 stockToID = 0;   // the warehouse that goods enter
    Decimal innerVATSum;
    double vatSum() const { return innerVATSum.toDouble(); }
    void setVatSum(double value) { innerVATSum = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerGSTSum;
    double gstSum() const { return innerGSTSum.toDouble(); }
    void setGstSum(double value) { innerGSTSum = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerShipment; // shipment cost
    double shipment() const { return innerShipment.toDouble(); }
    void setShipment(double value) { innerShipment = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerContragentDiscount; // percent
    double contragentDiscount() const { return innerContragentDiscount.toDouble(); }
    void setContragentDiscount(double value)
    {
        innerContragentDiscount = Decimal::fromDouble(value, decimalHandler);
    }
    bool withVAT = false; // prices include VAT
    bool withGST = false; // GST is added on top of prices
    std::vector<std::shared_ptr<ProductDocumentRow>> documentRows;

    Link<Stock> stockFrom;
    Link<Stock> stockTo;

    void insertStockFrom(const std::shared_ptr<Stock>& record);
    void insertStockTo(const std::shared_ptr<Stock>& record);
    QString stockFromName() const { return stockFrom->name; }
    QString stockToName() const { return stockTo->name; }
    // The sum without shipment and tax. VAT is tested first here, while the form's totals give GST the lead;
    // the two orders differ and stay so.
    Decimal subtotal() const;

    QString journalNameFrom(const QString& start) const override;
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();

protected:
    QString titleOpener() const override;
};

} // namespace zelvor
