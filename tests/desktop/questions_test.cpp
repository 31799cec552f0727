#include "desktop/widget_dialogs.h"

#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class Questions : public testing::Test {
protected:
    Questions()
    {
        dialogs.parentWindow = &window;
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    // The question on its sheet.
    QMessageBox* ask(const QStringList& buttons)
    {
        dialogs.ask({u"Delete <b>Chai</b>?"_s, u"A & B <i>too</i>"_s, buttons, 1},
                    [this](int given) { answer = given; });
        auto* const box = window.findChild<QMessageBox*>();
        EXPECT_NE(box, nullptr);
        return box;
    }

    QWidget window;
    WidgetDialogs dialogs;
    int answer = -1;
};

} // namespace

TEST_F(Questions, theAnswersCountUpFromTheFirstButton)
{
    QMessageBox* box = ask({u"Proceed"_s, u"Cancel"_s});
    EXPECT_EQ(box->windowModality(), Qt::WindowModal);
    QTest::mouseClick(box->buttons().at(0), Qt::LeftButton);
    EXPECT_EQ(answer, firstButton);
    QTest::qWait(1);
    box = ask({u"Proceed"_s, u"Cancel"_s});
    QTest::mouseClick(box->buttons().at(1), Qt::LeftButton);
    EXPECT_EQ(answer, firstButton + 1);
}

TEST_F(Questions, escapeAnswersWithTheLastButtonAndReturnWithTheFirst)
{
    QTest::keyClick(ask({u"Save"_s, u"Discard"_s, u"Cancel"_s}), Qt::Key_Escape);
    EXPECT_EQ(answer, firstButton + 2);
    QTest::qWait(1);
    QMessageBox* const box = ask({u"Save"_s, u"Discard"_s, u"Cancel"_s});
    QTest::keyClick(box->defaultButton(), Qt::Key_Return);
    EXPECT_EQ(answer, firstButton);
}

TEST_F(Questions, closingTheSheetAnswersWithTheLastButton)
{
    ask({u"Proceed"_s, u"Cancel"_s})->close();
    EXPECT_EQ(answer, firstButton + 1);
}

TEST_F(Questions, allTextsAreShownAsTheyAre)
{
    const QMessageBox* const box = ask({u"R&D"_s, u"Cancel"_s});
    EXPECT_EQ(box->text(), u"Delete <b>Chai</b>?"_s);
    int texts = 0;
    for (const QLabel* const label : box->findChildren<QLabel*>()) {
        if (label->text().isEmpty())
            continue;
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << qPrintable(label->text());
        ++texts;
    }
    EXPECT_EQ(texts, 2);
    EXPECT_EQ(box->buttons().at(0)->text(), u"R&&D"_s);
}

TEST_F(Questions, anAlertWaitsUntilItIsClosed)
{
    bool seen = false;
    QTimer::singleShot(50, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = box->text() == u"No space left"_s;
        QTest::keyClick(box, Qt::Key_Escape);
    });
    dialogs.showAlert({u"No space left"_s, {}, {}});
    EXPECT_TRUE(seen);
}

TEST_F(Questions, aCancelledPanelGivesNoPath)
{
    const auto cancelSoon = [] {
        QTimer::singleShot(50, [] {
            auto* const panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(panel, nullptr);
            panel->reject();
        });
    };
    cancelSoon();
    EXPECT_EQ(dialogs.savePath({u"Save"_s, u"Name"_s, u"Save"_s, u"pdb"_s}), std::nullopt);
    cancelSoon();
    EXPECT_EQ(dialogs.openPath({u"Open"_s, u"Name"_s, u"Open"_s, {u"pdb"_s}}), std::nullopt);
}

} // namespace zelvor
