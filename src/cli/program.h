#pragma once

#include "core/calendar.h"
#include "core/dialogs.h"
#include "store/app_delegate.h"

#include <QtCore/QString>

#include <memory>

namespace zelvor {

class WatchedConnector;

// Nobody is there to answer: alerts are kept for the caller, questions are answered with the last button
// ("Cancel"), panels are cancelled.
class UnattendedDialogs final : public Dialogs {
public:
    void showAlert(const Alert& alert) override { m_text += alert.informativeText; }
    void ask(const Alert& alert, std::function<void(int)> answer) override;
    std::optional<QString> savePath(const SavePanel&) override { return std::nullopt; }
    std::optional<QString> openPath(const OpenPanel&) override { return std::nullopt; }
    // The informative texts shown since the last call.
    QString takeText();

private:
    QString m_text;
};

// Whether both paths lead to one file, whose contents are not touched.
bool isSameFile(const QString& a, const QString& b);
// Whether the path is the project's file, or the journal or the lock that stand beside it: no answer may be
// written there.
bool belongsToProject(const QString& path, const QString& project);

// The engine as one command uses it: the machine's clock (or a replayed one) and zone, nobody to ask.
class Program {
public:
    Program();

    // The moment of everything that follows is `clock`'s, until it is the machine's again.
    void replayBy(const Clock& clock) { m_clock.source = &clock; }
    void useMachineClock() { m_clock.source = &m_clock.system; }
    // Opens a project for the command; on failure one line went to standard error. For writing, the file must
    // be writable and have all tables of a project.
    bool open(const QString& path, Access access);
    // Whether the open project has all tables and all that was asked of it could be read; if not, one line
    // went to standard error.
    bool hasReadAll() const;

private:
    struct SwitchingClock final : Clock {
        SystemClock system;
        const Clock* source = &system;
        qint64 now() const override { return source->now(); }
    };

    explicit Program(std::unique_ptr<WatchedConnector> connector);

    SwitchingClock m_clock;
    DefaultsStore m_defaults;
    const WatchedConnector& m_connector; // the application's

public:
    UnattendedDialogs dialogs;
    AppDelegate appDelegate;
};

} // namespace zelvor
