#include "cli/cli_test.h"

#include <QtCore/QThread>

#include <random>

namespace zelvor {

namespace {

constexpr int rounds = 50;

QByteArray sales(int count)
{
    QByteArray operations;
    for (int i = 0; i < count; ++i)
        operations += R"({"do":"document","type":"SellProduct","date":"2024-01-03T10:00:00","contragent":1,)"
                      R"("rows":[{"product":1,"amount":1},{"product":3,"amount":2}],"confirm":true})"
                      "\n";
    return operations;
}

} // namespace

class KillNine : public CliTest {};

// The process is killed at a moment of chance, again and again on one file: what it answered ok for is there,
// whole, and at most the one sale that it was about to answer beside it.
TEST_F(KillNine, whatWasAnsweredOkIsInTheFileAndNothingIsHalf)
{
    createProject();
    applied(
        shopOperations() +
            R"({"do":"put","record":"Product","values":{"name":"Cord","price_cost":3}})"
            "\n"
            R"({"do":"document","type":"AddProduct","date":"2024-01-03T09:00:00","stock_to":1,)"
            R"("rows":[{"product":1,"amount":100000,"price":6},{"product":3,"amount":200000,"price":1}],"confirm":true})"
            "\n",
        {"--replay"});
    std::mt19937 random(20240103);
    std::uniform_int_distribution<unsigned> pause(0, 60'000); // microseconds
    const QByteArray operations = sales(2000);
    qint64 stored = 0;
    qint64 answered = 0;
    for (int round = 0; round < rounds; ++round) {
        QProcess writer;
        prepare(writer);
        writer.start(ZELVOR_CLI, {"apply", project, "--replay"});
        ASSERT_TRUE(writer.waitForStarted());
        writer.write(operations);
        ASSERT_TRUE(writer.waitForReadyRead(60'000)) << writer.readAllStandardError().constData();
        QThread::usleep(pause(random));
        writer.kill();
        writer.waitForFinished();
        const qint64 told = writer.readAllStandardOutput().count("\"ok\":true");
        EXPECT_EQ(run({"check", project}).out, "[]\n") << "round " << round;
        const qint64 now =
            valueOf("SELECT count(*) FROM product_doc WHERE doc_type_id=12 AND is_confirmed=1").toLongLong();
        EXPECT_GE(now, stored + told) << "round " << round;
        EXPECT_LE(now, stored + told + 1) << "round " << round;
        stored = now;
        answered += told;
    }
    EXPECT_GT(answered, rounds) << "the test must get somewhere";
    EXPECT_EQ(valueOf("SELECT count(*) FROM product_doc_row r JOIN product_doc d ON d.id=r.doc_id"
                      " WHERE d.doc_type_id=12")
                  .toLongLong(),
              2 * stored);
    EXPECT_EQ(run({"apply", project}).exitCode, 0) << "the lock of a killed writer is taken over";
}

} // namespace zelvor
