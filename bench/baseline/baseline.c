#include "baseline.h"

#include <sqlite3.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum {
    BUY_PRODUCT = 11,
    SELL_PRODUCT = 12,
    SELL_INTANGIBLES = 13,
    MONEY_FROM_CONTRAGENT = 2,
    MONEY_FROM_EMPLOYEE = 5
};

enum {
    PROBE_PRODUCT_DOC,
    PROBE_MONEY_DOC,
    PROBE_PROPERTY_DOC,
    FIND_PARAMS,
    FIND_NUMBER,
    FIND_CONTRAGENT,
    FIND_MANAGER,
    FIND_STOCK_ROW,
    FIND_PRODUCT,
    WRITE_NUMBER,
    WRITE_STOCK_ROW,
    WRITE_CONTRAGENT,
    INSERT_DOCUMENT,
    INSERT_ROW,
    BEGIN,
    COMMIT,
    ROLLBACK,
    STATEMENTS
};

static const char* const statement_texts[STATEMENTS] = {
    [PROBE_PRODUCT_DOC] = "SELECT 1 FROM product_doc WHERE date>? AND is_confirmed=1 ORDER BY date LIMIT 1",
    [PROBE_MONEY_DOC] = "SELECT 1 FROM money_doc WHERE date>? AND is_confirmed=1 ORDER BY date LIMIT 1",
    [PROBE_PROPERTY_DOC] = "SELECT 1 FROM property_doc WHERE date>? AND is_confirmed=1 ORDER BY date LIMIT 1",
    [FIND_PARAMS] = "SELECT last_period_saved, is_use_vat FROM params WHERE id=1",
    [FIND_NUMBER] = "SELECT id, doc_number FROM doc_number WHERE doc_type_id=?",
    [FIND_CONTRAGENT] = "SELECT balance, discount, deferment FROM contragent WHERE id=?",
    [FIND_MANAGER] = "SELECT name, balance FROM manager WHERE id=?",
    [FIND_STOCK_ROW] = "SELECT id, amount, amount_reserved FROM stock_row WHERE stock_id=? AND product_id=?",
    [FIND_PRODUCT] =
        "SELECT base_cost, price_cost, is_intangible, vat_rate, gst_rate FROM product WHERE id=?",
    [WRITE_NUMBER] = "UPDATE doc_number SET doc_number=? WHERE id=?",
    [WRITE_STOCK_ROW] = "UPDATE stock_row SET amount=? WHERE id=?",
    [WRITE_CONTRAGENT] = "UPDATE contragent SET balance=? WHERE id=?",
    [INSERT_DOCUMENT] =
        "INSERT INTO product_doc(doc_type_id, date, doc_number, contragent_id, doc_sum, manager_id, comment, "
        "is_confirmed,"
        " is_correction, parent_doc_id, parent_doc_type_id, pay_to_date, left_to_pay, contragent_balance,"
        " stock_from_id, stock_to_id, vat_sum, gst_sum, shipment, contragent_discount, is_with_vat, "
        "is_with_gst)"
        " VALUES(?,?,?,?,?,?,?,1,0,0,0,?,?,?,?,?,0,0,0,0,0,0)",
    [INSERT_ROW] =
        "INSERT INTO product_doc_row(doc_id, product_id, amount, base_cost, price_cost, current_price_cost,"
        " base_cost_sum, price_cost_sum, vat_rate, gst_rate, is_include_shipment)"
        " VALUES(?,?,?,?,?,?,?,?,0,0,0)",
    [BEGIN] = "BEGIN IMMEDIATE",
    [COMMIT] = "COMMIT",
    [ROLLBACK] = "ROLLBACK",
};

struct baseline {
    sqlite3* file;
    sqlite3_stmt* statements[STATEMENTS];
};

static void fail(sqlite3* file, const char* what)
{
    fprintf(stderr, "baseline: %s: %s\n", what, file ? sqlite3_errmsg(file) : "no file");
    exit(2);
}

static void run(sqlite3* file, const char* text)
{
    if (sqlite3_exec(file, text, NULL, NULL, NULL) != SQLITE_OK)
        fail(file, text);
}

static sqlite3_stmt* prepare(sqlite3* file, const char* text)
{
    sqlite3_stmt* statement = NULL;
    if (sqlite3_prepare_v2(file, text, -1, &statement, NULL) != SQLITE_OK)
        fail(file, text);
    return statement;
}

static sqlite3_stmt* kept(baseline* db, int which)
{
    if (!db->statements[which])
        db->statements[which] = prepare(db->file, statement_texts[which]);
    return db->statements[which];
}

/* Steps a statement that gives no rows. */
static void finish(baseline* db, sqlite3_stmt* statement)
{
    if (sqlite3_step(statement) != SQLITE_DONE)
        fail(db->file, sqlite3_sql(statement));
    sqlite3_reset(statement);
}

