#pragma once

#include "core/table_model.h"
#include "store/link.h"
#include "store/statement.h"

#include <memory>
#include <span>
#include <vector>

namespace zelvor {

// What of a record class is stored: one list beside the class, from which the connector works out every
// statement. A class offers it as `static const TableInfo& table()`:
//
//     const TableInfo& Account::table()
//     {
//         static constexpr ColumnInfo columns[] = {
//             textColumn<&Account::name>("name"),
//             integerColumn<&Account::currencyID>("currency_id"),
//             realColumn<&Account::balance, &Account::setBalance>("balance"),
//             booleanColumn<&Account::isHidden>("is_hidden"),
//         };
//         static constexpr LinkInfo links[] = {linkOf<&Account::accountTypeID, &Account::accountType>()};
//         static constexpr TableInfo info{"account", columns, links, {}, nullptr, makeRecord<Account>};
//         return info;
//     }

enum class ColumnKind { Integer, Boolean, Real, Text };

struct ColumnInfo {
    const char* name;
    ColumnKind kind;
    void (*bind)(const TableModel& record, Statement& statement, int mark);
    void (*load)(TableModel& record, const Statement& statement, int column);
};

struct TableInfo;

// A held record beside the column with its id. A read fills it; id 0 or no such row leaves it empty.
struct LinkInfo {
    const TableInfo& (*table)();
    qint64 (*id)(const TableModel& record);
    void (*set)(TableModel& record, const std::shared_ptr<TableModel>& linked);
};

// The rows of a document: a list of records whose `column` holds the head's id. A read fills it in id order,
// insert and update of the head store it; nothing is removed by them.
struct RowListInfo {
    const TableInfo& (*table)();
    const char* column;
    void (*setHeadID)(TableModel& row, qint64 headID);
    std::size_t (*count)(const TableModel& head);
    TableModel& (*at)(const TableModel& head, std::size_t index);
    void (*append)(TableModel& head, const std::shared_ptr<TableModel>& row);
};

// An index that the program's own questions need, made with the table: "ix_" names, the text behind ON.
struct IndexInfo {
    const char* name;   // "ix_product_doc_date"
    const char* target; // "product_doc(date)" or with a WHERE behind
};

struct TableInfo {
    const char* name;
    std::span<const ColumnInfo> columns;
    std::span<const LinkInfo> links;
    std::span<const IndexInfo> indexes;
    const RowListInfo* rows; // null when the class has no rows
    std::shared_ptr<TableModel> (*make)();
};

namespace detail {

template <class>
struct MemberTraits;
template <class Class, class Value>
struct MemberTraits<Value Class::*> {
    using Owner = Class;
    using Type = Value;
};

template <auto Member>
using OwnerOf = typename MemberTraits<decltype(Member)>::Owner;

} // namespace detail

template <auto Member>
constexpr ColumnInfo integerColumn(const char* name)
{
    using Owner = detail::OwnerOf<Member>;
    return {name, ColumnKind::Integer,
            [](const TableModel& record, Statement& statement, int mark) {
                statement.bindInteger(mark, static_cast<const Owner&>(record).*Member);
            },
            [](TableModel& record, const Statement& statement, int column) {
                static_cast<Owner&>(record).*Member = statement.integer(column);
            }};
}

template <auto Member>
constexpr ColumnInfo booleanColumn(const char* name)
{
    using Owner = detail::OwnerOf<Member>;
    return {name, ColumnKind::Boolean,
            [](const TableModel& record, Statement& statement, int mark) {
                statement.bindInteger(mark, static_cast<const Owner&>(record).*Member ? 1 : 0);
            },
            [](TableModel& record, const Statement& statement, int column) {
                static_cast<Owner&>(record).*Member = statement.integer(column) != 0;
            }};
}

template <auto Member>
constexpr ColumnInfo textColumn(const char* name)
{
    using Owner = detail::OwnerOf<Member>;
    return {name, ColumnKind::Text,
            [](const TableModel& record, Statement& statement, int mark) {
                statement.bindText(mark, static_cast<const Owner&>(record).*Member);
            },
            [](TableModel& record, const Statement& statement, int column) {
                static_cast<Owner&>(record).*Member = statement.text(column);
            }};
}

// Through the accessors, so that a value rounded on its way in is rounded on load too. Getter and setter
// belong to `Owner`: realColumn<Account, &Account::balance, &Account::setBalance>("balance").
template <class Owner, auto Getter, auto Setter>
constexpr ColumnInfo realColumn(const char* name)
{
    return {name, ColumnKind::Real,
            [](const TableModel& record, Statement& statement, int mark) {
                statement.bindReal(mark, (static_cast<const Owner&>(record).*Getter)());
            },
            [](TableModel& record, const Statement& statement, int column) {
                (static_cast<Owner&>(record).*Setter)(statement.real(column));
            }};
}

// A plain stored real without a decimal companion.
template <auto Member>
constexpr ColumnInfo plainRealColumn(const char* name)
{
    using Owner = detail::OwnerOf<Member>;
    return {name, ColumnKind::Real,
            [](const TableModel& record, Statement& statement, int mark) {
                statement.bindReal(mark, static_cast<const Owner&>(record).*Member);
            },
            [](TableModel& record, const Statement& statement, int column) {
                static_cast<Owner&>(record).*Member = statement.real(column);
            }};
}

// linkOf<&Contragent::managerID, &Contragent::manager>()
template <auto ID, auto Held>
constexpr LinkInfo linkOf()
{
    using Owner = detail::OwnerOf<Held>;
    using IDOwner = detail::OwnerOf<ID>;
    using Linked = std::remove_cvref_t<decltype(*(std::declval<Owner>().*Held))>;
    return {[]() -> const TableInfo& { return Linked::table(); },
            [](const TableModel& record) -> qint64 { return static_cast<const IDOwner&>(record).*ID; },
            [](TableModel& record, const std::shared_ptr<TableModel>& linked) {
                static_cast<Owner&>(record).*Held = Link<Linked>(std::static_pointer_cast<Linked>(linked));
            }};
}

// rowsOf<&ProductDocument::documentRows, &ProductDocumentRow::docID>("doc_id") for a
// std::vector<std::shared_ptr<Row>>.
template <auto List, auto HeadID>
constexpr RowListInfo rowsOf(const char* column)
{
    using Owner = detail::OwnerOf<List>;
    using Row = detail::OwnerOf<HeadID>;
    return {[]() -> const TableInfo& { return Row::table(); }, column,
            [](TableModel& row, qint64 headID) { static_cast<Row&>(row).*HeadID = headID; },
            [](const TableModel& head) { return (static_cast<const Owner&>(head).*List).size(); },
            [](const TableModel& head, std::size_t index) -> TableModel& {
                return *(static_cast<const Owner&>(head).*List)[index];
            },
            [](TableModel& head, const std::shared_ptr<TableModel>& row) {
                (static_cast<Owner&>(head).*List).push_back(std::static_pointer_cast<Row>(row));
            }};
}

template <class Record>
std::shared_ptr<TableModel> makeRecord()
{
    return std::make_shared<Record>();
}

} // namespace zelvor
