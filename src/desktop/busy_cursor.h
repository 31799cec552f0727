#pragma once

class QObject;

namespace zelvor {

class Progress;

// The work of a journal or a report holds the program until it is done; the cursor says so for as long as
// `progress` runs. Ends with `shown`, the page.
void showBusyCursor(Progress& progress, QObject* shown);

} // namespace zelvor
