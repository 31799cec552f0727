#!/usr/bin/env python3
"""Writes the books of Larkmoor Cycles, the sample business, as operations for `zelvor-cli apply --replay`.

    python3 samples/make_sample.py > samples/larkmoor_cycles.jsonl

A bicycle shop with a workshop and a wholesale side, September 2025 to the end of October 2026. Everything is
drawn from one fixed seed, so the same script gives the same file. Stock and account balances are kept
along the way, so that no operation sells what is not there or pays what is not in the account. Persons,
firms, places and brands are invented.
"""

import datetime as dt
import heapq
import json
import random
import sys
from decimal import ROUND_HALF_EVEN, Decimal

SEED = 20250901
FIRST_DAY = dt.date(2025, 9, 1)
LAST_DAY = dt.date(2026, 10, 29)

SHOP, DEPOT = 1, 2
TILL, BANK, BANK_USD = 1, 2, 3
VAT = "20"
EUR, USD = 1, 2


def money(value):
    return Decimal(value).quantize(Decimal("0.01"), rounding=ROUND_HALF_EVEN)


class Catalog:
    """Hands out the ids that the program will give: one counter a record class, from 1."""

    def __init__(self, books):
        self.books = books
        self.counts = {}

    def put(self, record, **values):
        self.books.operation(do="put", record=record, values=values)
        self.counts[record] = self.counts.get(record, 0) + 1
        return self.counts[record]


class Books:
    """The operations so far, and what they leave in the warehouses and accounts."""

    def __init__(self):
        self.lines = []
        self.stock = {}
        self.accounts = {TILL: Decimal(0), BANK: Decimal(0), BANK_USD: Decimal(0)}
        self.moment = dt.datetime.combine(FIRST_DAY, dt.time(7, 0))
        self.counts = {}
        self.product_documents = 0

    def operation(self, **fields):
        self.lines.append(json.dumps(fields, ensure_ascii=False))

    def document(self, kind, when, **fields):
        """Writes one document. Two never share a moment; a busy minute pushes the later one on."""
        self.moment = max(when, self.moment + dt.timedelta(seconds=30))
        fields = {key: value for key, value in fields.items() if value is not None}
        fields.setdefault("confirm", True)
        self.operation(do="document", type=kind, date=self.moment.isoformat(), **fields)
        self.counts[kind] = self.counts.get(kind, 0) + 1

    def on_stock(self, warehouse, product):
        return self.stock.get((warehouse, product), Decimal(0))

    def shift(self, warehouse, rows, sign):
        for row in rows:
            key = (warehouse, row["product"])
            self.stock[key] = self.stock.get(key, Decimal(0)) + sign * Decimal(row["amount"])
            assert self.stock[key] >= 0, (key, row)

    def goods(self, kind, when, rows, **fields):
        if "stock_from" in fields and fields.get("confirm", True):
            self.shift(fields["stock_from"], rows, -1)
        if "stock_to" in fields and fields.get("confirm", True):
            self.shift(fields["stock_to"], rows, 1)
        self.product_documents += 1
        self.document(kind, when, rows=rows, **fields)

    def pay(self, kind, when, total, account_from=None, account_to=None, sum_to=None, **fields):
        if account_from:
            assert self.accounts[account_from] >= total, (kind, when, total)
            self.accounts[account_from] -= total
        if account_to:
            self.accounts[account_to] += sum_to if sum_to is not None else total
        self.document(kind, when, account_from=account_from, account_to=account_to, sum=str(total),
                      sum_to=None if sum_to is None else str(sum_to), **fields)


