#include "shell/project_creation.h"

#include "catalogs/currency.h"
#include "catalogs/delete_basis.h"
#include "core/currency_struct.h"
#include "core/localized.h"
#include "documents/document_number.h"
#include "shell/main_menu_resource.h"
#include "shell/project_tables.h"
#include "store/connector.h"
#include "store/menu.h"
#include "store/params.h"
#include "store/user_write.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

template <class Record>
bool insertRecord(UserWrite& write, Connector& connector, Record record)
{
    return write.step(connector.insert(record));
}

bool populateCurrencies(UserWrite& write, Connector& connector)
{
    return std::ranges::all_of(allCurrencies, [&](CurrencyStruct known) {
        Currency currency;
        currency.code = rawValue(known);
        return insertRecord(write, connector, currency);
    });
}

bool populateMenu(UserWrite& write, Connector& connector, const std::vector<MenuSeed>& seeds)
{
    return std::ranges::all_of(seeds, [&](const MenuSeed& seed) {
        Menu entry;
        entry.name = seed.name;
        entry.parentID = seed.parentID;
        return insertRecord(write, connector, entry);
    });
}

bool populateNumbers(UserWrite& write, Connector& connector, qint64 count)
{
    for (qint64 type = 1; type <= count; ++type) {
        DocumentNumber number;
        number.docTypeID = type;
        if (!insertRecord(write, connector, number))
            return false;
    }
    return true;
}

bool populateDeleteBasis(UserWrite& write, Connector& connector)
{
    DeleteBasis basis;
    basis.name = localized("Selling");
    return insertRecord(write, connector, basis);
}

bool populateProject(UserWrite& write, Connector& connector, int defaultCurrency)
{
    Params params;
    params.version = Params::programVersion.toString();
    params.defaultCurrency = defaultCurrency;
    const std::vector<MenuSeed> menu = mainMenuSeed();
    return insertRecord(write, connector, params) && populateCurrencies(write, connector) &&
           populateMenu(write, connector, menu) &&
           populateNumbers(write, connector, static_cast<qint64>(menu.size())) &&
           populateDeleteBasis(write, connector);
}

bool fillNewProject(Connector& connector, int defaultCurrency)
{
    UserWrite write(connector);
    const bool tablesMade = std::ranges::all_of(
        projectTables(), [&](const TableInfo* table) { return connector.createTableFor(*table); });
    if (!tablesMade || !populateProject(write, connector, defaultCurrency))
        write.fail();
    return write.finish();
}

} // namespace

bool createProject(Connector& connector, const QString& path, int defaultCurrency)
{
    if (!connector.create(path))
        return false;
    if (fillNewProject(connector, defaultCurrency) && connector.publish())
        return true;
    connector.close();
    return false;
}

} // namespace zelvor
