"""Random books: operations for `zelvor-cli apply --replay`, right and wrong ones, by a seed. Every kind of
document is in them, drafts, hidden records, groups in groups, and moments that lie exactly on a midnight."""

import random

DAY = 86400


def put(record, **values):
    return {"do": "put", "record": record, "values": values}


class Books:
    """The operations of one business over `months` months; `start` is a midnight, seconds since 1970."""

    def __init__(self, seed, start, months=4, documents=260):
        self.chance = random.Random(seed)
        self.operations = []
        self.start = start
        self.catalogs()
        step = months * 30 * DAY // documents
        moment = start
        self.opening()
        for _ in range(documents):
            moment += self.chance.randrange(step * 2)
            self.document(self.some_moment(moment))
        # Out of use at last: what they did still counts.
        for record, number in (("Manager", 3), ("Stock", 3), ("Expend", 7), ("Contragent", 2)):
            self.add({"do": "put", "record": record, "id": number, "values": {"is_hidden": True}})

    def some_moment(self, moment):
        """Often several documents at one moment, and often one that begins a day."""
        kind = self.chance.random()
        if kind < 0.15:
            return self.start + (moment - self.start) // DAY * DAY
        if kind < 0.3:
            return moment - moment % 3600
        return moment

    def add(self, operation):
        self.operations.append(operation)

    def some(self, count):
        return self.chance.randrange(1, count + 1)

    def money(self, most):
        return f"{self.chance.randrange(1, most * 100) / 100:.2f}"

    def catalogs(self):
        chance = self.chance
        self.add({"do": "put", "record": "Params", "id": 1, "values": {
            "report_period": chance.choice([1, 2, 3]), "vat_rate": 20, "is_use_vat": chance.random() < 0.5}})
        self.add({"do": "put", "record": "Currency", "id": 2, "values": {"rate": "1.0840"}})
        self.add(put("Measurement", name="Piece", shorthand="pcs"))
        for i in range(1, 4):
            self.add(put("Manager", name=f"Clerk {i}"))
        for i in range(1, 4):
            self.add(put("Stock", name=f"Store {4 - i}", is_default=i == 1))
        self.add(put("Account", name="Till", currency_id=1, is_default=True))
        self.add(put("Account", name="Dollars", currency_id=2))
        self.add(put("Account", name="Bank", currency_id=1))
        for i, parent in enumerate([0, 0, 1, 3], start=1):
            self.add(put("ProductGroup", name=f"Range {9 - i}", parent_id=parent))
        for i in range(1, 13):
            self.add(put("Product", name=f"Ware {chance.randrange(100):02d}-{i}", group_id=chance.randrange(5),
                         measurement_id=1, base_cost=self.money(40), price_cost=self.money(90)))
        self.add(put("Product", name="Repair", is_intangible=True, price_cost="35.50"))
        for i, parent in enumerate([0, 1, 0, 2], start=1):
            self.add(put("ContragentGroup", name=f"Circle {9 - i}", parent_id=parent))
        for i in range(1, 11):
            self.add(put("Contragent", name=f"Party {chance.randrange(100):02d}-{i}",
                         parent_id=chance.randrange(5), deferment=chance.choice([0, 14]),
                         parent_contragent_id=chance.randrange(1, i) if i > 3 and chance.random() < 0.4 else 0))
        for i in range(1, 4):
            self.add(put("ExpendType", name=f"Kind {9 - i}"))
        for i in range(1, 8):
            self.add(put("Expend", name=f"Cost {chance.randrange(100):02d}-{i}", parent_id=chance.randrange(4)))

    def opening(self):
        """Some money and some goods; the other things come by the documents."""
        for account in range(1, 4):
            self.add({"do": "document", "type": "MoneyAdd", "date": self.start, "account_to": account,
                      "sum": "2500.00", "confirm": True})
        for stock in (1, 2):
            self.add({"do": "document", "type": "AddProduct", "date": self.start, "stock_to": stock,
                      "confirm": True, "rows": [{"product": product, "amount": "20", "price": self.money(40)}
                                                for product in range(1, 13)]})

    def rows(self, products, bought):
        return [{"product": product, "amount": self.chance.choice(["1", "2", "7.5", "0.25", "12"]),
                 "price": self.money(40 if bought else 90)}
                for product in self.chance.sample(products, min(len(products), self.chance.randrange(1, 4)))]

    def document(self, moment):
        chance = self.chance
        goods = list(range(1, 13))
        kind = chance.choices(
            ["BuyProduct", "SellProduct", "SellIntangibles", "MoveProduct", "AddProduct", "DeleteProduct",
             "Return", "MoneyFromContragent", "MoneyToContragent", "MoneyToExpend", "MoneyFromEmployee",
             "MoneyToEmployee", "InnerTransaction", "MoneyAdd", "BuyProperty", "AddProperty", "SellProperty"],
            [22, 30, 4, 8, 6, 4, 5, 14, 10, 16, 4, 6, 6, 6, 2, 2, 2])[0]
        operation = {"do": "document", "type": kind, "date": moment, "confirm": chance.random() < 0.93}
        if kind in ("BuyProduct", "Return", "AddProduct"):
            operation |= {"stock_to": self.some(3), "rows": self.rows(goods, True)}
        if kind in ("SellProduct", "DeleteProduct"):
            operation |= {"stock_from": self.some(3), "rows": self.rows(goods, False)}
        if kind == "SellIntangibles":
            operation["rows"] = self.rows([13], False)
        if kind == "MoveProduct":
            first, second = chance.sample([1, 2, 3], 2)
            operation |= {"stock_from": first, "stock_to": second, "rows": self.rows(goods, False)}
        if kind in ("BuyProduct", "Return", "SellProduct", "SellIntangibles", "MoneyFromContragent",
                    "MoneyToContragent", "BuyProperty", "SellProperty"):
            operation["contragent"] = self.some(10)
        if kind in ("MoneyFromContragent", "MoneyFromEmployee", "MoneyAdd", "InnerTransaction"):
            operation["account_to"] = self.some(3)
        if kind in ("MoneyToContragent", "MoneyToExpend", "MoneyToEmployee", "InnerTransaction"):
            operation["account_from"] = self.some(3)
        if kind in ("MoneyFromEmployee", "MoneyToEmployee"):
            operation["employee"] = self.some(3)
        if kind == "MoneyToEmployee":
            operation["divident"] = chance.random() < 0.3
        if kind == "MoneyToExpend":
            operation |= {"expend": self.some(7), "variable": chance.random() < 0.4,
                          "comment": chance.choice(["", "paid late", "by card, 3 %"])}
        if kind.startswith("Money") or kind == "InnerTransaction":
            operation["sum"] = self.money(400)
            operation["loans"] = kind in ("MoneyFromContragent", "MoneyToContragent") and chance.random() < 0.2
            operation = {key: value for key, value in operation.items() if key != "loans" or value}
        if kind in ("BuyProperty", "AddProperty"):
            operation |= {"property_name": f"Asset {chance.randrange(1000)}", "sum": self.money(900),
                          "amortized": True, "period": 36, "confirm": True}
        if kind == "SellProperty":
            operation |= {"property": self.some(3), "sum": self.money(500), "confirm": True}
        if kind in ("MoneyToExpend", "InnerTransaction") and "divident" in operation:
            del operation["divident"]
        self.add(operation)
