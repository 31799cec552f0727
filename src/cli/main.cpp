// zelvor-cli: the engine without a screen, for scripts, imports, nightly reports and backups.

#include "cli/command.h"
#include "cli/output.h"
#include "store/crash_handler.h"
#include "store/file_signals.h"

#include <QtCore/QStringList>

#include <array>
#include <clocale>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr std::array commands{
    &createCommand,  &infoCommand,        &applyCommand, &importCommand, &reportCommand,
    &invoiceCommand, &closePeriodCommand, &checkCommand, &backupCommand,
};

int printHelp()
{
    QByteArray text = "Usage: zelvor-cli COMMAND PROJECT.pdb [options]\n\nCommands:\n";
    for (const Command* command : commands)
        text += "  " + QByteArray(command->name).leftJustified(14) + command->summary + '\n';
    text +=
        "\n'zelvor-cli COMMAND --help' tells more of a command; --version prints the version.\n"
        "Exit code: 0 done; 1 refused, or a fault was found; 2 bad usage, or a file that cannot be opened.\n";
    return writeOutput(text) ? exitDone : exitRefused;
}

int printHelpOf(const Command& command)
{
    QByteArray text = "Usage: zelvor-cli " + QByteArray(command.usage) + "\n\n" + command.summary + '\n';
    if (*command.details)
        text += '\n' + QByteArray(command.details);
    if (command.moreDetails)
        text += command.moreDetails();
    return writeOutput(text) ? exitDone : exitRefused;
}

const Command* commandNamed(const QString& name)
{
    for (const Command* command : commands) {
        if (name == QLatin1StringView(command->name))
            return command;
    }
    return nullptr;
}

int runCommand(const Command& command, const QStringList& words)
{
    if (words.contains(u"--help"_s))
        return printHelpOf(command);
    QString error;
    const std::optional<Arguments> arguments = Arguments::parse(words, command.options, &error);
    if (!arguments)
        return badUsage(QLatin1StringView(command.name) + u": "_s + error);
    const qsizetype count = arguments->positional().size();
    if (count < command.minimumWords || count > command.maximumWords)
        return badUsage(u"usage: zelvor-cli "_s + QLatin1StringView(command.usage));
    return command.run(*arguments);
}

} // namespace

int badUsage(const QString& what)
{
    writeError(what);
    return exitBadUsage;
}

static int run(const QStringList& words)
{
    if (words.isEmpty())
        return badUsage(u"no command given; 'zelvor-cli --help' lists them"_s);
    if (words.first() == u"--help")
        return printHelp();
    if (words.first() == u"--version")
        return writeOutput("zelvor-cli " ZELVOR_VERSION "\n") ? exitDone : exitRefused;
    const Command* command = commandNamed(words.first());
    if (!command)
        return badUsage(u"unknown command '"_s + words.first() + u"'; 'zelvor-cli --help' lists them"_s);
    return runCommand(*command, words.mid(1));
}

} // namespace zelvor

int main(int argc, char** argv)
{
    zelvor::holdStandardStreams();
    zelvor::ignoreFileSizeSignals();
    zelvor::installCrashHandler(u"Zelvor-cli"_s, QStringLiteral(ZELVOR_VERSION), zelvor::crashReportFolder());
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return zelvor::run(words);
}
