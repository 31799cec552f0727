#pragma once

#include "catalogs/function.h"
#include "core/colors.h"
#include "store/table_info.h"

namespace zelvor {

// An employee. The balance is positive while we owe them money; money documents change it.
class Manager : public TableModelWithNumbers {
public:
    QString name;
    qint64 functionID = 0;
    Decimal innerBalance; // currency of the project
    double balance() const { return innerBalance.toDouble(); }
    void setBalance(double value) { innerBalance = Decimal::fromDouble(value, decimalHandler); }
    bool isHidden = false;

    Link<Function> function;
    bool selected = true; // tick in a selection popover

    QString functionName() const { return function->name; }
    Color balanceFontColor() const { return innerBalance.isNegative() ? redColor : inOrderColor; }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
