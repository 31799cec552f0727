#include "cli/command.h"
#include "cli/json_writer.h"
#include "cli/line_reader.h"
#include "cli/operation_reader.h"
#include "cli/operations.h"
#include "cli/output.h"
#include "cli/replay_clock.h"
#include "cli/strict_json.h"

#include <QtCore/QFile>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {{"--stop-on-error", false}, {"--bulk", false}, {"--replay", false}};

bool isBlank(const QByteArray& line)
{
    return line.trimmed().isEmpty();
}

// One run of `apply`: lines in, answers out.
class ApplyRun {
public:
    ApplyRun(Program& program, LineReader& lines, bool replays, bool stopsOnError)
        : m_program(program), m_lines(lines), m_operations(program), m_replays(replays),
          m_stopsOnError(stopsOnError)
    {
        if (replays)
            program.replayBy(m_clock);
    }
    ~ApplyRun() { m_program.useMachineClock(); }
    ApplyRun(const ApplyRun&) = delete;
    ApplyRun& operator=(const ApplyRun&) = delete;

    int run()
    {
        QByteArray line;
        for (;;) {
            const LineReader::Result result = m_lines.next(line);
            if (result == LineReader::Result::End)
                return m_exitCode;
            if (result == LineReader::Result::Failed) {
                writeError(u"the operations cannot be read any further"_s);
                return exitBadUsage;
            }
            if (m_lines.number() == 1 && line.startsWith("\xEF\xBB\xBF"))
                line.remove(0, 3);
            if (isBlank(line) && result == LineReader::Result::Line)
                continue;
            const Answer answer = result == LineReader::Result::TooLong ? tooLong() : answerTo(line);
            if (!tell(answer))
                return exitRefused; // nobody hears the answers any more
            if (!answer.isDone() && m_stopsOnError)
                return m_exitCode;
        }
    }

private:
    static Answer tooLong() { return Answer::invalid(u"the line is longer than 16 MiB"_s); }

    Answer answerTo(const QByteArray& line)
    {
        QString error;
        const std::optional<QJsonObject> operation = parseStrictObject(line, &error);
        if (!operation)
            return Answer::invalid(error);
        const ReplayClock before = m_clock;
        if (m_replays)
            setClock(*operation);
        const Answer answer = m_operations.run(*operation);
        if (answer.result == Answer::Result::Invalid)
            m_clock = before; // a line that is no operation takes no time
        return answer;
    }

    void setClock(const QJsonObject& operation)
    {
        const QString key = u"date"_s;
        OperationReader reader(operation, {});
        const qint64 none = std::numeric_limits<qint64>::min();
        const qint64 date = reader.moment(key, m_program.appDelegate.calendar, none);
        if (date != none)
            m_clock.goTo(date);
        else
            m_clock.goOn();
    }

    bool tell(const Answer& answer)
    {
        if (!answer.isDone())
            m_exitCode = exitRefused;
        answer.write(m_json, m_lines.number());
        return writeLine(m_json);
    }

    Program& m_program;
    LineReader& m_lines;
    ReplayClock m_clock;
    Operations m_operations;
    JsonWriter m_json;
    const bool m_replays;
    const bool m_stopsOnError;
    int m_exitCode = exitDone;
};

int applyTo(Program& program, LineReader& lines, const Arguments& arguments)
{
    const bool bulk = arguments.has(u"--bulk"_s);
    Connector& connector = program.appDelegate.connector;
    if (bulk && !connector.beginBulk()) {
        writeError(u"the project cannot be written now"_s);
        return exitRefused;
    }
    ApplyRun run(program, lines, arguments.has(u"--replay"_s), arguments.has(u"--stop-on-error"_s));
    const int exitCode = run.run();
    if (!bulk || connector.endBulk())
        return exitCode;
    writeError(u"nothing of this run was kept: the project could not be written at its end"_s);
    return exitRefused;
}

int run(const Arguments& arguments)
{
    const QStringList& words = arguments.positional();
    QFile file;
    if (words.size() > 1) {
        if (isSameFile(words[0], words[1]))
            return badUsage(u"apply: the operations cannot come from the project itself"_s);
        file.setFileName(words[1]);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            return badUsage(u"cannot open "_s + words[1] + u": "_s + file.errorString());
    }
    Program program;
    if (!program.open(words[0], Access::ReadWrite))
        return exitBadUsage;
    LineReader lines(file.isOpen() ? file.handle() : STDIN_FILENO);
    return applyTo(program, lines, arguments);
}

} // namespace

const Command applyCommand{
    "apply",
    "apply PROJECT.pdb [FILE] [--stop-on-error] [--bulk] [--replay]",
    "carries out operations, one JSON object a line, and answers each with one line",
    "Operations come from FILE or standard input. An answer is {\"ok\":true,...} or "
    "{\"ok\":false,\"alert\":...}\n"
    "or, for a line that is no valid operation, {\"ok\":false,\"error\":...}.\n"
    "  --stop-on-error  ends with the first answer that is not ok\n"
    "  --bulk           makes the whole run durable once, at its end: for first loads\n"
    "  --replay         carries out each operation as on its own day: for bringing in history\n",
    options,
    1,
    2,
    run,
};

} // namespace zelvor
