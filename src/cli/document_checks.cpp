#include "cli/findings.h"

#include "core/decimal.h"
#include "core/doc_type.h"
#include "documents/product_document_row.h"
#include "store/connector.h"

#include <map>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr const char* documentTables[] = {"product_doc", "money_doc", "property_doc"};

Decimal amountAt(const Statement& row, int column)
{
    return Decimal::fromDouble(row.real(column), moneyHandler);
}

void checkSerialNumbers(Connector& connector, const std::string& table, Findings& findings)
{
    const QString name = QString::fromStdString(table);
    connector.scan("SELECT id,is_confirmed,doc_number FROM " + table +
                       " WHERE (is_confirmed!=0)!=(doc_number>0)",
                   {}, [&](const Statement& row) {
                       findings.add(u"serial-number"_s, name, row.integer(0),
                                    row.integer(1) != 0 ? u"a confirmed document without a number"_s
                                                        : u"an unconfirmed document with a number"_s);
                   });
    connector.scan("SELECT doc_type_id,doc_number,min(id),max(id) FROM " + table +
                       " WHERE is_confirmed!=0 AND doc_number>0 GROUP BY doc_type_id,doc_number"
                       " HAVING count(*)>1",
                   {}, [&](const Statement& row) {
                       findings.add(u"serial-number"_s, name, row.integer(3),
                                    u"number %1 of the type %2 is used already by the document %3"_s.arg(
                                        row.text(1), row.text(0), row.text(2)));
                   });
    connector.scan("SELECT d.doc_type_id,max(d.doc_number),n.doc_number FROM " + table +
                       " d JOIN doc_number n ON n.doc_type_id=d.doc_type_id"
                       " GROUP BY d.doc_type_id HAVING max(d.doc_number)>n.doc_number",
                   {}, [&](const Statement& row) {
                       findings.add(
                           u"serial-number"_s, name, 0,
                           u"number %1 of the type %2 would be given out again: its counter is at %3"_s.arg(
                               row.text(1), row.text(0), row.text(2)));
                   });
}

void checkStockRows(Connector& connector, Findings& findings)
{
    connector.scan("SELECT stock_id,product_id,count(*),max(id) FROM stock_row GROUP BY stock_id,product_id"
                   " HAVING count(*)>1",
                   {}, [&](const Statement& row) {
                       findings.add(u"stock-row"_s, u"stock_row"_s, row.integer(3),
                                    u"the warehouse %1 has %2 rows of the product %3"_s.arg(
                                        row.text(0), row.text(2), row.text(1)));
                   });
}

// Goes through the confirmed product documents with their rows, once: every document's sums, and what the
// documents together left in the warehouses.
class ProductDocumentChecks {
public:
    ProductDocumentChecks(Connector& connector, Findings& findings)
        : m_connector(connector), m_findings(findings)
    {}

    void run()
    {
        m_connector.scan(
            "SELECT d.id,d.doc_type_id,d.stock_from_id,d.stock_to_id,d.is_with_vat,d.is_with_gst,d.shipment,"
            "d.doc_sum,d.vat_sum,d.gst_sum,r.id,r.product_id,r.amount,r.base_cost,r.price_cost,"
            "r.base_cost_sum,r.price_cost_sum,r.vat_rate,r.gst_rate,p.is_intangible"
            " FROM product_doc d LEFT JOIN product_doc_row r ON r.doc_id=d.id"
            " LEFT JOIN product p ON p.id=r.product_id WHERE d.is_confirmed!=0 ORDER BY d.id",
            {}, [this](const Statement& row) { take(row); });
        closeDocument();
        checkStock();
    }

private:
    struct Head {
        qint64 id = 0;
        bool withVAT = false;
        bool withGST = false;
        Decimal docSum;
        Decimal vatSum;
        Decimal gstSum;
        Decimal due; // of the rows so far, with the shipment
        Decimal tax;
    };

