#include "reports/sale_rows.h"

#include "core/doc_type.h"

#include <vector>

namespace zelvor {

namespace {

// A short period: the documents come by their date and the rows by their document (hence the CROSS JOIN,
// which keeps that order), so only the period's own rows are touched.
bool scanByDocument(Connector& connector, const DatesBetween& dates, const std::string& headColumn,
                    const std::string& rowColumns, const TakeSaleRow& take)
{
    return connector.scan("SELECT d." + headColumn + ", " + rowColumns +
                              " FROM product_doc AS d CROSS JOIN product_doc_row AS r ON r.doc_id=d.id"
                              " WHERE d.date>? AND d.date<? AND (d.doc_type_id=? OR d.doc_type_id=?)"
                              " AND d.is_confirmed=1",
                          {dates.after, dates.before, DocType::SellIntangibles, DocType::SellProduct},
                          [&take](const Statement& row) { take(row.integer(0), row); });
}

// A long one: the period's documents in a field by their ids, then all rows once as they lie in the file.
bool scanAllRows(Connector& connector, const DatesBetween& dates, const std::string& headColumn,
                 const std::string& rowColumns, qint64 lastID, const TakeSaleRow& take)
{
    std::vector<bool> isSale(static_cast<std::size_t>(lastID) + 1);
    std::vector<qint64> heads(isSale.size());
    const bool read = connector.scan(
        "SELECT id, " + headColumn +
            " FROM product_doc"
            " WHERE date>? AND date<? AND (doc_type_id=? OR doc_type_id=?) AND is_confirmed=1 AND id>0",
        {dates.after, dates.before, DocType::SellIntangibles, DocType::SellProduct},
        [&](const Statement& head) {
            const auto place = static_cast<quint64>(head.integer(0));
            if (place >= isSale.size()) // a damaged file only
                return;
            isSale[place] = true;
            heads[place] = head.integer(1);
        });
    return read && connector.scan("SELECT doc_id, " + rowColumns + " FROM product_doc_row", {},
                                  [&](const Statement& row) {
                                      const auto place = static_cast<quint64>(row.integer(0));
                                      if (place < isSale.size() && isSale[place])
                                          take(heads[place], row);
                                  });
}

// Looking rows up by their document costs about eight times as much a row as reading them on the way.
constexpr qint64 lookUpsPerRead = 8;

} // namespace

bool scanSaleRows(Connector& connector, const DatesBetween& dates, const std::string& headColumn,
                  const std::string& rowColumns, const TakeSaleRow& take)
{
    qint64 heads = 0;
    qint64 lastID = 0;
    const bool counted = connector.scan(
        "SELECT count(date), (SELECT max(id) FROM product_doc) FROM product_doc WHERE date>? AND date<?",
        {dates.after, dates.before}, [&](const Statement& row) {
            heads = row.integer(0);
            lastID = row.integer(1);
        });
    if (!counted)
        return false;
    // Divided, since the ids of a strange file may be as large as they come.
    return lastID / lookUpsPerRead <= heads && lastID >= 0
               ? scanAllRows(connector, dates, headColumn, rowColumns, lastID, take)
               : scanByDocument(connector, dates, headColumn, rowColumns, take);
}

} // namespace zelvor