# name, unit, brand note, purchase price, sale price, supplier, stock to keep, pack
GOODS = [
    ("Bicycles / City", [
        ("Ostwick Canal 3-speed", 268, 449, 0, 8),
        ("Ostwick Canal 7-speed step-through", 309, 519, 0, 8),
        ("Pellin Metro Belt", 498, 829, 1, 5),
    ]),
    ("Bicycles / Touring", [
        ("Pellin Wayfarer 24", 612, 999, 1, 5),
        ("Pellin Wayfarer 30 Steel", 735, 1199, 1, 4),
        ("Varda Gravel One", 890, 1449, 2, 4),
    ]),
    ("Bicycles / Electric", [
        ("Varda E-Town 400", 1340, 2099, 2, 5),
        ("Varda E-Trail 630", 1980, 2999, 2, 3),
        ("Ostwick E-Cargo Long", 2460, 3790, 0, 2),
    ]),
    ("Bicycles / Children", [
        ("Pip 12 balance bike", 52, 99, 3, 8),
        ("Pip 16 coaster", 98, 179, 3, 8),
        ("Pip 20 six-speed", 131, 239, 3, 7),
    ]),
    ("Parts / Drivetrain", [
        ("Chain 8-speed, 116 links", 7.9, 16.9, 4, 40),
        ("Chain 11-speed, 118 links", 17.4, 34.9, 4, 30),
        ("Cassette 8-speed 11-32", 14.6, 29.9, 4, 20),
        ("Cassette 11-speed 11-34", 34.2, 64.9, 4, 14),
        ("Pedals, flat, pair", 11.3, 24.9, 4, 26),
        ("Bottom bracket, square taper", 9.1, 19.9, 4, 16),
    ]),
    ("Parts / Brakes", [
        ("Brake pads, rim, pair", 3.2, 8.5, 4, 60),
        ("Brake pads, disc, sintered", 6.4, 15.9, 4, 60),
        ("Disc rotor 160 mm", 9.8, 21.9, 4, 24),
        ("Brake cable, inner", 1.1, 3.5, 4, 80),
        ("Cable housing, black", 0.9, 2.8, 4, 120),
    ]),
    ("Parts / Tyres and tubes", [
        ("Tyre 28 x 1.60 touring", 13.9, 28.9, 5, 44),
        ("Tyre 28 x 2.00 balloon", 16.7, 34.9, 5, 30),
        ("Tyre 700 x 40 gravel", 21.8, 42.9, 5, 26),
        ("Tube 28, Dunlop valve", 2.1, 6.9, 5, 120),
        ("Tube 28, Presta valve", 2.2, 6.9, 5, 120),
        ("Rim tape 19 mm", 1.3, 3.9, 5, 40),
    ]),
    ("Accessories / Lights", [
        ("Front light, dynamo, 60 lux", 22.4, 44.9, 6, 20),
        ("Rear light, battery", 6.1, 14.9, 6, 36),
        ("Light set, USB", 16.2, 34.9, 6, 30),
    ]),
    ("Accessories / Locks", [
        ("Folding lock 85 cm", 33.5, 64.9, 6, 20),
        ("Chain lock 110 cm", 27.8, 54.9, 6, 18),
        ("Frame lock", 12.6, 26.9, 6, 16),
    ]),
    ("Accessories / Bags", [
        ("Pannier pair, waterproof", 58.0, 109.9, 6, 14),
        ("Handlebar bag 7 l", 23.9, 47.9, 6, 14),
        ("Saddle bag", 9.4, 19.9, 6, 22),
    ]),
    ("Clothing", [
        ("Helmet, city, M", 26.4, 54.9, 7, 16),
        ("Helmet, city, L", 26.4, 54.9, 7, 16),
        ("Helmet, child", 17.9, 36.9, 7, 16),
        ("Rain cape", 19.2, 39.9, 7, 14),
        ("Gloves, winter", 13.5, 27.9, 7, 20),
    ]),
    ("Care", [
        ("Chain oil 100 ml", 3.4, 8.9, 5, 48),
        ("Repair kit with levers", 4.6, 11.9, 5, 40),
        ("Floor pump", 17.6, 36.9, 5, 14),
    ]),
]
BY_METRE = {"Cable housing, black"}
PAIRS = {"Pedals, flat, pair", "Brake pads, rim, pair", "Pannier pair, waterproof", "Gloves, winter"}
BOXED = {"Tube 28, Dunlop valve": 10, "Tube 28, Presta valve": 10, "Brake cable, inner": 20,
         "Chain oil 100 ml": 12}

SERVICES = [  # name, unit, price
    ("Workshop hour", "hour", "58.00"),
    ("Puncture repair", "job", "14.50"),
    ("Spring check", "job", "79.00"),
    ("Wheel truing", "job", "22.00"),
    ("Bike fitting", "job", "95.00"),
    ("Local delivery", "job", "12.00"),
]