    void take(const Statement& row)
    {
        if (row.integer(0) != m_head.id) {
            closeDocument();
            m_head = {row.integer(0),   row.integer(4) != 0, row.integer(5) != 0, amountAt(row, 7),
                      amountAt(row, 8), amountAt(row, 9),    amountAt(row, 6),    Decimal()};
        }
        if (row.isNull(10))
            return; // a document without rows
        takeRow(row);
        if (!row.isNull(19) && row.integer(19) == 0)
            moveStock(row);
    }

    void takeRow(const Statement& row)
    {
        ProductDocumentRow line;
        line.setBaseCost(row.real(13));
        line.setPriceCost(row.real(14));
        line.setAmount(row.real(12));
        const bool agrees =
            line.innerBaseCostSum == amountAt(row, 15) && line.innerPriceCostSum == amountAt(row, 16);
        if (!agrees)
            m_findings.add(u"row-sum"_s, u"product_doc_row"_s, row.integer(10),
                           u"the sums are not the amount times the costs"_s);
        line.setPriceCostSum(row.real(16));
        line.setVatRate(row.real(17));
        line.setGstRate(row.real(18));
        const bool gst = m_head.withGST;
        m_head.due = m_head.due.plus(gst ? line.plusGST() : line.innerPriceCostSum, moneyHandler);
        if (gst || m_head.withVAT)
            m_head.tax = m_head.tax.plus(gst ? line.gstValue() : line.vatValue(), moneyHandler);
    }

    void closeDocument()
    {
        if (m_head.id == 0)
            return;
        const auto tell = [this](const QString& what, const Decimal& stored, const Decimal& summed) {
            m_findings.add(
                u"document-sum"_s, u"product_doc"_s, m_head.id,
                u"%1 is %2, the rows give %3"_s.arg(what, stored.toFixedText(2), summed.toFixedText(2)));
        };
        if (m_head.docSum != m_head.due)
            tell(u"the sum"_s, m_head.docSum, m_head.due);
        const Decimal vat = m_head.withVAT ? m_head.tax : Decimal();
        const Decimal gst = m_head.withGST ? m_head.tax : Decimal();
        if (m_head.vatSum != vat)
            tell(u"the VAT"_s, m_head.vatSum, vat);
        if (m_head.gstSum != gst)
            tell(u"the GST"_s, m_head.gstSum, gst);
    }

    void moveStock(const Statement& row)
    {
        const Decimal amount = amountAt(row, 12);
        const auto type = typeFromInt(row.integer(1)).value_or(DocType::NilType);
        using enum DocType;
        if (type == SellProduct || type == MoveProduct || type == DeleteProduct)
            change(row.integer(2), row.integer(11), amount.negated());
        if (type == BuyProduct || type == Return || type == AddProduct || type == MoveProduct)
            change(row.integer(3), row.integer(11), amount);
    }

    void change(qint64 stockID, qint64 productID, const Decimal& amount)
    {
        Decimal& held = m_stock[{stockID, productID}];
        held = held.plus(amount, moneyHandler);
    }

    // Nothing but documents changes the stock, so they tell all of it.
    void checkStock()
    {
        m_connector.scan("SELECT s.stock_id,s.product_id,s.amount FROM stock_row s"
                         " JOIN product p ON p.id=s.product_id WHERE p.is_intangible=0",
                         {}, [this](const Statement& row) {
                             change(row.integer(0), row.integer(1), amountAt(row, 2).negated());
                         });
        for (const auto& [place, rest] : m_stock) {
            if (rest.isZero())
                continue;
            m_findings.add(u"stock"_s, u"product"_s, place.second,
                           u"the warehouse %1 and the documents differ by %2"_s.arg(
                               QString::number(place.first), rest.negated().toText()));
        }
    }

    Connector& m_connector;
    Findings& m_findings;
    Head m_head;
    std::map<std::pair<qint64, qint64>, Decimal> m_stock; // by warehouse and product
};

} // namespace

void checkDocuments(Connector& connector, Findings& findings)
{
    for (const char* table : documentTables)
        checkSerialNumbers(connector, table, findings);
    checkStockRows(connector, findings);
    ProductDocumentChecks(connector, findings).run();
}

} // namespace zelvor
