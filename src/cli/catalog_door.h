#pragma once

#include "catalogs/account.h"
#include "catalogs/contragent.h"
#include "catalogs/default_and_hidden.h"
#include "catalogs/product.h"
#include "cli/column_values.h"
#include "core/localized.h"
#include "store/app_delegate.h"

#include <memory>

namespace zelvor {

// Whether a write names the column.
bool isGiven(const ColumnValues& values, std::string_view column);

// The way into one catalog: records come as they would onto its popover, and go through its controller.
class CatalogDoor {
public:
    virtual ~CatalogDoor() = default;
    // A new record as the popover would first show it, or the stored one; none for an unknown id.
    virtual std::shared_ptr<TableModel> record(qint64 id) = 0;
    // What the rules of the catalog make of the new values; `record` has them already.
    virtual void settle(TableModel&, const ColumnValues&) {}
    // The warning that the catalog would show; empty when the record may be stored.
    virtual QString refusal(const TableModel& record, const ColumnValues& given) = 0;
    virtual bool write(const std::shared_ptr<TableModel>& record, const ColumnValues& given) = 0;
};

// What a form of the class sees to beside its controller's refusal: nothing, but for the classes below.
template <class Record>
struct CatalogRules {
    static void prepareNew(AppDelegate&, Record&) {}
    static QString refusal(AppDelegate&, const Record&, const ColumnValues&) { return {}; }
};
// A new product has the tax rates of the settings.
template <>
struct CatalogRules<Product> {
    static void prepareNew(AppDelegate& appDelegate, Product& product);
    static QString refusal(AppDelegate&, const Product&, const ColumnValues&) { return {}; }
};
// A stored account keeps its currency.
template <>
struct CatalogRules<Account> {
    static void prepareNew(AppDelegate&, Account&) {}
    static QString refusal(AppDelegate& appDelegate, const Account& account, const ColumnValues& given);
};
// The deferment stays within what the settings allow.
template <>
struct CatalogRules<Contragent> {
    static void prepareNew(AppDelegate&, Contragent&) {}
    static QString refusal(AppDelegate& appDelegate, const Contragent& contragent, const ColumnValues& given);
};

template <class Record, class Controller>
class ControllerDoor final : public CatalogDoor {
public:
    explicit ControllerDoor(AppDelegate& appDelegate) : m_controller(appDelegate) {}

    std::shared_ptr<TableModel> record(qint64 id) override
    {
        if (id != 0)
            return m_controller.appDelegate.connector.template select<Record>(id, Fill::Nothing);
        auto fresh = std::make_shared<Record>();
        CatalogRules<Record>::prepareNew(m_controller.appDelegate, *fresh);
        return fresh;
    }
    QString refusal(const TableModel& record, const ColumnValues& given) override
    {
        const auto& own = static_cast<const Record&>(record);
        if constexpr (hasDefault) {
            if (own.isDefault && own.isHidden && isGiven(given, "is_default") && isGiven(given, "is_hidden"))
                return localized("A record cannot be the default and hidden at once.");
        }
        const QString warning = m_controller.refusal(own);
        return warning.isEmpty() ? CatalogRules<Record>::refusal(m_controller.appDelegate, own, given)
                                 : warning;
    }
    bool write(const std::shared_ptr<TableModel>& record, const ColumnValues& given) override
    {
        const auto own = std::static_pointer_cast<Record>(record);
        if constexpr (hasDefault) {
            if (isGiven(given, "is_default") && own->isDefault)
                return m_controller.writeDefaultAndHidden(own, DefaultHiddenBox::Default);
            if (isGiven(given, "is_hidden") && own->isHidden)
                return m_controller.writeDefaultAndHidden(own, DefaultHiddenBox::Hidden);
        }
        return m_controller.writeRecord(own);
    }

private:
    static constexpr bool hasDefault = requires(Controller & c, std::shared_ptr<Record> r, DefaultHiddenBox b)
    {
        c.writeDefaultAndHidden(r, b);
    };
    Controller m_controller;
};

template <class Record, class Controller>
std::unique_ptr<CatalogDoor> openDoor(AppDelegate& appDelegate)
{
    return std::make_unique<ControllerDoor<Record, Controller>>(appDelegate);
}

// The settings row, which has no catalog.
std::unique_ptr<CatalogDoor> openParamsDoor(AppDelegate& appDelegate);

} // namespace zelvor
