#include "catalogs/contragent_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "core/doc_type.h"
#include "desktop/elided_label.h"
#include "desktop/menu_tree.h"
#include "desktop/page.h"
#include "desktop/page_stack.h"
#include "desktop/tab_strip.h"
#include "desktop/theme.h"
#include "documents/product_document_view_controller.h"
#include "period/balance_view_controller.h"
#include "support/desktop_menu.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtGui/QImage>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolButton>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class Window : public testing::Test {
protected:
    MainWindow& window() { return program.window(); }
    MainViewController& workspace() { return program.workspace(); }
    TabStrip& strip() { return *window().findChild<TabStrip*>(u"tabStrip"_s); }
    MenuTree& tree() { return *window().findChild<MenuTree*>(u"menuTree"_s); }
    QWidget& pages() { return *window().findChild<QWidget*>(u"pages"_s); }
    void clickStrip(const QRectF& place)
    {
        QTest::mouseClick(&strip(), Qt::LeftButton, {}, place.center().toPoint());
    }
    std::size_t tabs() { return workspace().tabView.header.tabs().size(); }
    template <class Change>
    void changeSettings(Change change)
    {
        auto params = program.program.appDelegate.params();
        change(*params);
        ASSERT_EQ(program.program.appDelegate.connector.update(*params), 1);
        program.program.appDelegate.notifications.post(NotificationName::DefaultsChangedNotification);
    }
    std::shared_ptr<ProductDocumentViewController> openSale()
    {
        workspace().topMenuAction(DocType::SellProduct);
        return std::dynamic_pointer_cast<ProductDocumentViewController>(
            workspace().tabView.activePage()->controller);
    }

    // On the small screen of the tests the least window leaves hardly any room to grow.
    void shrink(int width)
    {
        window().setMinimumSize(0, 0);
        window().layout()->invalidate();
        window().layout()->activate(); // what its parts need still holds
        window().resize(width, 500);
    }

    DesktopProgram program;
};

TEST_F(Window, isUpWithTheNameOfTheProjectThatWasOpened)
{
    program.openNewProject(u"my_shop.pdb"_s);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowTitle(), u"my shop"_s);
}

TEST_F(Window, saysInItsTitleThatAProjectIsOnlyRead)
{
    program.openNewProject(u"my_shop.pdb"_s);
    program.desktop.shell.closeWindow();
    Connector other;
    ASSERT_TRUE(other.open(program.program.file(u"my_shop.pdb"_s)));
    program.program.dialogs.answers = {firstButton}; // open read-only
    program.desktop.start(program.program.file(u"my_shop.pdb"_s));
    EXPECT_EQ(window().windowTitle(), u"my shop (read-only)"_s);
    other.close();
}

TEST_F(Window, hasOneTabForACatalogThatIsChosenTwice)
{
    program.openNewProject();
    workspace().topMenuAction(DocType::ProductCatalog);
    workspace().topMenuAction(DocType::StockCatalog);
    workspace().topMenuAction(DocType::ProductCatalog);
    EXPECT_EQ(tabs(), 2u);
    ASSERT_NE(window().activePage(), nullptr);
    EXPECT_EQ(window().activePage()->view().name(), u"Products Catalog"_s);
}

// --- pages

TEST_F(Window, saysWhatToDoNextWhileNoPageIsOpen)
{
    program.openNewProject();
    EXPECT_EQ(window().activePage(), nullptr);
    QPushButton* const sale = program.find<QPushButton>(u"startSale"_s);
    ASSERT_NE(sale, nullptr);
    EXPECT_TRUE(sale->hasFocus());
    program.click(u"startProducts"_s);
    EXPECT_EQ(window().activePage()->view().name(), u"Products Catalog"_s);
    clickStrip(strip().closeButtonRect(0));
    EXPECT_EQ(window().activePage(), nullptr);
    program.click(u"startPurchase"_s);
    EXPECT_EQ(tabs(), 1u);
    EXPECT_EQ(program.find(u"startSale"_s), nullptr);
}

