/* The reports beside the period sell report: heads by the index on their date, sums in arrays. */
#include "baseline.h"

#include <sqlite3.h>

#include <math.h>
#include <stdlib.h>
#include <string.h>

enum { MONEY_TO_EXPEND = 4, MONEY_FROM_CONTRAGENT = 2 };

static sqlite3_stmt* prepare(baseline* db, const char* text, long long from, long long to)
{
    sqlite3_stmt* statement = NULL;
    if (sqlite3_prepare_v2(baseline_file(db), text, -1, &statement, NULL) != SQLITE_OK)
        baseline_fail(db, text);
    if (sqlite3_bind_parameter_count(statement) >= 2) {
        sqlite3_bind_int64(statement, 1, from);
        sqlite3_bind_int64(statement, 2, to);
    }
    return statement;
}

/* A sum of money in whole cents, as it is stored. */
static long long cents_of(sqlite3_stmt* row, int column)
{
    return llrint(sqlite3_column_double(row, column) * 100);
}

/* ---- what each counterparty owed and owes */

typedef struct {
    long long first_date, start, debit, credit;
} party;

enum { PARTIES = BASELINE_CONTRAGENTS + 1 + BASELINE_STATEMENTS };

static void add_documents(baseline* db, const char* text, long long from, long long to, party* parties)
{
    sqlite3_stmt* heads = prepare(db, text, from, to);
    while (sqlite3_step(heads) == SQLITE_ROW) {
        long long id = sqlite3_column_int64(heads, 0), date = sqlite3_column_int64(heads, 1);
        if (id < 1 || id >= PARTIES)
            continue;
        party* one = &parties[id];
        if (!one->first_date || date < one->first_date) {
            one->first_date = date;
            one->start = cents_of(heads, 3);
        }
        int type = sqlite3_column_int(heads, 2);
        if (type == MONEY_FROM_CONTRAGENT || type == 11 || type == 20 || type == 17)
            one->credit += cents_of(heads, 4);
        else
            one->debit += cents_of(heads, 4);
    }
    sqlite3_finalize(heads);
}

baseline_saldo baseline_contragents(baseline* db, long long from, long long to)
{
    party* parties = calloc(PARTIES, sizeof *parties);
#define HEADS_OF(table)                                                                                      \
    "SELECT contragent_id, date, doc_type_id, contragent_balance, doc_sum FROM " table                       \
    " WHERE date>? AND date<=? AND is_confirmed=1"
    add_documents(db, HEADS_OF("product_doc"), from, to, parties);
    add_documents(db, HEADS_OF("property_doc"), from, to, parties);
    add_documents(db, HEADS_OF("money_doc"), from, to, parties);
    baseline_saldo saldo = {0, 0, 0, 0};
    sqlite3_stmt* names = prepare(
        db, "SELECT id, balance, name, parent_id, parent_contragent_id FROM contragent ORDER BY name", 0, 0);
    while (sqlite3_step(names) == SQLITE_ROW) {
        party* one = &parties[sqlite3_column_int64(names, 0)];
        long long start = one->first_date ? one->start : cents_of(names, 1);
        ++saldo.rows;
        saldo.start += (double)start / 100;
        saldo.debit += (double)one->debit / 100;
        saldo.credit += (double)one->credit / 100;
    }
    sqlite3_finalize(names);
    free(parties);
    return saldo;
}

/* ---- a statement */

baseline_saldo baseline_statement(baseline* db, const char* sql, long long from, long long to, long long id)
{
    baseline_saldo saldo = {0, 0, 0, 0};
    sqlite3_stmt* documents = prepare(db, sql, from, to);
    sqlite3_bind_int64(documents, 3, id);
    while (sqlite3_step(documents) == SQLITE_ROW) {
        ++saldo.rows;
        saldo.debit += sqlite3_column_double(documents, 1);
    }
    sqlite3_finalize(documents);
    return saldo;
}

/* ---- spendings */

double baseline_expends(baseline* db, long long from, long long to)
{
    typedef struct {
        long long id, date, sum;
        char* comment;
    } line;
    size_t count = 0, room = 0;
    line* lines = NULL;
    long long items[BASELINE_EXPENDS + 1][2] = {{0}};
    sqlite3_stmt* documents =
        prepare(db,
                "SELECT id, date, doc_sum, expend_id, is_variable, comment FROM money_doc"
                " WHERE date>? AND date<=? AND is_confirmed=1 AND doc_type_id=4 ORDER BY date",
                from, to);
    while (sqlite3_step(documents) == SQLITE_ROW) {
        if (count == room) {
            room = room ? room * 2 : 1024;
            lines = realloc(lines, room * sizeof *lines);
        }
        long long sum = cents_of(documents, 2);
        lines[count].id = sqlite3_column_int64(documents, 0);
        lines[count].date = sqlite3_column_int64(documents, 1);
        lines[count].sum = sum;
        lines[count++].comment = strdup((const char*)sqlite3_column_text(documents, 5));
        items[sqlite3_column_int64(documents, 3)][sqlite3_column_int(documents, 4)] += sum;
    }
    sqlite3_finalize(documents);
    double total = 0;
    for (size_t i = 0; i <= BASELINE_EXPENDS; ++i)
        total += (double)(items[i][0] + items[i][1]) / 100;
    for (size_t i = 0; i < count; ++i)
        free(lines[i].comment);
    free(lines);
    return total;
}

