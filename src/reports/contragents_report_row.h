#pragma once

#include "catalogs/contragent.h"
#include "reports/saldo_row.h"

#include <memory>
#include <vector>

namespace zelvor {

// A row of the counterparties report: a counterparty, a group that gathers all counterparties below it at any
// depth, or one of the two footers. Rows form a tree and refer to each other without owning.
class ContragentsReportRow : public SaldoRow {
public:
    std::shared_ptr<const ContragentModel> contragent; // the counterparty or the group; none in a footer
    QString name;
    bool groupRow = false;
    bool footer = false;
    int indent = 0; // blanks
    ContragentsReportRow* parent = nullptr;
    std::vector<ContragentsReportRow*> children; // by name

    QString indentString() const { return QString(indent, u' '); }
    // Moves the row in, with all that is below it.
    void addIndent(int blanks);
    // Takes the row in below this one, three blanks further in.
    void setChild(ContragentsReportRow& child);
    // Whether the other row stands above this one, or is this one.
    bool isBelow(const ContragentsReportRow& other) const;
    // Adds the row's start and sums, the finish with them.
    void addSaldo(const SaldoRow& row);

    QVariant valueForIdentifier(QStringView identifier) const override;
};

} // namespace zelvor
