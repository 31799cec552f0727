#include "online/update_check.h"

#include "online/json_reply.h"
#include "online/signature.h"

#include <QtCore/QLocale>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// How many digits stand at a place of the text.
qsizetype digitsAt(QStringView text, qsizetype from)
{
    qsizetype end = from;
    while (end < text.size() && text[end] >= u'0' && text[end] <= u'9')
        ++end;
    return end - from;
}

qsizetype signAt(QStringView text, qsizetype from)
{
    return from < text.size() && (text[from] == u'-' || text[from] == u'+') ? 1 : 0;
}

// The number that a text starts with, blanks before it aside; 0 when it starts with none.
float leadingNumber(const QString& given)
{
    const QStringView text = QStringView(given).trimmed();
    qsizetype end = signAt(text, 0);
    const qsizetype whole = digitsAt(text, end);
    end += whole;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = digitsAt(text, end + 1);
        if (whole + fraction > 0)
            end += 1 + fraction;
    }
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype sign = signAt(text, end + 1);
        const qsizetype exponent = digitsAt(text, end + 1 + sign);
        if (exponent > 0)
            end += 1 + sign + exponent;
    }
    return text.first(end).toLatin1().toFloat();
}

} // namespace

bool UpdateCheck::isNewer(const QString& version)
{
    return leadingNumber(version) > leadingNumber(Params::programVersion.toString());
}

void UpdateCheck::checkUpdate()
{
    const QString signature = requestSignature(m_appDelegate.settings.value(u"app_key"_s),
                                               m_appDelegate.now(), m_appDelegate.calendar);
    const QUrl url(m_appDelegate.settings.value(u"server"_s) + u"/get_version/?app_key="_s + signature +
                   u"&platform=1&locale="_s + QLocale().name());
    m_exchange.get(url, [this](const HttpExchange::Reply& reply) {
        const auto object = jsonObjectOf(reply);
        const QJsonValue version = object ? object->value(u"version"_s) : QJsonValue();
        if (!version.isString() || !isNewer(version.toString()))
            return;
        m_quietMoment.run(
            [this] { m_appDelegate.notifications.post(NotificationName::HasNewVersionNotification); });
    });
}

} // namespace zelvor
