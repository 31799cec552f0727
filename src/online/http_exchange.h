#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QUrl>

#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace zelvor {

// Single requests to a server, on the event loop of the thread. https, or http to this machine alone;
// redirects lead to an address of the same scheme under the same rule. An exchange ends after its time or
// when the body grows too large. No cookies, no cache, no proxy, no credentials.
class HttpExchange {
public:
    struct Reply {
        int status = 0;     // 0: none came
        bool whole = false; // the body came to its end
        QByteArray body = {};
    };
    using Handler = std::function<void(const Reply&)>;

    static constexpr int patience = 10'000; // milliseconds, from the request to the end of the body
    static constexpr qint64 largestBody = 1 << 20;

    explicit HttpExchange(int timeout = patience);
    ~HttpExchange(); // what is under way ends without a word
    HttpExchange(const HttpExchange&) = delete;
    HttpExchange& operator=(const HttpExchange&) = delete;

    // `ended` runs once from the event loop, also when the exchange failed. False, and nothing happens, when
    // the address may not be asked.
    bool get(const QUrl& url, Handler ended);
    // Sends the body of a form as it is. A redirect is not followed: it would become another request.
    bool post(const QUrl& url, const QByteArray& form, Handler ended);
    int pending() const { return m_pending; }

    static bool mayBeAsked(const QUrl& url);

private:
    struct Exchange;
    QNetworkAccessManager& manager();
    void ask(const std::shared_ptr<Exchange>& exchange, const QUrl& url);
    void watch(const std::shared_ptr<Exchange>& exchange);
    void end(const std::shared_ptr<Exchange>& exchange);

    const int m_timeout;
    int m_pending = 0;
    std::unique_ptr<QNetworkAccessManager> m_manager; // made for the first request
};

} // namespace zelvor
