#pragma once

#include "core/doc_type.h"

namespace zelvor {

// Whether a confirmed document of the type raises its counterparty's balance, what they have with us; all
// others lower it.
constexpr bool raisesContragentBalance(DocType type)
{
    return type == DocType::MoneyFromContragent || type == DocType::BuyProduct ||
           type == DocType::BuyProperty || type == DocType::Return;
}

} // namespace zelvor
