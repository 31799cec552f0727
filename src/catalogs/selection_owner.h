#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <memory>
#include <vector>

namespace zelvor {

class Contragent;
class Expend;

// Whoever opens a selection popover. What it takes from one it says by the interfaces below; a popover whose
// owner takes nothing of its kind stays open.
class SelectionOwner {
public:
    virtual ~SelectionOwner() = default;
    // After the lists of a filter were set: the owner makes its conditions out of them.
    virtual void setStringPredicates() {}
};

// Takes the one counterparty that was chosen by a double click.
class ContragentSelectProtocol : public virtual SelectionOwner {
public:
    virtual void setNewContragent(const std::shared_ptr<Contragent>& contragent) = 0;
};

// Takes the one spending that was chosen by a double click.
class ExpendSelectProtocol : public virtual SelectionOwner {
public:
    virtual void setNewExpend(const std::shared_ptr<Expend>& expend) = 0;
};

// The filters: ids of what is ticked, groups and leaves apart; an empty list stands for all.
class ContragentIDsReceiver : public virtual SelectionOwner {
public:
    virtual void setContragentTypeIDs(const std::vector<qint64>& ids) = 0;
    virtual void setContragentIDs(const std::vector<qint64>& ids) = 0;
    // "Selected Counterparties" or "All Counterparties", for owners that show it.
    virtual void setSelectedContragents(const QString& /*label*/) {}
};

class ExpendIDsReceiver : public virtual SelectionOwner {
public:
    virtual void setExpendTypeIDs(const std::vector<qint64>& ids) = 0;
    virtual void setExpendIDs(const std::vector<qint64>& ids) = 0;
    // "Selected Spendings" or "All Spendings", for owners that show it.
    virtual void setSelectedExpends(const QString& /*label*/) {}
};

class ProductIDsReceiver : public virtual SelectionOwner {
public:
    virtual void setProductTypeIDs(const std::vector<qint64>& ids) = 0;
    virtual void setProductIDs(const std::vector<qint64>& ids) = 0;
};

class SelectedManagersReceiver : public virtual SelectionOwner {
public:
    virtual void setSelectedManagers(const std::vector<qint64>& ids) = 0;
};

class SelectedStocksReceiver : public virtual SelectionOwner {
public:
    virtual void setSelectedStocks(const std::vector<qint64>& ids) = 0;
};

} // namespace zelvor
