"""The reports worked out the slow way, query by query and search by search, as their rules read; plain SQLite and
`decimal`, nothing of the program. Each function answers the rows as lists of comparable values."""

import datetime
import sqlite3
from decimal import ROUND_HALF_EVEN, Decimal
from zoneinfo import ZoneInfo

(MONEY_FROM_CONTRAGENT, MONEY_TO_CONTRAGENT, MONEY_TO_EXPEND, MONEY_FROM_EMPLOYEE, MONEY_TO_EMPLOYEE,
 INNER_TRANSACTION, MONEY_ADD) = range(2, 9)
(BUY_PRODUCT, SELL_PRODUCT, SELL_INTANGIBLES, MOVE_PRODUCT, ADD_PRODUCT, DELETE_PRODUCT, RETURN) = range(11, 18)
BUY_PROPERTY, SELL_PROPERTY = 20, 21

CREDITED = (MONEY_FROM_CONTRAGENT, BUY_PRODUCT, BUY_PROPERTY, RETURN)


def money(value):
    """A stored real as the shortest decimal that reads back as it, two digits, half to even."""
    return Decimal(repr(value or 0.0)).quantize(Decimal("0.01"), ROUND_HALF_EVEN)


def added(*values):
    return sum(values, Decimal(0)).quantize(Decimal("0.01"), ROUND_HALF_EVEN)


