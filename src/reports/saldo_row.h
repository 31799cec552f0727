#pragma once

#include "core/table_model.h"

namespace zelvor {

// The figures of a report that follows a balance through a period: what it was, what lowered it (debit), what
// raised it (credit), what it came to. The last one is never set: every operation keeps it equal to start
// plus credit less debit. Sums in the currency of the balance.
class SaldoRow : public TableModelWithNumbers {
public:
    static constexpr RoundingHandler handler = moneyHandler;

    const Decimal& innerStartSaldo() const { return m_startSaldo; }
    const Decimal& innerFinishSaldo() const { return m_finishSaldo; }
    const Decimal& innerDebitSum() const { return m_debitSum; }
    const Decimal& innerCreditSum() const { return m_creditSum; }
    double startSaldo() const { return m_startSaldo.toDouble(); }
    double finishSaldo() const { return m_finishSaldo.toDouble(); }
    double debitSum() const { return m_debitSum.toDouble(); }
    double creditSum() const { return m_creditSum.toDouble(); }

    void setStartSaldo(double value);
    // A row of a document carries one movement: its finish is the start less the debit, or plus the credit.
    void setDebitSum(double value);
    void setCreditSum(double value);
    void addToStartSaldo(const Decimal& amount);
    void addToDebit(const Decimal& amount);
    void addToCredit(const Decimal& amount);

    // Whether there is anything to show: a figure that is not 0.
    bool full() const;
    // "startSaldo", "finishSaldo", "debit" and "credit".
    QVariant valueForIdentifier(QStringView identifier) const override;

private:
    Decimal m_startSaldo;
    Decimal m_finishSaldo;
    Decimal m_debitSum;
    Decimal m_creditSum;
};

} // namespace zelvor
