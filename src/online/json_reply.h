#pragma once

#include "online/http_exchange.h"

#include <QtCore/QJsonObject>

#include <optional>

namespace zelvor {

// The JSON object that a server answered with; nothing when the exchange failed, the status is not 200, or
// the body is anything else.
std::optional<QJsonObject> jsonObjectOf(const HttpExchange::Reply& reply);

} // namespace zelvor