TEST_F(Window, showsThePageOfTheTabThatIsClicked)
{
    program.openNewProject();
    workspace().topMenuAction(DocType::ProductCatalog);
    workspace().topMenuAction(DocType::StockCatalog);
    const Page* const second = window().activePage();
    clickStrip(strip().tabRect(0));
    EXPECT_EQ(window().activePage()->view().name(), u"Products Catalog"_s);
    EXPECT_FALSE(second->isVisible());
    clickStrip(strip().closeButtonRect(0));
    EXPECT_EQ(window().activePage(), second);
    EXPECT_EQ(tabs(), 1u);
}

TEST_F(Window, keepsThePageOfACatalogForTheNextTime)
{
    program.openNewProject();
    workspace().topMenuAction(DocType::StockCatalog);
    const QPointer<Page> page = window().activePage();
    workspace().closeTab(0);
    workspace().topMenuAction(DocType::StockCatalog);
    EXPECT_EQ(window().activePage(), page);
}

TEST_F(Window, givesThePageTheFocusButLeavesItToWhoWalksAlongTheTabs)
{
    program.openNewProject();
    workspace().topMenuAction(DocType::ProductCatalog);
    workspace().topMenuAction(DocType::StockCatalog);
    EXPECT_TRUE(window().activePage()->isAncestorOf(QApplication::focusWidget()));
    strip().setFocus();
    QTest::keyClick(&strip(), Qt::Key_Left);
    EXPECT_EQ(window().activePage()->view().name(), u"Products Catalog"_s);
    EXPECT_TRUE(strip().hasFocus());
    QTest::keyClick(&strip(), Qt::Key_Down);
    EXPECT_TRUE(window().activePage()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Window, letsAPageBeClosedByAButtonOfItsOwn)
{
    program.openNewProject();
    std::shared_ptr<ProductDocumentViewController> form = openSale();
    const std::weak_ptr<ProductDocumentViewController> controller = form;
    const QPointer<Page> page = window().activePage();
    auto* const button = new QPushButton(page);
    button->show();
    bool aliveInside = false;
    QObject::connect(button, &QPushButton::clicked, button, [&aliveInside, page, weak = controller] {
        weak.lock()->onClose();
        aliveInside = page && page->findChild<QPushButton*>() && !weak.expired();
    });
    form.reset();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(aliveInside);
    EXPECT_EQ(tabs(), 0u);
    EXPECT_EQ(window().activePage(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(page.isNull());
    workspace().topMenuAction(DocType::StockCatalog); // the form that asked for its end is let go
    EXPECT_TRUE(controller.expired());
}

TEST_F(Window, asksBeforeADocumentIsClosedThatIsNotSaved)
{
    program.openNewProject();
    const auto form = openSale();
    form->mainView.comment.setText(u"for Mr Grey"_s);
    form->mainView.comment.userChanged();
    QTest::keyClick(&window(), Qt::Key_W, Qt::ControlModifier);
    ASSERT_EQ(program.program.dialogs.questions.size(), 1u);
    EXPECT_EQ(tabs(), 1u);
    program.program.dialogs.unanswered.back()(firstButton + 1);
    EXPECT_EQ(tabs(), 0u);
}

TEST_F(Window, forgetsThePagesOfAProjectThatIsLeft)
{
    program.openNewProject();
    openSale();
    workspace().topMenuAction(DocType::StockCatalog);
    const QPointer<Page> sale = window().findChild<PageStack*>()->findChildren<Page*>().constFirst();
    window().close();
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.desktop.projectWindow.isVisible());
    EXPECT_EQ(tabs(), 0u);
    program.desktop.start(program.program.file(u"shop.pdb"_s));
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().activePage(), nullptr);
}

// --- header and foot

TEST_F(Window, namesTheBusinessAndItsCurrencyAboveAll)
{
    program.openNewProject(u"my_shop.pdb"_s);
    EXPECT_EQ(program.find<QLabel>(u"headerBusiness"_s)->text(), u"my shop"_s);
    EXPECT_EQ(program.find<QLabel>(u"headerCurrency"_s)->text(), u"EUR"_s);
    changeSettings([](Params& params) { params.companyName = u"Grey & <b>Sons</b>"_s; });
    EXPECT_EQ(program.find<QLabel>(u"headerBusiness"_s)->text(), u"Grey & <b>Sons</b>"_s);
    EXPECT_EQ(program.find<QLabel>(u"headerBusiness"_s)->textFormat(), Qt::PlainText);
}

TEST_F(Window, showsTheLogoOnlyWhenItCanBeRead)
{
    program.openNewProject();
    EXPECT_EQ(program.find(u"headerLogo"_s), nullptr);
    const QString path = program.program.file(u"logo.png"_s);
    QImage logo(400, 100, QImage::Format_RGB32);
    logo.fill(Qt::blue);
    ASSERT_TRUE(logo.save(path));
    changeSettings([&](Params& params) { params.pathToLogo = path; });
    const QLabel* const shown = program.find<QLabel>(u"headerLogo"_s);
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->pixmap().deviceIndependentSize(), QSizeF(96, 24));
    changeSettings([&](Params& params) { params.pathToLogo = program.program.file(u"gone.png"_s); });
    EXPECT_EQ(program.find(u"headerLogo"_s), nullptr);
}