/* Steps a statement that must give a row, which can be read until its reset. */
static void want_row(baseline* db, sqlite3_stmt* statement)
{
    if (sqlite3_step(statement) != SQLITE_ROW)
        fail(db->file, sqlite3_sql(statement));
}

static double cents(double value)
{
    return rint(value * 100) / 100;
}

static unsigned next_random(unsigned* state)
{
    *state ^= *state << 13;
    *state ^= *state >> 17;
    *state ^= *state << 5;
    return *state;
}

struct sqlite3* baseline_file(baseline* db)
{
    return db->file;
}

void baseline_fail(baseline* db, const char* what)
{
    fail(db->file, what);
}

/* ---- opening */

baseline* baseline_open(const char* path)
{
    baseline* db = calloc(1, sizeof *db);
    if (!db || sqlite3_open_v2(path, &db->file, SQLITE_OPEN_READWRITE, NULL) != SQLITE_OK)
        fail(db ? db->file : NULL, path);
    run(db->file, "PRAGMA journal_mode=DELETE; PRAGMA synchronous=EXTRA; PRAGMA foreign_keys=OFF;"
                  "PRAGMA cell_size_check=ON; PRAGMA mmap_size=0; PRAGMA trusted_schema=OFF");
    sqlite3_busy_timeout(db->file, 5000);
    sqlite3_stmt* params = kept(db, FIND_PARAMS);
    want_row(db, params);
    sqlite3_reset(params);
    return db;
}

void baseline_close(baseline* db)
{
    for (int i = 0; i < STATEMENTS; ++i)
        sqlite3_finalize(db->statements[i]);
    sqlite3_close(db->file);
    free(db);
}

/* ---- the generated business */

static void fill_people(sqlite3* file)
{
    sqlite3_stmt* manager = prepare(file, "INSERT INTO manager(name, function_id, balance, is_hidden) "
                                          "VALUES(printf('Employee %02d', ?1), 0, 0, 0)");
    for (int i = 1; i <= BASELINE_MANAGERS; ++i) {
        sqlite3_bind_int(manager, 1, i);
        sqlite3_step(manager);
        sqlite3_reset(manager);
    }
    sqlite3_finalize(manager);
    run(file, "INSERT INTO contragent_group(name, parent_id, is_hidden) VALUES('Customers', 0, 0), "
              "('Suppliers', 0, 0),"
              " ('North', 1, 0), ('South', 1, 0)");
    sqlite3_stmt* contragent =
        prepare(file, "INSERT INTO contragent(name, parent_id, is_hidden, parent_contragent_id, manager_id, "
                      "discount, balance,"
                      " deferment, address, city, contact_person, phone, mail, vat_number, comment)"
                      " VALUES(printf('Counterparty %04d', ?1), ?2, 0, 0, ?3, 0, ?4, 14, printf('Street %d', "
                      "?1), 'Town', '', '', '', '', '')");
    for (int i = 1; i <= BASELINE_CONTRAGENTS; ++i) {
        sqlite3_bind_int(contragent, 1, i);
        sqlite3_bind_int(contragent, 2, i % 10 == 0 ? 2 : 3 + i % 2);
        sqlite3_bind_int(contragent, 3, i % (BASELINE_MANAGERS + 1));
        sqlite3_bind_double(contragent, 4, i % 10 == 0 ? 100.0 * i : -10.0 * i);
        sqlite3_step(contragent);
        sqlite3_reset(contragent);
    }
    sqlite3_finalize(contragent);
}

static void fill_goods(sqlite3* file)
{
    run(file,
        "INSERT INTO measurement(name, shorthand, is_hidden) VALUES('Piece', 'pcs', 0), ('Box', 'box', 0)");
    run(file, "INSERT INTO stock(name, address, manager_id, is_default, is_hidden)"
              " VALUES('Main', '', 1, 1, 0), ('North', '', 2, 0, 0), ('South', '', 3, 0, 0)");
    run(file, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<20)"
              " INSERT INTO product_group(name, parent_id, description_string, image_name, is_hidden)"
              " SELECT printf('Group %02d', i), CASE WHEN i>10 THEN i-10 ELSE 0 END, '', '', 0 FROM n");
    sqlite3_stmt* product =
        prepare(file, "INSERT INTO product(name, group_id, description_string, image_name, is_hidden, "
                      "measurement_id, pack_id,"
                      " is_intangible, pack_amount, base_cost, price_cost, vat_rate, gst_rate)"
                      " VALUES(printf('Product %05d', ?1), ?2, '', '', 0, 1, 2, 0, 12, ?3, ?4, 0, 0)");
    sqlite3_stmt* stock_row = prepare(
        file,
        "INSERT INTO stock_row(stock_id, product_id, amount, amount_reserved) VALUES(?, ?, 1000000, 0)");
    for (int i = 1; i <= BASELINE_PRODUCTS; ++i) {
        sqlite3_bind_int(product, 1, i);
        sqlite3_bind_int(product, 2, 1 + i % 20);
        sqlite3_bind_double(product, 3, cents(1 + i * 0.07));
        sqlite3_bind_double(product, 4, cents(1.5 + i * 0.11));
        sqlite3_step(product);
        sqlite3_reset(product);
        for (int stock = 1; stock <= BASELINE_STOCKS; ++stock) {
            sqlite3_bind_int(stock_row, 1, stock);
            sqlite3_bind_int(stock_row, 2, i);
            sqlite3_step(stock_row);
            sqlite3_reset(stock_row);
        }
    }
    sqlite3_finalize(product);
    sqlite3_finalize(stock_row);
}

