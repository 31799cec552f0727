#pragma once

#include "catalogs/tree_model.h"

namespace zelvor {

// A kind of spending, or a group of them.
class ExpendModel : public TreeModel<ExpendModel, TableModel> {};

class ExpendType : public ExpendModel {
public:
    bool isGroup() const override { return true; }
    QString className() const override { return QStringLiteral("ExpendType"); }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

class Expend : public ExpendModel {
public:
    QString descriptionString;
    bool isConstant = true;
    bool isHidden = false;

    bool isGroup() const override { return false; }
    QString className() const override { return QStringLiteral("Expend"); }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
