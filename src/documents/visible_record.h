#pragma once

#include "store/connector.h"

#include <memory>

namespace zelvor {

// What a form may choose by its id: none for 0, for an id without a record and for a hidden record.
template <class Record>
std::shared_ptr<Record> visibleRecord(Connector& connector, qint64 id)
{
    const std::shared_ptr<Record> record = id == 0 ? nullptr : connector.select<Record>(id, Fill::Nothing);
    return record && !record->isHidden ? record : nullptr;
}

} // namespace zelvor
