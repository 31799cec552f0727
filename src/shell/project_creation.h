#pragma once

#include <QtCore/QString>

namespace zelvor {

class Connector;

// Makes a new project at `path` and leaves it open: all tables with their indexes, the settings row, the
// currencies, the menu, the serial counters and the one reason for write-offs. Whole or not at all: on false
// nothing stands at `path` that was not there before, and nothing is open. `defaultCurrency` is the raw value
// of a CurrencyStruct, or 0 to leave the project to be set up.
bool createProject(Connector& connector, const QString& path, int defaultCurrency = 0);

} // namespace zelvor
