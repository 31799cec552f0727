#include "store/defaults_store.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

TEST(Defaults, areEmptyAtFirst)
{
    const QTemporaryDir folder;
    const DefaultsStore store(folder.filePath(u"Zelvor/Zelvor.conf"_s));
    EXPECT_TRUE(store.businesses().isEmpty());
    EXPECT_FALSE(store.defaultBusiness().has_value());
    EXPECT_TRUE(store.showUpdateWindow());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"Zelvor/Zelvor.conf"_s)));
}

TEST(Defaults, keepNamesAndPathsOfEveryKind)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"Zelvor/Zelvor.conf"_s);
    const QMap<QString, QString> businesses{{u"a.b"_s, u"/home/me/a.b.pdb"_s},
                                            {u"a/b\\c//d/"_s, u"/x"_s},
                                            {u"Магазин_на_углу"_s, u"/home/я/м.pdb"_s},
                                            {u"100%=;,[x]\"'@Invalid()"_s, u"@Variant(\\x00)"_s},
                                            {u"line\nbreak\t "_s, u" /blank at both ends "_s},
                                            {QString(), QString()}};
    {
        DefaultsStore store(file);
        store.setBusinesses(businesses);
        store.setDefaultBusiness(u"a/b\\c//d/"_s);
        store.setShowUpdateWindow(false);
        ASSERT_TRUE(store.synchronize());
    }
    DefaultsStore store(file);
    EXPECT_EQ(store.businesses(), businesses);
    EXPECT_EQ(store.defaultBusiness(), u"a/b\\c//d/"_s);
    EXPECT_FALSE(store.showUpdateWindow());
    store.removeDefaultBusiness();
    store.setBusinesses({});
    ASSERT_TRUE(store.synchronize());
    EXPECT_TRUE(DefaultsStore(file).businesses().isEmpty());
    EXPECT_FALSE(DefaultsStore(file).defaultBusiness().has_value());
}

TEST(Defaults, areWrittenBySynchronizeAlone)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"Zelvor.conf"_s);
    {
        DefaultsStore store(file);
        store.setDefaultBusiness(u"x"_s);
    }
    EXPECT_FALSE(DefaultsStore(file).defaultBusiness().has_value());
}

TEST(Defaults, whatAnotherProgramSetMeanwhileIsKept)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"Zelvor.conf"_s);
    DefaultsStore first(file);
    DefaultsStore second(file);
    first.setBusinesses({{u"a"_s, u"/a.pdb"_s}});
    second.setShowUpdateWindow(false);
    ASSERT_TRUE(first.synchronize());
    ASSERT_TRUE(second.synchronize());
    EXPECT_EQ(DefaultsStore(file).businesses().size(), 1);
    EXPECT_FALSE(DefaultsStore(file).showUpdateWindow());
}

TEST(Defaults, anUnwritablePlaceIsReported)
{
    DefaultsStore store(u"/proc/zelvor/Zelvor.conf"_s);
    store.setShowUpdateWindow(false);
    EXPECT_FALSE(store.synchronize());
}

TEST(Defaults, sendNoReportsUnlessTheUserSaidAlways)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"Zelvor.conf"_s);
    EXPECT_EQ(DefaultsStore(file).crashReportConsent(), CrashReportConsent::Ask);
    for (const CrashReportConsent consent :
         {CrashReportConsent::Always, CrashReportConsent::Never, CrashReportConsent::Ask}) {
        DefaultsStore store(file);
        store.setCrashReportConsent(consent);
        ASSERT_TRUE(store.synchronize());
        EXPECT_EQ(DefaultsStore(file).crashReportConsent(), consent);
    }
}

TEST(Defaults, aWordThatIsNoAnswerIsNoConsent)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Zelvor.conf"_s);
    for (const char* word : {"", "yes", "true", "1", "Always", "always, never"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[General]\ncrashReports=" + QByteArray(word) + '\n');
        file.close();
        EXPECT_EQ(DefaultsStore(path).crashReportConsent(), CrashReportConsent::Ask) << word;
    }
}

TEST(Defaults, knowTheirFolder)
{
    EXPECT_EQ(DefaultsStore(u"/home/me/.config/Zelvor/Zelvor.conf"_s).folder(), u"/home/me/.config/Zelvor"_s);
}

TEST(Defaults, lieInTheUsersConfigurationFolder)
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    DefaultsStore store;
    store.setShowUpdateWindow(true);
    EXPECT_TRUE(store.synchronize());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Zelvor/Zelvor.conf"_s)));
    qputenv("XDG_CONFIG_HOME", before);
}

} // namespace zelvor