SUPPLIERS = [  # name, city, contact, days to pay
    ("Ostwick Rijwielfabriek", "Ostwick", "Maarten Oldeveld", 30),
    ("Pellin Cycles Ltd", "Pellinford", "Greta Haskomb", 30),
    ("Varda Mobility", "Varda", "Jonas Ehrlund", 45),
    ("Pip Kids Bikes", "Nettleham Cross", "Ana Provalli", 21),
    ("Drivline Components", "Kestelbach", "Rupert Windisch", 30),
    ("Holloway Rubber & Care", "Holloway", "Tess Amberley", 21),
    ("Lumen and Lock Trading", "Sandvoort", "Piet Vorsteen", 14),
    ("Brightwear Outfitters", "Castle Rowan", "Mina Dellarue", 30),
]
WHOLESALE = [  # name, city, contact, discount, days to pay, how late it tends to pay
    ("Fenbridge Bike Hire", "Fenbridge", "Odile Marchmane", 12, 30, 4),
    ("Rowan Valley Cycling Club", "Castle Rowan", "Hugh Pendry", 8, 14, 2),
    ("Saltmarsh Campsite", "Saltmarsh Bay", "Rita Colvig", 6, 14, 12),
    ("Courier Six Cooperative", "Larkmoor", "Dario Fennelli", 10, 21, 18),
    ("Hotel Elmstead", "Elmstead", "Vera Quillfeld", 5, 14, 0),
    ("Town of Larkmoor, Parks", "Larkmoor", "Office of Parks", 7, 30, 9),
    ("Wheelhouse Repairs", "Aldermouth", "Sam Tidewell", 15, 21, 25),
    ("Greenlane School", "Greenlane", "Nora Eastby", 5, 30, 6),
    ("Northquay Rentals", "Northquay", "Bastian Kolbrand", 12, 30, 34),
]
PRIVATE = [
    ("Counter customers", "Larkmoor", 0), ("Clara Whitmoor", "Larkmoor", 0), ("Emil Sandgrove", "Larkmoor", 3),
    ("Johanna Reedy", "Fenbridge", 0), ("Tomas Ellery", "Larkmoor", 5), ("Ruth Abendale", "Saltmarsh Bay", 0),
    ("Oscar Lindholt", "Larkmoor", 0), ("Paula Merriwen", "Elmstead", 2), ("Ivo Castellane", "Larkmoor", 0),
]

USD_RATES = ["1.0840", "1.0795", "1.0912", "1.0867", "1.0733", "1.0688", "1.0759", "1.0821", "1.0904", "1.0956",
             "1.0890", "1.0847", "1.0799", "1.0871"]
GBP_RATES = ["0.8610", "0.8588", "0.8642", "0.8571", "0.8534", "0.8549", "0.8603", "0.8655", "0.8690", "0.8634",
             "0.8612", "0.8577", "0.8590", "0.8621"]


class Product:
    def __init__(self, number, cost, price, supplier, keep, fractional):
        self.id, self.cost, self.price = number, money(str(cost)), money(str(price))
        self.supplier, self.keep, self.fractional = supplier, keep, fractional

    @property
    def is_bicycle(self):
        return self.price >= 90 and self.keep <= 8


