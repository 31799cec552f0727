#pragma once

#include "core/calendar.h"

#include <QtCore/QString>

namespace zelvor {

enum class HmacAlgorithm { MD5, SHA1, SHA224, SHA256, SHA384, SHA512 };

// The keyed digest (HMAC, RFC 2104) of the text's UTF-8 bytes with the key's, in lower-case hexadecimal.
QString hmac(const QString& text, HmacAlgorithm algorithm, const QString& key);

// What the server knows the program by: the digest of the program's key with the local hour, as whole
// seconds since 1970, for a key. It changes every hour.
QString requestSignature(const QString& appKey, qint64 moment, const Calendar& calendar);

} // namespace zelvor
