#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QSet>
#include <QtGui/QImage>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

// The preferences of a project that is set up.
class Preferences : public testing::Test {
protected:
    Preferences()
    {
        program.openNewProject(u"my_shop.pdb"_s);
        show();
    }
    void show()
    {
        program.desktop.shell.showDefaults();
        program.activate(window());
    }
    PreferencesWindow& window() { return program.desktop.preferencesWindow; }
    template <class Widget>
    Widget& field(const QString& name)
    {
        auto* const widget = window().findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return *widget;
    }
    QCheckBox& box(const QString& name) { return field<QCheckBox>(name); }
    void tick(const QString& name)
    {
        QCheckBox& check = box(name);
        QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(8, check.height() / 2));
    }
    void apply() { program.click(u"applyButton"_s); }
    void closeAndShow()
    {
        program.click(u"closeWindow"_s);
        show();
    }
    std::shared_ptr<Params> stored() { return program.program.appDelegate.params(); }

    DesktopProgram program;
};

TEST_F(Preferences, areNamedAfterTheProject)
{
    EXPECT_EQ(window().windowTitle(), u"Parameters for my shop"_s);
    EXPECT_TRUE(field<QLineEdit>(u"companyName"_s).hasFocus());
    EXPECT_FALSE(field<QPushButton>(u"applyButton"_s).isEnabled());
}

TEST_F(Preferences, keepEveryTextThatIsTypedAndApplied)
{
    const std::vector<std::pair<QString, QString Params::*>> texts{
        {u"companyName"_s, &Params::companyName},
        {u"companyAddress"_s, &Params::companyAddress},
        {u"companyCity"_s, &Params::companyCity},
        {u"companyPhone"_s, &Params::companyPhone},
        {u"companyMail"_s, &Params::companyMail},
        {u"companyDomain"_s, &Params::companyDomain},
        {u"bankAccountName"_s, &Params::bankAccountName},
        {u"bankAccountNumber"_s, &Params::bankAccountNumber},
        {u"bankName"_s, &Params::bankName},
        {u"bankAddress"_s, &Params::bankAddress},
        {u"bankIBAN"_s, &Params::bankIBAN},
        {u"bankSWIFT"_s, &Params::bankSWIFT},
        {u"vatNo"_s, &Params::vatNumber}};
    for (const auto& [name, member] : texts)
        program.type(name, u"a & "_s + name);
    apply();
    closeAndShow();
    for (const auto& [name, member] : texts) {
        EXPECT_EQ((*stored()).*member, u"a & "_s + name);
        EXPECT_EQ(field<QLineEdit>(name).text(), u"a & "_s + name);
    }
}

TEST_F(Preferences, keepEveryNumberThatIsTypedAndApplied)
{
    program.type(u"vatRate"_s, u"12,5"_s);
    program.type(u"gstRate"_s, u"7.25"_s);
    program.type(u"maxDeferment"_s, u"45"_s);
    apply();
    EXPECT_DOUBLE_EQ(stored()->vatRate, 12.5);
    EXPECT_DOUBLE_EQ(stored()->gstRate, 7.25);
    EXPECT_EQ(stored()->maxDeferment, 45);
    closeAndShow();
    EXPECT_EQ(field<QLineEdit>(u"vatRate"_s).text(), u"12.50"_s);
    EXPECT_EQ(field<QLineEdit>(u"maxDeferment"_s).text(), u"45"_s);
}

TEST_F(Preferences, keepEveryCheckThatIsClickedAndApplied)
{
    const std::vector<std::pair<QString, bool Params::*>> checks{
        {u"showCurrentBalanceCheck"_s, &Params::showCurrentBalance},
        {u"printCompanyLogoCheck"_s, &Params::printCompanyLogo},
        {u"printBankDetailsCheck"_s, &Params::printBankDetails},
        {u"useVATCheck"_s, &Params::useVAT},
        {u"useVATNoCheck"_s, &Params::useVATNo}};
    const Params before = *stored();
    for (const auto& [name, member] : checks)
        tick(name);
    apply();
    for (const auto& [name, member] : checks) {
        EXPECT_EQ((*stored()).*member, !(before.*member)) << name.toStdString();
        EXPECT_EQ(box(name).isChecked(), !(before.*member)) << name.toStdString();
    }
}

