#pragma once

#include "store/app_delegate.h"
#include "store/user_write.h"

#include <functional>

namespace zelvor {

// The write pattern of every catalog: one transaction that inserts a record with id 0 and updates any other.
// `announce` runs before the commit when the record was stored; it is told whether the record was new. True
// when the record is on the disk. After a failure a new record has id 0 again.
template <class Record>
bool writeCatalogRecord(AppDelegate& appDelegate, Record& record,
                        const std::function<void(bool isNew)>& announce)
{
    const bool isNew = record.id == 0;
    UserWrite write(appDelegate.connector);
    write.step(isNew ? appDelegate.connector.insert(record) : appDelegate.connector.update(record));
    const bool stored = write.finish([&] {
        if (announce)
            announce(isNew);
    });
    if (!stored && isNew)
        record.id = 0;
    return stored;
}

} // namespace zelvor
