#!/usr/bin/env python3
"""Measures Zelvor beside plain C on the same files and holds the ratios against the project's aims.

    cmake --preset release && cmake --build build/release
    bench/compare.py [--build build/release] [--sizes 10000,100000] [--rounds 5]

Both sides run in one process in shuffled, alternating rounds; the figure is the median of the rounds, in
milliseconds of CPU time, since wall time on a shared disk says little. Then the program's memory: the largest
resident set of each command on the largest file. Exits 1 when an aim is missed, 2 when something failed.
"""

import argparse
import json
import os
import statistics
import subprocess
import sys
import tempfile
from collections import defaultdict
from pathlib import Path

PROGRAMS = ["store", "sale", "balance", "sales", "reports", "print"]
MEMORY_LIMIT_MB = 32

# task, what it is compared with, at most this many times as much CPU, at most this many milliseconds
AIMS = [
    ("sale", "c", 3.0, 1.0),
    ("load1000", "c", 4.0, 200.0),
    ("balance", "c", 3.0, None),
    ("sales-month", "c", 1.5, None),
    ("sales-years", "sql", 1.0, None),
    ("heads", "c", 3.0, None),
    ("open", "c", None, 10.0),
    ("products-on-stock", "c", 5.0, None),
    ("dynamics-years", "c", 3.0, None),
    ("expends-month", "c", 3.0, None),
    ("expends-years", "c", 3.0, None),
    # No aim stands for these; they are shown.
    ("contragents-month", "c", None, None),
    ("contragents-years", "c", None, None),
    ("contragent-statement", "c", None, None),
    ("account-statement", "c", None, None),
    ("employee-statement", "c", None, None),
    ("insert200", "c", None, None),
    ("sales-years", "c", None, None),
    ("sales-month", "sql", None, None),
    ("sales-month-customers", "sql", None, None),
    ("sales-years-customers", "sql", None, None),
    ("sales-month-managers", "sql", None, None),
    ("sales-years-managers", "sql", None, None),
]
# Reports of the program held against another one of its own: the sales by products of the same period.
AGAINST_PRODUCTS = [
    ("contragents-month", "sales-month"),
    ("contragents-years", "sales-years"),
    ("sales-month-customers", "sales-month"),
    ("sales-years-customers", "sales-years"),
    ("sales-month-managers", "sales-month"),
    ("sales-years-managers", "sales-years"),
]
AGAINST_PRODUCTS_LIMIT = 2.0
STATEMENTS = ["contragent-statement", "account-statement", "employee-statement"]
STATEMENT_SPREAD = 1.2  # a statement does not grow with the rest of the business
PDF_ROWS = 50000
PDF_SECONDS = 5.0
SALE_SPREAD = 1.2  # one sale costs the same at every size
SALE_SYNCS = 4


def run_benchmarks(build, sizes, rounds, folder):
    """{(task, side, size): {"cpu": median ms, "syncs": n}} of all benchmark programs."""
    samples = defaultdict(list)
    environment = {**os.environ, "ZELVOR_BENCH_DOCUMENTS": ",".join(map(str, sizes)), "ZELVOR_BENCH_DIR": folder,
                   "TZ": "UTC", "LC_ALL": "C.UTF-8"}
    for program in PROGRAMS:
        print(f"running bench_{program} ...", file=sys.stderr)
        command = [str(build / "bench" / f"bench_{program}"), "--benchmark_format=json",
                   f"--benchmark_repetitions={rounds}", "--benchmark_enable_random_interleaving=true",
                   "--benchmark_min_time=0.2"]
        answer = subprocess.run(command, env=environment, capture_output=True, text=True)
        if answer.returncode != 0:
            sys.exit(f"bench_{program} failed: {answer.stderr}")
        for run in json.loads(answer.stdout)["benchmarks"]:
            if run.get("run_type") != "iteration":
                continue
            if run.get("error_occurred"):
                sys.exit(f"{run['name']}: {run['error_message']}")
            task, side, size = run["run_name"].split("/")[:3]
            samples[task, side, int(size)].append(run)
    unit = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}
    return {key: {"cpu": statistics.median(run["cpu_time"] * unit[run["time_unit"]] for run in runs),
                  "syncs": max(run.get("syncs", 0) for run in runs)}
            for key, runs in samples.items()}


def show_times(figures, sizes):
    missed = 0
    print(f"{'task':26}{'documents':>11}{'zelvor ms':>11}{'beside':>8}{'ms':>11}{'ratio':>8}  aim")
    for task, side, most, milliseconds in AIMS:
        for size in sizes:
            ours, theirs = figures.get((task, "zelvor", size)), figures.get((task, side, size))
            if not ours or not theirs:
                continue
            ratio = ours["cpu"] / theirs["cpu"]
            met = (most is None or ratio <= most) and (milliseconds is None or ours["cpu"] <= milliseconds)
            aim = ", ".join(([f"{most:g} times"] if most else []) + ([f"{milliseconds:g} ms"] if milliseconds else []))
            verdict = "" if not aim else f"{aim}: {'met' if met else 'MISSED'}"
            missed += not met
            print(f"{task:26}{size:>11,}{ours['cpu']:>11.3f}{side:>8}{theirs['cpu']:>11.3f}{ratio:>8.2f}  {verdict}")
    return missed


