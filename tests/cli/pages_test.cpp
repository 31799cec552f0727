#include "cli/cli_test.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace zelvor {

// A shop with a sale and a repair, and what of them is drawn on pages.
class Pages : public CliTest {
protected:
    void SetUp() override
    {
        createShop();
        applied(
            R"({"do":"document","type":"SellProduct","date":"2024-01-10T10:30:00","contragent":1,"rows":[{"product":1,"amount":3,"price":411.5}],"confirm":true}
{"do":"document","type":"SellIntangibles","date":"2024-01-11T10:30:00","contragent":1,"rows":[{"product":2}]}
)",
            {"--replay"});
    }
    QStringList balance(const QStringList& options = {}) const
    {
        return QStringList{"report", "balance", project, "--format", "pdf"} + options;
    }
    QStringList invoice(const QString& id, const QString& path) const
    {
        return {"invoice", project, id, "-o", path};
    }
    // The texts on the pages; skips nothing, but is empty without the tool.
    QByteArray texts(const QString& pdf) const
    {
        QProcess process;
        process.start("pdftotext", {"-layout", pdf, "-"});
        process.waitForFinished();
        return process.readAllStandardOutput();
    }
    static bool canReadPdf() { return !QStandardPaths::findExecutable("pdftotext").isEmpty(); }
    // How zelvor-cli ends at that place.
    CliRun runAt(const QString& program, const QStringList& words) const
    {
        QProcess process;
        prepare(process);
        process.start(program, words);
        EXPECT_TRUE(process.waitForStarted()) << qPrintable(program);
        EXPECT_TRUE(process.waitForFinished(120'000));
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    static QString pagesProgram() { return QFileInfo(ZELVOR_CLI).absolutePath() + "/zelvor-cli-pages"; }
};

TEST_F(Pages, aReportIsAPdfOnStandardOutput)
{
    const CliRun result = run(balance());
    EXPECT_EQ(result.exitCode, 0) << result.err.constData();
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(result.out.startsWith("%PDF-"));
    EXPECT_TRUE(result.out.trimmed().endsWith("%%EOF"));
}

TEST_F(Pages, aReportGoesIntoTheFileExactlyAsItIsNamed)
{
    const CliRun result = run(balance({"-o", file("sheet")}));
    EXPECT_EQ(result.exitCode, 0) << result.err.constData();
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(read(file("sheet")).startsWith("%PDF-"));
    EXPECT_EQ(QDir(m_folder.path()).entryList({"sheet*"}), QStringList{"sheet"});
    if (canReadPdf())
        EXPECT_TRUE(texts(file("sheet")).contains("Till"));
}

TEST_F(Pages, everyReportIsDrawn)
{
    const QStringList calls{
        "balance",          "period-sell",  "contragents", "contragent --id 1", "account --id 1",
        "employee --id 1",  "expends",      "journal",     "products-on-stock", "dynamics",
        "payment-calendar", "fixed-assets", "units"};
    for (const QString& call : calls) {
        const QStringList words = call.split(' ');
        const CliRun result =
            run(QStringList{"report", words.first(), project, "--format", "pdf"} + words.mid(1));
        EXPECT_EQ(result.exitCode, 0) << qPrintable(call) << ": " << result.err.constData();
        EXPECT_TRUE(result.out.startsWith("%PDF-")) << qPrintable(call);
    }
}

TEST_F(Pages, theDisplayDoesNotMatter)
{
    QProcess process;
    prepare(process);
    QProcessEnvironment environment = process.processEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", ":4711");
    process.setProcessEnvironment(environment);
    process.start(ZELVOR_CLI, balance());
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(process.readAllStandardOutput().startsWith("%PDF-"));
}

TEST_F(Pages, theInvoiceOfASaleIsDrawnConfirmedOrNot)
{
    for (const char* id : {"2", "3"}) {
        const CliRun result = run(invoice(id, file("invoice.pdf")));
        EXPECT_EQ(result.exitCode, 0) << result.err.constData();
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(read(file("invoice.pdf")).startsWith("%PDF-"));
        if (canReadPdf()) {
            const QByteArray read = texts(file("invoice.pdf"));
            EXPECT_TRUE(read.contains("Acme")) << read.constData();
            EXPECT_TRUE(read.contains(*id == '2' ? "Lamp" : "Repair")) << read.constData();
        }
    }
}

TEST_F(Pages, whatIsNoSaleHasNoInvoice)
{
    for (const char* id : {"1", "99"}) { // an addition to the warehouse, nothing
        const CliRun result = run(invoice(id, file("invoice.pdf")));
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_TRUE(result.saysOneLine()) << result.err.constData();
        EXPECT_FALSE(QFile::exists(file("invoice.pdf")));
    }
}

TEST_F(Pages, anInvoiceThatIsAskedForWronglyIsBadUsage)
{
    for (const QStringList& words : {QStringList{"invoice", project, "two", "-o", file("x.pdf")},
                                     {"invoice", project, "0", "-o", file("x.pdf")},
                                     {"invoice", project, "2"},
                                     {"invoice", project, "-o", file("x.pdf")},
                                     {"invoice", project, "2", "-o", project},
                                     {"invoice", file("none.pdb"), "2", "-o", file("x.pdf")}}) {
        const CliRun result = run(words);
        EXPECT_EQ(result.exitCode, 2) << qPrintable(words.join(' '));
        EXPECT_TRUE(result.saysOneLine()) << result.err.constData();
    }
    EXPECT_FALSE(QFile::exists(file("x.pdf")));
    EXPECT_EQ(run({"check", project}).exitCode, 0);
}

TEST_F(Pages, aFileIsWrittenWholeOrNotAtAll)
{
    for (const QStringList& words : {balance({"-o", file("old")}), invoice("2", file("old"))}) {
        write("old", "what was there");
        const CliRun full =
            runAt("sh", QStringList{"-c", "ulimit -f 0; exec \"$0\" \"$@\"", ZELVOR_CLI} + words);
        EXPECT_EQ(full.exitCode, 1);
        EXPECT_TRUE(full.saysOneLine()) << full.err.constData();
        EXPECT_EQ(read(file("old")), "what was there");
        EXPECT_EQ(QDir(m_folder.path()).entryList({"old*"}), QStringList{"old"});
    }
    const CliRun nowhere = run(balance({"-o", file("nowhere/sheet.pdf")}));
    EXPECT_EQ(nowhere.exitCode, 2);
    EXPECT_TRUE(nowhere.saysOneLine()) << nowhere.err.constData();
    EXPECT_EQ(run(balance({"-o", project})).exitCode, 2);
    EXPECT_EQ(run(balance({"-o", "/dev/full"})).exitCode, 2);
}

TEST_F(Pages, aPdfThatCannotBeWrittenIsARefusal)
{
    const CliRun full =
        runAt("sh", QStringList{"-c", "exec \"$0\" \"$@\" >/dev/full", ZELVOR_CLI} + balance());
    EXPECT_EQ(full.exitCode, 1);
}

TEST_F(Pages, aMissingLogoIsToldAndTheRestIsDrawn)
{
    applied(
        R"({"do":"put","record":"Params","id":1,"values":{"is_print_company_logo":true,"path_to_logo":"/nowhere/logo.png"}})"
        "\n");
    const CliRun result = run(balance());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.saysOneLine()) << result.err.constData();
    EXPECT_TRUE(result.err.contains("logo")) << result.err.constData();
    EXPECT_TRUE(result.out.startsWith("%PDF-"));
}

TEST_F(Pages, theProgramIsFoundThroughALink)
{
    ASSERT_TRUE(QFile::link(ZELVOR_CLI, file("books")));
    const CliRun result = runAt(file("books"), balance());
    EXPECT_EQ(result.exitCode, 0) << result.err.constData();
    EXPECT_TRUE(result.out.startsWith("%PDF-"));
}

TEST_F(Pages, theInstalledProgramIsFoundBelowLibexec)
{
    QDir folder(m_folder.path());
    ASSERT_TRUE(folder.mkpath("usr/bin") && folder.mkpath("usr/libexec/zelvor"));
    ASSERT_TRUE(QFile::copy(ZELVOR_CLI, file("usr/bin/zelvor-cli")));
    const CliRun missing = runAt(file("usr/bin/zelvor-cli"), balance());
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_TRUE(missing.saysOneLine()) << missing.err.constData();
    EXPECT_TRUE(missing.err.contains("usr/libexec/zelvor/zelvor-cli-pages")) << missing.err.constData();
    EXPECT_EQ(missing.out, "");
    EXPECT_EQ(runAt(file("usr/bin/zelvor-cli"), {"report", "balance", project, "--format", "xls"}).exitCode,
              0);

    ASSERT_TRUE(QFile::copy(pagesProgram(), file("usr/libexec/zelvor/zelvor-cli-pages")));
    EXPECT_EQ(runAt(file("usr/bin/zelvor-cli"), balance()).exitCode, 0);
    EXPECT_EQ(runAt(file("usr/bin/zelvor-cli"), invoice("2", file("invoice.pdf"))).exitCode, 0);
}

} // namespace zelvor
