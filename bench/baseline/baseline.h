/* The least work for the same answer: plain C over SQLite on a project file of Zelvor. The benchmarks of the
 * program are measured beside it. Nothing here knows a record class; it knows the columns.
 *
 * All moments are whole seconds since 1970 UTC. Functions that can fail say so on standard error and exit:
 * a benchmark has nobody to answer to. */
#ifndef ZELVOR_BASELINE_H
#define ZELVOR_BASELINE_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The generated business. */
enum {
    BASELINE_PRODUCTS = 2000,
    BASELINE_CONTRAGENTS = 500,
    BASELINE_STOCKS = 3,
    BASELINE_MANAGERS = 12,
    BASELINE_EXPENDS = 12,
    BASELINE_STATEMENTS = 1, /* one more counterparty, with the same 60 documents in a file of any size */
    BASELINE_STATEMENT_DOCUMENTS = 60,
    BASELINE_ROWS_PER_DOCUMENT = 4
};
#define BASELINE_START 1727740800LL     /* 2024-10-01 */
#define BASELINE_MONTH 1785542400LL     /* 2026-08-01, the month that is asked for */
#define BASELINE_MONTH_END 1788220800LL /* 2026-09-01 */
#define BASELINE_END 1790812800LL       /* 2026-10-01, when the documents end; the months before are closed */

typedef struct baseline baseline;
struct sqlite3;

typedef struct {
    double debet;
    double credit;
} baseline_balance_sheet;

typedef struct {
    size_t products; /* sold at all */
    double amount;
    double base_sum;
    double price_sum;
} baseline_sales;

/* Fills a new project with the business and that many product documents of four rows over two years, and a
 * tenth as many receipts of money. The same number gives the same file. */
void baseline_fill(const char* path, long documents);

/* Opens with the pragmas that the program itself uses, reads the schema and the settings row. */
baseline* baseline_open(const char* path);
void baseline_close(baseline* db);

baseline_balance_sheet baseline_balance(baseline* db);
/* What the period sell report shows by product; both bounds are exclusive. By one GROUP BY, */
baseline_sales baseline_sales_by_sql(baseline* db, long long from, long long to);
/* and with the sums kept by the program. */
baseline_sales baseline_sales_summed(baseline* db, long long from, long long to);
/* The same GROUP BY for each counterparty and each manager in one pass: (owner, product) pairs. */
baseline_sales baseline_sales_by_owner(baseline* db, long long from, long long to, int by_manager);
/* All heads of product documents into structs, with their texts. Answers how many. */
size_t baseline_heads(baseline* db);

typedef struct {
    size_t rows;
    double start, debit, credit;
} baseline_saldo;

typedef struct {
    size_t products;
    double amount, sum;
} baseline_goods;

/* What every counterparty owed before the period, what moved it, from exclusive, to inclusive. */
baseline_saldo baseline_contragents(baseline* db, long long from, long long to);
/* The documents of one record: `sql` asks for a date and a sum by two dates and an id. */
baseline_saldo baseline_statement(baseline* db, const char* sql, long long from, long long to, long long id);
/* The spendings of a period with their documents; the total. */
double baseline_expends(baseline* db, long long from, long long to);
/* What lay in each warehouse: the snapshot of the period's start and one pass over the rows since. */
baseline_goods baseline_products_on_stock(baseline* db, long long period_start, long long moment);
/* Income, spendings, selling and margin of each month; `starts` has one moment more than there are months. */
void baseline_dynamics(baseline* db, const long long* starts, int months, double sums[][4]);

/* For the files of this program only. */
struct sqlite3* baseline_file(baseline* db);
void baseline_fail(baseline* db, const char* what);

/* One confirmed sale of four rows with its checks: 3 probes for later documents, 12 look-ups, 11 writes. */
void baseline_begin(baseline* db);
void baseline_sale(baseline* db, long long moment, unsigned seed);
void baseline_commit(baseline* db);
void baseline_rollback(baseline* db);
/* A sale's head with its four rows and nothing else: 5 writes. */
void baseline_insert(baseline* db, long long moment, unsigned seed);

#ifdef __cplusplus
}
#endif

#endif
