#pragma once

#include "catalogs/manager.h"
#include "catalogs/tree_model.h"
#include "core/colors.h"

namespace zelvor {

// A customer, a supplier, or a group of them.
class ContragentModel : public TreeModel<ContragentModel, TableModelWithNumbers> {
public:
    bool isHidden = false;
    double balanceHolder = 0; // spare value; only the accessors of a caller touch it

    // 0 always, but for a counterparty.
    virtual double balance() const { return 0; }
    virtual void setBalance(double) {}
    bool canHoldChildren() const override { return true; }
};

class ContragentGroup : public ContragentModel {
public:
    bool isGroup() const override { return true; }
    QString className() const override { return QStringLiteral("ContragentGroup"); }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

// A counterparty. A positive balance means that it has money with us, a negative one that it owes us. It can
// hold other counterparties; as a parent the group wins over the counterparty.
class Contragent : public ContragentModel {
public:
    qint64 parentContragentID = 0; // the counterparty that holds this one; 0: none
    qint64 managerID = 0;          // responsible employee
    Decimal innerDiscount;         // percent
    double discount() const { return innerDiscount.toDouble(); }
    void setDiscount(double value) { innerDiscount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerBalance; // currency of the project
    double balance() const override { return innerBalance.toDouble(); }
    void setBalance(double value) override { innerBalance = Decimal::fromDouble(value, decimalHandler); }
    qint64 deferment = 0; // days of deferred payment, 0 to maxDeferment of the settings
    QString address;
    QString city;
    QString contactPerson;
    QString phone;
    QString mail;
    QString vatNumber;
    QString comment;

    Link<Manager> manager;

    QString managerName() const { return manager->name; }
    Color balanceFontColor() const { return innerBalance.isNegative() ? redColor : inOrderColor; }
    // Documents change balances only through these two and then store the record.
    void addToBalance(const Decimal& amount) { innerBalance = innerBalance.plus(amount, decimalHandler); }
    void subtractFromBalance(const Decimal& amount)
    {
        innerBalance = innerBalance.minus(amount, decimalHandler);
    }

    bool isGroup() const override { return false; }
    qint64 leafHolderID() const override { return parentContragentID; }
    QString className() const override { return QStringLiteral("Contragent"); }
    // The held child is a counterparty, and its parentContragentID is the link.
    void appendChild(const Node& child) override;
    void removeChildAtIndex(std::size_t index) override;
    std::vector<qint64> getChildrenIDs() const override;
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
