#include "cli/cli_test.h"

#include <QtCore/QRegularExpression>

namespace zelvor {

namespace {

// All tests of this folder as one text.
QByteArray testSources()
{
    QByteArray text;
    const QDir folder(ZELVOR_SOURCE_DIR "/tests/cli");
    for (const QString& name : folder.entryList({"*_test.cpp"})) {
        QFile source(folder.filePath(name));
        if (name != "coverage_test.cpp" && source.open(QIODevice::ReadOnly))
            text += source.readAll();
    }
    return text;
}

QStringList captured(const QByteArray& text, const QString& pattern)
{
    QStringList words;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    auto match = expression.globalMatch(QString::fromUtf8(text));
    while (match.hasNext())
        words += match.next().captured(1);
    words.removeDuplicates();
    return words;
}

} // namespace

class Coverage : public CliTest {};

// What the help offers and no test calls for is told here by its name.
TEST_F(Coverage, everyCommandOptionAndReportHasACase)
{
    const QByteArray sources = testSources();
    const auto hasCase = [&](const QString& word) { return sources.contains('"' + word.toUtf8() + '"'); };
    const QStringList commands = captured(run({"--help"}).out, "^  ([a-z-]+)  ");
    EXPECT_GE(commands.size(), 8);
    QStringList words = commands;
    QByteArray helps = run({"--help"}).out;
    for (const QString& command : commands)
        helps += run({command, "--help"}).out;
    words += captured(helps, "(?<![a-z-])(--?[a-z-]+)");
    words += captured(run({"report", "--help"}).out, "^  ([a-z-]+) +\\[");
    for (const QString& word : words)
        EXPECT_TRUE(hasCase(word)) << qPrintable(word) << " has no case";
    EXPECT_TRUE(words.contains("--stop-on-error") && words.contains("period-sell"));
}

} // namespace zelvor
