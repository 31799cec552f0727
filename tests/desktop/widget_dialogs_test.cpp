#include "desktop/widget_dialogs.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class DialogsOnScreen : public testing::Test {
protected:
    void SetUp() override { dialogs.parentWindow = &main; }
    void show(QWidget& window)
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void ask()
    {
        dialogs.ask({u"Close the month?"_s, {}, {u"Close"_s, u"Later"_s}, 1},
                    [this](int chosen) { answer = chosen; });
    }
    static QMessageBox* question()
    {
        for (QWidget* const top : QApplication::topLevelWidgets()) {
            if (auto* const box = qobject_cast<QMessageBox*>(top); box && box->isVisible())
                return box;
        }
        return nullptr;
    }

    QWidget main;
    WidgetDialogs dialogs;
    int answer = 0;
};

TEST_F(DialogsOnScreen, aQuestionStaysWhenTheSettingsThatLedToItAreClosed)
{
    QDialog settings;
    settings.setWindowFlags(Qt::Window);
    show(settings);
    main.show();
    ask();
    settings.close();
    QCoreApplication::processEvents();
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(question()->parentWidget(), &main);
    QTest::mouseClick(question()->buttons().constFirst(), Qt::LeftButton);
    EXPECT_EQ(answer, firstButton);
}

TEST_F(DialogsOnScreen, theBoxOfAQuestionHoldsFromTheTickOn)
{
    show(main);
    std::vector<bool> toggled;
    Alert alert{u"A new version"_s, {}, {u"Get it"_s, u"Later"_s}, 0};
    alert.checkBox = AlertCheckBox{u"Tell me & others"_s, true, [&](bool on) { toggled.push_back(on); }};
    dialogs.ask(alert, [this](int chosen) { answer = chosen; });
    ASSERT_NE(question(), nullptr);
    QCheckBox* const box = question()->checkBox();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(box->text(), u"Tell me && others"_s);
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(toggled, std::vector<bool>{false});
    EXPECT_EQ(answer, 0);
    QTest::mouseClick(question()->buttons().constLast(), Qt::LeftButton);
    EXPECT_EQ(answer, firstButton + 1);
    EXPECT_EQ(toggled.size(), 1U);
}

TEST_F(DialogsOnScreen, aQuestionHangsOnTheWindowThatIsActive)
{
    QWidget projects;
    main.show();
    show(projects);
    ask();
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(question()->parentWidget(), &projects);
}

TEST_F(DialogsOnScreen, aQuestionBehindAnotherOneOutlivesIt)
{
    show(main);
    int second = 0;
    dialogs.ask({u"Save the first?"_s, {}, {u"Save"_s}, 1}, [this, &second](int) {
        dialogs.ask({u"Save the second?"_s, {}, {u"Save"_s}, 1}, [&second](int chosen) { second = chosen; });
    });
    ASSERT_TRUE(QTest::qWaitForWindowActive(question()));
    QTest::mouseClick(question()->buttons().constFirst(), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(question(), nullptr);
    QTest::mouseClick(question()->buttons().constFirst(), Qt::LeftButton);
    EXPECT_EQ(second, firstButton);
}

} // namespace zelvor
