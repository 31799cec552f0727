#include "properties/file_image.h"

#include <gtest/gtest.h>

namespace zelvor::audit {

namespace {

void each(Connector& db, const std::string& sql, const std::function<void(const Statement&)>& visit)
{
    EXPECT_TRUE(db.scan(sql, {}, visit)) << sql;
}

Cents cents(const Statement& row, int column)
{
    EXPECT_FALSE(row.isNull(column)) << "no number in column " << column;
    return hundredths(row.real(column));
}

std::map<qint64, Cents> balances(Connector& db, const std::string& table)
{
    std::map<qint64, Cents> read;
    each(db, "SELECT id,balance FROM " + table,
         [&](const Statement& row) { read[row.integer(0)] = cents(row, 1); });
    return read;
}

constexpr const char* headColumns = "id,doc_type_id,date,doc_number,contragent_id,doc_sum,is_confirmed,"
                                    "pay_to_date,left_to_pay,contragent_balance";

DocImage& readHead(const Statement& row, Kind kind, DocImages& documents)
{
    DocImage& image = documents[{kind, row.integer(0)}];
    image.type = static_cast<DocType>(row.integer(1));
    image.date = row.integer(2);
    image.number = row.integer(3);
    image.contragent = row.integer(4);
    image.sum = cents(row, 5);
    image.confirmed = row.integer(6) != 0;
    image.payTo = row.integer(7);
    image.left = cents(row, 8);
    image.contragentBalance = cents(row, 9);
    return image;
}

void readProductDocuments(Connector& db, DocImages& documents)
{
    each(db,
         std::string("SELECT ") + headColumns +
             ",stock_from_id,stock_to_id,vat_sum,gst_sum,shipment,contragent_discount,is_with_vat,"
             "is_with_gst FROM product_doc",
         [&](const Statement& row) {
             DocImage& image = readHead(row, Kind::Product, documents);
             image.stockFrom = row.integer(10);
             image.stockTo = row.integer(11);
             image.vatSum = cents(row, 12);
             image.gstSum = cents(row, 13);
             image.shipment = cents(row, 14);
             image.discount = cents(row, 15);
             image.vat = row.integer(16) != 0;
             image.gst = row.integer(17) != 0;
         });
    each(db,
         "SELECT product_id,doc_id,amount,base_cost,price_cost,current_price_cost,base_cost_sum,"
         "price_cost_sum,vat_rate,gst_rate,is_include_shipment FROM product_doc_row ORDER BY id",
         [&](const Statement& row) {
             const DocKey key{Kind::Product, row.integer(1)};
             EXPECT_TRUE(documents.contains(key)) << "a row of no document";
             documents[key].rows.push_back({row.integer(0), row.integer(1), cents(row, 2), cents(row, 3),
                                            cents(row, 4), cents(row, 5), cents(row, 6), cents(row, 7),
                                            cents(row, 8), cents(row, 9), row.integer(10) != 0});
         });
}

void readMoneyDocuments(Connector& db, DocImages& documents)
{
    each(db,
         std::string("SELECT ") + headColumns +
             ",account_from_id,account_to_id,is_loans,employee_id,expend_id,is_variable,is_divident,"
             "exchange_rate,converted_sum,account_from_balance,account_to_balance,manager_balance "
             "FROM money_doc",
         [&](const Statement& row) {
             DocImage& image = readHead(row, Kind::Money, documents);
             image.accountFrom = row.integer(10);
             image.accountTo = row.integer(11);
             image.loans = row.integer(12) != 0;
             image.employee = row.integer(13);
             image.expend = row.integer(14);
             image.variable = row.integer(15) != 0;
             image.divident = row.integer(16) != 0;
             image.rate = std::llround(row.real(17) * 10'000);
             image.received = cents(row, 18);
             image.accountFromBalance = cents(row, 19);
             image.accountToBalance = cents(row, 20);
             image.managerBalance = cents(row, 21);
         });
}

void readPropertyDocuments(Connector& db, DocImages& documents)
{
    each(db, std::string("SELECT ") + headColumns + ",property_id,delete_basis_id FROM property_doc",
         [&](const Statement& row) {
             DocImage& image = readHead(row, Kind::Property, documents);
             image.property = row.integer(10);
             image.basis = row.integer(11);
         });
}

void readCatalogs(Connector& db, BooksImage& books)
{
    each(db, "SELECT id,base_cost,price_cost,vat_rate,gst_rate,is_intangible FROM product",
         [&](const Statement& row) {
             books.products[row.integer(0)] = {cents(row, 1), cents(row, 2), std::llround(row.real(3) * 1000),
                                               std::llround(row.real(4) * 1000), row.integer(5) != 0};
         });
    each(db, "SELECT id,base_cost,current_cost,is_amortized,amortization_period,sold_date FROM property",
         [&](const Statement& row) {
             books.assets[row.integer(0)] = {cents(row, 1), cents(row, 2), row.integer(3) != 0,
                                             row.integer(4), row.integer(5)};
         });
}

} // namespace

BooksImage readBooks(Connector& db)
{
    BooksImage books;
    each(db, "SELECT stock_id,product_id,amount,amount_reserved FROM stock_row", [&](const Statement& row) {
        const Held held{cents(row, 2), cents(row, 3)};
        if (!books.stock.try_emplace({row.integer(0), row.integer(1)}, held).second)
            books.sameProductTwice = true;
    });
    books.accounts = balances(db, "account");
    books.contragents = balances(db, "contragent");
    books.employees = balances(db, "manager");
    readCatalogs(db, books);
    each(db, "SELECT doc_type_id,doc_number FROM doc_number",
         [&](const Statement& row) { books.numbers[static_cast<DocType>(row.integer(0))] = row.integer(1); });
    each(db, "SELECT last_period_saved FROM params",
         [&](const Statement& row) { books.lastPeriodSaved = row.integer(0); });
    return books;
}

DocImages readDocuments(Connector& db)
{
    DocImages documents;
    readProductDocuments(db, documents);
    readMoneyDocuments(db, documents);
    readPropertyDocuments(db, documents);
    return documents;
}

std::map<DocKey, std::string> readConfirmedTexts(Connector& db)
{
    static const std::pair<Kind, const char*> tables[] = {
        {Kind::Product, "product_doc"}, {Kind::Money, "money_doc"}, {Kind::Property, "property_doc"}};
    std::map<DocKey, std::string> texts;
    const auto columnsOf = [&db](const char* table) {
        std::string columns = "id";
        each(db, std::string("SELECT name FROM pragma_table_info('") + table + "')",
             [&](const Statement& row) {
                 const std::string name = row.text(0).toStdString();
                 if (name != "left_to_pay")
                     columns += "||','||quote(" + name + ")";
             });
        return columns;
    };
    for (const auto& [kind, table] : tables) {
        each(db, "SELECT id," + columnsOf(table) + " FROM " + table + " WHERE is_confirmed=1",
             [&texts, kind](const Statement& row) {
                 texts[{kind, row.integer(0)}] = row.text(1).toStdString();
             });
    }
    each(db, "SELECT doc_id," + columnsOf("product_doc_row") + " FROM product_doc_row ORDER BY id",
         [&](const Statement& row) {
             if (const auto found = texts.find({Kind::Product, row.integer(0)}); found != texts.end())
                 found->second.append("|").append(row.text(1).toStdString());
         });
    return texts;
}

std::vector<HistoryImage> readHistory(Connector& db)
{
    std::vector<HistoryImage> history;
    each(db, "SELECT date,stock_id,product_id,amount,amount_reserved FROM stock_history ORDER BY id",
         [&](const Statement& row) {
             history.push_back(
                 {row.integer(0), row.integer(1), row.integer(2), {cents(row, 3), cents(row, 4)}});
         });
    return history;
}

} // namespace zelvor::audit
