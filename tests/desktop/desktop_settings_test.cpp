#include "desktop/desktop_settings.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class DesktopSettingsFile : public testing::Test {
protected:
    void write(const QByteArray& text) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"settings/Desktop.conf"_s);
};

} // namespace

TEST_F(DesktopSettingsFile, aNewUserHasTheLookAndTheLanguageOfTheDesktop)
{
    const DesktopSettings settings(path);
    EXPECT_EQ(settings.appearance(), Appearance::System);
    EXPECT_EQ(settings.language(), QString());
    EXPECT_EQ(settings.bytes(u"main"_s), QByteArray());
}

TEST_F(DesktopSettingsFile, theLookStaysFromOneStartToTheNext)
{
    for (const Appearance appearance :
         {Appearance::Dark, Appearance::Light, Appearance::System, Appearance::Dark}) {
        DesktopSettings(path).setAppearance(appearance);
        EXPECT_EQ(DesktopSettings(path).appearance(), appearance);
    }
}

TEST_F(DesktopSettingsFile, theLanguageStaysAndCanBeTheDesktopsAgain)
{
    for (const QString& language : {u"ru"_s, u"en"_s, QString()}) {
        DesktopSettings(path).setLanguage(language);
        EXPECT_EQ(DesktopSettings(path).language(), language);
    }
}

TEST_F(DesktopSettingsFile, thePlacesOfWindowsStayByteForByte)
{
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    DesktopSettings(path).setBytes(u"main"_s, every);
    DesktopSettings(path).setBytes(u"preferences"_s, "x");
    EXPECT_EQ(DesktopSettings(path).bytes(u"main"_s), every);
    EXPECT_EQ(DesktopSettings(path).bytes(u"preferences"_s), QByteArray("x"));
}

TEST_F(DesktopSettingsFile, whatItDoesNotKnowIsTheDesktopsOwn)
{
    DesktopSettings(path).setLanguage(u"ru"_s); // makes the folder
    write("[General]\nappearance=sepia\n");
    EXPECT_EQ(DesktopSettings(path).appearance(), Appearance::System);
    write("\x01\x02 no settings at all");
    EXPECT_EQ(DesktopSettings(path).appearance(), Appearance::System);
    EXPECT_EQ(DesktopSettings(path).language(), QString());
    DesktopSettings(path).setAppearance(Appearance::Dark);
    EXPECT_EQ(DesktopSettings(path).appearance(), Appearance::Dark);
}

} // namespace zelvor
