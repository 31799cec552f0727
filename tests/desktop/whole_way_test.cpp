// A person's first day with the program, from the first start to a confirmed sale and its report, through the
// windows alone.
#include "keyboard_hand.h"
#include "mouse_hand.h"

#include "desktop/desktop_application.h"
#include "desktop/page.h"
#include "shell/project_tables.h"
#include "store/statement.h"

#include <gtest/gtest.h>

#include <QtCore/QTemporaryDir>
#include <QtCore/QTimeZone>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

#include <memory>
#include <string>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 firstMoment = 1'700'000'000; // 14 November 2023, 22:13:20 UTC
constexpr int patience = 10'000;              // milliseconds, for what should happen at once

// The program's own messages and questions; only the panel that names a file is answered by script, as it is
// the desktop's. A message holds the program until it is closed, so it is closed here, by the hand.
class WatchedDialogs final : public Dialogs {
public:
    explicit WatchedDialogs(Hand& hand) : m_hand(hand) {}

    void showAlert(const Alert& alert) override
    {
        QTimer::singleShot(0, &m_context, [this] { closeAlert(); });
        m_shown.showAlert(alert);
    }
    void ask(const Alert& alert, std::function<void(int)> answer) override
    {
        m_shown.ask(alert, std::move(answer));
    }
    std::optional<QString> savePath(const SavePanel&) override { return pathToSave; }
    std::optional<QString> openPath(const OpenPanel&) override { return std::nullopt; }

    // What the messages said, the newest last.
    QStringList alerts;
    QString pathToSave;

private:
    void closeAlert()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(box));
        alerts << box->text() + u'\n' + box->informativeText();
        m_hand.answer(*box, u"Close"_s);
        if (box->isVisible())
            box->reject(); // the test has failed; it must not hang
    }

    Hand& m_hand;
    QObject m_context;
    WidgetDialogs m_shown;
};

// One run of the program, from its start to its end, over files that stay.
class Sitting {
public:
    Sitting(const QTemporaryDir& folder, Hand& hand, qint64 moment)
        : clock(moment), dialogs(hand), defaults(folder.filePath(u"Zelvor.conf"_s)),
          appDelegate({clock, Calendar(QTimeZone::utc()), dialogs, defaults}),
          settings(folder.filePath(u"Desktop.conf"_s)), desktop(appDelegate, settings)
    {
        desktop.start({});
    }
    ~Sitting() { desktop.shell.applicationWillTerminate(); }

    // Runs the program's loop until it ends by itself.
    static bool endsBy(const std::function<void()>& action)
    {
        constexpr int ended = 0;
        constexpr int hung = 1;
        QTimer::singleShot(0, qApp, action);
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, &guard, [] { QApplication::exit(hung); });
        guard.start(patience);
        return QApplication::exec() == ended;
    }

    FixedClock clock;
    WatchedDialogs dialogs;
    DefaultsStore defaults;
    AppDelegate appDelegate;
    DesktopSettings settings;
    DesktopApplication desktop;
};

// What a list or tree shows: its cells parted by '|', its rows as lines.
QStringList shownRows(const QAbstractItemView& list, const QModelIndex& below = {})
{
    const auto* const table = qobject_cast<const QTableView*>(&list);
    const auto* const tree = qobject_cast<const QTreeView*>(&list);
    const QHeaderView* const header = table ? table->horizontalHeader() : tree ? tree->header() : nullptr;
    QStringList lines;
    for (int row = 0; row < list.model()->rowCount(below); ++row) {
        QStringList cells;
        for (int column = 0; column < list.model()->columnCount(below); ++column) {
            const QModelIndex cell = list.model()->index(row, column, below);
            if (!header || !header->isSectionHidden(column))
                cells << cell.data().toString() + cell.data(Qt::CheckStateRole).toString();
        }
        lines << cells.join(u'|') << shownRows(list, list.model()->index(row, 0, below));
    }
    return lines;
}

