/* zelvor-baseline TASK FILE [ROUNDS]: runs one task and prints the CPU milliseconds of its median round.
 * zelvor-baseline memory COMMAND...: runs the command and tells on standard error, last line, the largest
 * resident set of it in kB. A child's figure starts at the size of who forked it: so a small C program asks.
 * zelvor-baseline fill FILE DOCUMENTS: fills a new, empty project with the generated business. */
#include "baseline.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

typedef void task_function(baseline* db, const char* path);

static void open_task(baseline* db, const char* path)
{
    (void)db;
    baseline_close(baseline_open(path));
}

static void balance_task(baseline* db, const char* path)
{
    (void)path;
    baseline_balance(db);
}

static void month_task(baseline* db, const char* path)
{
    (void)path;
    baseline_sales_summed(db, BASELINE_MONTH, BASELINE_MONTH_END);
}

static void month_sql_task(baseline* db, const char* path)
{
    (void)path;
    baseline_sales_by_sql(db, BASELINE_MONTH, BASELINE_MONTH_END);
}

static void years_task(baseline* db, const char* path)
{
    (void)path;
    baseline_sales_summed(db, BASELINE_START, BASELINE_END);
}

static void years_sql_task(baseline* db, const char* path)
{
    (void)path;
    baseline_sales_by_sql(db, BASELINE_START, BASELINE_END);
}

static void heads_task(baseline* db, const char* path)
{
    (void)path;
    baseline_heads(db);
}

static void sale_task(baseline* db, const char* path)
{
    static unsigned seed;
    (void)path;
    ++seed;
    baseline_begin(db);
    baseline_sale(db, (long long)time(NULL) - 1, seed);
    baseline_commit(db);
}

static void load_task(baseline* db, const char* path)
{
    (void)path;
    baseline_begin(db);
    for (unsigned i = 0; i < 1000; ++i)
        baseline_sale(db, (long long)time(NULL) - 1, i);
    baseline_commit(db);
}

static const struct {
    const char* name;
    task_function* run;
} tasks[] = {
    {"open", open_task},           {"balance", balance_task}, {"month", month_task},
    {"month-sql", month_sql_task}, {"years", years_task},     {"years-sql", years_sql_task},
    {"heads", heads_task},         {"sale", sale_task},       {"load-1000", load_task},
};

static double cpu_milliseconds(void)
{
    struct timespec now;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return (double)now.tv_sec * 1e3 + (double)now.tv_nsec / 1e6;
}

static int ascending(const void* a, const void* b)
{
    double x = *(const double*)a, y = *(const double*)b;
    return (x > y) - (x < y);
}

static int measure(task_function* task, const char* path, int rounds)
{
    double* taken = calloc((size_t)rounds, sizeof *taken);
    baseline* db = baseline_open(path);
    task(db, path);
    for (int i = 0; i < rounds; ++i) {
        double start = cpu_milliseconds();
        task(db, path);
        taken[i] = cpu_milliseconds() - start;
    }
    qsort(taken, (size_t)rounds, sizeof *taken, ascending);
    printf("%.4f\n", taken[rounds / 2]);
    baseline_close(db);
    free(taken);
    return 0;
}

static int memory(char** command)
{
    pid_t child = fork();
    if (child == 0) {
        execvp(command[0], command);
        _exit(127);
    }
    int status = 0;
    struct rusage usage;
    if (child < 0 || wait4(child, &status, 0, &usage) != child)
        return 2;
    fprintf(stderr, "%ld\n", usage.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 2;
}

int main(int argc, char** argv)
{
    if (argc > 2 && strcmp(argv[1], "memory") == 0)
        return memory(argv + 2);
    if (argc == 4 && strcmp(argv[1], "fill") == 0) {
        baseline_fill(argv[2], atol(argv[3]));
        return 0;
    }
    for (size_t i = 0; argc >= 3 && i < sizeof tasks / sizeof *tasks; ++i)
        if (strcmp(argv[1], tasks[i].name) == 0)
            return measure(tasks[i].run, argv[2], argc > 3 && atoi(argv[3]) > 0 ? atoi(argv[3]) : 9);
    fprintf(stderr,
            "usage: zelvor-baseline TASK FILE [ROUNDS] | fill FILE DOCUMENTS | memory COMMAND...\ntasks:");
    for (size_t i = 0; i < sizeof tasks / sizeof *tasks; ++i)
        fprintf(stderr, " %s", tasks[i].name);
    fputc('\n', stderr);
    return 2;
}
