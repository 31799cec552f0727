#pragma once

#include "online/loopback_server.h"
#include "online/network_services.h"
#include "online/signature.h"
#include "support/books.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>

namespace zelvor {

// A program with an open project whose maker's server is a loopback one.
class OnlineTest : public testing::Test {
protected:
    static constexpr int timeout = 600;

    void SetUp() override
    {
        ASSERT_TRUE(server.isListening());
        useServer(server.address());
    }
    void useServer(const QString& address)
    {
        ASSERT_TRUE(QDir().mkpath(books.defaults.folder()));
        QFile file(books.defaults.folder() + QStringLiteral("/Settings.plist"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<plist><dict><key>app_key</key><string>the key</string><key>server</key><string>" +
                   address.toUtf8() + "</string></dict></plist>");
    }
    // All exchanges have ended.
    bool settle()
    {
        return waitFor([this] { return services->exchange.pending() == 0; });
    }
    bool requestsCame(std::size_t count)
    {
        return waitFor([this, count] { return server.requests.size() >= count; });
    }
    // "the key" under the hour of the fixture's moment, 22:00 of that day in UTC.
    static QByteArray signature()
    {
        return "deef4f203825cfe9867f0a187b6846b56c41aa3d97d9a69061d3e351260a2139";
    }

    LoopbackServer server;
    Books books;
    std::unique_ptr<NetworkServices> services = std::make_unique<NetworkServices>(
        books.appDelegate, books.file(QStringLiteral("state/crash-reports")), QStringLiteral("Zelvor"),
        timeout);
};

} // namespace zelvor