// Every text and figure in the window, and what can be pressed.
std::string everythingShown(const QWidget& window)
{
    QStringList lines;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        QString text;
        if (const auto* const label = qobject_cast<const QLabel*>(widget))
            text = label->text();
        else if (const auto* const field = qobject_cast<const QLineEdit*>(widget))
            text = field->text();
        else if (const auto* const chooser = qobject_cast<const QComboBox*>(widget))
            text = chooser->currentText();
        else if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
            text = button->text() + (button->isChecked() ? u" on"_s : QString());
        else if (const auto* const list = qobject_cast<const QAbstractItemView*>(widget))
            text = shownRows(*list).join(u'\n');
        if (!text.isEmpty())
            lines << widget->objectName() + u": "_s + text + (widget->isEnabled() ? QString() : u" (off)"_s);
    }
    return lines.join(u'\n').toStdString();
}

// Every value of every row of every table: two equal lists are two equal projects.
std::string everythingStored(Connector& connector)
{
    QStringList lines;
    for (const TableInfo* const table : projectTables()) {
        std::string columns = "id";
        for (const ColumnInfo& column : table->columns)
            columns += std::string("||','||quote(") + column.name + ")";
        const std::string sql = "SELECT " + columns + " FROM " + table->name + " ORDER BY id";
        const QString name = QString::fromLatin1(table->name);
        EXPECT_TRUE(connector.scan(sql, {}, [&](const Statement& row) {
            lines << name + u": "_s + row.text(0);
        })) << sql;
    }
    return lines.join(u'\n').toStdString();
}

template <class HandOfTest>
class WholeWay : public ::testing::Test {
protected:
    // A test that fails in the middle leaves nothing open.
    ~WholeWay() override
    {
        if (QApplication::activePopupWidget())
            QApplication::activePopupWidget()->close();
    }

    void start(qint64 moment) { m_sitting = std::make_unique<Sitting>(m_folder, hand, moment); }
    void end() { m_sitting.reset(); }
    MainWindow& window() { return m_sitting->desktop.mainWindow; }
    WatchedDialogs& dialogs() { return m_sitting->dialogs; }
    Connector& file() { return m_sitting->appDelegate.connector; }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void letTimePass() { m_sitting->clock.set(m_sitting->clock.now() + 60); }

    static std::string figure(const QString& label)
    {
        const auto* const widget = shown<QLabel>(label);
        return widget ? widget->text().toStdString() : "nothing";
    }
    // What the list of the page in front shows.
    std::string pageRows()
    {
        const Page* const page = window().activePage();
        const auto* const list = page ? page->findChild<QAbstractItemView*>() : nullptr;
        return list ? shownRows(*list).join(u'\n').toStdString() : "no page";
    }
    void waitFor(QWidget& shownWindow)
    {
        ASSERT_TRUE(shownWindow.isVisible()) << qPrintable(shownWindow.objectName());
        focusWindowInFront();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&shownWindow)) << qPrintable(shownWindow.objectName());
    }

    void makeProject();
    void setUpProject();
    void closeLastMonth();
    void fillCatalogs();
    void buy();
    void sellMoreThanThereIs();
    void sell();
    void readJournal();
    void readReport();
    void readBalance();
    void startAgain();

    HandOfTest hand;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<Sitting> m_sitting;
};

template <class HandOfTest>
void WholeWay<HandOfTest>::makeProject()
{
    start(firstMoment);
    ASSERT_NO_FATAL_FAILURE(waitFor(m_sitting->desktop.projectWindow));
    EXPECT_FALSE(window().isVisible());
    dialogs().pathToSave = path(u"Corner Shop"_s);
    hand.press(u"createNewBusiness"_s);
    ASSERT_TRUE(QFileInfo::exists(path(u"Corner_Shop.pdb"_s)));
}

template <class HandOfTest>
void WholeWay<HandOfTest>::setUpProject()
{
    ASSERT_NO_FATAL_FAILURE(waitFor(m_sitting->desktop.preferencesWindow));
    EXPECT_EQ(m_sitting->desktop.preferencesWindow.windowTitle().toStdString(), "Parameters for Corner Shop");
    EXPECT_NE(shown(u"defaultCurrencyWarning"_s), nullptr);
    hand.press(u"closeWindow"_s);
    EXPECT_TRUE(dialogs().alerts.value(0).startsWith(u"Default currency doesn't set\n"_s));

    hand.choose(u"currencySelect"_s, u"EUR"_s);
    hand.tick(u"showCurrentBalanceCheck"_s);
    hand.press(u"applyButton"_s);
    hand.press(u"closeWindow"_s);
    EXPECT_EQ(dialogs().alerts.size(), 1);
    EXPECT_FALSE(m_sitting->desktop.preferencesWindow.isVisible());
}

