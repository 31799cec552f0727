#pragma once

#include "catalogs/expend.h"

#include <memory>
#include <optional>
#include <vector>

namespace zelvor {

// What the spendings report needs of a document: there may be a hundred thousand of them.
struct SpendingDocument {
    qint64 id = 0;
    qint64 date = 0; // seconds since 1970 UTC
    qint64 docNumber = 0;
    QString comment;

    // As the document calls itself.
    QString name() const;
};

// A row of the spendings report: a group of spendings, a spending, one of its documents, or the footer that
// gathers them all. A row owns the rows below it.
class ExpendReportRow : public TableModelWithNumbers {
public:
    using Children = std::vector<std::shared_ptr<ExpendReportRow>>;
    static constexpr RoundingHandler handler = moneyHandler;

    std::optional<SpendingDocument> document;  // of a document's row
    std::shared_ptr<const ExpendModel> expend; // of a group's or a spending's row
    ExpendReportRow* parent = nullptr;
    bool groupRow = false; // gathers others; false for documents
    bool footer = false;
    QString name;   // the footer's
    int indent = 0; // levels
    Decimal innerConst;
    Decimal innerVariable;

    double constant() const { return innerConst.toDouble(); }
    double variable() const { return innerVariable.toDouble(); }
    Decimal innerTotal() const { return innerConst.plus(innerVariable, handler); }
    double total() const { return innerTotal().toDouble(); }
    bool full() const { return !innerTotal().isZero(); }
    QString indentString() const { return QString(3 * indent, u' '); }
    // The name without the indent.
    QString title() const;

    // Add here and to every row above.
    void addToConstant(const Decimal& sum) { add(&ExpendReportRow::innerConst, sum); }
    void addToVariable(const Decimal& sum) { add(&ExpendReportRow::innerVariable, sum); }

    const Children& children() const { return m_children; }
    // Takes the row in below this one, a level further in: documents by date, all others by name.
    void setChild(const std::shared_ptr<ExpendReportRow>& child);
    // Moves the row in, with all below it.
    void addIndent(int levels);
    // Whether the row is this one or stands somewhere below it.
    bool holds(const ExpendReportRow& row) const;

    QVariant valueForIdentifier(QStringView identifier) const override;

private:
    void add(Decimal ExpendReportRow::*field, const Decimal& sum);

    Children m_children;
};

} // namespace zelvor
