#include "core/doc_type.h"

#include "core/localized.h"

#include <array>

namespace zelvor {

namespace {

struct DocTypeEntry {
    QStringView caseName;
    const char* name;
    QStringView image;
    DocType group;
};

using enum DocType;

// In the order of the raw values: the place in the table is the raw value.
constexpr std::array<DocTypeEntry, docTypeCount> entries{{
    {u"NilType", "", u"", NilType},
    {u"Money", QT_TRANSLATE_NOOP("Zelvor", "Money"), u"money", NilType},
    {u"MoneyFromContragent", QT_TRANSLATE_NOOP("Zelvor", "Payment from Counterparty"), u"payment-in", Money},
    {u"MoneyToContragent", QT_TRANSLATE_NOOP("Zelvor", "Payment to Counterparty"), u"payment-out", Money},
    {u"MoneyToExpend", QT_TRANSLATE_NOOP("Zelvor", "Payment of Spending"), u"spending", Money},
    {u"MoneyFromEmployee", QT_TRANSLATE_NOOP("Zelvor", "Payment from Employee"), u"employee-in", Money},
    {u"MoneyToEmployee", QT_TRANSLATE_NOOP("Zelvor", "Payment to Employee"), u"employee-out", Money},
    {u"InnerTransaction", QT_TRANSLATE_NOOP("Zelvor", "Transfer Between Accounts"), u"account-transfer",
     Money},
    {u"MoneyAdd", QT_TRANSLATE_NOOP("Zelvor", "Money Deposit"), u"money-deposit", Money},
    {u"MoneyJournal", QT_TRANSLATE_NOOP("Zelvor", "Money Journal"), u"money-journal", Money},
    {u"Products", QT_TRANSLATE_NOOP("Zelvor", "Products"), u"product", NilType},
    {u"BuyProduct", QT_TRANSLATE_NOOP("Zelvor", "Purchase"), u"purchase", Products},
    {u"SellProduct", QT_TRANSLATE_NOOP("Zelvor", "Sale"), u"sale", Products},
    {u"SellIntangibles", QT_TRANSLATE_NOOP("Zelvor", "Sale of Services"), u"service-sale", Products},
    {u"MoveProduct", QT_TRANSLATE_NOOP("Zelvor", "Transfer Between Warehouses"), u"warehouse-transfer",
     Products},
    {u"AddProduct", QT_TRANSLATE_NOOP("Zelvor", "Stock In"), u"stock-in", Products},
    {u"DeleteProduct", QT_TRANSLATE_NOOP("Zelvor", "Write-Off"), u"write-off", Products},
    {u"Return", QT_TRANSLATE_NOOP("Zelvor", "Return"), u"return", Products},
    {u"ProductJournal", QT_TRANSLATE_NOOP("Zelvor", "Product Journal"), u"product-journal", Products},
    {u"PropertyGroup", QT_TRANSLATE_NOOP("Zelvor", "Fixed Assets"), u"property", NilType},
    {u"BuyProperty", QT_TRANSLATE_NOOP("Zelvor", "Purchase of Fixed Asset"), u"asset-purchase",
     PropertyGroup},
    {u"SellProperty", QT_TRANSLATE_NOOP("Zelvor", "Sale of Fixed Asset"), u"asset-sale", PropertyGroup},
    {u"AddProperty", QT_TRANSLATE_NOOP("Zelvor", "Addition of Fixed Asset"), u"asset-in", PropertyGroup},
    {u"DeleteProperty", QT_TRANSLATE_NOOP("Zelvor", "Write-Off of Fixed Asset"), u"asset-write-off",
     PropertyGroup},
    {u"PropertyJournal", QT_TRANSLATE_NOOP("Zelvor", "Fixed Asset Journal"), u"asset-journal", PropertyGroup},
    {u"Reports", QT_TRANSLATE_NOOP("Zelvor", "Reports"), u"report", NilType},
    {u"BalanceSheet", QT_TRANSLATE_NOOP("Zelvor", "Balance Sheet"), u"balance", Reports},
    {u"PaymentCalendar", QT_TRANSLATE_NOOP("Zelvor", "Payment Calendar"), u"payment-calendar", Reports},
    {u"AllDocumentsJournal", QT_TRANSLATE_NOOP("Zelvor", "All Documents"), u"journal", Reports},
    {u"ProductsOnStockReport", QT_TRANSLATE_NOOP("Zelvor", "Products in Warehouses"), u"stock-report",
     Reports},
    {u"AccountReport", QT_TRANSLATE_NOOP("Zelvor", "Account Report"), u"account-report", Reports},
    {u"ContragentReport", QT_TRANSLATE_NOOP("Zelvor", "Counterparty Report"), u"counterparty-report",
     Reports},
    {u"ContragentsReport", QT_TRANSLATE_NOOP("Zelvor", "Counterparties Report"), u"counterparties-report",
     Reports},
    {u"PeriodSellReport", QT_TRANSLATE_NOOP("Zelvor", "Sales of a Period"), u"sales-report", Reports},
    {u"ExpendReport", QT_TRANSLATE_NOOP("Zelvor", "Spendings Report"), u"spendings-report", Reports},
    {u"EmployeeReport", QT_TRANSLATE_NOOP("Zelvor", "Employee Report"), u"employee-report", Reports},
    {u"DynamicsReport", QT_TRANSLATE_NOOP("Zelvor", "Dynamics"), u"dynamics", Reports},
    {u"Organization", QT_TRANSLATE_NOOP("Zelvor", "Organization"), u"company", NilType},
    {u"ContragentCatalog", QT_TRANSLATE_NOOP("Zelvor", "Counterparties"), u"counterparties", Organization},
    {u"ProductCatalog", QT_TRANSLATE_NOOP("Zelvor", "Products"), u"product-catalog", Organization},
    {u"AccountCatalog", QT_TRANSLATE_NOOP("Zelvor", "Accounts"), u"accounts", Organization},
    {u"StockCatalog", QT_TRANSLATE_NOOP("Zelvor", "Warehouses"), u"warehouses", Organization},
    {u"ManagerCatalog", QT_TRANSLATE_NOOP("Zelvor", "Employees"), u"employees", Organization},
    {u"ExpendCatalog", QT_TRANSLATE_NOOP("Zelvor", "Spendings"), u"spendings", Organization},
    {u"Catalogs", QT_TRANSLATE_NOOP("Zelvor", "Catalogs"), u"catalog", NilType},
    {u"FunctionCatalog", QT_TRANSLATE_NOOP("Zelvor", "Employee Functions"), u"functions", Catalogs},
    {u"AccountTypeCatalog", QT_TRANSLATE_NOOP("Zelvor", "Account Types"), u"account-types", Catalogs},
    {u"CurrencyCatalog", QT_TRANSLATE_NOOP("Zelvor", "Currencies"), u"currencies", Catalogs},
    {u"MeasurementCatalog", QT_TRANSLATE_NOOP("Zelvor", "Units"), u"units", Catalogs},
    {u"DeleteBasisCatalog", QT_TRANSLATE_NOOP("Zelvor", "Reasons for Write-Off"), u"reasons", Catalogs},
}};

const DocTypeEntry& entry(DocType type)
{
    return entries[static_cast<std::size_t>(type)];
}

} // namespace

std::optional<DocType> typeFromInt(qint64 raw)
{
    if (raw < 0 || raw >= docTypeCount)
        return std::nullopt;
    return static_cast<DocType>(raw);
}

QString docTypeName(DocType type)
{
    return type == NilType ? QString() : localized(entry(type).name);
}

QString docTypeImage(DocType type)
{
    return entry(type).image.toString();
}

QString docTypeCase(DocType type)
{
    return entry(type).caseName.toString();
}

std::optional<DocType> docTypeFromCase(QStringView name)
{
    for (std::size_t raw = 0; raw < entries.size(); ++raw) {
        if (entries[raw].caseName == name)
            return static_cast<DocType>(raw);
    }
    return std::nullopt;
}

DocType docTypeMenuGroup(DocType type)
{
    return entry(type).group;
}

std::optional<DocType> docTypeMenuLookup(DocType type)
{
    const DocType group = entry(type).group;
    const bool isCatalog = group == Organization || group == Catalogs;
    if (group == NilType || isCatalog || type == MoneyAdd || type == DynamicsReport)
        return std::nullopt;
    return group;
}

} // namespace zelvor