TEST_F(Preferences, keepTheReportPeriod)
{
    for (int period = 3; period >= 1; --period) {
        auto& cell = field<QRadioButton>(u"reportPeriod%1"_s.arg(period));
        QTest::mouseClick(&cell, Qt::LeftButton, {}, QPoint(8, cell.height() / 2));
        apply();
        EXPECT_EQ(stored()->reportPeriod, period);
        EXPECT_TRUE(cell.isChecked());
    }
}

TEST_F(Preferences, letVatAndGstExcludeEachOther)
{
    if (!box(u"useVATCheck"_s).isChecked())
        tick(u"useVATCheck"_s);
    if (!box(u"useVATNoCheck"_s).isChecked())
        tick(u"useVATNoCheck"_s);
    tick(u"useGSTCheck"_s);
    EXPECT_TRUE(box(u"useGSTCheck"_s).isChecked());
    EXPECT_FALSE(box(u"useVATCheck"_s).isChecked());
    EXPECT_FALSE(box(u"useVATNoCheck"_s).isChecked());
    tick(u"useVATCheck"_s);
    EXPECT_FALSE(box(u"useGSTCheck"_s).isChecked());
    apply();
    EXPECT_TRUE(stored()->useVAT);
    EXPECT_FALSE(stored()->useGST);
}

TEST_F(Preferences, canBeAppliedWhileANumberIsBeingTyped)
{
    QLineEdit& rate = field<QLineEdit>(u"vatRate"_s);
    rate.setFocus();
    rate.selectAll();
    QTest::keyClicks(&rate, u"19"_s);
    EXPECT_TRUE(field<QPushButton>(u"applyButton"_s).isEnabled());
    QTest::keyClick(&rate, Qt::Key_Return);
    EXPECT_DOUBLE_EQ(stored()->vatRate, 19);
    EXPECT_FALSE(field<QPushButton>(u"applyButton"_s).isEnabled());
}

TEST_F(Preferences, storeNothingThatWasNotApplied)
{
    program.type(u"companyName"_s, u"Grey & Sons"_s);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(stored()->companyName.isEmpty());
    show();
    EXPECT_TRUE(field<QLineEdit>(u"companyName"_s).text().isEmpty());
}

TEST_F(Preferences, tellARefusedRate)
{
    program.type(u"vatRate"_s, u"120"_s);
    apply();
    EXPECT_EQ(program.program.dialogs.lastAlert(), u"The changes were not applied."_s);
    EXPECT_TRUE(field<QPushButton>(u"applyButton"_s).isEnabled());
}

TEST_F(Preferences, doNotLetTheCurrencyChange)
{
    EXPECT_FALSE(field<QComboBox>(u"currencySelect"_s).isEnabled());
    EXPECT_EQ(field<QComboBox>(u"currencySelect"_s).currentText(), u"EUR"_s);
    EXPECT_FALSE(field<QLabel>(u"defaultCurrencyWarning"_s).isVisible());
}

TEST_F(Preferences, showTheLastClosedMonthAsAMonth)
{
    auto params = stored();
    for (const auto& [period, text] : std::initializer_list<std::pair<qint64, QString>>{
             {201412, u"December 2014"_s}, {20153, u"March 2015"_s}, {0, u"None yet"_s}}) {
        params->lastPeriodSaved = period;
        ASSERT_EQ(program.program.appDelegate.connector.update(*params), 1);
        closeAndShow();
        EXPECT_EQ(field<QLabel>(u"lastPeriodSaved"_s).text(), text);
    }
}

