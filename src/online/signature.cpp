#include "online/signature.h"

#include <QtCore/QMessageAuthenticationCode>

namespace zelvor {

namespace {

QCryptographicHash::Algorithm hashOf(HmacAlgorithm algorithm)
{
    switch (algorithm) {
    case HmacAlgorithm::MD5:
        return QCryptographicHash::Md5;
    case HmacAlgorithm::SHA1:
        return QCryptographicHash::Sha1;
    case HmacAlgorithm::SHA224:
        return QCryptographicHash::Sha224;
    case HmacAlgorithm::SHA256:
        return QCryptographicHash::Sha256;
    case HmacAlgorithm::SHA384:
        return QCryptographicHash::Sha384;
    case HmacAlgorithm::SHA512:
        return QCryptographicHash::Sha512;
    }
    Q_UNREACHABLE();
}

} // namespace

QString hmac(const QString& text, HmacAlgorithm algorithm, const QString& key)
{
    return QString::fromLatin1(
        QMessageAuthenticationCode::hash(text.toUtf8(), key.toUtf8(), hashOf(algorithm)).toHex());
}

QString requestSignature(const QString& appKey, qint64 moment, const Calendar& calendar)
{
    const QTime time = calendar.dateTime(moment).time();
    // Zones differ by half and quarter hours: the hour that is cut off to is the local one.
    const qint64 hour = moment - time.minute() * 60 - time.second();
    return hmac(appKey, HmacAlgorithm::SHA256, QString::number(hour));
}

} // namespace zelvor
