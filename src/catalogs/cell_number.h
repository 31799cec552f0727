#pragma once

#include "core/decimal.h"

#include <QtCore/QVariant>

namespace zelvor {

// The number that a user put into a cell: a number, or a text in plain digits; NaN for anything else.
inline Decimal cellNumber(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return Decimal::fromText(value.toString());
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? Decimal::fromDouble(number) : Decimal::nan();
}

} // namespace zelvor
