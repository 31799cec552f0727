#include "online/rate_update.h"

#include "catalogs/currency_rates.h"
#include "core/currency_struct.h"
#include "online/json_reply.h"
#include "online/signature.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// A key is a code as decimal text and nothing else; a value that is no number is no rate.
QMap<qint64, double> ratesFrom(const QJsonObject& reply)
{
    QMap<qint64, double> rates;
    for (const CurrencyStruct currency : allCurrencies) {
        const QJsonValue rate = reply.value(QString::number(rawValue(currency)));
        if (rate.isDouble())
            rates.insert(rawValue(currency), rate.toDouble());
    }
    return rates;
}

} // namespace

void RateUpdate::updateCurrencies(const Params& params)
{
    const Connector& connector = m_appDelegate.connector;
    const auto currency = currencyFromInt(params.defaultCurrency);
    if (!connector.isOpen() || connector.isReadOnly() || !currency)
        return;
    const QString signature = requestSignature(m_appDelegate.settings.value(u"app_key"_s),
                                               m_appDelegate.now(), m_appDelegate.calendar);
    const QUrl url(m_appDelegate.settings.value(u"server"_s) + u"/rates/?currency="_s +
                   QString::number(rawValue(*currency)) + u"&appkey="_s + signature);
    const Request request{++m_lastNumber, connector.opening(), params.defaultCurrency};
    m_exchange.get(url, [this, request](const HttpExchange::Reply& reply) {
        if (const auto object = jsonObjectOf(reply))
            m_quietMoment.run([this, request, rates = ratesFrom(*object)] { store(request, rates); });
    });
}

bool RateUpdate::isStillWanted(const Request& request) const
{
    const Connector& connector = m_appDelegate.connector;
    return request.number == m_lastNumber && connector.isOpen() && connector.opening() == request.opening;
}

void RateUpdate::store(const Request& request, const QMap<qint64, double>& rates)
{
    if (!isStillWanted(request))
        return;
    const std::shared_ptr<Params> params = m_appDelegate.params();
    if (params && params->defaultCurrency == request.currency)
        applyRates(m_appDelegate, rates);
}

} // namespace zelvor
