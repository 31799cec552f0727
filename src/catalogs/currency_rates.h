#pragma once

#include "store/app_delegate.h"

#include <QtCore/QMap>

namespace zelvor {

// A reply of the rates service: currency codes (raw values) with their rates against the project's currency.
// Stores the rates and the moment of the update in one transaction, then posts CurrencyUpdatedNotification.
// The project's own currency and the ones without an entry keep their rates; an empty reply still stamps the
// moment. A rate that is not a finite number above 0, or is larger than any number that the program
// takes, counts as no entry. False when nothing was stored.
bool applyRates(AppDelegate& appDelegate, const QMap<qint64, double>& rates);

} // namespace zelvor
