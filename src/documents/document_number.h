#pragma once

#include "store/table_info.h"

namespace zelvor {

// The serial counter of one document type.
class DocumentNumber : public TableModel {
public:
    qint64 docTypeID = 0;
    qint64 docNumber = 0; // the last number handed out

    // The next number, kept in the record; the caller writes the record back.
    qint64 getNextNumber() { return ++docNumber; }
    static const TableInfo& table();
};

} // namespace zelvor
