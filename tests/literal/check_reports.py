#!/usr/bin/env python3
"""check_reports.py ZELVOR_CLI SEED: a random business is kept by the program, then every report of it is held,
cell by cell, against a literal computation that shares nothing with the program but the file. SEED may also be the
path of a file of operations."""

import datetime
import json
import os
import random
import subprocess
import sys
import tempfile
from decimal import Decimal
from pathlib import Path
from zoneinfo import ZoneInfo

sys.path.insert(0, str(Path(__file__).parent))
from literal_reports import Reports  # noqa: E402
from make_books import DAY, Books  # noqa: E402

ZONE = os.environ.get("TZ", "Europe/Vienna")


def run(*command, stdin=None):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, input=stdin)
    return done


class Check:
    def __init__(self, cli, project):
        self.cli, self.project = cli, project
        self.literal = Reports(project, ZONE)
        self.cells = 0

    def ask(self, name, *options):
        done = run(self.cli, "report", name, self.project, *options)
        assert done.returncode == 0, f"{name} {options}: {done.stderr}"
        return json.loads(done.stdout, parse_float=Decimal)

    def agree(self, what, told, literal):
        for place, (one, other) in enumerate(zip(told, literal)):
            assert one == other, f"{what}: row {place}\n  program {one}\n  literal {other}"
        assert len(told) == len(literal), f"{what}: {len(told)} rows, literally {len(literal)}"
        self.cells += sum(len(row) for row in told)

    @staticmethod
    def figure(value):
        return None if value == "" else Decimal(value)

    @staticmethod
    def ids(option, numbers):
        return [option, ",".join(map(str, numbers))] if numbers else []

    @staticmethod
    def name(text):
        """Depth and name of an indented name."""
        return (len(text) - len(text.lstrip(" "))) // 3, text.lstrip(" ")

    def contragents(self, start, finish, groups, contragents, grouped):
        answer = self.ask("contragents", *self.period(start, finish), *self.ids("--contragent-groups", groups),
                          *self.ids("--contragents", contragents), *(["--grouped"] if grouped else []))
        told = [[row["kind"], *self.name(row["name"]),
                 *(self.figure(row[key]) for key in ("startSaldo", "debit", "credit", "finishSaldo"))]
                for row in answer["rows"]]
        self.agree("contragents", told, self.literal.contragents(start, finish, groups, contragents, grouped))

    def statement(self, name, start, finish, number):
        answer = self.ask(name, *self.period(start, finish), "--id", number)
        told = [[row["kind"], self.figure(row["date"]),
                 *(self.figure(row[key]) for key in ("startSaldo", "debit", "credit", "finishSaldo"))]
                for row in answer["rows"]]
        self.agree(f"{name} {number}", told, getattr(self.literal, name)(start, finish, number))

    def expends(self, start, finish, types, items, grouped):
        answer = self.ask("expends", *self.period(start, finish), *self.ids("--expend-types", types),
                          *self.ids("--expends", items), *(["--grouped"] if grouped else []))
        told = []
        for row in answer["rows"]:
            depth, name = self.name(row["name"])
            told.append([row["kind"], depth, None if row["kind"] == "document" else name, self.figure(row["date"]),
                         *(self.figure(row[key]) for key in ("constant", "variable", "total")),
                         row["comment"] or None])
        self.agree("expends", told, self.literal.expends(start, finish, types, items, grouped))

    def products_on_stock(self, moment, groups, products, stocks):
        answer = self.ask("products-on-stock", "--date", f"@{moment}", *self.ids("--product-groups", groups),
                          *self.ids("--products", products), *self.ids("--stocks", stocks))
        told = [[row["kind"], row["name"].strip(),
                 [[self.figure(cell["amount"]), self.figure(cell["sum"])] for cell in row["stocks"]],
                 self.figure(row["amountTotal"]), self.figure(row["sumTotal"])] for row in answer["rows"]]
        literal, stocks = self.literal.products_on_stock(moment, groups, products, stocks)
        if literal and literal[0][0] == "title":
            told[0][1] = literal[0][1]
        self.agree("products-on-stock", told, literal)
        if told:
            assert [cell["name"] for cell in answer["rows"][0]["stocks"]] == stocks

    def dynamics(self, start, finish):
        answer = self.ask("dynamics", *self.period(start, finish))
        periods, rows = self.literal.dynamics(start, finish)
        assert [tuple(pair) for pair in answer["periods"]] == periods, "dynamics: periods"
        told = [[row["name"], [Decimal(value) for value in row["data"]]] for row in answer["rows"]]
        self.agree("dynamics", told, rows)

    def payment_calendar(self):
        told = [[row["kind"], *(self.figure(row[key]) for key in ("date", "payToDate", "sum", "leftToPayIn",
                                                                 "leftToPayOut"))]
                for row in self.ask("payment-calendar")["rows"]]
        self.agree("payment-calendar", told, self.literal.payment_calendar())

    @staticmethod
    def period(start, finish):
        return ["--from", f"@{start}", "--to", f"@{finish}"]

    def everything(self, chance, rounds=12):
        moments = [row[0] for row in self.literal.read(
            "SELECT date FROM product_doc UNION SELECT date FROM money_doc UNION SELECT date FROM property_doc")]
        count = {table: self.literal.read(f"SELECT max(id) FROM {table}")[0][0] or 1
                 for table in ("contragent", "contragent_group", "account", "expend", "expend_type", "product",
                               "product_group", "stock")}
        # The pop-up of employees offers those in use alone.
        employees = [row[0] for row in self.literal.read("SELECT id FROM manager WHERE is_hidden=0")]

        def some(table):
            if chance.random() < 0.5:
                return []
            numbers = range(1, count[table] + 1)
            return chance.sample(numbers, chance.randrange(1, len(numbers) + 1))

        def some_moment():
            """Often the very moment of a document, often the midnight of its day."""
            moment = chance.choice(moments)
            kind = chance.random()
            if kind < 0.4:
                return moment
            day = datetime.datetime.fromtimestamp(moment, ZoneInfo(ZONE))
            return self.literal.midnight(day.year, day.month, day.day) + (DAY if kind < 0.7 else 0)

        for _ in range(rounds):
            start, finish = sorted((some_moment(), some_moment()))
            self.contragents(start, finish, some("contragent_group"), some("contragent"), chance.random() < 0.3)
            self.expends(start, finish, some("expend_type"), some("expend"), chance.random() < 0.3)
            self.dynamics(start, finish)
            for name, numbers in (("contragent", range(1, count["contragent"] + 1)),
                                  ("account", range(1, count["account"] + 1)), ("employee", employees)):
                self.statement(name, start, finish, chance.choice(numbers))
            self.products_on_stock(some_moment(), some("product_group"), some("product"), some("stock"))
        first, last = min(moments) - 1, max(moments) + 1
        self.contragents(first, last, [], [], False)
        self.expends(first, last, [], [], False)
        self.products_on_stock(last, [], [], [])
        self.payment_calendar()


def main(cli, seed):
    with tempfile.TemporaryDirectory() as folder:
        project = Path(folder) / "books.pdb"
        assert run(cli, "create", project, "--currency", "EUR").returncode == 0
        if seed.isdigit():
            start = int(datetime.datetime(2025, 2, 10, tzinfo=ZoneInfo(ZONE)).timestamp())
            operations = "\n".join(map(json.dumps, Books(int(seed), start).operations)) + "\n"
        else:
            operations = Path(seed).read_text()
        applied = run(cli, "apply", project, "--replay", "--bulk", stdin=operations)
        answers = [json.loads(line) for line in applied.stdout.splitlines()]
        faulty = [answer for answer in answers if "there is no record" not in answer.get("error", "there is no record")]
        assert not faulty, f"not an operation: {faulty[0]}"
        accepted = sum(answer["ok"] for answer in answers)
        assert accepted > 0.8 * len(answers), f"a dull business: {accepted} of {len(answers)} accepted"
        check = Check(cli, project)
        check.everything(random.Random(Path(seed).name))
        print(f"{accepted} of {len(answers)} operations accepted, {check.cells} cells agree")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
