#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtCore/QUrl>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <functional>
#include <map>
#include <vector>

namespace zelvor {

// Runs the event loop until the condition holds; false when it does not within some seconds.
inline bool waitFor(const std::function<bool()>& condition, int milliseconds = 8000)
{
    const QDeadlineTimer deadline(milliseconds);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(1);
    }
    return true;
}

inline void runLoopFor(int milliseconds)
{
    waitFor([] { return false; }, milliseconds);
}

// A server on this machine that answers as a test tells it to, byte for byte.
class LoopbackServer {
public:
    struct Request {
        QByteArray method;
        QByteArray target;
        QByteArray head;
        QByteArray body;
        QPointer<QTcpSocket> socket = {};
    };

    explicit LoopbackServer(const QHostAddress& address = QHostAddress::LocalHost)
    {
        m_server.listen(address);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { accept(); });
    }

    QString address() const { return QStringLiteral("http://127.0.0.1:%1").arg(port()); }
    int port() const { return m_server.serverPort(); }
    bool isListening() const { return m_server.isListening(); }

    // What is done with each request; without it the request is kept and nothing answered.
    std::function<void(const Request&)> onRequest;
    std::vector<Request> requests;
    int connections = 0;

    void answerAll(const QByteArray& body, const QByteArray& status = "200 OK")
    {
        onRequest = [body, status](const Request& request) { answer(request, body, status); };
    }
    static void answer(const Request& request, const QByteArray& body, const QByteArray& status = "200 OK")
    {
        send(request, "HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\nContent-Length: " +
                          QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }
    static void redirect(const Request& request, const QString& target,
                         const QByteArray& status = "302 Found")
    {
        send(request,
             "HTTP/1.1 " + status + "\r\nLocation: " + target.toUtf8() + "\r\nContent-Length: 0\r\n\r\n");
    }
    static void send(const Request& request, const QByteArray& bytes)
    {
        if (request.socket)
            request.socket->write(bytes);
    }
    static void hangUp(const Request& request)
    {
        if (request.socket)
            request.socket->disconnectFromHost();
    }

private:
    void accept()
    {
        while (QTcpSocket* const socket = m_server.nextPendingConnection()) {
            ++connections;
            QObject::connect(socket, &QTcpSocket::readyRead, &m_server, [this, socket] { read(socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, &m_server, [this, socket] {
                m_received.erase(socket);
                socket->deleteLater();
            });
        }
    }
    void read(QTcpSocket* socket)
    {
        QByteArray& received = m_received[socket];
        received += socket->readAll();
        const qsizetype end = received.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        const QByteArray head = received.first(end + 2);
        const qsizetype length = headerOf(head, "content-length").toLongLong();
        if (received.size() < end + 4 + length)
            return;
        const QList<QByteArray> words = head.first(head.indexOf("\r\n")).split(' ');
        requests.push_back({words.value(0), words.value(1), head, received.mid(end + 4, length), socket});
        received.clear();
        if (onRequest)
            onRequest(Request(requests.back()));
    }

    QTcpServer m_server;
    std::map<QTcpSocket*, QByteArray> m_received;

public:
    static QByteArray headerOf(const QByteArray& head, const QByteArray& name)
    {
        for (const QByteArray& line : head.split('\n')) {
            const qsizetype colon = line.indexOf(':');
            if (colon > 0 && line.first(colon).toLower() == name)
                return line.mid(colon + 1).trimmed();
        }
        return {};
    }
};

} // namespace zelvor
