#pragma once

#include "core/doc_type.h"
#include "properties/exact_cents.h"

#include <QtCore/QtGlobal>

#include <compare>
#include <string>
#include <vector>

namespace zelvor::audit {

enum class Kind { Product, Money, Property };

struct DocKey {
    Kind kind = Kind::Product;
    qint64 id = 0;
    friend auto operator<=>(const DocKey&, const DocKey&) = default;
};

struct PlanRow {
    qint64 product = 0;
    Cents amount = 0;
    Cents price = 0;
    Cents listPrice = 0;
    Cents baseCost = 0;
    Cents vatRate = 0; // percent
    Cents gstRate = 0;
    bool shipment = false;
};

// What the generator means a document to be: the inputs alone, nothing that a confirmation works out.
struct Plan {
    DocType type = DocType::NilType;
    qint64 date = 0;
    qint64 contragent = 0;
    qint64 deferment = 0; // days
    // product documents
    qint64 stockFrom = 0;
    qint64 stockTo = 0;
    Cents shipment = 0;
    Cents discount = 0; // percent
    bool vat = false;
    bool gst = false;
    std::vector<PlanRow> rows;
    // money and fixed assets
    Cents sum = 0;
    Cents received = 0; // of a transfer; 0: by the rates
    qint64 accountFrom = 0;
    qint64 accountTo = 0;
    qint64 employee = 0;
    qint64 expend = 0;
    bool loans = false;
    bool variable = false;
    bool divident = false;
    qint64 property = 0;
    bool named = false; // a new asset has a name
    bool amortized = false;
    qint64 period = 0;
    qint64 basis = 0;

    bool isAny(std::initializer_list<DocType> types) const
    {
        for (const DocType one : types) {
            if (one == type)
                return true;
        }
        return false;
    }
    Kind kind() const
    {
        using enum DocType;
        if (isAny({BuyProduct, Return, SellProduct, SellIntangibles, MoveProduct, AddProduct, DeleteProduct}))
            return Kind::Product;
        return isAny({BuyProperty, SellProperty, AddProperty, DeleteProperty}) ? Kind::Property : Kind::Money;
    }
    bool sells() const { return isAny({DocType::SellProduct, DocType::SellIntangibles}); }
    bool receives() const { return isAny({DocType::BuyProduct, DocType::Return}); }
    bool takesFromStock() const
    {
        return isAny({DocType::SellProduct, DocType::MoveProduct, DocType::DeleteProduct});
    }
    bool addsToStock() const
    {
        return isAny({DocType::BuyProduct, DocType::Return, DocType::MoveProduct, DocType::AddProduct});
    }
    bool hasContragent() const
    {
        using enum DocType;
        return sells() || receives() ||
               isAny({MoneyFromContragent, MoneyToContragent, BuyProperty, SellProperty});
    }
    bool takesMoney() const
    {
        using enum DocType;
        return isAny({MoneyToContragent, MoneyToEmployee, MoneyToExpend, InnerTransaction});
    }
    bool bringsMoney() const
    {
        using enum DocType;
        return isAny({MoneyAdd, MoneyFromContragent, MoneyFromEmployee, InnerTransaction});
    }
    bool hasEmployee() const { return isAny({DocType::MoneyFromEmployee, DocType::MoneyToEmployee}); }
    bool bringsProperty() const { return isAny({DocType::BuyProperty, DocType::AddProperty}); }
};

} // namespace zelvor::audit
