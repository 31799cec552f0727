#pragma once

#include "catalogs/property.h"
#include "core/view.h"

#include <functional>

namespace zelvor {

// The held fixed assets to pick one from for a document. The document's controller puts the assets in and
// hangs its own addProperty on the double click.
class PropertySelectView : public TableView {
public:
    using Records = std::vector<std::shared_ptr<Property>>;

    PropertySelectView();

    std::function<void(const std::shared_ptr<Property>& property)> addProperty;

    const Records& properties() const { return m_properties; }
    void setProperties(Records properties);
    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(m_properties.size()); }
    QVariant value(int row, const QString& identifier) const override;
    void doubleAction(int row) override;

private:
    std::shared_ptr<Property> property(int row) const;

    Records m_properties;
};

} // namespace zelvor
