#pragma once

#include "core/calendar.h"
#include "core/dialogs.h"
#include "store/app_delegate.h"
#include "store/defaults_store.h"

#include <QtCore/QString>

#include <functional>
#include <string>
#include <vector>

namespace benchmark {
class State;
}

namespace zelvor {

// Sizes in product documents, from ZELVOR_BENCH_DOCUMENTS ("10000,100000" when it is not set).
std::vector<long> benchSizes();
// Whether the run only shows that the benchmarks still work (ZELVOR_BENCH_SMOKE is set).
bool isSmokeRun();
// Registers `name/size` for each size. A fixed number of rounds where each round changes the file.
void registerSizes(const std::string& name, const std::function<void(benchmark::State&, long)>& run,
                   long rounds = 0);

// The generated business with that many product documents: made once a process in a folder that goes with it.
QString generatedProject(long documents);
// A copy of it, or of an empty project (documents 0), for a benchmark that writes. Each name has one copy.
QString writableProject(const QString& name, long documents);

// How often this process has told the disk to make something durable.
long durableSyncs();

// A whole program without a screen on one project. An alert ends the run: nothing that is measured may fail.
class BenchProgram {
public:
    explicit BenchProgram(const QString& project, Access access = Access::ReadOnly);

private:
    class NoDialogs final : public Dialogs {
        void showAlert(const Alert& alert) override;
        void ask(const Alert& alert, std::function<void(int)> answer) override;
        std::optional<QString> savePath(const SavePanel&) override { return {}; }
        std::optional<QString> openPath(const OpenPanel&) override { return {}; }
    };
    NoDialogs m_dialogs;
    DefaultsStore m_defaults;

public:
    FixedClock clock; // starts half a month behind the last document
    AppDelegate appDelegate;
};

} // namespace zelvor