class Reports:
    def __init__(self, path, zone):
        self.file = sqlite3.connect(f"file:{path}?mode=ro", uri=True)
        self.file.row_factory = sqlite3.Row
        self.zone = ZoneInfo(zone)

    def read(self, sql, *values):
        return self.file.execute(sql, values).fetchall()

    def midnight(self, year, month, day):
        return int(datetime.datetime(year, month, day, tzinfo=self.zone).timestamp())

    # Counterparties

    def documents_of(self, start, finish, contragent):
        clause = " WHERE date>? AND date<=? AND contragent_id=? AND is_confirmed=1"
        found = []
        for table in ("product_doc", "property_doc", "money_doc"):
            found += self.read("SELECT * FROM " + table + clause, start, finish, contragent)
        return sorted(found, key=lambda document: document["date"])

    def contragents(self, start, finish, group_ids=(), contragent_ids=(), grouped=False):
        def catalog(table, ids):
            clause = " WHERE (" + " OR ".join("id=?" for _ in ids) + ")" if ids else ""
            return self.read(f"SELECT * FROM {table}{clause} ORDER BY name", *ids)

        def row(name, kind):
            return {"name": name, "kind": kind, "start": Decimal(0), "debit": Decimal(0), "credit": Decimal(0),
                    "children": [], "depth": 0}

        def finish_of(line):
            return added(line["start"], line["credit"], -line["debit"])

        first, last = row("START PERIOD:", "footer"), row("END PERIOD:", "footer")
        group_records = catalog("contragent_group", group_ids)
        groups = {record["id"]: row(record["name"], "group") for record in group_records}
        records = catalog("contragent", contragent_ids)
        parties = {record["id"]: row(record["name"], "item") for record in records}

        for record in records:
            line = parties[record["id"]]
            documents = self.documents_of(start, finish, record["id"])
            opening = money(documents[0]["contragent_balance"]) if documents else money(
                self.read("SELECT balance FROM contragent WHERE id=?", record["id"])[0]["balance"])
            debit = added(*(money(d["doc_sum"]) for d in documents if d["doc_type_id"] not in CREDITED))
            credit = added(*(money(d["doc_sum"]) for d in documents if d["doc_type_id"] in CREDITED))
            line["start"], line["debit"], line["credit"] = opening, debit, credit
            first["start"] = added(first["start"], opening)
            last["start"] = added(last["start"], opening)
            last["debit"], last["credit"] = added(last["debit"], debit), added(last["credit"], credit)

        top, above = [], {}
        for record in group_records:
            line = groups[record["id"]]
            parent = groups.get(record["parent_id"])
            (parent["children"] if parent else top).append(line)
            above[id(line)] = parent
        for record in records:
            line = parties[record["id"]]
            parent = None
            if record["parent_contragent_id"]:
                parent = parties.get(record["parent_contragent_id"])
            elif record["parent_id"]:
                parent = groups.get(record["parent_id"])
            (parent["children"] if parent else top).append(line)
            above[id(line)] = parent
        for record in records:
            line = parties[record["id"]]
            holder = above[id(line)]
            while holder is not None:
                if holder["kind"] == "group":
                    for key in ("start", "debit", "credit"):
                        holder[key] = added(holder[key], line[key])
                holder = above[id(holder)]

        shown = []

        def open_rows(lines, depth):
            for line in lines:
                full = any((line["start"], line["debit"], line["credit"], finish_of(line)))
                if full and not (grouped and line["kind"] == "item"):
                    shown.append([line["kind"], depth, line["name"], line["start"], line["debit"], line["credit"],
                                  finish_of(line)])
                open_rows(sorted(line["children"], key=lambda child: child["name"]), depth + 1)

        open_rows(top, 0)

        def footer(line):
            return ["footer", 0, line["name"], line["start"], line["debit"], line["credit"], finish_of(line)]

        return [footer(first), *shown, footer(last)]

    # Statements: kind, date, start, debit, credit, finish; None where the cell is blank

    @staticmethod
    def statement(opening, moves):
        """Moves are (date, debit or None, credit or None, what the end row adds to its credit and debit)."""
        rows, balance, debit, credit = [], opening, Decimal(0), Decimal(0)
        for date, lowered, raised, end_debit, end_credit in moves:
            start = balance
            balance = added(start, raised or 0, -(lowered or 0))
            rows.append(["document", date, start, lowered or None, raised or None, balance])
            debit, credit = added(debit, end_debit), added(credit, end_credit)
        zero = Decimal(0)
        return [["title", None, opening, zero, zero, None], *rows,
                ["title", None, None, debit, credit, added(opening, credit, -debit)]]

    def contragent(self, start, finish, contragent):
        documents = self.documents_of(start, finish, contragent)
        opening = money(documents[0]["contragent_balance"]) if documents else money(
            self.read("SELECT balance FROM contragent WHERE id=?", contragent)[0]["balance"])
        moves = []
        for document in documents:
            total, zero = money(document["doc_sum"]), Decimal(0)
            if document["doc_type_id"] in CREDITED:
                moves.append((document["date"], None, total, zero, total))
            else:
                moves.append((document["date"], total, None, total, zero))
        return self.statement(opening, moves)

    def employee(self, start, finish, employee):
        documents = self.read(
            "SELECT * FROM money_doc WHERE date>=? AND date<=? AND employee_id=? AND is_divident=0 AND "
            "is_confirmed=1 ORDER BY date ASC", start, finish, employee)
        opening = money(documents[0]["manager_balance"]) if documents else money(
            self.read("SELECT balance FROM manager WHERE id=?", employee)[0]["balance"])
        moves = []
        for document in documents:
            total, zero = money(document["doc_sum"]), Decimal(0)
            # The names of the row and of the end row cross.
            if document["doc_type_id"] == MONEY_FROM_EMPLOYEE:
                moves.append((document["date"], total, None, zero, total))
            else:
                moves.append((document["date"], None, total, total, zero))
        return self.statement(opening, moves)

    def account(self, start, finish, account):
        documents = self.read(
            "SELECT * FROM money_doc WHERE date>=? AND date<=? AND is_confirmed=1 AND (account_from_id=? OR "
            "account_to_id=?) ORDER BY date ASC", start, finish, account, account)
        if not documents:
            opening = money(self.read("SELECT balance FROM account WHERE id=?", account)[0]["balance"])
        elif documents[0]["account_from_id"] == account:
            opening = money(documents[0]["account_from_balance"])
        else:
            opening = money(documents[0]["account_to_balance"])
        moves = []
        for document in documents:
            total, zero, kind = money(document["doc_sum"]), Decimal(0), document["doc_type_id"]
            receipt = kind in (MONEY_FROM_CONTRAGENT, MONEY_FROM_EMPLOYEE, MONEY_ADD)
            if kind == INNER_TRANSACTION and document["account_to_id"] == account:
                receipt, total = True, money(document["converted_sum"])
            if receipt:
                moves.append((document["date"], total, None, zero, total))
            else:
                moves.append((document["date"], None, total, total, zero))
        return self.statement(opening, moves)

    # Spendings: kind, depth, name or None for a document, date, constant, variable, total, comment

    def expends(self, start, finish, type_ids=(), expend_ids=(), grouped=False):
        def catalog(table, ids):
            clause = " WHERE (" + " OR ".join("id=?" for _ in ids) + ")" if ids else ""
            return self.read(f"SELECT * FROM {table}{clause} ORDER BY name", *ids)

        types, items = catalog("expend_type", type_ids), catalog("expend", expend_ids)
        clause = " AND (" + " OR ".join("expend_id=?" for _ in expend_ids) + ")" if expend_ids else ""
        documents = self.read(
            "SELECT * FROM money_doc WHERE date>? AND date<=? AND is_confirmed=1 AND doc_type_id=?" + clause +
            " ORDER BY date ASC", start, finish, MONEY_TO_EXPEND, *expend_ids)

        def node(name, record):
            return {"name": name, "id": record["id"], "parent": record["parent_id"], "constant": Decimal(0),
                    "variable": Decimal(0), "children": [], "documents": [], "above": None}

        type_nodes = [node(record["name"], record) for record in types]
        item_nodes = [node(record["name"], record) for record in items]
        top = []
        for line in type_nodes + item_nodes:
            line["above"] = next((t for t in type_nodes if line["parent"] and t["id"] == line["parent"]), None)
            (line["above"]["children"] if line["above"] else top).append(line)
        total = {"constant": Decimal(0), "variable": Decimal(0)}
        for document in documents:
            key = "variable" if document["is_variable"] else "constant"
            line = next((i for i in item_nodes if i["id"] == document["expend_id"]), None)
            amount = money(document["doc_sum"])
            total[key] = added(total[key], amount)
            if line is not None:
                line["documents"].append((document["date"], key, amount, document["comment"]))
            while line is not None:
                line[key] = added(line[key], amount)
                line = line["above"]

        shown = []

        def blank(value):
            return value or None

        def open_rows(lines, depth):
            for line in lines:
                whole = added(line["constant"], line["variable"])
                if whole:
                    shown.append(["group", depth, line["name"], None, blank(line["constant"]),
                                  blank(line["variable"]), whole, None])
                open_rows(sorted(line["children"], key=lambda child: child["name"]), depth + 1)
                for date, key, amount, comment in line["documents"]:
                    if amount and not grouped:
                        shown.append(["document", depth + 1, None, date, amount if key == "constant" else None,
                                      amount if key == "variable" else None, amount, comment or None])

        open_rows(top, 0)
        shown.append(["footer", 0, "TOTAL FOR PERIOD:", None, blank(total["constant"]), blank(total["variable"]),
                      added(total["constant"], total["variable"]), None])
        return shown

    # Products on warehouses: kind, name, [(amount, sum)], amountTotal, sumTotal

    def period_start(self, moment):
        day = datetime.datetime.fromtimestamp(moment, self.zone)
        period = self.read("SELECT report_period FROM params WHERE id=1")[0]["report_period"]
        month = {2: (day.month - 1) // 3 * 3 + 1, 3: 1}.get(period, day.month)
        return self.midnight(day.year, month, 1)

    def products_on_stock(self, moment, group_ids=(), product_ids=(), stock_ids=()):
        start = self.period_start(moment)

        def catalog(table, ids):
            clause = " WHERE " + " OR ".join(f"id={number}" for number in ids) if ids else ""
            return self.read(f"SELECT * FROM {table}{clause}")

        stocks = sorted(catalog("stock", stock_ids), key=lambda record: record["name"])
        rows = []
        for record in sorted(catalog("product_group", group_ids), key=lambda group: group["id"]):
            rows.append({"id": record["id"], "name": record["name"], "kind": "group",
                         "parent": record["parent_id"], "cells": [[Decimal(0), Decimal(0)] for _ in stocks]})
        for record in sorted(catalog("product", product_ids), key=lambda product: product["name"]):
            cells = []
            for stock in stocks:
                amount = self.amount_on(stock["id"], record["id"], start, moment)
                worth = (amount * money(record["base_cost"])).quantize(Decimal("0.01"), ROUND_HALF_EVEN)
                cells.append([amount, worth])
            if any(amount > 0 for amount, _ in cells):
                rows.append({"id": record["id"], "name": record["name"], "kind": "product",
                             "parent": record["group_id"], "cells": cells})
        total = {"name": "TOTAL:", "kind": "total", "cells": [[Decimal(0), Decimal(0)] for _ in stocks],
                 "children": []}
        top = []
        for row in rows:
            row["children"], row["above"] = [], None
        for row in rows:
            # The first row with the id, whatever it is: with groups left out it may be a product.
            parent = next((other for other in rows if row["parent"] and other["id"] == row["parent"]), None)
            if parent is None or self.is_within(parent, row):
                top.append(row)  # below itself it would be nowhere
            else:
                parent["children"].append(row)
                row["above"] = parent
                parent["children"].sort(key=lambda child: child["name"])
                holder = parent
                while holder is not None:
                    self.add_cells(holder, row)
                    holder = holder["above"]
            if row["kind"] != "group":
                self.add_cells(total, row)
        shown = []

        def open_rows(lines):
            for line in lines:
                if sum(worth for _, worth in line["cells"]) != 0:
                    shown.append(line)
                open_rows(line["children"])

        open_rows([*top, total])
        # Without a worth the total is not shown either; then the titles are the last row, and they hold nothing.
        kept = [i for i in range(len(stocks)) if shown and shown[-1]["cells"][i][0] > 0]
        answer = []
        if rows:
            answer.append(["title", "", [[Decimal(0), Decimal(0)] for _ in kept], Decimal(0), Decimal(0)])
        for line in shown:
            cells = [line["cells"][i] for i in kept]
            answer.append([line["kind"], line["name"], cells, added(*(c[0] for c in cells)),
                           added(*(c[1] for c in cells))])
        return answer, [stocks[i]["name"] for i in kept]

    @staticmethod
    def is_within(row, other):
        while row is not None and row is not other:
            row = row["above"]
        return row is other

    @staticmethod
    def add_cells(row, other):
        for cell, more in zip(row["cells"], other["cells"]):
            cell[0], cell[1] = added(cell[0], more[0]), added(cell[1], more[1])

    def amount_on(self, stock, product, start, moment):
        opening = self.read("SELECT * FROM stock_history WHERE date=? AND stock_id=? AND product_id=?", start, stock,
                            product)
        amount = added(money(opening[0]["amount"]), money(opening[0]["amount_reserved"])) if opening else Decimal(0)
        for sign, kinds, column in (
                (1, (BUY_PRODUCT, ADD_PRODUCT, RETURN, MOVE_PRODUCT), "stock_to_id"),
                (-1, (SELL_PRODUCT, DELETE_PRODUCT, MOVE_PRODUCT), "stock_from_id")):
            asked = " OR ".join("doc_type_id=?" for _ in kinds)
            for row in self.read(
                    "SELECT amount FROM product_doc_row WHERE doc_id IN (SELECT id FROM product_doc WHERE (" + asked +
                    f") AND date>? AND date<? AND {column}=? AND is_confirmed=1) AND product_id=?", *kinds, start,
                    moment, stock, product):
                amount = added(amount, sign * money(row["amount"]))
        return amount

    # Dynamics: periods and the four rows

    def dynamics(self, start, finish):
        day = datetime.datetime.fromtimestamp(start, self.zone)
        year, month, periods = day.year, day.month, []
        while self.midnight(year, month, 1) < finish:
            after = (year + month // 12, month % 12 + 1)
            periods.append((self.midnight(year, month, 1), self.midnight(*after, 1)))
            year, month = after
        rows = {"Income": [], "Spendings": [], "Selling": [], "Margin": []}
        for since, until in periods:
            sold = self.read(
                "SELECT * FROM product_doc_row WHERE doc_id IN (SELECT id FROM product_doc WHERE (doc_type_id=? OR "
                "doc_type_id=?) AND date>=? AND date<? AND is_confirmed=1)", SELL_PRODUCT, SELL_INTANGIBLES, since,
                until)
            selling = added(*(money(row["price_cost_sum"]) for row in sold))
            rows["Selling"].append(selling)
            rows["Margin"].append(added(selling, -added(*(money(row["base_cost_sum"]) for row in sold))))
            for name, kind in (("Income", MONEY_FROM_CONTRAGENT), ("Spendings", MONEY_TO_EXPEND)):
                paid = self.read("SELECT * FROM money_doc WHERE doc_type_id=? AND is_loans=0 AND date>=? AND date<? "
                                 "AND is_confirmed=1", kind, since, until)
                rows[name].append(added(*(money(document["doc_sum"]) for document in paid)))
        kept = [i for i in range(len(periods)) if any(values[i] for values in rows.values())]
        return [periods[i] for i in kept], [[name, [values[i] for i in kept]] for name, values in rows.items()]

    # Payment calendar: kind, date, pay to, sum, in, out

    def payment_calendar(self):
        found = self.read("SELECT * FROM product_doc WHERE left_to_pay>0 AND is_confirmed=1 AND doc_type_id IN "
                          "(?,?,?,?) ORDER BY id", BUY_PRODUCT, SELL_PRODUCT, RETURN, SELL_INTANGIBLES)
        found += self.read("SELECT * FROM property_doc WHERE left_to_pay>0 AND is_confirmed=1 AND doc_type_id IN "
                           "(?,?) ORDER BY id", BUY_PROPERTY, SELL_PROPERTY)
        rows, wanted, owed = [], Decimal(0), Decimal(0)
        for document in sorted(found, key=lambda record: record["date"]):
            left = money(document["left_to_pay"])
            out = document["doc_type_id"] in (BUY_PRODUCT, RETURN, BUY_PROPERTY)
            wanted, owed = (wanted, added(owed, left)) if out else (added(wanted, left), owed)
            rows.append(["document", document["date"], document["pay_to_date"], money(document["doc_sum"]),
                         None if out else left, left if out else None])
        rows.append(["total", None, None, None, wanted or None, owed or None])
        rows.append(["total", None, None, None, added(wanted, -owed) if wanted > owed else None,
                     added(owed, -wanted) if owed > wanted else None])
        return rows
