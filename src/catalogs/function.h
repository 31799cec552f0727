#pragma once

#include "core/localized.h"
#include "store/table_info.h"

namespace zelvor {

// What an employee does, with its salary.
class Function : public TableModelWithNumbers {
public:
    QString name = localized("New Function");
    Decimal innerSalary; // currency of the project
    double salary() const { return innerSalary.toDouble(); }
    void setSalary(double value) { innerSalary = Decimal::fromDouble(value, decimalHandler); }
    bool isHidden = false;

    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
