#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>

#include <optional>

namespace zelvor {

// Reads one JSON object and nothing else. A key that an object has twice is an error: one of the two values
// would be lost without a word. On an error answers none and fills `error`.
std::optional<QJsonObject> parseStrictObject(const QByteArray& text, QString* error);

} // namespace zelvor