TEST_F(Window, showsTheBalanceAtTheFootWhenTheSettingsSaySo)
{
    program.openNewProject();
    changeSettings([](Params& params) { params.showCurrentBalance = false; });
    EXPECT_EQ(program.find(u"balance"_s), nullptr);
    EXPECT_EQ(program.find(u"balanceLabel"_s), nullptr);
    changeSettings([](Params& params) { params.showCurrentBalance = true; });
    ASSERT_NE(program.find<QLabel>(u"balance"_s), nullptr);
    EXPECT_EQ(program.find<QLabel>(u"balance"_s)->text(), u"0.00"_s);
    EXPECT_NE(program.find(u"balanceLabel"_s), nullptr);
}

TEST_F(Window, showsTheBalanceInItsColour)
{
    program.openNewProject();
    changeSettings([](Params& params) { params.showCurrentBalance = true; });
    QLabel* const balance = program.find<QLabel>(u"balance"_s);
    const auto ink = [balance] { return balance->palette().color(QPalette::WindowText); };
    workspace().balance.setReal(-12.5);
    workspace().balance.setColor(redColor);
    EXPECT_EQ(ink(), textColor(redColor, window().palette()));
    EXPECT_TRUE(balance->text().contains(u"12.50"_s));
    workspace().balance.setReal(12.5);
    workspace().balance.setColor(inOrderColor);
    EXPECT_EQ(ink(), textColor(inOrderColor, window().palette()));
}

TEST_F(Window, cutsALongStateTextOffAndTellsAllOfItInATip)
{
    program.openNewProject();
    const int width = window().width();
    const QString text = QString(300, u'm');
    workspace().setStateString(text);
    EXPECT_EQ(window().width(), width);
    auto* const state = program.find<ElidedLabel>(u"stateField"_s);
    ASSERT_NE(state, nullptr);
    EXPECT_TRUE(state->isElided());
    workspace().setStateString(u"All currencies are up to date"_s);
    EXPECT_FALSE(state->isElided());
}

// --- the left pane and the width

TEST_F(Window, collapsesTheLeftPaneByKeyAndByButton)
{
    program.openNewProject();
    window().resize(1000, 700);
    EXPECT_EQ(tree().width(), 250);
    QTest::keyClick(&window(), Qt::Key_F9);
    EXPECT_FALSE(tree().isVisible());
    EXPECT_EQ(pages().width(), 1000);
    EXPECT_TRUE(program.find<QToolButton>(u"toggleLeftViewButton"_s)->isChecked());
    program.click(u"toggleLeftViewButton"_s);
    EXPECT_TRUE(tree().isVisible());
    EXPECT_EQ(tree().width(), 250);
    EXPECT_FALSE(program.find<QToolButton>(u"toggleLeftViewButton"_s)->isChecked());
    EXPECT_EQ(window().width(), 1000);
}

