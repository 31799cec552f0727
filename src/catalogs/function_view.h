#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/function.h"

namespace zelvor {

class FunctionViewController;

// The list of what employees do.
class FunctionView : public CatalogListView<Function> {
public:
    explicit FunctionView(FunctionViewController& owner);

    const Records& functions() const { return records(); }
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    void doubleAction(int row) override;

protected:
    Less orderOf(const QString& key) const override;

private:
    FunctionViewController& m_controller;
};

} // namespace zelvor
