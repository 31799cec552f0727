#pragma once

#include "catalogs/contragent.h"
#include "catalogs/tree_catalog_view.h"

namespace zelvor {

// The list of the counterparties catalog.
class ContragentView : public TreeCatalogView<ContragentModel> {
public:
    using Managers = std::vector<std::shared_ptr<Manager>>;

    explicit ContragentView(TreeCatalogOwner<ContragentModel>& owner);

    const Nodes& contragents() const { return topLevel(); }
    const Nodes& contragentGroups() const { return groups(); }
    // Every counterparty without its place, by name: what can be chosen as a parent.
    const Nodes& contragentsForSelect() const;
    const Nodes& loadedContragentsForSelect() const { return m_contragentsForSelect; }
    void setContragentsForSelect(Nodes nodes) { m_contragentsForSelect = std::move(nodes); }
    // Every employee, by name.
    const Managers& managers() const;
    const Managers& loadedManagers() const { return m_managers; }
    void setManagers(Managers managers) { m_managers = std::move(managers); }

    CellStyle cellStyle(const Node& node, const QString& identifier) const override;
    // Keys "name" and "balance". By balance goes only the top level and the one below it.
    void sort(const QString& key, bool ascending) override;
    void sortChildrenByBalance(const Nodes& nodes, bool ascending);

protected:
    bool* checkBox(ContragentModel& node, const QString& identifier) const override;
    bool groupShows(const QString& identifier) const override
    {
        return identifier == u"name" || identifier == u"hidden";
    }

private:
    Nodes m_contragentsForSelect;
    Managers m_managers;
};

} // namespace zelvor