static void fill_money(sqlite3* file)
{
    run(file, "UPDATE params SET default_currency=1, last_period_saved=20269, company_name='The generated "
              "business'");
    run(file, "INSERT INTO account_type(name, description_string, is_hidden) VALUES('Bank', '', 0)");
    run(file, "INSERT INTO account(name, account_type_id, currency_id, balance, is_default, is_hidden)"
              " VALUES('Bank', 1, 1, 1000000, 1, 0), ('Dollars', 1, 2, 5000, 0, 0)");
    run(file, "INSERT INTO property(name, date, base_cost, current_cost, is_amortized, amortization_period,"
              " description_string, sold_date) VALUES('Van', 1727740800, 24000, 12000, 1, 48, '', 0)");
}

typedef struct {
    int product;
    double amount, base, price;
} fill_row;

static double fill_rows(fill_row rows[BASELINE_ROWS_PER_DOCUMENT], unsigned* state)
{
    double sum = 0;
    for (int i = 0; i < BASELINE_ROWS_PER_DOCUMENT; ++i) {
        rows[i].product = 1 + (int)(next_random(state) % BASELINE_PRODUCTS);
        rows[i].amount = 1 + next_random(state) % 12;
        rows[i].base = cents(1 + rows[i].product * 0.07);
        rows[i].price = cents(1.5 + rows[i].product * 0.11);
        sum += cents(rows[i].amount * rows[i].price);
    }
    return cents(sum);
}

static void insert_rows(baseline* db, sqlite3_int64 document, const fill_row rows[BASELINE_ROWS_PER_DOCUMENT])
{
    sqlite3_stmt* insert = kept(db, INSERT_ROW);
    for (int i = 0; i < BASELINE_ROWS_PER_DOCUMENT; ++i) {
        sqlite3_bind_int64(insert, 1, document);
        sqlite3_bind_int(insert, 2, rows[i].product);
        sqlite3_bind_double(insert, 3, rows[i].amount);
        sqlite3_bind_double(insert, 4, rows[i].base);
        sqlite3_bind_double(insert, 5, rows[i].price);
        sqlite3_bind_double(insert, 6, rows[i].price);
        sqlite3_bind_double(insert, 7, cents(rows[i].amount * rows[i].base));
        sqlite3_bind_double(insert, 8, cents(rows[i].amount * rows[i].price));
        finish(db, insert);
    }
}

static void insert_document(baseline* db, int type, sqlite3_int64 date, sqlite3_int64 number, int contragent,
                            int manager, int stock, double sum, double left, double balance,
                            const char* comment)
{
    sqlite3_stmt* insert = kept(db, INSERT_DOCUMENT);
    sqlite3_bind_int(insert, 1, type);
    sqlite3_bind_int64(insert, 2, date);
    sqlite3_bind_int64(insert, 3, number);
    sqlite3_bind_int(insert, 4, contragent);
    sqlite3_bind_double(insert, 5, sum);
    sqlite3_bind_int(insert, 6, manager);
    sqlite3_bind_text(insert, 7, comment, -1, SQLITE_STATIC);
    sqlite3_bind_int64(insert, 8, date + 14 * 86400);
    sqlite3_bind_double(insert, 9, left);
    sqlite3_bind_double(insert, 10, balance);
    sqlite3_bind_int(insert, 11, type == SELL_PRODUCT ? stock : 0);
    sqlite3_bind_int(insert, 12, type == SELL_PRODUCT ? 0 : stock);
    finish(db, insert);
}