/* ---- goods on a past day */

baseline_goods baseline_products_on_stock(baseline* db, long long period_start, long long moment)
{
    typedef double held[BASELINE_STOCKS + 1];
    held* amounts = calloc(BASELINE_PRODUCTS + 1, sizeof *amounts);
    sqlite3_stmt* history = prepare(
        db, "SELECT product_id, stock_id, amount+amount_reserved FROM stock_history WHERE date=? AND ?=0", 0,
        0);
    sqlite3_bind_int64(history, 1, period_start);
    sqlite3_bind_int64(history, 2, 0);
    while (sqlite3_step(history) == SQLITE_ROW)
        amounts[sqlite3_column_int64(history, 0)][sqlite3_column_int64(history, 1)] +=
            sqlite3_column_double(history, 2);
    sqlite3_finalize(history);
    sqlite3_stmt* rows =
        prepare(db,
                "SELECT r.product_id, r.amount, d.stock_from_id, d.stock_to_id FROM product_doc d"
                " JOIN product_doc_row r ON r.doc_id=d.id WHERE d.date>? AND d.date<? AND"
                " d.is_confirmed=1",
                period_start, moment);
    while (sqlite3_step(rows) == SQLITE_ROW) {
        double* of_product = amounts[sqlite3_column_int64(rows, 0)];
        double amount = sqlite3_column_double(rows, 1);
        of_product[sqlite3_column_int64(rows, 2)] -= amount;
        of_product[sqlite3_column_int64(rows, 3)] += amount;
    }
    sqlite3_finalize(rows);
    baseline_goods goods = {0, 0, 0};
    sqlite3_stmt* products =
        prepare(db, "SELECT id, base_cost, name, group_id FROM product ORDER BY name", 0, 0);
    while (sqlite3_step(products) == SQLITE_ROW) {
        const double* of_product = amounts[sqlite3_column_int64(products, 0)];
        ++goods.products;
        for (int stock = 1; stock <= BASELINE_STOCKS; ++stock) {
            goods.amount += of_product[stock];
            goods.sum += rint(of_product[stock] * sqlite3_column_double(products, 1) * 100) / 100;
        }
    }
    sqlite3_finalize(products);
    free(amounts);
    return goods;
}

/* ---- month by month */

static int month_at(const long long* starts, int count, long long date)
{
    int month = 0;
    while (month + 1 < count && starts[month + 1] <= date)
        ++month;
    return month;
}

void baseline_dynamics(baseline* db, const long long* starts, int months, double sums[][4])
{
    long long from = starts[0], to = starts[months];
    long long last = 0;
    sqlite3_stmt* newest = prepare(db, "SELECT max(id) FROM product_doc", 0, 0);
    if (sqlite3_step(newest) == SQLITE_ROW)
        last = sqlite3_column_int64(newest, 0);
    sqlite3_finalize(newest);
    unsigned char* month_of = calloc((size_t)last + 1, 1);
    sqlite3_stmt* heads = prepare(db,
                                  "SELECT id, date FROM product_doc WHERE date>=? AND date<? AND"
                                  " (doc_type_id=12 OR doc_type_id=13) AND is_confirmed=1",
                                  from, to);
    while (sqlite3_step(heads) == SQLITE_ROW)
        month_of[sqlite3_column_int64(heads, 0)] =
            (unsigned char)(1 + month_at(starts, months, sqlite3_column_int64(heads, 1)));
    sqlite3_finalize(heads);
    sqlite3_stmt* rows =
        prepare(db, "SELECT doc_id, price_cost_sum, base_cost_sum FROM product_doc_row", 0, 0);
    while (sqlite3_step(rows) == SQLITE_ROW) {
        int month = month_of[sqlite3_column_int64(rows, 0)];
        if (!month)
            continue;
        double price = sqlite3_column_double(rows, 1);
        sums[month - 1][2] += price;
        sums[month - 1][3] += price - sqlite3_column_double(rows, 2);
    }
    sqlite3_finalize(rows);
    free(month_of);
    sqlite3_stmt* money =
        prepare(db,
                "SELECT doc_type_id, date, doc_sum FROM money_doc WHERE date>=? AND date<? AND"
                " (doc_type_id=2 OR doc_type_id=4) AND is_loans=0 AND is_confirmed=1",
                from, to);
    while (sqlite3_step(money) == SQLITE_ROW)
        sums[month_at(starts, months, sqlite3_column_int64(money, 1))]
            [sqlite3_column_int(money, 0) == MONEY_TO_EXPEND] += sqlite3_column_double(money, 2);
    sqlite3_finalize(money);
}
