#include "cli/catalog_writer.h"

#include "catalogs/account_type_view_controller.h"
#include "catalogs/account_view_controller.h"
#include "catalogs/contragent_view_controller.h"
#include "catalogs/currency_view_controller.h"
#include "catalogs/delete_basis_view_controller.h"
#include "catalogs/expend_view_controller.h"
#include "catalogs/function_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/property_journal_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "cli/catalog_door.h"
#include "cli/link_columns.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr std::string_view currencyColumns[] = {"rate"};
// The cells that the journal of fixed assets edits.
constexpr std::string_view propertyColumns[] = {"current_cost", "is_amortized", "amortization_period",
                                                "description_string"};

template <class Record, class Controller>
constexpr CatalogKind kindOf(const char* name)
{
    return {name, &Record::table, &openDoor<Record, Controller>};
}

constexpr std::array kinds{
    CatalogKind{"Params", &Params::table, &openParamsDoor, {}, false},
    CatalogKind{"Currency", &Currency::table, &openDoor<Currency, CurrencyViewController>, currencyColumns,
                false},
    kindOf<Measurement, MeasurementViewController>("Measurement"),
    kindOf<Function, FunctionViewController>("Function"),
    kindOf<AccountType, AccountTypeViewController>("AccountType"),
    kindOf<ExpendType, ExpendViewController>("ExpendType"),
    kindOf<Expend, ExpendViewController>("Expend"),
    kindOf<Manager, ManagerViewController>("Manager"),
    kindOf<Stock, StockViewController>("Stock"),
    kindOf<Account, AccountViewController>("Account"),
    kindOf<Product, ProductViewController>("Product"),
    kindOf<ProductGroup, ProductViewController>("ProductGroup"),
    kindOf<Contragent, ContragentViewController>("Contragent"),
    kindOf<ContragentGroup, ContragentViewController>("ContragentGroup"),
    kindOf<DeleteBasis, DeleteBasisViewController>("DeleteBasis"),
    CatalogKind{"Property", &Property::table, &openDoor<Property, PropertyJournalViewController>,
                propertyColumns, false},
};

// The id that a link column gets; nothing for any other column.
const qint64* linkedID(const LinkColumn* link, const ColumnValue& value)
{
    return link ? std::get_if<qint64>(&value.value.value()) : nullptr;
}

} // namespace

const CatalogKind* catalogKind(const QString& name)
{
    const auto found =
        std::ranges::find_if(kinds, [&](const CatalogKind& k) { return name == QLatin1StringView(k.name); });
    return found == kinds.end() ? nullptr : &*found;
}

CatalogWriter::CatalogWriter(AppDelegate& appDelegate) : m_appDelegate(appDelegate) {}

CatalogWriter::~CatalogWriter() = default;

QString CatalogWriter::invalidColumn(const CatalogKind& kind, const ColumnValues& values) const
{
    for (const ColumnValue& value : values) {
        const std::string_view name = value.column->name;
        if (!kind.editable.empty() && std::ranges::find(kind.editable, name) == kind.editable.end())
            return u"'%1' of a %2 cannot be written"_s.arg(QLatin1StringView(value.column->name),
                                                           QLatin1StringView(kind.name));
    }
    return {};
}

QString CatalogWriter::invalidLink(const CatalogKind& kind, qint64 id, const ColumnValues& values) const
{
    Connector& connector = m_appDelegate.connector;
    for (const ColumnValue& value : values) {
        const LinkColumn* link = linkColumn(kind.table(), value.column->name);
        const qint64* target = linkedID(link, value);
        if (!target || *target == 0)
            continue;
        const QString column = QString::fromLatin1(value.column->name);
        if (!recordExists(connector, link->target(), *target))
            return u"'%1': there is no %2 with the id %3"_s.arg(
                column, QLatin1StringView(link->target().name), QString::number(*target));
        if (link->isHolder && wouldHoldItself(connector, *link, id, *target))
            return u"'%1': the record would hold itself"_s.arg(column);
    }
    return {};
}

Answer CatalogWriter::write(const CatalogKind& kind, qint64 id, const ColumnValues& values)
{
    if (id == 0 && !kind.canAdd)
        return Answer::invalid(
            u"a %1 cannot be added, only changed: 'id' is missing"_s.arg(QLatin1StringView(kind.name)));
    QString problem = invalidColumn(kind, values);
    if (problem.isEmpty())
        problem = invalidLink(kind, id, values);
    if (!problem.isEmpty())
        return Answer::invalid(problem);

    std::unique_ptr<CatalogDoor>& door = m_doors[&kind];
    if (!door)
        door = kind.open(m_appDelegate);
    const std::shared_ptr<TableModel> record = door->record(id);
    if (!record)
        return Answer::invalid(
            u"there is no %1 with the id %2"_s.arg(QLatin1StringView(kind.name), QString::number(id)));
    if (!loadValues(m_appDelegate.connector, *record, values))
        return Answer::refused(u"The project cannot be read."_s);
    door->settle(*record, values);
    const QString warning = door->refusal(*record, values);
    if (!warning.isEmpty())
        return Answer::refused(warning);
    if (!door->write(record, values))
        return Answer::refused(u"The record could not be stored."_s);
    return Answer::stored(record->id);
}

} // namespace zelvor
