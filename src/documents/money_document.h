#pragma once

#include "catalogs/account.h"
#include "catalogs/expend.h"
#include "documents/document_model.h"

namespace zelvor {

// Money that moves between accounts, counterparties, employees and spendings.
class MoneyDocument : public DocumentModel {
public:
    static constexpr RoundingHandler exchangeHandler = rateHandler;

    qint64 accountFromID = 0; // the account that money leaves
    qint64 accountToID = 0;   // the account that money enters
    bool loans = false;       // a loan: reports leave it out
    qint64 employeeID = 0;
    qint64 expendID = 0;
    bool variable = false; // a variable spending
    bool divident = false; // a dividend: the employee's balance stays
    Decimal innerExchangeRate{1};
    double exchangeRate() const { return innerExchangeRate.toDouble(); }
    void setExchangeRate(double value) { innerExchangeRate = Decimal::fromDouble(value, exchangeHandler); }
    Decimal innerConvertedSum; // what reached accountTo, in its currency
    double convertedSum() const { return innerConvertedSum.toDouble(); }
    void setConvertedSum(double value) { innerConvertedSum = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerAccountFromBalance; // before this document
    double accountFromBalance() const { return innerAccountFromBalance.toDouble(); }
    void setAccountFromBalance(double value)
    {
        innerAccountFromBalance = Decimal::fromDouble(value, decimalHandler);
    }
    Decimal innerAccountToBalance; // before this document
    double accountToBalance() const { return innerAccountToBalance.toDouble(); }
    void setAccountToBalance(double value)
    {
        innerAccountToBalance = Decimal::fromDouble(value, decimalHandler);
    }
    Decimal innerManagerBalance; // the employee's balance before this document
    double managerBalance() const { return innerManagerBalance.toDouble(); }
    void setManagerBalance(double value) { innerManagerBalance = Decimal::fromDouble(value, decimalHandler); }

    Link<Account> accountFrom;
    Link<Account> accountTo;
    Link<Manager> employee;
    Link<Expend> expend;

    void settAccountFrom(const std::shared_ptr<Account>& record);
    void settAccountTo(const std::shared_ptr<Account>& record);
    void settEmployee(const std::shared_ptr<Manager>& record);
    void settExpend(const std::shared_ptr<Expend>& record);

    QString journalNameFrom(const QString& start) const override;
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();

protected:
    QString titleOpener() const override;
};

} // namespace zelvor
