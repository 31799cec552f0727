#pragma once

#include "core/localized.h"
#include "store/table_info.h"

namespace zelvor {

class AccountType : public TableModel {
public:
    QString name = localized("New Account Type");
    QString descriptionString;
    bool isHidden = false;

    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
