#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/manager.h"

namespace zelvor {

class ManagerViewController;

// The list of employees.
class ManagerView : public CatalogListView<Manager> {
public:
    explicit ManagerView(ManagerViewController& owner);

    const Records& managers() const { return records(); }
    const std::vector<std::shared_ptr<Function>>& functions() const;
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    CellStyle cellStyle(int row, const QString& identifier) const override;
    void doubleAction(int row) override;

protected:
    Less orderOf(const QString& key) const override;

private:
    ManagerViewController& m_controller;
};

} // namespace zelvor
