#include "documents/document_number.h"

namespace zelvor {

const TableInfo& DocumentNumber::table()
{
    static constexpr ColumnInfo columns[] = {
        integerColumn<&DocumentNumber::docTypeID>("doc_type_id"),
        integerColumn<&DocumentNumber::docNumber>("doc_number"),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_doc_number_type", "doc_number(doc_type_id)"},
    };
    static constexpr TableInfo info{"doc_number", columns, {}, indexes, nullptr, makeRecord<DocumentNumber>};
    return info;
}

} // namespace zelvor
