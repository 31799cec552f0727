#pragma once

#include <QtCore/QString>

#include <optional>

namespace zelvor {

// A document kind, a journal, a report, a catalog or a group of the main menu. The raw value is stored as
// `doc_type_id` and is the id of the menu row of that case.
enum class DocType : int {
    NilType = 0,
    Money,
    MoneyFromContragent,
    MoneyToContragent,
    MoneyToExpend,
    MoneyFromEmployee,
    MoneyToEmployee,
    InnerTransaction,
    MoneyAdd,
    MoneyJournal,
    Products,
    BuyProduct,
    SellProduct,
    SellIntangibles,
    MoveProduct,
    AddProduct,
    DeleteProduct,
    Return,
    ProductJournal,
    PropertyGroup,
    BuyProperty,
    SellProperty,
    AddProperty,
    DeleteProperty,
    PropertyJournal,
    Reports,
    BalanceSheet,
    PaymentCalendar,
    AllDocumentsJournal,
    ProductsOnStockReport,
    AccountReport,
    ContragentReport,
    ContragentsReport,
    PeriodSellReport,
    ExpendReport,
    EmployeeReport,
    DynamicsReport,
    Organization,
    ContragentCatalog,
    ProductCatalog,
    AccountCatalog,
    StockCatalog,
    ManagerCatalog,
    ExpendCatalog,
    Catalogs,
    FunctionCatalog,
    AccountTypeCatalog,
    CurrencyCatalog,
    MeasurementCatalog,
    DeleteBasisCatalog,
};

inline constexpr int docTypeCount = 50;

constexpr int rawValue(DocType type)
{
    return static_cast<int>(type);
}
// Nothing for a raw value outside 0 to 49.
std::optional<DocType> typeFromInt(qint64 raw);
// The display text, localised: "Sale", "Purchase".
QString docTypeName(DocType type);
// The name of the icon beside the case in the main menu.
QString docTypeImage(DocType type);
// The identifier of the case: "SellProduct".
QString docTypeCase(DocType type);
std::optional<DocType> docTypeFromCase(QStringView name);
// The menu group that holds the case; NilType for the groups themselves and for NilType.
DocType docTypeMenuGroup(DocType type);
// The group that the main menu opens to show the case. Nothing for MoneyAdd and DynamicsReport, though both
// stand in a group: the menu has never opened itself for these two. Nothing for the catalogs either.
std::optional<DocType> docTypeMenuLookup(DocType type);

} // namespace zelvor
