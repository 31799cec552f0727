#include "cli/cli_test.h"

namespace zelvor {

using CreateCommand = CliTest;
using InfoCommand = CliTest;
using BackupCommand = CliTest;
using ClosePeriodCommand = CliTest;
using CommandLine = CliTest;

TEST_F(CreateCommand, makesAProjectWithItsTablesAndSeedRows)
{
    EXPECT_EQ(run({"create", project, "--currency", "USD"}).exitCode, 0);
    const QJsonObject info = run({"info", project}).json();
    EXPECT_EQ(info["name"].toString(), "shop");
    EXPECT_EQ(info["version"].toString(), "1.2");
    EXPECT_EQ(info["currency"].toString(), "USD");
    EXPECT_EQ(info["lastPeriodSaved"].toInt(-1), 0);
    const QJsonObject tables = info["tables"].toObject();
    EXPECT_EQ(tables.size(), 24);
    EXPECT_EQ(tables["currency"].toInt(), 13);
    EXPECT_EQ(tables["menu"].toInt(), 49);
    EXPECT_EQ(tables["doc_number"].toInt(), 49);
    EXPECT_EQ(tables["delete_basis"].toInt(), 1);
    EXPECT_EQ(tables["product_doc"].toInt(-1), 0);
}

TEST_F(CreateCommand, takesACurrencyByItsNumber)
{
    EXPECT_EQ(run({"create", project, "--currency", "3"}).exitCode, 0);
    EXPECT_EQ(run({"info", project}).json()["currency"].toString(), "GBP");
}

TEST_F(CreateCommand, refusesAnUnknownCurrencyAndLeavesNothing)
{
    const CliRun result = run({"create", project, "--currency", "XYZ"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.saysOneLine());
    EXPECT_FALSE(QFile::exists(project));
}

TEST_F(CreateCommand, neverOverwritesAFile)
{
    write("shop.pdb", "precious");
    const CliRun result = run({"create", project});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.saysOneLine());
    EXPECT_EQ(read(project), "precious");
}

TEST_F(CreateCommand, leavesNothingInAFolderThatDoesNotExist)
{
    EXPECT_EQ(run({"create", file("nowhere/shop.pdb")}).exitCode, 2);
    EXPECT_FALSE(QDir(file("nowhere")).exists());
}

TEST_F(CreateCommand, putsARegisteredProjectAmongTheKnownOnes)
{
    EXPECT_EQ(run({"create", file("my_shop.pdb"), "--currency", "EUR", "--register"}).exitCode, 0);
    const QByteArray settings = read(file("config/Zelvor/Zelvor.conf"));
    EXPECT_TRUE(settings.contains("my_shop")) << settings.constData();
    EXPECT_TRUE(settings.contains(file("my_shop.pdb").toUtf8())) << settings.constData();
}

TEST_F(InfoCommand, showsBlanksForTheUnderscoresOfTheName)
{
    project = file("my_shop.pdb");
    createProject();
    EXPECT_EQ(run({"info", project}).json()["name"].toString(), "my shop");
}

TEST_F(InfoCommand, refusesWhatIsNoProjectWithOneLine)
{
    write("text.pdb", "just some text that is no project at all");
    write("empty.pdb", "");
    for (const QString& name : {file("text.pdb"), file("empty.pdb"), file("missing.pdb"), file("")}) {
        const CliRun result = run({"info", name});
        EXPECT_EQ(result.exitCode, 2) << qPrintable(name);
        EXPECT_TRUE(result.saysOneLine()) << qPrintable(name);
        EXPECT_TRUE(result.out.isEmpty());
    }
}

TEST_F(InfoCommand, refusesATruncatedProjectOrShowsItAsFarAsItGoes)
{
    createShop();
    const QByteArray whole = read(project);
    for (const qsizetype size : {qsizetype(100), qsizetype(4096), whole.size() / 2, whole.size() - 1}) {
        write("cut.pdb", whole.left(size));
        const CliRun result = run({"info", file("cut.pdb")});
        EXPECT_NE(result.exitCode, -1);
        EXPECT_EQ(read(file("cut.pdb")), whole.left(size)) << "looking at a file must not change it";
    }
}

TEST_F(InfoCommand, refusesAProjectWithoutItsSettingsRow)
{
    createProject();
    corrupt("DELETE FROM params");
    const CliRun result = run({"info", project});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.saysOneLine());
}

TEST_F(BackupCommand, copiesAProjectAndNeverOverwrites)
{
    createShop();
    const QString copy = file("copy.pdb");
    EXPECT_EQ(run({"backup", project, copy}).exitCode, 0);
    EXPECT_EQ(run({"info", copy}).json()["tables"], run({"info", project}).json()["tables"]);
    EXPECT_EQ(run({"backup", project, copy}).exitCode, 2);
}

