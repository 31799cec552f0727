#include "store/settings_resource.h"

#include "store/child_process.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList allKeys{u"app_key"_s, u"server"_s, u"domain_en"_s, u"domain_ru"_s};

class Settings : public testing::Test {
protected:
    void write(const QString& folderName, const QByteArray& content)
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath(folderName));
        QFile file(folder.filePath(folderName + u"/Settings.plist"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    static QByteArray plist(const QByteArray& entries)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<!DOCTYPE plist PUBLIC \"-//X//DTD PLIST 1.0//EN\" "
               "\"http://x.example/PropertyList-1.0.dtd\">\n"
               "<plist version=\"1.0\"><dict>" +
               entries + "</dict></plist>\n";
    }
    static QByteArray entry(const QByteArray& key, const QByteArray& value)
    {
        return "<key>" + key + "</key><string>" + value + "</string>";
    }
    SettingsResource resource() const
    {
        return SettingsResource({folder.filePath(u"user"_s), folder.filePath(u"system"_s)});
    }
    QString value(const char* key) const { return resource().value(QString::fromLatin1(key)); }
    void expectBuiltIn() const
    {
        for (const QString& key : allKeys)
            EXPECT_EQ(resource().value(key), builtIn.value(key)) << qPrintable(key);
    }

    const QTemporaryDir folder;
    const SettingsResource builtIn{QStringList()};
};

} // namespace

TEST_F(Settings, theBuiltInServerIsAPlaceholderOverHttps)
{
    const QUrl server(builtIn.value(u"server"_s));
    EXPECT_EQ(server.scheme(), u"https"_s);
    EXPECT_TRUE(server.host().endsWith(u".example"_s));
    EXPECT_FALSE(builtIn.value(u"server"_s).endsWith(u'/'));
    EXPECT_FALSE(builtIn.value(u"app_key"_s).isEmpty());
    EXPECT_EQ(builtIn.value(u"domain_en"_s), u"https://zelvor.example"_s);
    EXPECT_EQ(builtIn.value(u"domain_ru"_s), u"https://ru.zelvor.example"_s);
}

TEST_F(Settings, areTheBuiltInOnesWithoutAnOverride)
{
    expectBuiltIn();
}

TEST_F(Settings, areOverriddenKeyByKeyByTheUserBeforeTheSystem)
{
    write(u"user"_s, plist(entry("server", "https://rates.here.example")));
    write(u"system"_s, plist(entry("server", "https://other.example") + entry("app_key", "k")));
    EXPECT_EQ(value("server"), u"https://rates.here.example"_s);
    EXPECT_EQ(value("app_key"), u"k"_s);
    EXPECT_EQ(value("domain_en"), builtIn.value(u"domain_en"_s));
}

TEST_F(Settings, areReadAnewEachTime)
{
    const SettingsResource settings = resource();
    EXPECT_EQ(settings.value(u"app_key"_s), builtIn.value(u"app_key"_s));
    write(u"user"_s, plist(entry("app_key", "new")));
    EXPECT_EQ(settings.value(u"app_key"_s), u"new"_s);
}

TEST_F(Settings, addressesEndWithoutASlash)
{
    write(u"user"_s, plist(entry("server", " http://127.0.0.1:8080/api// ")));
    EXPECT_EQ(value("server"), u"http://127.0.0.1:8080/api"_s);
}

TEST_F(Settings, anOverrideThatIsNoPropertyListCountsAsNotThere)
{
    const QByteArray good = entry("app_key", "k") + entry("server", "https://x.example");
    for (const QByteArray& content :
         {QByteArray(), QByteArray("app_key=k"), QByteArray("\0\0\0", 3),
          QByteArray("<html><body>no</body></html>"), plist(good).chopped(20), plist(good) + "<more/>",
          plist(good + "</dict>"), "<dict>" + good + "</dict>",
          "<plist><array>" + good + "</array></plist>"}) {
        write(u"user"_s, content);
        expectBuiltIn();
    }
}

TEST_F(Settings, aValueOfAnotherKindCountsAsNotThereAndTheOthersHold)
{
    write(u"user"_s, plist("<key>server</key><array><string>https://x.example</string></array>"
                           "<key>domain_en</key><true/><string>https://y.example</string>"
                           "<key>domain_ru</key><dict><key>app_key</key><string>inner</string></dict>" +
                           entry("app_key", "k")));
    EXPECT_EQ(value("app_key"), u"k"_s);
    EXPECT_EQ(value("server"), builtIn.value(u"server"_s));
    EXPECT_EQ(value("domain_en"), builtIn.value(u"domain_en"_s));
    EXPECT_EQ(value("domain_ru"), builtIn.value(u"domain_ru"_s));
}

TEST_F(Settings, anAddressThatIsNoWebAddressCountsAsNotThere)
{
    for (const char* address :
         {"", "file:///etc/passwd", "javascript:alert(1)", "ftp://x.example", "x.example", "https://",
          "https:///path", "https://x.example/?q=1", "https://x.example/#a", "https://x y.example"}) {
        write(u"user"_s, plist(entry("server", address) + entry("domain_en", address)));
        EXPECT_EQ(value("server"), builtIn.value(u"server"_s)) << address;
        EXPECT_EQ(value("domain_en"), builtIn.value(u"domain_en"_s)) << address;
    }
}

TEST_F(Settings, aFileThatIsNotSmallCountsAsNotThere)
{
    write(u"user"_s, plist(entry("app_key", "k") + QByteArray(64 * 1024, ' ')));
    expectBuiltIn();
    write(u"user"_s, plist(entry("app_key", "k") + QByteArray(60 * 1024, ' ')));
    EXPECT_EQ(value("app_key"), u"k"_s);
}

TEST_F(Settings, nothingThatSwellsWhenItIsReadIsTaken)
{
    QByteArray bomb = "<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\">";
    for (char name = 'b'; name <= 'k'; ++name) {
        bomb += QByteArray("<!ENTITY ") + name + " \"";
        for (int i = 0; i < 10; ++i)
            bomb += QByteArray("&") + static_cast<char>(name - 1) + ';';
        bomb += "\">";
    }
    write(u"user"_s, bomb + "]><plist><dict>" + entry("app_key", "&k;") + "</dict></plist>");
    expectBuiltIn();
}

TEST_F(Settings, aFolderAPipeOrAFileThatMayNotBeReadCountAsNotThere)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"user/Settings.plist"_s));
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"system"_s));
    ASSERT_EQ(::mkfifo(qPrintable(folder.filePath(u"system/Settings.plist"_s)), 0600), 0);
    expectBuiltIn();
}

TEST_F(Settings, theSystemsFoldersFollowTheirEnvironment)
{
    const int code = runInChild([this] {
        qputenv("XDG_CONFIG_HOME", folder.filePath(u"home"_s).toUtf8());
        qputenv("XDG_CONFIG_DIRS", "/one:/two");
        return systemSettingsFolders() == QStringList{u"/one/Zelvor"_s, u"/two/Zelvor"_s} ? 0 : 1;
    });
    EXPECT_EQ(code, 0);
}

TEST_F(Settings, anUnknownKeyIsAFaultOfTheProgram)
{
    EXPECT_DEATH(builtIn.value(u"nothing"_s), "settings cannot be read");
}

} // namespace zelvor