static void fill_documents(baseline* db, long documents)
{
    unsigned state = 2463534242u;
    long numbers[2] = {0, 0};
    for (long i = 0; i < documents; ++i) {
        fill_row rows[BASELINE_ROWS_PER_DOCUMENT];
        double sum = fill_rows(rows, &state);
        int buys = next_random(&state) % 8 == 0;
        int contragent = 1 + (int)(next_random(&state) % BASELINE_CONTRAGENTS);
        sqlite3_int64 date = BASELINE_START + 1 + (BASELINE_END - BASELINE_START - 2) * i / documents;
        /* Debts are open at the end of the two years only, a fixed number of them. */
        double left = documents - i <= 200 ? sum : 0;
        insert_document(db, buys ? BUY_PRODUCT : SELL_PRODUCT, date, ++numbers[buys], contragent,
                        1 + contragent % BASELINE_MANAGERS, 1 + (int)(next_random(&state) % BASELINE_STOCKS),
                        sum, left, 0, i % 5 == 0 ? "By telephone" : "");
        insert_rows(db, sqlite3_last_insert_rowid(db->file), rows);
    }
    char text[128];
    snprintf(text, sizeof text, "UPDATE doc_number SET doc_number=%ld WHERE doc_type_id=%d", numbers[0],
             SELL_PRODUCT);
    run(db->file, text);
    snprintf(text, sizeof text, "UPDATE doc_number SET doc_number=%ld WHERE doc_type_id=%d", numbers[1],
             BUY_PRODUCT);
    run(db->file, text);
}

static void fill_receipts(baseline* db, long receipts)
{
    sqlite3_stmt* insert = prepare(
        db->file,
        "INSERT INTO money_doc(doc_type_id, date, doc_number, contragent_id, doc_sum, manager_id, comment, "
        "is_confirmed,"
        " is_correction, parent_doc_id, parent_doc_type_id, pay_to_date, left_to_pay, contragent_balance,"
        " account_from_id, account_to_id, is_loans, employee_id, expend_id, is_variable, is_divident, "
        "exchange_rate,"
        " converted_sum, account_from_balance, account_to_balance, manager_balance)"
        " VALUES(?,?,?,?,?,0,'',1,0,0,0,?,0,0,0,1,0,0,0,0,0,1,0,0,0,0)");
    for (long i = 0; i < receipts; ++i) {
        sqlite3_int64 date = BASELINE_START + 2 + (BASELINE_END - BASELINE_START - 4) * i / receipts;
        sqlite3_bind_int(insert, 1, MONEY_FROM_CONTRAGENT);
        sqlite3_bind_int64(insert, 2, date);
        sqlite3_bind_int64(insert, 3, i + 1);
        sqlite3_bind_int(insert, 4, 1 + (int)(i % BASELINE_CONTRAGENTS));
        sqlite3_bind_double(insert, 5, (double)(100 + i % 900));
        sqlite3_bind_int64(insert, 6, date);
        finish(db, insert);
    }
    sqlite3_finalize(insert);
}

/* Half as many spendings as receipts. */
static void fill_spendings(baseline* db, long spendings)
{
    run(db->file, "INSERT INTO expend_type(name, parent_id) VALUES('House', 0), ('People', 0), ('Goods', 0)");
    run(db->file, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<12)"
                  " INSERT INTO expend(name, parent_id, description_string, is_constant, is_hidden)"
                  " SELECT printf('Spending %02d', i), i%4, '', i%2, 0 FROM n");
    sqlite3_stmt* insert = prepare(
        db->file,
        "INSERT INTO money_doc(doc_type_id, date, doc_number, contragent_id, doc_sum, manager_id, comment, "
        "is_confirmed, is_correction, parent_doc_id, parent_doc_type_id, pay_to_date, left_to_pay, "
        "contragent_balance, account_from_id, account_to_id, is_loans, employee_id, expend_id, is_variable, "
        "is_divident, exchange_rate, converted_sum, account_from_balance, account_to_balance, "
        "manager_balance)"
        " VALUES(4,?,?,0,?,0,'By card',1,0,0,0,?,0,0,1,0,0,0,?,?,0,1,0,0,0,0)");
    for (long i = 0; i < spendings; ++i) {
        sqlite3_int64 date = BASELINE_START + 3 + (BASELINE_END - BASELINE_START - 6) * i / spendings;
        sqlite3_bind_int64(insert, 1, date);
        sqlite3_bind_int64(insert, 2, i + 1);
        sqlite3_bind_double(insert, 3, (double)(10 + i % 300));
        sqlite3_bind_int64(insert, 4, date);
        sqlite3_bind_int(insert, 5, 1 + (int)(i % BASELINE_EXPENDS));
        sqlite3_bind_int(insert, 6, (int)(i % 2));
        finish(db, insert);
    }
    sqlite3_finalize(insert);
}

/* The stock as it was when August was closed, and one counterparty, one account and one employee whose few
 * documents do not grow with the business. */
