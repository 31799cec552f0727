#include "support/bench_project.h"

#include "baseline/baseline.h"
#include "shell/project_creation.h"

#include <benchmark/benchmark.h>

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimeZone>

#include <cstdio>
#include <cstdlib>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

[[noreturn]] void giveUp(const QString& what)
{
    std::fprintf(stderr, "benchmark: %s\n", what.toUtf8().constData());
    std::exit(2);
}

// On a disk, as a business's file is: the folder for temporary files may lie in memory.
const QTemporaryDir& folder()
{
    static const QTemporaryDir made(qEnvironmentVariable("ZELVOR_BENCH_DIR", u"."_s) +
                                    u"/zelvor-bench-XXXXXX"_s);
    if (!made.isValid())
        giveUp(made.errorString());
    return made;
}

void makeEmptyProject(const QString& path)
{
    Connector connector;
    if (!createProject(connector, path, 1))
        giveUp(u"cannot make "_s + path);
    connector.close();
}

} // namespace

std::vector<long> benchSizes()
{
    std::vector<long> sizes;
    const QString text = qEnvironmentVariable("ZELVOR_BENCH_DOCUMENTS", u"10000,100000"_s);
    for (const QString& part : text.split(u',', Qt::SkipEmptyParts)) {
        bool ok = false;
        sizes.push_back(part.trimmed().toLong(&ok));
        if (!ok || sizes.back() < 1)
            giveUp(u"ZELVOR_BENCH_DOCUMENTS holds no list of numbers: "_s + text);
    }
    return sizes;
}

bool isSmokeRun()
{
    return qEnvironmentVariableIsSet("ZELVOR_BENCH_SMOKE");
}

void registerSizes(const std::string& name, const std::function<void(benchmark::State&, long)>& run,
                   long rounds)
{
    for (const long size : benchSizes()) {
        auto* registered =
            benchmark::RegisterBenchmark((name + "/" + std::to_string(size)).c_str(),
                                         [run, size](benchmark::State& state) { run(state, size); });
        if (rounds > 0)
            registered->Iterations(isSmokeRun() ? 2 : rounds);
        registered->Unit(benchmark::kMicrosecond);
    }
}

QString generatedProject(long documents)
{
    static std::map<long, QString> made;
    QString& path = made[documents];
    if (path.isEmpty()) {
        path = folder().filePath(u"business-%1.pdb"_s.arg(documents));
        makeEmptyProject(path);
        if (documents > 0)
            baseline_fill(path.toUtf8().constData(), documents);
    }
    return path;
}

QString writableProject(const QString& name, long documents)
{
    const QString path = folder().filePath(u"%1-%2.pdb"_s.arg(name).arg(documents));
    if (!QFile::exists(path) && !QFile::copy(generatedProject(documents), path))
        giveUp(u"cannot copy to "_s + path);
    return path;
}

BenchProgram::BenchProgram(const QString& project, Access access)
    : m_defaults(folder().filePath(u"Zelvor.conf"_s)), clock(BASELINE_END + 15 * secondsPerDay),
      appDelegate({clock, Calendar(QTimeZone::utc()), m_dialogs, m_defaults})
{
    if (!appDelegate.connector.open(project, access))
        giveUp(appDelegate.connector.openError());
}

void BenchProgram::NoDialogs::showAlert(const Alert& alert)
{
    giveUp(alert.messageText + u" "_s + alert.informativeText);
}

void BenchProgram::NoDialogs::ask(const Alert& alert, std::function<void(int)> answer)
{
    Q_UNUSED(answer);
    giveUp(alert.messageText + u" "_s + alert.informativeText);
}

} // namespace zelvor
