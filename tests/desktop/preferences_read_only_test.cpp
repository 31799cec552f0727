#include "support/desktop_program.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

TEST(PreferencesWindow, ofAProjectOpenForReadingSaysSoAndTakesNothing)
{
    DesktopProgram desktop;
    desktop.openNewProject();
    Connector& connector = desktop.program.appDelegate.connector;
    const QString path = connector.path();
    connector.close();
    Connector other;
    ASSERT_TRUE(other.open(path));
    desktop.program.dialogs.answers.push_back(firstButton); // open it for reading
    desktop.desktop.start(path);
    ASSERT_TRUE(connector.isReadOnly());
    desktop.desktop.shell.showDefaults();
    ASSERT_NE(desktop.find(u"readOnlyWarning"_s), nullptr);
    for (const QString& name : {u"companyName"_s, u"vatRate"_s, u"useVATCheck"_s, u"reportPeriod1"_s,
                                u"openLogoFile"_s, u"deletePathToImage"_s, u"applyButton"_s}) {
        const QWidget* const widget = desktop.find(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        EXPECT_FALSE(widget->isEnabled()) << name.toStdString();
    }
    EXPECT_TRUE(desktop.find(u"closeWindow"_s)->isEnabled());
}

} // namespace zelvor