TEST_F(Window, offersToShowThePaneThatIsCollapsed)
{
    program.openNewProject();
    const auto* const entry = window().findChild<QAction*>(u"toggleLeftView"_s);
    EXPECT_EQ(withoutMnemonic(entry->text()), u"Collapse Left Pane"_s);
    QTest::keyClick(&window(), Qt::Key_F9);
    EXPECT_EQ(withoutMnemonic(entry->text()), u"Show Left Pane"_s);
}

TEST_F(Window, keepsTheLeftPanesWidthWhenItIsResized)
{
    program.openNewProject();
    window().resize(1000, 700);
    auto* const splitter = window().findChild<QSplitter*>(u"splitView"_s);
    splitter->setSizes({280, 720});
    EXPECT_EQ(tree().width(), 280);
    window().resize(700, 700);
    EXPECT_EQ(tree().width(), 280);
    window().resize(1400, 700);
    EXPECT_EQ(tree().width(), 280);
    splitter->setSizes({600, 800});
    EXPECT_EQ(tree().width(), 300);
}

TEST_F(Window, growsForAProductDocumentAsFarAsTheScreenAllows)
{
    program.openNewProject();
    const int screen = window().screen()->availableGeometry().width();
    shrink(500);
    window().adjustWindowWidthForProductDocument(300);
    EXPECT_EQ(pages().width(), 320); // its least
    EXPECT_EQ(window().width(), 571);
    window().adjustWindowWidthForProductDocument(400);
    EXPECT_EQ(pages().width(), 400);
    window().adjustWindowWidthForProductDocument(300);
    EXPECT_EQ(pages().width(), 400); // never narrower
    window().adjustWindowWidthForProductDocument(10'000);
    EXPECT_EQ(window().frameGeometry().width(), screen);
    EXPECT_TRUE(window().screen()->availableGeometry().contains(window().frameGeometry()));
}

TEST_F(Window, growsLessWhileTheLeftPaneIsCollapsed)
{
    program.openNewProject();
    QTest::keyClick(&window(), Qt::Key_F9);
    shrink(400);
    window().adjustWindowWidthForProductDocument(700);
    EXPECT_EQ(window().width(), 700);
    EXPECT_EQ(pages().width(), 700);
}

TEST_F(Window, isMadeWideEnoughWhenAProductDocumentOpens)
{
    program.openNewProject();
    shrink(600);
    openSale();
    const int screen = window().screen()->availableGeometry().width();
    EXPECT_EQ(window().frameGeometry().width(), std::min(screen, 1200 + 251));
}

// The catalogs and the sheet outlive their pages.
TEST_F(Window, leavesNoListenersBehindWhenTabsAreOpenedAndClosed)
{
    program.openNewProject();
    const std::vector<const BaseView*> permanent{
        &workspace().stockController->view, &workspace().productController->view,
        &workspace().contragentController->view, &workspace().balanceController->view};
    const auto openAndCloseAll = [this] {
        for (const DocType type : {DocType::StockCatalog, DocType::ProductCatalog, DocType::ContragentCatalog,
                                   DocType::BalanceSheet, DocType::SellProduct}) {
            workspace().topMenuAction(type);
            ASSERT_EQ(tabs(), 1U);
            workspace().closeTab(0);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            ASSERT_EQ(tabs(), 0U);
        }
    };
    const auto listeners = [&permanent] {
        std::vector<std::size_t> counts;
        for (const BaseView* const view : permanent)
            counts.push_back(view->listenerCount());
        return counts;
    };
    openAndCloseAll();
    const std::vector<std::size_t> once = listeners();
    for (int i = 0; i < 20; ++i)
        openAndCloseAll();
    EXPECT_EQ(listeners(), once);
}

} // namespace zelvor
