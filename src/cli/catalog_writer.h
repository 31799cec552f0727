#pragma once

#include "cli/answer.h"
#include "cli/column_values.h"
#include "store/app_delegate.h"

#include <memory>
#include <unordered_map>

namespace zelvor {

class CatalogDoor;

// A record class that can be written from outside, by the name of the class.
struct CatalogKind {
    const char* name;
    const TableInfo& (*table)();
    std::unique_ptr<CatalogDoor> (*open)(AppDelegate& appDelegate);
    // Of a class where not every column is for editing, those that are; none: all of them.
    std::span<const std::string_view> editable = {};
    bool canAdd = true;
};

const CatalogKind* catalogKind(const QString& name);

// Writes catalog records by column values, each through the controller of its catalog, so with the catalog's
// own rules. A controller is made with the first record of its class and kept.
class CatalogWriter {
public:
    explicit CatalogWriter(AppDelegate& appDelegate);
    ~CatalogWriter();

    // Adds a record (id 0), or changes the given columns of a stored one. Nothing is stored when it answers
    // anything but done.
    Answer write(const CatalogKind& kind, qint64 id, const ColumnValues& values);

private:
    QString invalidColumn(const CatalogKind& kind, const ColumnValues& values) const;
    QString invalidLink(const CatalogKind& kind, qint64 id, const ColumnValues& values) const;

    AppDelegate& m_appDelegate;
    std::unordered_map<const CatalogKind*, std::unique_ptr<CatalogDoor>> m_doors;
};

} // namespace zelvor
