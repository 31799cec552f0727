#pragma once

#include "documents/document_model.h"

#include <algorithm>
#include <array>

namespace zelvor {

// The columns that every document table begins with.
inline constexpr std::array documentColumns{
    integerColumn<&DocumentModel::docTypeID>("doc_type_id"),
    integerColumn<&DocumentModel::date>("date"),
    integerColumn<&DocumentModel::docNumber>("doc_number"),
    integerColumn<&DocumentModel::contragentID>("contragent_id"),
    realColumn<DocumentModel, &DocumentModel::docSum, &DocumentModel::setDocSum>("doc_sum"),
    integerColumn<&DocumentModel::managerID>("manager_id"),
    textColumn<&DocumentModel::comment>("comment"),
    booleanColumn<&DocumentModel::confirmed>("is_confirmed"),
    booleanColumn<&DocumentModel::correction>("is_correction"),
    integerColumn<&DocumentModel::parentDocID>("parent_doc_id"),
    integerColumn<&DocumentModel::parentDocTypeID>("parent_doc_type_id"),
    integerColumn<&DocumentModel::payToDate>("pay_to_date"),
    realColumn<DocumentModel, &DocumentModel::leftToPay, &DocumentModel::setLeftToPay>("left_to_pay"),
    realColumn<DocumentModel, &DocumentModel::contragentBalance, &DocumentModel::setContragentBalance>(
        "contragent_balance"),
};

// Those, and a kind's own behind them.
template <std::size_t Count>
constexpr auto withDocumentColumns(const ColumnInfo (&own)[Count])
{
    std::array<ColumnInfo, documentColumns.size() + Count> all{};
    std::ranges::copy(own, std::ranges::copy(documentColumns, all.begin()).out);
    return all;
}

} // namespace zelvor