static void fill_report_subjects(baseline* db)
{
    char text[256];
    snprintf(text, sizeof text,
             "INSERT INTO stock_history(date, stock_id, product_id, amount, amount_reserved)"
             " SELECT %lld, stock_id, product_id, amount, amount_reserved FROM stock_row",
             BASELINE_MONTH_END);
    run(db->file, text);
    run(db->file,
        "INSERT INTO contragent(name, parent_id, is_hidden, parent_contragent_id, manager_id, discount, "
        "balance, deferment, address, city, contact_person, phone, mail, vat_number, comment)"
        " VALUES('Quiet customer', 1, 0, 0, 0, 0, 0, 14, '', '', '', '', '', '', '')");
    sqlite3_int64 quiet = sqlite3_last_insert_rowid(db->file);
    sqlite3_stmt* paid = prepare(
        db->file,
        "INSERT INTO money_doc(doc_type_id, date, doc_number, contragent_id, doc_sum, manager_id, comment, "
        "is_confirmed, is_correction, parent_doc_id, parent_doc_type_id, pay_to_date, left_to_pay, "
        "contragent_balance, account_from_id, account_to_id, is_loans, employee_id, expend_id, is_variable, "
        "is_divident, exchange_rate, converted_sum, account_from_balance, account_to_balance, "
        "manager_balance)"
        " VALUES(?,?,?,?,25,0,'',1,0,0,0,0,0,0,0,2,0,?,0,0,0,1,0,0,0,0)");
    for (int i = 0; i < BASELINE_STATEMENT_DOCUMENTS; ++i) {
        const int from_employee = i % 2;
        sqlite3_bind_int(paid, 1, from_employee ? MONEY_FROM_EMPLOYEE : MONEY_FROM_CONTRAGENT);
        sqlite3_bind_int64(paid, 2, BASELINE_START + 7 + (BASELINE_END - BASELINE_START - 8) / 60 * i);
        sqlite3_bind_int(paid, 3, 1000000 + i);
        sqlite3_bind_int64(paid, 4, from_employee ? 0 : quiet);
        sqlite3_bind_int(paid, 5, from_employee ? 1 : 0);
        finish(db, paid);
    }
    sqlite3_finalize(paid);
}

void baseline_fill(const char* path, long documents)
{
    baseline* db = baseline_open(path);
    run(db->file, "PRAGMA synchronous=OFF");
    run(db->file, "BEGIN IMMEDIATE");
    fill_people(db->file);
    fill_goods(db->file);
    fill_money(db->file);
    fill_documents(db, documents);
    fill_receipts(db, documents / 10);
    fill_spendings(db, documents / 20);
    fill_report_subjects(db);
    run(db->file, "COMMIT");
    baseline_close(db);
}

/* ---- the balance sheet */

static void add_lines(baseline* db, const char* text, int stays_debet, baseline_balance_sheet* sheet)
{
    sqlite3_stmt* statement = prepare(db->file, text);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        double value = cents(sqlite3_column_double(statement, 1));
        if (value >= 0 || stays_debet)
            sheet->debet += value;
        else
            sheet->credit -= value;
    }
    sqlite3_finalize(statement);
}

/* The goods of all warehouses: costs into an array, then each stock row once. */
static void add_goods(baseline* db, baseline_balance_sheet* sheet)
{
    double* costs = calloc(BASELINE_PRODUCTS + 1, sizeof *costs);
    sqlite3_stmt* products = prepare(db->file, "SELECT id, base_cost FROM product");
    while (sqlite3_step(products) == SQLITE_ROW)
        costs[sqlite3_column_int64(products, 0)] = sqlite3_column_double(products, 1);
    sqlite3_finalize(products);
    double goods[BASELINE_STOCKS + 1] = {0};
    sqlite3_stmt* rows =
        prepare(db->file, "SELECT stock_id, product_id, amount, amount_reserved FROM stock_row NOT INDEXED");
    while (sqlite3_step(rows) == SQLITE_ROW)
        goods[sqlite3_column_int64(rows, 0)] +=
            cents((sqlite3_column_double(rows, 2) + sqlite3_column_double(rows, 3)) *
                  costs[sqlite3_column_int64(rows, 1)]);
    sqlite3_finalize(rows);
    sqlite3_stmt* stocks = prepare(db->file, "SELECT name, id FROM stock WHERE is_hidden=0");
    while (sqlite3_step(stocks) == SQLITE_ROW)
        sheet->debet += goods[sqlite3_column_int64(stocks, 1)];
    sqlite3_finalize(stocks);
    free(costs);
}

baseline_balance_sheet baseline_balance(baseline* db)
{
    baseline_balance_sheet sheet = {0, 0};
    run(db->file, "BEGIN");
    add_lines(db,
              "SELECT a.name, a.balance/c.rate FROM account a LEFT JOIN currency c ON c.id=a.currency_id"
              " WHERE a.is_hidden=0",
              1, &sheet);
    add_goods(db, &sheet);
    add_lines(db, "SELECT name, current_cost FROM property WHERE sold_date=0 AND current_cost>0", 1, &sheet);
    add_lines(db, "SELECT name, -balance FROM contragent WHERE is_hidden=0 AND (balance>0 OR balance<0)", 0,
              &sheet);
    add_lines(db, "SELECT name, -balance FROM manager WHERE is_hidden=0 AND (balance>0 OR balance<0)", 0,
              &sheet);
    run(db->file, "COMMIT");
    return sheet;
}

