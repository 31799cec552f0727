#include "catalogs/contragent.h"

namespace zelvor {

QVariant ContragentGroup::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"parentID")
        return parentID;
    if (key == u"hidden")
        return isHidden;
    if (key == u"selected")
        return selected;
    return QString();
}

const TableInfo& ContragentGroup::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&ContragentGroup::name>("name"),
        integerColumn<&ContragentGroup::parentID>("parent_id"),
        booleanColumn<&ContragentGroup::isHidden>("is_hidden"),
    };
    static constexpr TableInfo info{"contragent_group",         columns, {}, {}, nullptr,
                                    makeRecord<ContragentGroup>};
    return info;
}

void Contragent::appendChild(const Node& child)
{
    const qint64 groupID = child->parentID;
    ContragentModel::appendChild(child);
    child->parentID = groupID;
    if (const auto contragent = std::dynamic_pointer_cast<Contragent>(child))
        contragent->parentContragentID = id;
}

void Contragent::removeChildAtIndex(std::size_t index)
{
    const Node child = children[index];
    const qint64 groupID = child->parentID;
    ContragentModel::removeChildAtIndex(index);
    child->parentID = groupID;
    if (const auto contragent = std::dynamic_pointer_cast<Contragent>(child))
        contragent->parentContragentID = 0;
}

std::vector<qint64> Contragent::getChildrenIDs() const
{
    std::vector<qint64> ids;
    for (const Node& child : children) {
        ids.push_back(child->id);
        const std::vector<qint64> below = child->getChildrenIDs();
        ids.insert(ids.end(), below.begin(), below.end());
    }
    return ids;
}

QVariant Contragent::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"parentID")
        return parentID;
    if (key == u"managerName")
        return managerName();
    if (key == u"balance")
        return balance();
    if (key == u"hidden")
        return isHidden;
    if (key == u"selected")
        return selected;
    return QString();
}

const TableInfo& Contragent::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Contragent::name>("name"),
        integerColumn<&Contragent::parentID>("parent_id"),
        booleanColumn<&Contragent::isHidden>("is_hidden"),
        integerColumn<&Contragent::parentContragentID>("parent_contragent_id"),
        integerColumn<&Contragent::managerID>("manager_id"),
        realColumn<Contragent, &Contragent::discount, &Contragent::setDiscount>("discount"),
        realColumn<Contragent, &Contragent::balance, &Contragent::setBalance>("balance"),
        integerColumn<&Contragent::deferment>("deferment"),
        textColumn<&Contragent::address>("address"),
        textColumn<&Contragent::city>("city"),
        textColumn<&Contragent::contactPerson>("contact_person"),
        textColumn<&Contragent::phone>("phone"),
        textColumn<&Contragent::mail>("mail"),
        textColumn<&Contragent::vatNumber>("vat_number"),
        textColumn<&Contragent::comment>("comment"),
    };
    static constexpr LinkInfo links[] = {
        linkOf<&Contragent::managerID, &Contragent::manager>(),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_contragent_manager", "contragent(manager_id)"},
    };
    static constexpr TableInfo info{"contragent", columns, links, indexes, nullptr, makeRecord<Contragent>};
    return info;
}

} // namespace zelvor