template <class HandOfTest>
void WholeWay<HandOfTest>::closeLastMonth()
{
    auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(question, nullptr);
    question->activateWindow();
    ASSERT_NO_FATAL_FAILURE(waitFor(*question));
    EXPECT_EQ(question->text().toStdString(), "Need to close last month.");
    hand.answer(*question, u"Proceed"_s);
    ASSERT_NO_FATAL_FAILURE(waitFor(window()));
    EXPECT_EQ(m_sitting->appDelegate.params()->lastPeriodSaved, 202310);
    EXPECT_EQ(window().windowTitle().toStdString(), "Corner Shop");
    EXPECT_EQ(figure(u"balance"_s), "0.00");
}

template <class HandOfTest>
void WholeWay<HandOfTest>::fillCatalogs()
{
    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Warehouses"_s));
    hand.addRecord(u"addStockButton"_s);
    hand.fill(u"stockName"_s, u"Main"_s);
    hand.accept(u"okButton"_s);
    EXPECT_EQ(pageRows(), "Main|||0|0");

    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Units"_s));
    hand.addRecord(u"addMeasurementButton"_s);
    hand.fill(u"measurementName"_s, u"Piece"_s);
    hand.fill(u"measurementShortName"_s, u"pcs"_s);
    hand.accept(u"okButton"_s);
    EXPECT_EQ(pageRows(), "Piece|pcs|0");

    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Products Catalog"_s));
    hand.addRecord(u"addProductButton"_s);
    hand.fill(u"productName"_s, u"Chai"_s);
    hand.choose(u"productMeasurementSelect"_s, u"Piece"_s);
    hand.fill(u"productPriceCost"_s, u"8"_s);
    hand.accept(u"productOkButton"_s);
    EXPECT_EQ(pageRows(), "Chai|Piece||0.00|0.00|8.00||0|0");

    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Counterparties"_s));
    hand.addRecord(u"addContragentButton"_s);
    hand.fill(u"contragentName"_s, u"Acme"_s);
    hand.accept(u"contragentOkButton"_s);
    EXPECT_EQ(pageRows(), "Acme||0.00|0");
}

template <class HandOfTest>
void WholeWay<HandOfTest>::buy()
{
    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Purchase"_s));
    hand.choose(u"stockToSelect"_s, u"Main"_s);
    ASSERT_NO_FATAL_FAILURE(hand.chooseContragent(u"Acme"_s));
    EXPECT_FALSE(shown(u"confirmButton"_s)->isEnabled());
    ASSERT_NO_FATAL_FAILURE(hand.enterRow(u"Chai"_s, u"10"_s, u"5"_s));
    hand.save();
    EXPECT_EQ(figure(u"balanceDue"_s), "50.00");
    EXPECT_EQ(figure(u"documentTitle"_s), "Product Document 'Purchase' #0 (write)");
    EXPECT_FALSE(shown(u"saveButton"_s)->isEnabled());
    letTimePass();
    hand.confirm();
    EXPECT_EQ(figure(u"documentTitle"_s), "Product Document 'Purchase' #1 (read)");
    EXPECT_EQ(figure(u"balance"_s), "0.00");
}

template <class HandOfTest>
void WholeWay<HandOfTest>::sellMoreThanThereIs()
{
    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Sale"_s));
    hand.choose(u"stockFromSelect"_s, u"Main"_s);
    ASSERT_NO_FATAL_FAILURE(hand.chooseContragent(u"Acme"_s));
    ASSERT_NO_FATAL_FAILURE(hand.enterRow(u"Chai"_s, u"12.5"_s, u"8"_s));
    hand.save();
    letTimePass();
    const std::string stored = everythingStored(file());
    const std::string onScreen = everythingShown(window());
    hand.confirm();
    ASSERT_EQ(dialogs().alerts.size(), 2);
    EXPECT_EQ(dialogs().alerts.constLast().toStdString(),
              "Ups! Something goes wrong!\n"
              "We have not enough 'Chai' on WH: 'Main'. Need: 12.5 Have: 10.0 Reserv: 0.0\n");
    EXPECT_EQ(everythingStored(file()), stored);
    EXPECT_EQ(everythingShown(window()), onScreen);
}