/* ---- sales */

baseline_sales baseline_sales_by_sql(baseline* db, long long from, long long to)
{
    sqlite3_stmt* statement = prepare(
        db->file,
        "SELECT product_doc_row.product_id, product.name, measurement.shorthand, product.group_id, "
        "product.pack_amount,"
        " sum(product_doc_row.amount), sum(product_doc_row.base_cost_sum), "
        "sum(product_doc_row.price_cost_sum)"
        " FROM product_doc_row LEFT JOIN product ON product_doc_row.product_id=product.id"
        " LEFT JOIN measurement ON product.measurement_id=measurement.id"
        " WHERE product_doc_row.doc_id IN (SELECT id FROM product_doc WHERE (doc_type_id=? OR doc_type_id=?)"
        " AND date>? AND date<? AND is_confirmed=1) GROUP BY product_doc_row.product_id");
    sqlite3_bind_int(statement, 1, SELL_INTANGIBLES);
    sqlite3_bind_int(statement, 2, SELL_PRODUCT);
    sqlite3_bind_int64(statement, 3, from);
    sqlite3_bind_int64(statement, 4, to);
    baseline_sales sales = {0, 0, 0, 0};
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++sales.products;
        sales.amount += sqlite3_column_double(statement, 5);
        sales.base_sum += sqlite3_column_double(statement, 6);
        sales.price_sum += sqlite3_column_double(statement, 7);
    }
    sqlite3_finalize(statement);
    return sales;
}

typedef struct {
    double amount, base, price;
    int sold;
} product_sum;

static void take_row(product_sum* sums, sqlite3_stmt* row, int column)
{
    sqlite3_int64 product = sqlite3_column_int64(row, column);
    if (product < 1 || product > BASELINE_PRODUCTS)
        return;
    product_sum* sum = &sums[product];
    sum->amount += sqlite3_column_double(row, column + 1);
    sum->base += sqlite3_column_double(row, column + 2);
    sum->price += sqlite3_column_double(row, column + 3);
    sum->sold = 1;
}

static sqlite3_stmt* heads_between(baseline* db, const char* text, long long from, long long to)
{
    sqlite3_stmt* heads = prepare(db->file, text);
    sqlite3_bind_int64(heads, 1, from);
    sqlite3_bind_int64(heads, 2, to);
    return heads;
}

#define WHERE_SOLD                                                                                           \
    " WHERE d.date>? AND d.date<? AND (d.doc_type_id=12 OR d.doc_type_id=13) AND d.is_confirmed=1"

/* A small share of the heads: their rows by the index on the document. */
static void sum_by_index(baseline* db, long long from, long long to, product_sum* sums)
{
    sqlite3_stmt* rows =
        heads_between(db,
                      "SELECT r.product_id, r.amount, r.base_cost_sum, r.price_cost_sum FROM product_doc d"
                      " JOIN product_doc_row r ON r.doc_id=d.id" WHERE_SOLD,
                      from, to);
    while (sqlite3_step(rows) == SQLITE_ROW)
        take_row(sums, rows, 0);
    sqlite3_finalize(rows);
}

/* A large one: the heads into a bit field, then all rows once. */
static void sum_by_scan(baseline* db, long long from, long long to, long long last, product_sum* sums)
{
    unsigned char* wanted = calloc((size_t)last / 8 + 1, 1);
    sqlite3_stmt* heads =
        heads_between(db, "SELECT d.id FROM product_doc d NOT INDEXED" WHERE_SOLD, from, to);
    while (sqlite3_step(heads) == SQLITE_ROW) {
        sqlite3_int64 id = sqlite3_column_int64(heads, 0);
        wanted[id / 8] |= (unsigned char)(1 << id % 8);
    }
    sqlite3_finalize(heads);
    sqlite3_stmt* rows = prepare(
        db->file,
        "SELECT doc_id, product_id, amount, base_cost_sum, price_cost_sum FROM product_doc_row NOT INDEXED");
    while (sqlite3_step(rows) == SQLITE_ROW) {
        sqlite3_int64 id = sqlite3_column_int64(rows, 0);
        if (id > 0 && id <= last && wanted[id / 8] & 1 << id % 8)
            take_row(sums, rows, 1);
    }
    sqlite3_finalize(rows);
    free(wanted);
}

static long long number_of(baseline* db, const char* text, long long from, long long to)
{
    sqlite3_stmt* statement = prepare(db->file, text);
    if (sqlite3_bind_parameter_count(statement) == 2) {
        sqlite3_bind_int64(statement, 1, from);
        sqlite3_bind_int64(statement, 2, to);
    }
    want_row(db, statement);
    long long value = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return value;
}

