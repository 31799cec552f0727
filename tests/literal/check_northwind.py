#!/usr/bin/env python3
"""check_northwind.py ZELVOR_CLI OPERATIONS: two years of a trading company. Its reports run without a fault, agree
with their literal computation, and their totals agree with each other. Skipped where the books are missing."""

import os
import random
import subprocess
import sys
import tempfile
from decimal import Decimal
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))
from check_reports import Check, run  # noqa: E402

SKIPPED = 77


def main(cli, operations):
    if not os.path.exists(operations):
        print(f"skipped: the books of the trading company are not there: {operations}")
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder:
        project = Path(folder) / "northwind.pdb"
        assert run(cli, "create", project, "--currency", "USD").returncode == 0
        applied = subprocess.run([cli, "apply", project, operations, "--replay", "--bulk"], capture_output=True,
                                 text=True)
        assert applied.returncode == 0, applied.stdout[-300:]
        check = Check(cli, project)
        years = ["--from", "1996-07-01", "--to", "1998-05-31"]

        def rows(name, *options):
            return check.ask(name, *options)["rows"]

        def total(values):
            return sum((Decimal(value) for value in values if value != ""), Decimal(0))

        calendar = rows("payment-calendar")
        open_debts = next(row for row in calendar if row["kind"] == "total")
        assert Decimal(open_debts["leftToPayIn"]) == Decimal("115810.33"), open_debts
        assert total(row["leftToPayIn"] for row in calendar if row["kind"] == "document") == Decimal("115810.33")

        stock = rows("products-on-stock", "--date", "1998-05-31")
        warehouses = {row[0] for row in check.literal.read("SELECT name FROM stock")}
        balance = rows("balance")
        goods = total(row["debet"] for row in balance if row["name"].strip() in warehouses)
        assert goods > 0 and Decimal(stock[-1]["sumTotal"]) == goods, f"{stock[-1]['sumTotal']} on stock, {goods}"

        parties = rows("contragents", *years)
        balances = check.literal.read("SELECT printf('%.2f', sum(balance)) FROM contragent")[0][0]
        assert Decimal(parties[-1]["finishSaldo"]) == Decimal(balances), parties[-1]

        dynamics = {row["name"]: total(row["data"]) for row in rows("dynamics", *years)}
        sales = rows("period-sell", *years)[-1]
        assert dynamics["Selling"] == Decimal(sales["priceSum"]) == Decimal("1265791.21"), dynamics
        assert dynamics["Margin"] == Decimal(sales["profit"]), dynamics
        spent = rows("expends", *years)[-1]
        assert dynamics["Spendings"] == Decimal(spent["total"]) > 0, dynamics
        received = check.literal.read(
            "SELECT printf('%.2f', sum(doc_sum)) FROM money_doc WHERE doc_type_id=2 AND is_loans=0")[0][0]
        assert dynamics["Income"] == Decimal(received), dynamics

        check.everything(random.Random(1996), rounds=2)
        print(f"{check.cells} cells agree")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
