#include "online/http_exchange.h"

#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int mostRedirects = 3;

bool isThisMachine(const QString& host)
{
    if (host == u"localhost")
        return true;
    QHostAddress address;
    return address.setAddress(host) &&
           (address == QHostAddress::LocalHostIPv6 || (address.protocol() == QHostAddress::IPv4Protocol &&
                                                       address.isInSubnet(QHostAddress(u"127.0.0.0"_s), 8)));
}

QNetworkRequest plainRequest(const QUrl& url, QNetworkRequest::RedirectPolicy redirects)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, redirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Zelvor"_s);
    // Packed bodies swell: the bound is on what is received.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

} // namespace

struct HttpExchange::Exchange {
    QNetworkReply* reply;
    Handler ended;
    QByteArray body = {};
    int redirects = 0;

    void receive()
    {
        body += reply->readAll();
        if (body.size() > largestBody)
            reply->abort();
    }
    void checkAnnouncedSize() const
    {
        if (reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > largestBody)
            reply->abort();
    }
    void followWithinTheRule(const QUrl& target)
    {
        if (++redirects <= mostRedirects && target.scheme() == reply->url().scheme() && mayBeAsked(target))
            Q_EMIT reply->redirectAllowed();
        else
            reply->abort();
    }
};

HttpExchange::HttpExchange(int timeout) : m_timeout(timeout) {}

HttpExchange::~HttpExchange()
{
    if (!m_manager)
        return;
    for (QNetworkReply* const reply : m_manager->findChildren<QNetworkReply*>())
        reply->disconnect(m_manager.get());
}

bool HttpExchange::mayBeAsked(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty() || !url.userInfo().isEmpty())
        return false;
    return url.scheme() == u"https" || (url.scheme() == u"http" && isThisMachine(url.host()));
}

QNetworkAccessManager& HttpExchange::manager()
{
    if (!m_manager) {
        m_manager = std::make_unique<QNetworkAccessManager>();
        m_manager->setProxy(QNetworkProxy::NoProxy);
    }
    return *m_manager;
}

bool HttpExchange::get(const QUrl& url, Handler ended)
{
    if (!mayBeAsked(url))
        return false;
    watch(manager().get(plainRequest(url, QNetworkRequest::UserVerifiedRedirectPolicy)), std::move(ended));
    return true;
}

bool HttpExchange::post(const QUrl& url, const QByteArray& form, Handler ended)
{
    if (!mayBeAsked(url))
        return false;
    QNetworkRequest request = plainRequest(url, QNetworkRequest::ManualRedirectPolicy);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    watch(manager().post(request, form), std::move(ended));
    return true;
}

void HttpExchange::watch(QNetworkReply* reply, Handler ended)
{
    ++m_pending;
    const auto exchange = std::make_shared<Exchange>(Exchange{reply, std::move(ended)});
    QNetworkAccessManager* const context = m_manager.get();
    reply->setReadBufferSize(largestBody + 1);
    QObject::connect(reply, &QNetworkReply::metaDataChanged, context,
                     [exchange] { exchange->checkAnnouncedSize(); });
    QObject::connect(reply, &QNetworkReply::readyRead, context, [exchange] { exchange->receive(); });
    QObject::connect(reply, &QNetworkReply::redirected, context,
                     [exchange](const QUrl& target) { exchange->followWithinTheRule(target); });
    QObject::connect(reply, &QNetworkReply::finished, context, [this, exchange] { end(*exchange); });
    QTimer::singleShot(m_timeout, reply, [reply] { reply->abort(); });
}

void HttpExchange::end(Exchange& exchange)
{
    --m_pending;
    QNetworkReply& reply = *exchange.reply;
    reply.disconnect(m_manager.get());
    reply.deleteLater();
    Reply result{reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
                 reply.error() == QNetworkReply::NoError};
    if (result.whole)
        result.body = exchange.body + reply.readAll();
    const Handler ended = std::move(exchange.ended);
    if (ended)
        ended(result);
}

} // namespace zelvor