baseline_sales baseline_sales_summed(baseline* db, long long from, long long to)
{
    product_sum* sums = calloc(BASELINE_PRODUCTS + 1, sizeof *sums);
    run(db->file, "BEGIN");
    long long last = number_of(db, "SELECT max(id) FROM product_doc", 0, 0);
    long long heads = number_of(db, "SELECT count(*) FROM product_doc WHERE date>? AND date<?", from, to);
    if (heads * 8 < last)
        sum_by_index(db, from, to, sums);
    else
        sum_by_scan(db, from, to, last, sums);

    baseline_sales sales = {0, 0, 0, 0};
    sqlite3_stmt* products =
        prepare(db->file, "SELECT p.id, p.name, m.shorthand, p.group_id, p.pack_amount FROM product p"
                          " LEFT JOIN measurement m ON m.id=p.measurement_id");
    while (sqlite3_step(products) == SQLITE_ROW) {
        const product_sum* sum = &sums[sqlite3_column_int64(products, 0)];
        if (!sum->sold)
            continue;
        ++sales.products;
        sales.amount += sum->amount;
        sales.base_sum += sum->base;
        sales.price_sum += sum->price;
    }
    sqlite3_finalize(products);
    run(db->file, "COMMIT");
    free(sums);
    return sales;
}

baseline_sales baseline_sales_by_owner(baseline* db, long long from, long long to, int by_manager)
{
    sqlite3_stmt* statement = heads_between(
        db,
        by_manager
            ? "SELECT c.manager_id, r.product_id, sum(r.amount), sum(r.base_cost_sum), sum(r.price_cost_sum)"
              " FROM product_doc d JOIN product_doc_row r ON r.doc_id=d.id JOIN contragent c ON "
              "c.id=d.contragent_id" WHERE_SOLD " GROUP BY c.manager_id, r.product_id"
            : "SELECT d.contragent_id, r.product_id, sum(r.amount), sum(r.base_cost_sum), "
              "sum(r.price_cost_sum)"
              " FROM product_doc d JOIN product_doc_row r ON r.doc_id=d.id" WHERE_SOLD
              " GROUP BY d.contragent_id, r.product_id",
        from, to);
    baseline_sales sales = {0, 0, 0, 0};
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++sales.products;
        sales.amount += sqlite3_column_double(statement, 2);
        sales.base_sum += sqlite3_column_double(statement, 3);
        sales.price_sum += sqlite3_column_double(statement, 4);
    }
    sqlite3_finalize(statement);
    return sales;
}

/* ---- heads */

typedef struct {
    sqlite3_int64 id, type, date, number, contragent, manager, parent, parent_type, pay_to, stock_from,
        stock_to;
    double sum, left, balance, vat, gst, shipment, discount;
    int confirmed, correction, with_vat, with_gst;
    char* comment;
} head;

static void read_head(sqlite3_stmt* row, head* to)
{
    sqlite3_int64* const integers[] = {&to->id,         &to->type,       &to->date,    &to->number,
                                       &to->contragent, &to->manager,    &to->parent,  &to->parent_type,
                                       &to->pay_to,     &to->stock_from, &to->stock_to};
    double* const reals[] = {&to->sum, &to->left,     &to->balance, &to->vat,
                             &to->gst, &to->shipment, &to->discount};
    int* const flags[] = {&to->confirmed, &to->correction, &to->with_vat, &to->with_gst};
    int column = 0;
    for (size_t i = 0; i < sizeof integers / sizeof *integers; ++i)
        *integers[i] = sqlite3_column_int64(row, column++);
    for (size_t i = 0; i < sizeof reals / sizeof *reals; ++i)
        *reals[i] = sqlite3_column_double(row, column++);
    for (size_t i = 0; i < sizeof flags / sizeof *flags; ++i)
        *flags[i] = sqlite3_column_int(row, column++);
    to->comment = strdup((const char*)sqlite3_column_text(row, column));
}

size_t baseline_heads(baseline* db)
{
    sqlite3_stmt* statement = prepare(
        db->file,
        "SELECT id, doc_type_id, date, doc_number, contragent_id, manager_id, parent_doc_id, "
        "parent_doc_type_id,"
        " pay_to_date, stock_from_id, stock_to_id, doc_sum, left_to_pay, contragent_balance, vat_sum, "
        "gst_sum,"
        " shipment, contragent_discount, is_confirmed, is_correction, is_with_vat, is_with_gst, comment"
        " FROM product_doc");
    size_t count = 0, room = 0;
    head* heads = NULL;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        if (count == room) {
            room = room ? room * 2 : 1024;
            heads = realloc(heads, room * sizeof *heads);
            if (!heads)
                fail(NULL, "memory");
        }
        read_head(statement, &heads[count++]);
    }
    sqlite3_finalize(statement);
    for (size_t i = 0; i < count; ++i)
        free(heads[i].comment);
    free(heads);
    return count;
}