template <class HandOfTest>
void WholeWay<HandOfTest>::sell()
{
    ASSERT_NO_FATAL_FAILURE(hand.changeAmount(u"Chai"_s, u"4"_s));
    hand.confirm();
    EXPECT_EQ(dialogs().alerts.size(), 2);
    EXPECT_EQ(figure(u"documentTitle"_s), "Product Document 'Sale' #1 (read)");
    EXPECT_EQ(figure(u"balanceDue"_s), "32.00");
    // 6 pieces at 5.00 are there, and 50.00 less 32.00 is owed.
    EXPECT_EQ(figure(u"balance"_s), "12.00");
}

template <class HandOfTest>
void WholeWay<HandOfTest>::readJournal()
{
    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Product Journal"_s));
    hand.press(u"currentPeriodButton"_s); // the page opens with the documents of today
    EXPECT_EQ(pageRows(), "1|Product Document 'Purchase' #1|11/14/2023 22:13|2|0|50.00|Acme||Main||\n"
                          "1|Product Document 'Sale' #1|11/14/2023 22:14|2|0|32.00|Acme|Main|||");
}

template <class HandOfTest>
void WholeWay<HandOfTest>::readReport()
{
    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Sales for a Period"_s));
    hand.refresh();
    EXPECT_EQ(pageRows(), " Chai|pcs|4.00||20.00|32.00|12.00|60.00\u202F%\n"
                          " TOTAL||4.00||20.00|32.00|12.00|60.00\u202F%");
}

template <class HandOfTest>
void WholeWay<HandOfTest>::readBalance()
{
    ASSERT_NO_FATAL_FAILURE(hand.openEntry(u"Balance Sheet"_s));
    EXPECT_EQ(pageRows(), "Products On Warehouses|30.00|\n"
                          "  Main|30.00|\n"
                          "Customers / Suppliers||18.00\n"
                          "  Acme||18.00\n"
                          "TOTAL:|30.00|18.00\n"
                          "BALANCE:|12.00|");
}

// The next morning.
template <class HandOfTest>
void WholeWay<HandOfTest>::startAgain()
{
    EXPECT_TRUE(Sitting::endsBy([this] { hand.quit(); }));
    EXPECT_TRUE(dialogs().alerts.size() == 2);
    end();
    start(firstMoment + 12 * 3600);
    ASSERT_NO_FATAL_FAILURE(waitFor(window()));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(window().windowTitle().toStdString(), "Corner Shop");
    EXPECT_EQ(figure(u"balance"_s), "12.00");
}

using Hands = ::testing::Types<MouseHand, KeyboardHand>;

class NamesOfHands {
public:
    template <class HandOfTest>
    static std::string GetName(int)
    {
        return std::is_same_v<HandOfTest, MouseHand> ? "byMouse" : "byKeyboard";
    }
};
TYPED_TEST_SUITE(WholeWay, Hands, NamesOfHands);

TYPED_TEST(WholeWay, fromTheFirstStartToASaleAndItsReport)
{
    ASSERT_NO_FATAL_FAILURE(this->makeProject());
    ASSERT_NO_FATAL_FAILURE(this->setUpProject());
    ASSERT_NO_FATAL_FAILURE(this->closeLastMonth());
    ASSERT_NO_FATAL_FAILURE(this->fillCatalogs());
    ASSERT_NO_FATAL_FAILURE(this->buy());
    ASSERT_NO_FATAL_FAILURE(this->sellMoreThanThereIs());
    ASSERT_NO_FATAL_FAILURE(this->sell());
    ASSERT_NO_FATAL_FAILURE(this->readJournal());
    ASSERT_NO_FATAL_FAILURE(this->readReport());
    ASSERT_NO_FATAL_FAILURE(this->readBalance());
    ASSERT_NO_FATAL_FAILURE(this->startAgain());
    ASSERT_NO_FATAL_FAILURE(this->readBalance());
    ASSERT_NO_FATAL_FAILURE(this->readJournal());
}

} // namespace
} // namespace zelvor