def show_sale(figures, sizes):
    costs = [figures["sale", "zelvor", size]["cpu"] for size in sizes if ("sale", "zelvor", size) in figures]
    if not costs:
        return 0
    spread = max(costs) / min(costs)
    syncs = max(figures["sale", "zelvor", size]["syncs"] for size in sizes)
    print(f"\none sale over the sizes: {spread:.2f} times, {SALE_SPREAD} at most: "
          f"{'met' if spread <= SALE_SPREAD else 'MISSED'}")
    print(f"durable syncs of one sale: {syncs:g}, {SALE_SYNCS} at most: {'met' if syncs <= SALE_SYNCS else 'MISSED'}")
    return (spread > SALE_SPREAD) + (syncs > SALE_SYNCS)


def show_own(figures, sizes):
    """Reports beside the sales by products, and statements beside themselves in a smaller business."""
    missed = 0
    print()
    for task, products in AGAINST_PRODUCTS:
        for size in sizes:
            ours, other = figures.get((task, "zelvor", size)), figures.get((products, "zelvor", size))
            if not ours or not other:
                continue
            ratio = ours["cpu"] / other["cpu"]
            met = ratio <= AGAINST_PRODUCTS_LIMIT
            missed += not met
            print(f"{task:26}{size:>11,}{ours['cpu']:>11.3f}  {ratio:.2f} times {products}, "
                  f"{AGAINST_PRODUCTS_LIMIT:g} at most: {'met' if met else 'MISSED'}")
    for task in STATEMENTS:
        costs = [figures[task, "zelvor", size]["cpu"] for size in sizes if (task, "zelvor", size) in figures]
        if len(costs) > 1:
            spread = max(costs) / min(costs)
            met = spread <= STATEMENT_SPREAD
            missed += not met
            print(f"{task} over the sizes: {spread:.2f} times, {STATEMENT_SPREAD} at most: "
                  f"{'met' if met else 'MISSED'}")
    return missed


def show_pdf(figures):
    seconds = figures["pdf", "zelvor", PDF_ROWS]["cpu"] / 1000
    print(f"\na PDF of {PDF_ROWS:,} rows: {seconds:.2f} s, {PDF_SECONDS:g} at most: "
          f"{'met' if seconds <= PDF_SECONDS else 'MISSED'}")
    return seconds > PDF_SECONDS


def peak_memory(build, command, stdin, accepted):
    """Runs the command; its largest resident set in MB."""
    launcher = [str(build / "bench/zelvor-baseline"), "memory"]
    done = subprocess.run(launcher + command, input=stdin or "", stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                          text=True)
    if done.returncode not in accepted:
        sys.exit(f"{' '.join(command)}: exit {done.returncode}: {done.stderr}")
    return int(done.stderr.split()[-1]) / 1024


def show_memory(build, size, folder):
    cli, project = str(build / "src/cli/zelvor-cli"), f"{folder}/memory.pdb"
    subprocess.run([cli, "create", project, "--currency", "EUR"], check=True, stdout=subprocess.DEVNULL)
    subprocess.run([str(build / "bench/zelvor-baseline"), "fill", project, str(size)], check=True)
    sale = json.dumps({"do": "document", "type": "SellProduct", "contragent": 1, "stock_from": 1,
                       "rows": [{"product": number, "amount": 1} for number in range(1, 5)], "confirm": True}) + "\n"
    years = ["--from", "2024-10-01", "--to", "2026-09-30"]
    report = lambda name, *options: ([cli, "report", name, project, *options], None)
    commands = {
        "info": ([cli, "info", project], None),
        "report balance": report("balance"),
        "report period-sell, a month": report("period-sell", "--from", "2026-08-01", "--to", "2026-08-31"),
        "report period-sell, two years": report("period-sell", *years),
        "report period-sell, by customers": report("period-sell", *years, "--by", "customers"),
        "report period-sell, by managers": report("period-sell", *years, "--by", "managers"),
        "report contragents, two years": report("contragents", *years),
        "report expends, two years": report("expends", *years),
        "report dynamics, two years": report("dynamics", *years),
        "report products-on-stock": report("products-on-stock", "--date", "2026-09-20"),
        "report payment-calendar": report("payment-calendar"),
        "report journal, a month": report("journal", "--from", "2026-08-01", "--to", "2026-08-31"),
        "apply, one sale": ([cli, "apply", project], sale),
        "apply --bulk, 1,000 sales": ([cli, "apply", project, "--bulk"], sale * 1000),
        "check": ([cli, "check", project], None),
        "backup": ([cli, "backup", project, f"{folder}/copy.pdb"], None),
    }
    print(f"\n{'command at ' + format(size, ',') + ' documents':40}{'MB':>8}")
    missed = 0
    for name, (command, stdin) in commands.items():
        # The generated business has balances that no document made: a check says so.
        megabytes = peak_memory(build, command, stdin, (0, 1) if name == "check" else (0,))
        missed += megabytes > MEMORY_LIMIT_MB
        print(f"{name:40}{megabytes:>8.1f}{'' if megabytes <= MEMORY_LIMIT_MB else '  MISSED'}")
    return missed


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, default=Path("build/release"))
    parser.add_argument("--sizes", default="10000,100000")
    parser.add_argument("--rounds", type=int, default=5)
    options = parser.parse_args()
    sizes = [int(part) for part in options.sizes.split(",")]
    # Beside the build, on the disk that a business would lie on; the system's folder may be memory.
    with tempfile.TemporaryDirectory(dir=options.build.resolve()) as folder:
        figures = run_benchmarks(options.build.resolve(), sizes, options.rounds, folder)
        missed = show_times(figures, sizes) + show_own(figures, sizes) + show_sale(figures, sizes)
        missed += show_pdf(figures)
        missed += show_memory(options.build.resolve(), max(sizes), folder)
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