/* ---- a confirmed sale */

void baseline_begin(baseline* db)
{
    finish(db, kept(db, BEGIN));
}

void baseline_commit(baseline* db)
{
    finish(db, kept(db, COMMIT));
}

void baseline_rollback(baseline* db)
{
    finish(db, kept(db, ROLLBACK));
}

void baseline_insert(baseline* db, long long moment, unsigned seed)
{
    unsigned state = seed * 2654435761u + 1;
    fill_row rows[BASELINE_ROWS_PER_DOCUMENT];
    double sum = fill_rows(rows, &state);
    insert_document(db, SELL_PRODUCT, moment, 0, 1, 1, 1, sum, 0, 0, "");
    insert_rows(db, sqlite3_last_insert_rowid(db->file), rows);
}

static void check_date(baseline* db, long long moment)
{
    static const int probes[] = {PROBE_PRODUCT_DOC, PROBE_MONEY_DOC, PROBE_PROPERTY_DOC};
    for (size_t i = 0; i < sizeof probes / sizeof *probes; ++i) {
        sqlite3_stmt* probe = kept(db, probes[i]);
        sqlite3_bind_int64(probe, 1, moment);
        if (sqlite3_step(probe) == SQLITE_ROW)
            fail(db->file, "a later document");
        sqlite3_reset(probe);
    }
    sqlite3_stmt* params = kept(db, FIND_PARAMS);
    want_row(db, params);
    sqlite3_reset(params);
}

static sqlite3_int64 draw_number(baseline* db)
{
    sqlite3_stmt* find = kept(db, FIND_NUMBER);
    sqlite3_bind_int(find, 1, SELL_PRODUCT);
    want_row(db, find);
    sqlite3_int64 id = sqlite3_column_int64(find, 0);
    sqlite3_int64 number = sqlite3_column_int64(find, 1) + 1;
    sqlite3_reset(find);
    sqlite3_stmt* write = kept(db, WRITE_NUMBER);
    sqlite3_bind_int64(write, 1, number);
    sqlite3_bind_int64(write, 2, id);
    finish(db, write);
    return number;
}

static void take_from_stock(baseline* db, int stock, const fill_row* row)
{
    sqlite3_stmt* product = kept(db, FIND_PRODUCT);
    sqlite3_bind_int(product, 1, row->product);
    want_row(db, product);
    sqlite3_reset(product);
    sqlite3_stmt* find = kept(db, FIND_STOCK_ROW);
    sqlite3_bind_int(find, 1, stock);
    sqlite3_bind_int(find, 2, row->product);
    want_row(db, find);
    sqlite3_int64 id = sqlite3_column_int64(find, 0);
    double amount = sqlite3_column_double(find, 1);
    sqlite3_reset(find);
    if (amount < row->amount)
        fail(db->file, "not enough on stock");
    sqlite3_stmt* write = kept(db, WRITE_STOCK_ROW);
    sqlite3_bind_double(write, 1, cents(amount - row->amount));
    sqlite3_bind_int64(write, 2, id);
    finish(db, write);
}

static double take_from_balance(baseline* db, int contragent, double sum)
{
    sqlite3_stmt* find = kept(db, FIND_CONTRAGENT);
    sqlite3_bind_int(find, 1, contragent);
    want_row(db, find);
    double balance = sqlite3_column_double(find, 0);
    sqlite3_reset(find);
    sqlite3_stmt* write = kept(db, WRITE_CONTRAGENT);
    sqlite3_bind_double(write, 1, cents(balance - sum));
    sqlite3_bind_int(write, 2, contragent);
    finish(db, write);
    return balance;
}

void baseline_sale(baseline* db, long long moment, unsigned seed)
{
    unsigned state = seed * 2654435761u + 1;
    fill_row rows[BASELINE_ROWS_PER_DOCUMENT];
    double sum = fill_rows(rows, &state);
    /* Every tenth counterparty is a supplier with credit; a sale is to one of the others. */
    int contragent = 1 + (int)(next_random(&state) % (BASELINE_CONTRAGENTS / 10)) * 10;
    int stock = 1 + (int)(next_random(&state) % BASELINE_STOCKS);
    check_date(db, moment);
    sqlite3_int64 number = draw_number(db);
    for (int i = 0; i < BASELINE_ROWS_PER_DOCUMENT; ++i)
        take_from_stock(db, stock, &rows[i]);
    double balance = take_from_balance(db, contragent, sum);
    sqlite3_stmt* manager = kept(db, FIND_MANAGER);
    sqlite3_bind_int(manager, 1, 1);
    want_row(db, manager);
    sqlite3_reset(manager);
    insert_document(db, SELL_PRODUCT, moment, number, contragent, 1, stock, sum, sum, balance, "");
    insert_rows(db, sqlite3_last_insert_rowid(db->file), rows);
}