TEST_F(Preferences, showTheLogoOfTheFileAndTheDefaultOneWithout)
{
    const auto picture = [this] { return field<QLabel>(u"logoImageView"_s).pixmap(); };
    EXPECT_FALSE(picture().isNull());
    const QString path = program.program.file(u"my logo.png"_s);
    QImage logo(480, 144, QImage::Format_RGB32);
    logo.fill(QColor(200, 30, 60));
    ASSERT_TRUE(logo.save(path));
    program.program.dialogs.openPaths = {path, program.program.file(u"gone.png"_s)};
    program.click(u"openLogoFile"_s);
    EXPECT_EQ(picture().deviceIndependentSize(), QSizeF(240, 72));
    EXPECT_EQ(picture().toImage().pixelColor(10, 10), QColor(200, 30, 60));
    EXPECT_EQ(field<QLabel>(u"logoPath"_s).text(), path);
    apply();
    EXPECT_EQ(stored()->pathToLogo, path);
    program.click(u"openLogoFile"_s); // a file that cannot be read
    EXPECT_TRUE(picture().isNull());
    program.click(u"deletePathToImage"_s);
    EXPECT_FALSE(picture().isNull());
    apply();
    EXPECT_TRUE(stored()->pathToLogo.isEmpty());
}

TEST_F(Preferences, areLeftForTheMainWindow)
{
    program.click(u"closeWindow"_s);
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.window().isVisible());
    show();
    window().close();
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.window().isVisible());
}

TEST_F(Preferences, areLeftForTheProjects)
{
    program.click(u"showProjectSelectWindow"_s);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(program.window().isVisible());
    EXPECT_TRUE(program.desktop.projectWindow.isVisible());
    EXPECT_FALSE(program.program.appDelegate.connector.isOpen());
}

TEST_F(Preferences, nameEveryFieldForAScreenReader)
{
    QSet<QString> names;
    for (const QLineEdit* const edit : window().findChildren<QLineEdit*>()) {
        EXPECT_FALSE(edit->accessibleName().isEmpty()) << edit->objectName().toStdString();
        EXPECT_FALSE(names.contains(edit->accessibleName())) << edit->accessibleName().toStdString();
        names.insert(edit->accessibleName());
    }
    EXPECT_EQ(names.size(), 16);
}

// A project that has no currency yet.
class SetUp : public testing::Test {
protected:
    SetUp()
    {
        EXPECT_TRUE(createProject(program.program.appDelegate.connector, program.program.file(u"new.pdb"_s)));
        program.program.appDelegate.connector.close();
        program.desktop.start(program.program.file(u"new.pdb"_s));
        program.activate(window());
    }
    PreferencesWindow& window() { return program.desktop.preferencesWindow; }
    QComboBox& currency() { return *window().findChild<QComboBox*>(u"currencySelect"_s); }
    const ScriptedDialogs& dialogs() { return program.program.dialogs; }

    DesktopProgram program;
};

TEST_F(SetUp, startsAtTheCurrency)
{
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(program.window().isVisible());
    EXPECT_TRUE(currency().hasFocus());
    EXPECT_TRUE(currency().isEnabled());
    EXPECT_EQ(currency().currentText(), u"-----"_s);
    EXPECT_TRUE(window().findChild<QLabel*>(u"defaultCurrencyWarning"_s)->isVisible());
}

TEST_F(SetUp, isNotLeftWithoutACurrency)
{
    window().close();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(dialogs().lastAlert(), u"Default currency doesn't set"_s);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(dialogs().alerts.size(), 2u);
}

TEST_F(SetUp, isNotLeftWithACurrencyThatWasNotApplied)
{
    QTest::keyClick(&currency(), Qt::Key_Down);
    program.click(u"closeWindow"_s);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(dialogs().alerts.size(), 1u);
}

TEST_F(SetUp, endsInTheMainWindow)
{
    QTest::keyClick(&currency(), Qt::Key_Down);
    QTest::keyClick(&currency(), Qt::Key_Down); // USD
    program.click(u"applyButton"_s);
    window().close();
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.window().isVisible());
    EXPECT_TRUE(dialogs().alerts.empty());
    program.desktop.shell.showDefaults();
    EXPECT_FALSE(currency().isEnabled());
    EXPECT_EQ(currency().currentText(), u"USD"_s);
    EXPECT_FALSE(window().findChild<QLabel*>(u"defaultCurrencyWarning"_s)->isVisible());
}

TEST_F(SetUp, canBeLeftForTheProjects)
{
    program.click(u"showProjectSelectWindow"_s);
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.desktop.projectWindow.isVisible());
}

} // namespace zelvor
