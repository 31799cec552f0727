#pragma once

#include "store/app_delegate.h"
#include "support/fault_injecting_connector.h"
#include "support/recorded_notifications.h"
#include "support/scripted_dialogs.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStorageInfo>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimeZone>

#include <memory>

namespace zelvor {

// A whole program without a screen in a folder of its own: a standing clock, a zone, scripted answers, its
// own defaults, and a connector that fails when told to. No project is open at first. The folder lies in
// memory where there is room: a project is made with durable syncs, and on a disk they are most of a test's
// time.
class TestProgram {
public:
    explicit TestProgram(qint64 moment = 1'700'000'000, const QTimeZone& zone = QTimeZone::utc())
        : clock(moment), defaults(m_folder.filePath(QStringLiteral("config/Zelvor.conf"))),
          connector(makeConnector()),
          appDelegate({clock, Calendar(zone), dialogs, defaults}, std::unique_ptr<Connector>(connector)),
          posted(appDelegate.notifications)
    {}
    // In a named zone: "America/New_York".
    static std::unique_ptr<TestProgram> inZone(const char* zone, qint64 moment = 1'700'000'000)
    {
        return std::make_unique<TestProgram>(moment, QTimeZone(QByteArray(zone)));
    }
    TestProgram(const TestProgram&) = delete;
    TestProgram& operator=(const TestProgram&) = delete;

    // A path in the program's folder.
    QString file(const QString& name) const { return m_folder.filePath(name); }
    // Makes and opens an empty project with the tables of the given classes.
    template <class... Records>
    bool createProject(const QString& name = QStringLiteral("test.pdb"))
    {
        return appDelegate.connector.create(file(name)) &&
               (appDelegate.connector.createTable<Records>() && ...) && appDelegate.connector.publish();
    }

private:
    static FaultInjectingConnector* makeConnector() { return new FaultInjectingConnector; }
    static QString folderTemplate()
    {
        constexpr qint64 room = 256LL << 20; // containers often have little
        const QString memory = QStringLiteral("/dev/shm");
        const bool fits = QFileInfo(memory).isWritable() && QStorageInfo(memory).bytesAvailable() >= room;
        return (fits ? memory : QDir::tempPath()) + QStringLiteral("/zelvor-test-XXXXXX");
    }
    QTemporaryDir m_folder{folderTemplate()};

public:
    FixedClock clock;
    ScriptedDialogs dialogs;
    DefaultsStore defaults;
    FaultInjectingConnector* const connector; // owned by appDelegate, which has it as `connector` too
    AppDelegate appDelegate;
    RecordedNotifications posted;
};

} // namespace zelvor