class Larkmoor:
    """The business: who there is, and what they do week after week."""

    def __init__(self):
        self.random = random.Random(SEED)
        self.books = Books()
        self.catalog = Catalog(self.books)
        self.events = []
        self.order = 0
        self.products = []

    def at(self, day, hour, action, minute=None):
        moment = dt.datetime.combine(day, dt.time(hour, self.random.randrange(60) if minute is None else minute))
        self.order += 1
        heapq.heappush(self.events, (moment, self.order, action))

    # ---- catalogs

    def make_catalogs(self):
        put = self.catalog.put
        self.books.operation(do="put", record="Params", id=1, values=dict(
            company_name="Larkmoor Cycles", company_address="14 Tollgate Row", company_city="Larkmoor LM2 4QT",
            company_phone="+00 555 0140", company_mail="shop@larkmoor-cycles.example",
            company_domain="larkmoor-cycles.example", bank_account_name="Larkmoor Cycles",
            bank_account_number="40 7715 2280", bank_name="Moorland Savings Bank", bank_address="1 Market Cross, Larkmoor",
            bank_iban="XX00 MOOR 4077 1522 80", bank_swift="MOORXX2L", is_print_bank_details=True,
            is_use_vat=True, vat_rate=20, vat_number="XX 140 771 522", is_use_vat_no=True,
            is_show_current_balance=True, max_deferment=60))
        self.books.operation(do="put", record="Currency", id=USD, values=dict(rate="1.0840"))
        self.make_units_and_staff()
        self.make_goods()
        self.make_counterparties()
        self.make_accounts_and_spendings()

    def make_units_and_staff(self):
        put = self.catalog.put
        units = [("Piece", "pcs"), ("Pair", "pr"), ("Metre", "m"), ("Hour", "h"), ("Job", "job"), ("Box", "box")]
        self.unit = {name.lower(): put("Measurement", name=name, shorthand=short) for name, short in units}
        functions = [("Owner", 0), ("Shop manager", 2450), ("Mechanic", 2180), ("Sales assistant", 1890)]
        self.functions = [put("Function", name=name, salary=salary) for name, salary in functions]
        staff = [("Ida Larkin", 1), ("Bram Holtwick", 2), ("Sven Aldous", 3), ("Mila Ferrand", 3),
                 ("Noor Castell", 4), ("Theo Wickstead", 4)]
        self.staff = [put("Manager", name=name, function_id=function) for name, function in staff]
        put("Stock", name="Shop, Tollgate Row", address="14 Tollgate Row, Larkmoor", manager_id=2, is_default=True)
        put("Stock", name="Depot, Old Tannery", address="Tannery Yard 3, Larkmoor", manager_id=6)

    def make_goods(self):
        put = self.catalog.put
        groups = {}
        for path, goods in GOODS:
            parent = 0
            for depth in range(1, len(path.split(" / ")) + 1):
                key = " / ".join(path.split(" / ")[:depth])
                if key not in groups:
                    groups[key] = put("ProductGroup", name=key.split(" / ")[-1], parent_id=parent)
                parent = groups[key]
            for name, cost, price, supplier, keep in goods:
                unit = "metre" if name in BY_METRE else "pair" if name in PAIRS else "piece"
                values = dict(name=name, group_id=parent, measurement_id=self.unit[unit], base_cost=f"{cost:.2f}",
                              price_cost=f"{price:.2f}")
                if name in BOXED:
                    values.update(pack_id=self.unit["box"], pack_amount=BOXED[name])
                number = put("Product", **values)
                self.products.append(Product(number, cost, price, supplier, keep, name in BY_METRE))
        services = put("ProductGroup", name="Workshop services", description_string="Nothing that lies on a shelf")
        self.services = [
            (put("Product", name=name, group_id=services, measurement_id=self.unit[unit], is_intangible=True,
                 price_cost=price), money(price), unit)
            for name, unit, price in SERVICES]

    def make_counterparties(self):
        put = self.catalog.put
        suppliers = put("ContragentGroup", name="Suppliers")
        makers = put("ContragentGroup", name="Bicycle makers", parent_id=suppliers)
        customers = put("ContragentGroup", name="Customers")
        wholesale = put("ContragentGroup", name="Wholesale", parent_id=customers)
        private = put("ContragentGroup", name="Private", parent_id=customers)
        others = put("ContragentGroup", name="Banks and others")
        mail = lambda name: name.split()[0].lower().replace("&", "and") + "@mail.example"
        self.suppliers = [
            (put("Contragent", name=name, parent_id=makers if index < 4 else suppliers, city=city, contact_person=who,
                 deferment=days, manager_id=self.staff[1], mail=mail(name)), days)
            for index, (name, city, who, days) in enumerate(SUPPLIERS)]
        self.wholesale = [
            (put("Contragent", name=name, parent_id=wholesale, city=city, contact_person=who, discount=discount,
                 deferment=days, manager_id=self.staff[1], mail=mail(name)), discount, days, late)
            for name, city, who, discount, days, late in WHOLESALE]
        youth = put("Contragent", name="Rowan Valley youth team", parent_contragent_id=self.wholesale[1][0],
                    city="Castle Rowan", contact_person="Lotte Pendry", discount=10, deferment=14,
                    manager_id=self.staff[1])
        self.wholesale.append((youth, 10, 14, 7))
        self.private = [
            (put("Contragent", name=name, parent_id=private, city=city, discount=discount, manager_id=self.staff[4]),
             discount) for name, city, discount in PRIVATE]
        self.bank = put("Contragent", name="Moorland Savings Bank", parent_id=others, city="Larkmoor")
        self.vehicles = put("Contragent", name="Garage Underhill", parent_id=others, city="Aldermouth", deferment=30)

    def make_accounts_and_spendings(self):
        put = self.catalog.put
        cash = put("AccountType", name="Cash", description_string="Notes and coins in the house")
        bank = put("AccountType", name="Bank", description_string="Accounts with a bank")
        put("Account", name="Till", account_type_id=cash, currency_id="EUR")
        put("Account", name="Moorland current account", account_type_id=bank, currency_id="EUR", is_default=True)
        put("Account", name="Moorland dollar account", account_type_id=bank, currency_id="USD")
        kinds = {}
        for name, parent in [("Premises", 0), ("Staff", 0), ("Selling", 0), ("Running costs", 0),
                             ("Vehicle", "Running costs")]:
            kinds[name] = put("ExpendType", name=name, parent_id=kinds.get(parent, 0))
        self.expend = {
            name: put("Expend", name=name, parent_id=kinds[kind], is_constant=constant)
            for name, kind, constant in [
                ("Rent of the shop", "Premises", True), ("Rent of the depot", "Premises", True),
                ("Electricity and heating", "Premises", False), ("Salaries", "Staff", True),
                ("Training", "Staff", False), ("Advertising", "Selling", False),
                ("Online shop platform", "Selling", True), ("Insurance", "Running costs", True),
                ("Bank fees", "Running costs", True), ("Office supplies", "Running costs", False),
                ("Fuel", "Vehicle", False), ("Repairs of the van", "Vehicle", False)]}
        self.worn = put("DeleteBasis", name="Worn out") + 1  # a new project has one basis of its own

    # ---- money

    def spend(self, day, name, total, variable=False, account=BANK, comment=None):
        def action(when):
            if self.books.accounts[account] >= total:
                self.books.pay("MoneyToExpend", when, money(total), account_from=account, expend=self.expend[name],
                               variable=True if variable else None, comment=comment)
        self.at(day, 10, action)

    def pay_supplier(self, day, counterparty, total, comment=None, tries=0, **fields):
        """Pays on the day, or as soon as the account bears it."""
        def action(when):
            if self.books.accounts[BANK] >= total + 2000:
                self.books.pay("MoneyToContragent", when, total, account_from=BANK, contragent=counterparty,
                               comment=comment, **fields)
            elif tries < 12:
                self.pay_supplier(when.date() + dt.timedelta(days=5), counterparty, total, comment, tries + 1, **fields)
        if day <= LAST_DAY:
            self.at(day, 11, action)

    def receive(self, day, counterparty, total, account=BANK, hour=13, minute=None, comment=None):
        def action(when):
            self.books.pay("MoneyFromContragent", when, total, account_to=account, contragent=counterparty,
                           comment=comment)
        if day <= LAST_DAY:
            self.at(day, hour, action, minute)

    # ---- goods

    def row(self, product, amount, discount, typed_price):
        """A row of a sale with the price that the form would give, written out or left to the form."""
        price = money(product.price * (1 - money(Decimal(discount) / 100)))
        row = {"product": product.id, "amount": str(amount)}
        if typed_price:
            row["price"] = str(price)
        return row, money(Decimal(amount) * price)

    def choose(self, warehouse, count, share, at_most):
        """Up to `count` different products of a warehouse, each with an amount that leaves a share there."""
        chosen = []
        for product in self.random.sample(self.products, len(self.products)):
            have = self.books.on_stock(warehouse, product.id)
            limit = max(1, int(float(have) * share))
            if have < 2 or len(chosen) == count:
                continue
            top = min(limit, 1 if product.is_bicycle and at_most < 5 else 3 if product.is_bicycle else at_most)
            amount = self.random.randint(1, max(1, top))
            chosen.append((product, Decimal(amount) + (Decimal("0.5") if product.fractional else 0)))
        return [(product, amount) for product, amount in chosen
                if amount <= self.books.on_stock(warehouse, product.id)]

    def sell(self, when, kind_of_place, counterparty, discount, days, chosen, shipment=None, comment=None):
        typed = self.random.random() < 0.5
        made = [self.row(product, amount, discount, typed) for product, amount in chosen]
        total = sum((value for _, value in made), Decimal(0)) + (shipment or 0)
        self.books.goods("SellProduct", when, [row for row, _ in made], contragent=counterparty,
                         manager=self.random.choice(self.staff[1:]), stock_from=kind_of_place, deferment=days,
                         discount=str(discount), shipment=None if shipment is None else str(shipment),
                         comment=comment)
        return total

    def counter_sale(self, day):
        def action(when):
            chosen = self.choose(SHOP, self.random.randint(2, 5), 0.5, 3)
            if not chosen:
                return
            counterparty, discount = self.private[0] if self.random.random() < 0.6 else self.random.choice(self.private)
            total = self.sell(when, SHOP, counterparty, discount, 0, chosen)
            self.books.pay("MoneyFromContragent", when, total, account_to=TILL if total < 900 else BANK,
                           contragent=counterparty)
        self.at(day, self.random.randint(10, 17), action)

    def workshop(self, day):
        def action(when):
            counterparty, discount = self.random.choice(self.private)
            rows, total = [], Decimal(0)
            for product, price, unit in self.random.sample(self.services, self.random.randint(1, 3)):
                amount = self.random.choice(["0.5", "1", "1.25", "2"]) if unit == "hour" else "1"
                after = money(price * (1 - money(Decimal(discount) / 100)))
                rows.append({"product": product, "amount": amount})
                total += money(Decimal(amount) * after)
            self.books.goods("SellIntangibles", when, rows, contragent=counterparty,
                             manager=self.random.choice(self.staff[2:4]), deferment=0, discount=str(discount))
            self.books.pay("MoneyFromContragent", when, total, account_to=TILL, contragent=counterparty)
        self.at(day, self.random.randint(9, 18), action)

    def wholesale_order(self, day):
        def action(when):
            counterparty, discount, days, late = self.random.choice(self.wholesale)
            chosen = self.choose(DEPOT, self.random.randint(2, 6), 0.6, 12)
            if not chosen:
                return
            shipment = money(str(self.random.choice([18, 24.5, 36, 49.9]))) if self.random.random() < 0.5 else None
            total = self.sell(when, DEPOT, counterparty, discount, days, chosen, shipment,
                              f"Order by {self.random.choice(['mail', 'telephone', 'visit'])}")
            due = day + dt.timedelta(days=days + int(self.random.expovariate(1 / (late + 0.5))))
            self.settle(due, counterparty, total)
            if self.random.random() < 0.09:
                self.take_back(day + dt.timedelta(days=self.random.randint(4, 12)), counterparty, discount, chosen[0])
        self.at(day, self.random.randint(9, 16), action)

    def settle(self, due, counterparty, total):
        """Most pay at once what they owe, some in two parts, a few stay away for good."""
        luck = self.random.random()
        if luck < 0.04:
            return
        if luck < 0.22 and total > 500:
            first = money(total * Decimal("0.4"))
            self.receive(due, counterparty, first, comment="First part")
            self.receive(due + dt.timedelta(days=21), counterparty, total - first, comment="Rest")
        else:
            self.receive(due, counterparty, total)

    def take_back(self, day, counterparty, discount, sold):
        def action(when):
            product, _ = sold
            row, _ = self.row(product, 1, discount, True)
            self.books.goods("Return", when, [row], contragent=counterparty, stock_to=DEPOT, deferment=0,
                             manager=self.staff[5], comment="Came back unused")
        if day <= LAST_DAY:
            self.at(day, 15, action)

    def reorder(self, day, supplier):
        def action(when):
            counterparty, days = self.suppliers[supplier]
            rows, total = [], Decimal(0)
            for product in self.products:
                have = self.books.on_stock(DEPOT, product.id) + self.books.on_stock(SHOP, product.id)
                if product.supplier != supplier or have >= product.keep:
                    continue
                cost = money(product.cost * (1 + Decimal(self.random.randint(-3, 4)) / 100))
                amount = Decimal(max(1, int(Decimal(product.keep) * Decimal("1.6") - have)))
                rows.append({"product": product.id, "amount": str(amount), "price": str(cost), "vat_rate": VAT,
                             "include_shipment": self.random.random() < 0.85})
                total += money(amount * cost)
            if not rows:
                return
            shipment = money(str(self.random.choice([0, 35, 48.5, 72, 110])))
            self.books.goods("BuyProduct", when, rows, contragent=counterparty, stock_to=DEPOT, deferment=days,
                             manager=self.staff[1], shipment=str(shipment) if shipment else None)
            total += shipment
            self.pay_supplier(day + dt.timedelta(days=days), counterparty, total)
        self.at(day, 8, action)

    def restock_shop(self, day):
        def action(when):
            rows = []
            for product in self.products:
                have = self.books.on_stock(SHOP, product.id)
                depot = int(self.books.on_stock(DEPOT, product.id))
                want = max(2, product.keep // 3)
                if have < want and depot > 1:
                    rows.append({"product": product.id, "amount": str(min(depot // 2, want))})
            if rows:
                self.books.goods("MoveProduct", when, rows[:14], stock_from=DEPOT, stock_to=SHOP,
                                 manager=self.staff[5], comment="For the shelves")
        self.at(day, 9, action)

    def write_off(self, day, comment):
        def action(when):
            warehouse = self.random.choice([SHOP, DEPOT])
            chosen = [(product, amount) for product, amount in self.choose(warehouse, 6, 0.1, 1)
                      if not product.is_bicycle][:2]
            if chosen:
                rows = [{"product": product.id, "amount": str(amount)} for product, amount in chosen]
                self.books.goods("DeleteProduct", when, rows, stock_from=warehouse, manager=self.staff[5],
                                 comment=comment)
        self.at(day, 18, action)

    def stock_found(self, day, comment):
        def action(when):
            rows = [{"product": product.id, "amount": "1", "price": str(product.cost)}
                    for product in self.random.sample(self.products, 2) if not product.is_bicycle]
            if rows:
                self.books.goods("AddProduct", when, rows, stock_to=SHOP, manager=self.staff[5], comment=comment)
        self.at(day, 18, action)

    # ---- the plan

    def opening(self):
        def action(when):
            books = self.books
            books.pay("MoneyAdd", when, money(38000), account_to=BANK, comment="Capital of the owner")
            books.pay("MoneyAdd", when, money(400), account_to=TILL, comment="Change for the till")
            books.pay("MoneyFromContragent", when, money(25000), account_to=BANK, contragent=self.bank, loans=True,
                      comment="Start-up loan")
            for name, total, period in [("Workshop stands and tools", 4200, 60), ("Shop fittings", 6900, 84),
                                        ("Old compressor", 380, 12), ("Cargo trailer", 760, 36)]:
                books.document("AddProperty", when, property_name=name, amortized=True, period=period, sum=str(total))
            for warehouse, share in [(DEPOT, Decimal("0.9")), (SHOP, Decimal("0.5"))]:
                rows = [{"product": product.id, "amount": str(max(2, int(product.keep * share))),
                         "price": str(product.cost)} for product in self.products]
                for start in range(0, len(rows), 16):
                    books.goods("AddProduct", when, rows[start:start + 16], stock_to=warehouse,
                                comment="Taken over from the former owner")
        self.at(FIRST_DAY, 7, action, 30)

    def each_week(self, monday, week):
        day = lambda number: monday + dt.timedelta(days=number)
        season = 3 if monday.month in (3, 4, 5, 6, 7, 9) else 2
        for number in self.random.sample(range(6), season):
            self.counter_sale(day(number))
        for number in self.random.sample(range(5), 2 if season == 3 else 1):
            self.workshop(day(number))
        for number in self.random.sample(range(5), season - 1):
            self.wholesale_order(day(number))
        for supplier in range(len(self.suppliers)):
            if (week + supplier) % 4 == 0:
                self.reorder(day(self.random.randrange(5)), supplier)
        if week % 2 == 0:
            self.restock_shop(day(1))
        self.at(day(5), 19, self.empty_till)

    def empty_till(self, when):
        total = money(int((self.books.accounts[TILL] - 300) / 50) * 50)
        if total > 0:
            self.books.pay("InnerTransaction", when, total, account_from=TILL, account_to=BANK, comment="Takings")

    def each_month(self, first, number):
        day = lambda value: first.replace(day=value)
        self.at(day(2), 7, lambda when: self.books.operation(
            do="update-rates", rates={"2": float(USD_RATES[number]), "3": float(GBP_RATES[number])}), 0)
        self.spend(day(3), "Rent of the shop", 1450)
        self.spend(day(3), "Rent of the depot", 620)
        self.spend(day(4), "Insurance", 185)
        self.spend(day(6), "Bank fees", Decimal("14.90"))
        self.spend(day(12), "Electricity and heating", self.random.randint(140, 360), variable=True)
        self.spend(day(15), "Fuel", self.random.randint(60, 130), variable=True, account=TILL)
        self.spend(day(18), "Advertising", self.random.choice([120, 250, 400]), variable=True)
        self.spend(day(21), "Office supplies", self.random.randint(25, 80), variable=True, account=TILL)
        self.spend(day(27), "Salaries", 4650, comment="Five people by the hour")
        if number:
            self.pay_supplier(day(10), self.bank, money(600), comment="Repayment", loans=True)
            self.spend(day(9), "Online shop platform", Decimal("79.00"), account=BANK_USD)
        if number % 3 == 0:
            self.exchange(day(5), money(650), Decimal(USD_RATES[number]))
        if number % 4 == 3:
            self.write_off(day(24), "Damaged in the window")
            self.stock_found(day(25), "Found at the count")

    def exchange(self, day, total, rate):
        def action(when):
            self.books.pay("InnerTransaction", when, total, account_from=BANK, account_to=BANK_USD,
                           sum_to=money(total * rate * Decimal("0.995")), comment="Dollars for the online shop")
        self.at(day, 12, action)

    def single_events(self):
        date = dt.date
        for day, who, out, back in [(date(2025, 10, 14), 1, 350, "62.40"), (date(2026, 2, 17), 3, 500, "118.15"),
                                    (date(2026, 6, 9), 2, 280, "280.00"), (date(2026, 10, 6), 5, 150, None)]:
            self.at(day, 12, lambda when, who=who, out=out: self.books.pay(
                "MoneyToEmployee", when, money(out), account_from=BANK, employee=self.staff[who],
                comment="Advance for a journey"))
            if back:
                self.at(day + dt.timedelta(days=9), 12, lambda when, who=who, back=back: self.books.pay(
                    "MoneyFromEmployee", when, money(back), account_to=TILL, employee=self.staff[who],
                    comment="Rest of the advance"))
        self.at(date(2026, 7, 15), 12, lambda when: self.books.pay(
            "MoneyToEmployee", when, money(3000), account_from=BANK, employee=self.staff[0], divident=True,
            comment="Dividend of the first half"))
        self.spend(date(2026, 1, 20), "Training", 480, variable=True, comment="E-bike course for two mechanics")
        self.spend(date(2026, 8, 11), "Repairs of the van", Decimal("312.60"), variable=True)
        self.at(date(2026, 9, 22), 12, lambda when: self.books.pay(
            "InnerTransaction", when, money(200), account_from=BANK_USD, account_to=BANK, sum_to=money("183.20"),
            comment="Dollars not needed"))
        self.assets()

    def assets(self):
        books, date = self.books, dt.date
        # ids of assets: 1 to 4 came with the opening
        self.at(date(2025, 11, 11), 14, lambda when: books.document(
            "BuyProperty", when, contragent=self.vehicles, property_name="Delivery van", amortized=True, period=48,
            sum="14800", deferment=30))
        self.pay_supplier(date(2025, 12, 11), self.vehicles, money(7400), "Van, first half")
        self.pay_supplier(date(2026, 4, 14), self.vehicles, money(7400), "Van, second half")
        self.at(date(2026, 3, 5), 14, lambda when: books.document(
            "BuyProperty", when, contragent=self.suppliers[4][0], property_name="Wheel truing stand", amortized=True,
            period=36, sum="1180", deferment=30))
        self.pay_supplier(date(2026, 4, 7), self.suppliers[4][0], money(1180), "Truing stand")
        self.at(date(2026, 5, 19), 14, lambda when: books.document(
            "SellProperty", when, contragent=self.wholesale[2][0], property=4, sum="420", deferment=14,
            delete_basis=1))
        self.receive(date(2026, 6, 3), self.wholesale[2][0], money(420), comment="Cargo trailer")
        self.at(date(2026, 8, 25), 14, lambda when: books.document(
            "DeleteProperty", when, property=3, delete_basis=self.worn, comment="Motor burnt out"))

    def closing_drafts(self):
        """What lies on the desk on the last day: a draft that is confirmed, one thrown away, two left open."""
        books = self.books
        when = dt.datetime.combine(LAST_DAY, dt.time(19, 30))
        product = next(p for p in self.products if books.on_stock(SHOP, p.id) >= 2)
        row = [{"product": product.id, "amount": "1"}]
        books.goods("SellProduct", when, row, contragent=self.private[3][0], stock_from=SHOP, confirm=False)
        books.operation(do="confirm", kind="Product", id=books.product_documents)
        books.shift(SHOP, row, -1)
        books.goods("BuyProduct", when, [{"product": self.products[-1].id, "amount": "10", "price": "17.20"}],
                    contragent=self.suppliers[5][0], stock_to=DEPOT, confirm=False, comment="Waits for the offer")
        books.document("MoneyToContragent", when, account_from=BANK, contragent=self.suppliers[6][0], sum="500",
                       confirm=False, comment="To be approved")
        books.goods("MoveProduct", when, row, stock_from=DEPOT, stock_to=SHOP, confirm=False)
        books.operation(do="delete", kind="Product", id=books.product_documents)

    def run(self):
        self.make_catalogs()
        self.opening()
        self.single_events()
        month, number = FIRST_DAY, 0
        while month <= LAST_DAY:
            self.each_month(month, number)
            month, number = (month + dt.timedelta(days=32)).replace(day=1), number + 1
        monday, week = FIRST_DAY, 0
        while monday + dt.timedelta(days=6) <= LAST_DAY:
            self.each_week(monday, week)
            monday, week = monday + dt.timedelta(days=7), week + 1
        while self.events:
            when, _, action = heapq.heappop(self.events)
            if when.date() <= LAST_DAY:
                action(when)
        self.closing_drafts()
        return self.books


def main():
    books = Larkmoor().run()
    print("\n".join(books.lines))
    for kind, count in sorted(books.counts.items()):
        print(f"{kind:22}{count:5}", file=sys.stderr)
    print(f"{'documents':22}{sum(books.counts.values()):5}   accounts "
          + ", ".join(str(value) for value in books.accounts.values()), file=sys.stderr)


if __name__ == "__main__":
    main()
