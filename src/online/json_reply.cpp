#include "online/json_reply.h"

#include <QtCore/QJsonDocument>

namespace zelvor {

std::optional<QJsonObject> jsonObjectOf(const HttpExchange::Reply& reply)
{
    if (reply.status != 200 || !reply.whole)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(reply.body);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

} // namespace zelvor
