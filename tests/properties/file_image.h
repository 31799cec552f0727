#pragma once

#include "properties/plan.h"
#include "store/connector.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace zelvor::audit {

// What the tables say, read with plain SQL past every record class.

struct RowImage {
    qint64 product, document;
    Cents amount, baseCost, price, listPrice, baseSum, priceSum, vatRate, gstRate;
    bool shipment;
};

struct DocImage {
    DocType type = DocType::NilType;
    qint64 date = 0;
    qint64 number = 0;
    qint64 contragent = 0;
    Cents sum = 0;
    bool confirmed = false;
    qint64 payTo = 0;
    Cents left = 0;
    Cents contragentBalance = 0;
    qint64 stockFrom = 0, stockTo = 0;
    Cents vatSum = 0, gstSum = 0, shipment = 0, discount = 0;
    bool vat = false, gst = false;
    qint64 accountFrom = 0, accountTo = 0, employee = 0, expend = 0;
    bool loans = false, variable = false, divident = false;
    qint64 rate = 0; // ten-thousandths
    Cents received = 0, accountFromBalance = 0, accountToBalance = 0, managerBalance = 0;
    qint64 property = 0, basis = 0;
    std::vector<RowImage> rows;
};

struct Held {
    Cents amount = 0;
    Cents reserved = 0;
    friend bool operator==(const Held&, const Held&) = default;
};
using StockImage = std::map<std::pair<qint64, qint64>, Held>; // by warehouse and product

struct AssetImage {
    Cents baseCost = 0;
    Cents currentCost = 0;
    bool amortized = false;
    qint64 period = 0;
    qint64 soldDate = 0;
    friend bool operator==(const AssetImage&, const AssetImage&) = default;
};

struct ProductImage {
    Cents baseCost = 0;
    Cents price = 0;
    qint64 vatRate = 0; // thousandths of a percent
    qint64 gstRate = 0;
    bool intangible = false;
};

// The smaller tables: what documents move.
struct BooksImage {
    StockImage stock;
    std::map<qint64, Cents> accounts, contragents, employees;
    std::map<qint64, ProductImage> products;
    std::map<qint64, AssetImage> assets;
    std::map<DocType, qint64> numbers; // the last one handed out
    qint64 lastPeriodSaved = 0;
    bool sameProductTwice = false; // a warehouse with two rows of one product
};
BooksImage readBooks(Connector& db);

using DocImages = std::map<DocKey, DocImage>;
DocImages readDocuments(Connector& db);

// Each confirmed document with its rows as one text, but for what stays to pay.
std::map<DocKey, std::string> readConfirmedTexts(Connector& db);

struct HistoryImage {
    qint64 date, stock, product;
    Held held;
    friend auto operator<=>(const HistoryImage& a, const HistoryImage& b)
    {
        return std::tie(a.date, a.stock, a.product, a.held.amount, a.held.reserved) <=>
               std::tie(b.date, b.stock, b.product, b.held.amount, b.held.reserved);
    }
    friend bool operator==(const HistoryImage&, const HistoryImage&) = default;
};
std::vector<HistoryImage> readHistory(Connector& db); // in the order of writing

} // namespace zelvor::audit