TEST_F(ClosePeriodCommand, closesTheLastFinishedMonthOnce)
{
    createShop();
    EXPECT_EQ(run({"close-period", project}).exitCode, 0);
    EXPECT_GT(run({"info", project}).json()["lastPeriodSaved"].toInt(), 20249);
    const CliRun again = run({"close-period", project});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_TRUE(again.saysOneLine());
}

TEST_F(CommandLine, writersWaitForNobodyWhileReadersMayLook)
{
    createShop();
    QProcess writer;
    prepare(writer);
    writer.start(ZELVOR_CLI, {"apply", project});
    ASSERT_TRUE(writer.waitForStarted());
    writer.write("{\"do\":\"put\",\"record\":\"Manager\",\"values\":{\"name\":\"Bo\"}}\n");
    ASSERT_TRUE(writer.waitForReadyRead(30'000)); // an answer comes before the input ends
    EXPECT_EQ(writer.readAllStandardOutput(), "{\"ok\":true,\"id\":2}\n");

    for (const QStringList& words : {QStringList{"apply", project}, QStringList{"close-period", project}}) {
        const CliRun held = run(words);
        EXPECT_EQ(held.exitCode, 2);
        EXPECT_TRUE(held.saysOneLine());
        EXPECT_TRUE(held.err.contains("in use")) << held.err.constData();
    }
    EXPECT_EQ(run({"info", project}).exitCode, 0);
    EXPECT_EQ(run({"report", "balance", project}).exitCode, 0);
    EXPECT_EQ(run({"check", project}).exitCode, 0);
    EXPECT_EQ(run({"backup", project, file("copy.pdb")}).exitCode, 0);
    writer.closeWriteChannel();
    EXPECT_TRUE(writer.waitForFinished(30'000));
    EXPECT_EQ(run({"apply", project}).exitCode, 0);
}

TEST_F(CommandLine, aClosedStandardStreamIsNoFileOfTheProject)
{
    createProject();
    const auto runClosed = [this](const QByteArray& redirection, const QStringList& words) {
        QProcess process;
        prepare(process);
        process.start("sh", QStringList{"-c", "exec \"$0\" \"$@\" " + redirection, ZELVOR_CLI} + words);
        EXPECT_TRUE(process.waitForFinished(30'000));
        return process.exitCode();
    };
    const QByteArray before = read(project);
    EXPECT_EQ(runClosed("<&-", {"apply", project}), 2);
    EXPECT_EQ(runClosed(">&-", {"info", project}), 1);
    EXPECT_EQ(runClosed("<&- >&- 2>&-", {"info", file("missing.pdb")}), 2);
    EXPECT_EQ(read(project), before);
}

TEST_F(CommandLine, tellsItsVersionAndHelp)
{
    EXPECT_TRUE(run({"--version"}).out.startsWith("zelvor-cli "));
    const CliRun help = run({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.contains("create"));
    EXPECT_EQ(run({"apply", "--help"}).exitCode, 0);
}

TEST_F(CommandLine, refusesBadUsageWithOneLine)
{
    createProject();
    const QStringList cases[] = {
        {},
        {"frobnicate", project},
        {"create"},
        {"create", project, "more", "words"},
        {"info", project, "--currency", "EUR"},
        {"create", file("x.pdb"), "--currency"},
        {"create", file("x.pdb"), "--currency", "EUR", "--currency", "USD"},
        {"create", file("x.pdb"), "--register=yes"},
        {"invoice", project, "1"},
        {"report", "balance", project, "--from", "2024-01-01"},
        {"report", "nonsense", project},
        {"report", "balance", project, "--format", "png"},
        {"report", "period-sell", project, "--by", "colour"},
        {"report", "period-sell", project, "--by", "customers", "--collapse", "products"},
        {"report", "period-sell", project, "--from", "yesterday"},
        {"report", "period-sell", project, "--products", "1,x"},
        {"report", "period-sell", project, "--sort", "colour"},
        {"report", "journal", project, "--kind", "money", "--type", "SellProduct"},
        {"report", "balance", project, "-o", project},
        {"report", "balance", project, "-o", project + "-journal"},
        {"report", "balance", project, "-o", project + ".lock"},
        {"apply", project, project},
        {"apply", project, file("missing.jsonl")},
        {"import", project, "Product", project},
        {"import", project, "Product", file("missing.csv")},
        {"import", project, "Currency", file("missing.csv")},
    };
    for (const QStringList& words : cases) {
        const CliRun result = run(words);
        EXPECT_EQ(result.exitCode, 2) << qPrintable(words.join(' '));
        EXPECT_TRUE(result.saysOneLine()) << qPrintable(words.join(' ')) << result.err.constData();
        EXPECT_TRUE(result.out.isEmpty()) << qPrintable(words.join(' '));
    }
}

} // namespace zelvor
