#pragma once

#include "core/decimal.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zelvor {

// One line of the balance sheet. Both amounts are running sums, currency of the project: a setter adds.
class BalanceRow {
public:
    static constexpr RoundingHandler handler = moneyHandler;

    bool groupRow = false; // a heading or a closing line
    bool total = false;    // one of the two closing lines
    QString name;
    Decimal innerDebet;
    Decimal innerCredit;

    double debet() const { return innerDebet.toDouble(); }
    void setDebet(const Decimal& value) { innerDebet = innerDebet.plus(value, handler); }
    void setDebet(double value) { setDebet(Decimal::fromDouble(value)); }
    double credit() const { return innerCredit.toDouble(); }
    void setCredit(const Decimal& value) { innerCredit = innerCredit.plus(value, handler); }
    void setCredit(double value) { setCredit(Decimal::fromDouble(value)); }

    // An amount of 0 shows as the empty text.
    QVariant valueForIdentifier(QStringView key) const;
};

} // namespace zelvor
