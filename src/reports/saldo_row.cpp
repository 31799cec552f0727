#include "reports/saldo_row.h"

namespace zelvor {

void SaldoRow::setStartSaldo(double value)
{
    m_startSaldo = Decimal::fromDouble(value, handler);
    m_finishSaldo = m_startSaldo.plus(m_creditSum, handler).minus(m_debitSum, handler);
}

void SaldoRow::setDebitSum(double value)
{
    m_debitSum = Decimal::fromDouble(value, handler);
    m_finishSaldo = m_startSaldo.minus(m_debitSum, handler);
}

void SaldoRow::setCreditSum(double value)
{
    m_creditSum = Decimal::fromDouble(value, handler);
    m_finishSaldo = m_startSaldo.plus(m_creditSum, handler);
}

void SaldoRow::addToStartSaldo(const Decimal& amount)
{
    m_startSaldo = m_startSaldo.plus(amount, handler);
    m_finishSaldo = m_finishSaldo.plus(amount, handler);
}

void SaldoRow::addToDebit(const Decimal& amount)
{
    m_debitSum = m_debitSum.plus(amount, handler);
    m_finishSaldo = m_finishSaldo.minus(amount, handler);
}

void SaldoRow::addToCredit(const Decimal& amount)
{
    m_creditSum = m_creditSum.plus(amount, handler);
    m_finishSaldo = m_finishSaldo.plus(amount, handler);
}

bool SaldoRow::full() const
{
    return !m_startSaldo.isZero() || !m_finishSaldo.isZero() || !m_debitSum.isZero() || !m_creditSum.isZero();
}

QVariant SaldoRow::valueForIdentifier(QStringView identifier) const
{
    if (identifier == u"startSaldo")
        return startSaldo();
    if (identifier == u"finishSaldo")
        return finishSaldo();
    if (identifier == u"debit")
        return debitSum();
    if (identifier == u"credit")
        return creditSum();
    return QString();
}

} // namespace zelvor
