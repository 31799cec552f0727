#pragma once

#include "catalogs/account_type.h"
#include "store/table_info.h"

namespace zelvor {

// A cash box or a bank account; money documents change its balance.
class Account : public TableModelWithNumbers {
public:
    QString name;
    qint64 accountTypeID = 0;
    qint64 currencyID = 0; // raw value of a CurrencyStruct; 0: none chosen
    Decimal innerBalance;  // the account's own currency
    double balance() const { return innerBalance.toDouble(); }
    void setBalance(double value) { innerBalance = Decimal::fromDouble(value, decimalHandler); }
    bool isDefault = false;
    bool isHidden = false;

    Link<AccountType> accountType;

    QString accountTypeName() const { return accountType->name; }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
