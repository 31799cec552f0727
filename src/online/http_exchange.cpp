#include "online/http_exchange.h"

#include <QtCore/QDeadlineTimer>
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

// A name means what a name server says; plain http goes to this machine whatever that is.
QUrl withoutName(QUrl url)
{
    if (url.scheme() == u"http" && url.host() == u"localhost")
        url.setHost(u"127.0.0.1"_s);
    return url;
}

QNetworkRequest plainRequest(const QUrl& url)
{
    QNetworkRequest request(withoutName(url));
    // Followed here: the manager knows no rule for a redirect's address, and asks more than once for one.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
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
    Handler ended;
    QDeadlineTimer deadline;
    bool isPost = false;
    int redirects = 0;
    QNetworkReply* reply = nullptr;
    QByteArray body = {};

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
    // Where the answer sends on to, within the rule; an invalid address when it does not, or may not.
    QUrl redirectTarget() const
    {
        const QVariant location = reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
        const QUrl target = reply->url().resolved(location.toUrl());
        const bool follows = !isPost && location.isValid() && redirects < mostRedirects &&
                             target.scheme() == reply->url().scheme() && mayBeAsked(target);
        return follows ? target : QUrl();
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
    ++m_pending;
    ask(std::make_shared<Exchange>(Exchange{std::move(ended), QDeadlineTimer(m_timeout)}), url);
    return true;
}

bool HttpExchange::post(const QUrl& url, const QByteArray& form, Handler ended)
{
    if (!mayBeAsked(url))
        return false;
    ++m_pending;
    const auto exchange =
        std::make_shared<Exchange>(Exchange{std::move(ended), QDeadlineTimer(m_timeout), true});
    QNetworkRequest request = plainRequest(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    exchange->reply = manager().post(request, form);
    watch(exchange);
    return true;
}

void HttpExchange::ask(const std::shared_ptr<Exchange>& exchange, const QUrl& url)
{
    exchange->reply = manager().get(plainRequest(url));
    watch(exchange);
}

void HttpExchange::watch(const std::shared_ptr<Exchange>& exchange)
{
    QNetworkReply* const reply = exchange->reply;
    QNetworkAccessManager* const context = m_manager.get();
    reply->setReadBufferSize(largestBody + 1);
    QObject::connect(reply, &QNetworkReply::metaDataChanged, context,
                     [exchange] { exchange->checkAnnouncedSize(); });
    QObject::connect(reply, &QNetworkReply::readyRead, context, [exchange] { exchange->receive(); });
    QObject::connect(reply, &QNetworkReply::finished, context, [this, exchange] { end(exchange); });
    QTimer::singleShot(static_cast<int>(exchange->deadline.remainingTime()), Qt::PreciseTimer, reply,
                       [reply] { reply->abort(); });
}

void HttpExchange::end(const std::shared_ptr<Exchange>& exchange)
{
    QNetworkReply& reply = *exchange->reply;
    reply.disconnect(m_manager.get());
    reply.deleteLater();
    if (reply.error() == QNetworkReply::NoError)
        exchange->body += reply.readAll();
    const bool whole = reply.error() == QNetworkReply::NoError && exchange->body.size() <= largestBody;
    if (const QUrl target = exchange->redirectTarget(); whole && target.isValid()) {
        ++exchange->redirects;
        exchange->body.clear();
        ask(exchange, target);
        return;
    }
    --m_pending;
    Reply result{reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), whole};
    if (whole)
        result.body = exchange->body;
    if (exchange->ended)
        exchange->ended(result);
}

} // namespace zelvor
