#include "core/text_order.h"
#include "reports/expend_report_view_controller.h"
#include "reports/money_books.h"

#include <gtest/gtest.h>

#include <random>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

QString cellText(const QVariant& value)
{
    return value.userType() == QMetaType::Double
               ? Decimal::fromDouble(value.toDouble(), moneyHandler).toText()
               : value.toString();
}

// Remembers which documents were opened.
class WatchedWorkspace final : public Workspace {
public:
    void openDocWithID(qint64 id, const QString& type) override { opened += type + QString::number(id); }
    QStringList opened;
};

class ExpendReport : public testing::Test {
protected:
    ExpendReport() { controller.prepareData(); }

    // "name|constant|variable|total" of each shown row; a document is called by its sum alone.
    QStringList lines() const
    {
        QStringList lines;
        for (int row = 0; row < view.numberOfRows(); ++row) {
            const bool isDocument = view.rows()[static_cast<std::size_t>(row)]->document.has_value();
            QStringList cells{isDocument ? u"-"_s : view.value(row, u"name"_s).toString()};
            for (const QString& sum : {u"constant"_s, u"variable"_s, u"total"_s})
                cells << cellText(view.value(row, sum));
            lines << cells.join(u'|');
        }
        return lines;
    }
    void group(bool on)
    {
        controller.groupCheck.setOn(on);
        controller.groupCheck.userChanged();
    }

    MoneyBooks books;
    ExpendReportViewController controller{books.appDelegate};
    ExpendReportView& view = controller.mainView;
};

} // namespace

TEST_F(ExpendReport, documentsStandBelowTheirSpendingWithSumsAbove)
{
    const qint64 running = books.addType(u"Running"_s);
    const qint64 vehicle = books.addType(u"Vehicle"_s, running);
    const qint64 fuel = books.addExpend(u"Fuel"_s, vehicle);
    const qint64 rent = books.addExpend(u"Rent"_s);
    books.spend(fuel, 10.1, true);
    books.spend(fuel, 20.2);
    books.spend(rent, 500);
    controller.prepareReport();
    EXPECT_EQ(lines(),
              (QStringList{u"Running|20.2|10.1|30.3"_s, u"   Vehicle|20.2|10.1|30.3"_s,
                           u"      Fuel|20.2|10.1|30.3"_s, u"-||10.1|10.1"_s, u"-|20.2||20.2"_s,
                           u"Rent|500||500"_s, u"-|500||500"_s, u"TOTAL FOR PERIOD:|520.2|10.1|530.3"_s}));
    EXPECT_EQ(view.value(3, u"name"_s).toString(),
              u"         Money Document 'Payment of Spending' #1 (read)"_s);
}

TEST_F(ExpendReport, aSpendingWithoutDocumentsInThePeriodDoesNotShow)
{
    books.addType(u"Nothing in it"_s);
    books.addExpend(u"Unused"_s);
    const qint64 old = books.addExpend(u"Long ago"_s);
    books.addMoney(DocType::MoneyToExpend, 5, [old](MoneyDocument& document) {
        document.expendID = old;
        document.date -= 30 * secondsPerDay;
    });
    controller.prepareReport();
    EXPECT_EQ(lines(), QStringList{u"TOTAL FOR PERIOD:|||0"_s});
}

TEST_F(ExpendReport, theFooterIsTheSumOfAllShownDocuments)
{
    const qint64 type = books.addType(u"Running"_s);
    for (const double sum : {0.1, 0.2, 1234.56})
        books.spend(books.addExpend(QString::number(sum), sum > 1 ? type : 0), sum, sum < 0.15);
    controller.prepareReport();
    Decimal sum;
    for (const auto& row : view.rows()) {
        if (row->document)
            sum = sum.plus(row->innerTotal());
    }
    EXPECT_EQ(view.rows().back()->innerTotal(), sum);
    EXPECT_EQ(sum, Decimal::fromText(u"1234.86"));
    EXPECT_TRUE(view.rows().back()->footer);
}

TEST_F(ExpendReport, aVariableDocumentAddsToTheVariableColumnOnly)
{
    const qint64 fuel = books.addExpend(u"Fuel"_s);
    books.spend(fuel, 7, true);
    controller.prepareReport();
    EXPECT_EQ(lines(), (QStringList{u"Fuel||7|7"_s, u"-||7|7"_s, u"TOTAL FOR PERIOD:||7|7"_s}));
}

TEST_F(ExpendReport, groupedTheDocumentsVanishAndTheSumsStayWithoutAQuery)
{
    const qint64 type = books.addType(u"Running"_s);
    books.spend(books.addExpend(u"Fuel"_s, type), 7, true);
    controller.prepareReport();
    const QStringList all = lines();
    const qint64 statements = books.connection.statementCount();
    group(true);
    EXPECT_EQ(lines(), (QStringList{u"Running||7|7"_s, u"   Fuel||7|7"_s, u"TOTAL FOR PERIOD:||7|7"_s}));
    group(false);
    EXPECT_EQ(lines(), all);
    EXPECT_EQ(books.connection.statementCount(), statements);
}

TEST_F(ExpendReport, thePeriodIsWithoutItsFirstMomentAndWithItsLast)
{
    const qint64 rent = books.addExpend(u"Rent"_s);
    const qint64 from = controller.dateFrom.moment();
    const qint64 to = controller.dateTo.moment();
    double sum = 1;
    for (const qint64 date : {from, from + 1, to, to + 1}) {
        books.addMoney(DocType::MoneyToExpend, sum, [=](MoneyDocument& document) {
            document.expendID = rent;
            document.date = date;
        });
        sum *= 10;
    }
    controller.prepareReport();
    EXPECT_EQ(lines().last(), u"TOTAL FOR PERIOD:|110||110"_s);
}

TEST_F(ExpendReport, onlyConfirmedSpendingsCount)
{
    const qint64 rent = books.addExpend(u"Rent"_s);
    books.addMoney(DocType::MoneyToExpend, 5, [rent](MoneyDocument& document) {
        document.expendID = rent;
        document.confirmed = false;
    });
    for (const DocType type : {DocType::MoneyToContragent, DocType::MoneyToEmployee, DocType::MoneyAdd})
        books.addMoney(type, 5, [rent](MoneyDocument& document) { document.expendID = rent; });
    controller.prepareReport();
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(ExpendReport, whatStandsBelowAGroupIsSortedByNameAndDocumentsByDate)
{
    const qint64 outer = books.addType(u"Outer"_s);
    const qint64 zebra = books.addExpend(u"Zebra"_s, outer);
    books.spend(books.addExpend(u"Apple"_s, outer), 1);
    books.spend(books.addExpend(u"Mango"_s, books.addType(u"Inner"_s, outer)), 2);
    for (const int hour : {2, 0, 1}) {
        books.addMoney(DocType::MoneyToExpend, 10 + hour, [=](MoneyDocument& document) {
            document.expendID = zebra;
            document.date += hour * 3600;
        });
    }
    controller.prepareReport();
    EXPECT_EQ(lines(), (QStringList{u"Outer|36||36"_s, u"   Apple|1||1"_s, u"-|1||1"_s, u"   Inner|2||2"_s,
                                    u"      Mango|2||2"_s, u"-|2||2"_s, u"   Zebra|33||33"_s, u"-|10||10"_s,
                                    u"-|11||11"_s, u"-|12||12"_s, u"TOTAL FOR PERIOD:|36||36"_s}));
}

TEST_F(ExpendReport, filtersLetThroughWhatTheyName)
{
    const qint64 running = books.addType(u"Running"_s);
    const qint64 other = books.addType(u"Other"_s);
    const qint64 fuel = books.addExpend(u"Fuel"_s, running);
    const qint64 rent = books.addExpend(u"Rent"_s, other);
    books.spend(fuel, 1);
    books.spend(rent, 2);
    controller.setExpendIDs({fuel});
    controller.prepareReport();
    EXPECT_EQ(lines(),
              (QStringList{u"Running|1||1"_s, u"   Fuel|1||1"_s, u"-|1||1"_s, u"TOTAL FOR PERIOD:|1||1"_s}));
    controller.setExpendIDs({});
    controller.setExpendTypeIDs({other});
    controller.prepareReport();
    EXPECT_EQ(lines(), (QStringList{u"Other|2||2"_s, u"   Rent|2||2"_s, u"-|2||2"_s, u"Fuel|1||1"_s,
                                    u"-|1||1"_s, u"TOTAL FOR PERIOD:|3||3"_s}))
        << "a spending whose group was filtered out stands at the top";
}

TEST_F(ExpendReport, aFilterOfThousandsIsNoProblem)
{
    const qint64 rent = books.addExpend(u"Rent"_s);
    books.spend(rent, 1);
    std::vector<qint64> ids(50'000);
    for (std::size_t i = 0; i < ids.size(); ++i)
        ids[i] = static_cast<qint64>(i) + 1;
    controller.setExpendIDs(ids);
    controller.setExpendTypeIDs(ids);
    controller.prepareReport();
    EXPECT_EQ(lines().size(), 3);
}

TEST_F(ExpendReport, aDocumentOfASpendingThatIsNowhereKeepsItsSum)
{
    books.spend(99, 4);
    controller.prepareReport();
    EXPECT_EQ(lines(), (QStringList{u"-|4||4"_s, u"TOTAL FOR PERIOD:|4||4"_s}));
}

TEST_F(ExpendReport, groupsThatHoldEachOtherAreShownOnce)
{
    const qint64 first = books.addType(u"First"_s, 2);
    const qint64 second = books.addType(u"Second"_s, first);
    const qint64 own = books.addType(u"Own"_s, 3);
    ASSERT_EQ(own, 3);
    books.spend(books.addExpend(u"Rent"_s, second), 1);
    books.spend(books.addExpend(u"Fees"_s, first), 2);
    books.spend(books.addExpend(u"Fuel"_s, own), 3);
    controller.prepareReport();
    EXPECT_EQ(lines(), (QStringList{u"Own|3||3"_s, u"   Fuel|3||3"_s, u"-|3||3"_s, u"Second|3||3"_s,
                                    u"   First|2||2"_s, u"      Fees|2||2"_s, u"-|2||2"_s, u"   Rent|1||1"_s,
                                    u"-|1||1"_s, u"TOTAL FOR PERIOD:|6||6"_s}))
        << qPrintable(lines().join(u'\n'));
}

TEST_F(ExpendReport, cellsOfADocumentAndOfGatheringRows)
{
    const qint64 rent = books.addExpend(u"Rent"_s);
    books.addMoney(DocType::MoneyToExpend, 5, [rent](MoneyDocument& document) {
        document.expendID = rent;
        document.comment = u"March"_s;
    });
    controller.prepareReport();
    EXPECT_EQ(view.value(1, u"date"_s), QVariant(books.clock.now()));
    EXPECT_EQ(view.value(1, u"comment"_s), QVariant(u"March"_s));
    for (const int row : {0, 2}) {
        EXPECT_EQ(view.value(row, u"date"_s), QVariant(QString()));
        EXPECT_EQ(view.value(row, u"comment"_s), QVariant(QString()));
        EXPECT_EQ(view.cellStyle(row, u"name"_s).font, CellFont::GatheringBold12);
        EXPECT_EQ(view.cellStyle(row, u"name"_s).color, inOrderColor);
    }
    EXPECT_EQ(view.cellStyle(1, u"name"_s).font, CellFont::Small);
    EXPECT_EQ(view.cellStyle(1, u"total"_s).alignment, CellAlignment::Right);
    EXPECT_EQ(view.value(1, u"nothing"_s), QVariant(QString()));
    EXPECT_EQ(view.value(3, u"name"_s), QVariant(QString()));
    EXPECT_EQ(view.value(-1, u"name"_s), QVariant(QString()));
    EXPECT_TRUE(view.canExportToExcel());
    EXPECT_EQ(view.groundColor(), reportGroundColor);
}

TEST_F(ExpendReport, theTitleTellsTheFilterAndTheDates)
{
    EXPECT_TRUE(view.name().startsWith(u"Report by All Spendings. From: "_s)) << qPrintable(view.name());
    controller.setExpendTypeIDs({1});
    EXPECT_TRUE(controller.getNameForTabView().startsWith(u"Report by All Spendings."_s));
    controller.setExpendIDs({1});
    controller.prepareReport();
    EXPECT_TRUE(view.name().startsWith(u"Report by Selected Spendings. From: "_s));
    EXPECT_TRUE(view.name().contains(u" To: "_s));
}

TEST_F(ExpendReport, datesTheWrongWayRoundLeaveTheOldTable)
{
    books.spend(books.addExpend(u"Rent"_s), 1);
    controller.prepareReport();
    const QStringList before = lines();
    controller.dateFrom.setMoment(controller.dateTo.moment() + 1);
    controller.prepareReport();
    EXPECT_EQ(lines(), before);
    EXPECT_EQ(controller.dateFromLabel.color(), redColor);
}

TEST_F(ExpendReport, aFailedReadShowsNoHalfOfTheDocuments)
{
    books.spend(books.addExpend(u"Rent"_s), 1);
    books.connector->failCall(3, FaultInjectingConnector::Read);
    controller.prepareReport();
    EXPECT_TRUE(books.connector->hasFailed());
    EXPECT_EQ(lines(), QStringList{u"TOTAL FOR PERIOD:|||0"_s});
}

TEST_F(ExpendReport, theFilterIsChosenInItsPopover)
{
    const qint64 type = books.addType(u"Running"_s);
    const qint64 fuel = books.addExpend(u"Fuel"_s, type);
    books.addExpend(u"Rent"_s);
    EXPECT_EQ(controller.selectedExpends.text(), u"All Spendings"_s);
    ExpendSelectView& popover = controller.expendSelectView;
    controller.selectExpends();
    EXPECT_TRUE(popover.selectPopover.isOpen());
    for (const auto& node : popover.expends())
        EXPECT_TRUE(popover.setValue(node, u"selected"_s, node->id == type && node->isGroup()));
    popover.okButton.userChanged();
    EXPECT_FALSE(popover.selectPopover.isOpen());
    EXPECT_EQ(controller.selectedExpends.text(), u"Selected Spendings"_s);
    EXPECT_TRUE(controller.getNameForTabView().startsWith(u"Report by Selected Spendings."_s));
    popover.selectAll();
    controller.selectExpends();
    EXPECT_EQ(popover.expendIDs, std::vector<qint64>{fuel});
    popover.updateSelections();
    EXPECT_EQ(popover.expendIDs, std::vector<qint64>{fuel}) << "the ticks are those of the filter";
    controller.clearExpends();
    EXPECT_EQ(controller.selectedExpends.text(), u"All Spendings"_s);
    EXPECT_TRUE(controller.getNameForTabView().startsWith(u"Report by All Spendings."_s));
}

TEST_F(ExpendReport, aConfirmedSpendingRenewsAReportThatWasAskedFor)
{
    const qint64 rent = books.addExpend(u"Rent"_s);
    const auto confirmOne = [&] {
        books.spend(rent, 1);
        books.appDelegate.notifications.post(NotificationName::ExpendDocChangedNotification);
    };
    confirmOne();
    EXPECT_EQ(view.numberOfRows(), 0) << "nobody asked for it yet";
    controller.prepareReport();
    const qint64 statements = books.connection.statementCount();
    books.appDelegate.notifications.post(NotificationName::ExpendDocChangedNotification);
    EXPECT_EQ(books.connection.statementCount(), statements) << "nobody looks";
    confirmOne();
    EXPECT_EQ(lines().last(), u"TOTAL FOR PERIOD:|2||2"_s);
    view.setVisible(true);
    int reloads = 0;
    view.onReload([&reloads] { ++reloads; });
    confirmOne();
    EXPECT_GT(reloads, 0);
    EXPECT_EQ(lines().last(), u"TOTAL FOR PERIOD:|3||3"_s);
}

TEST_F(ExpendReport, aMovedSpendingStaysInTheOldTreeUntilTheReportIsMadeAnew)
{
    const qint64 type = books.addType(u"Running"_s);
    const qint64 fuel = books.addExpend(u"Fuel"_s, type);
    books.spend(fuel, 1);
    controller.prepareReport();
    const QStringList before = lines();
    const auto moved = books.connection.select<Expend>(fuel);
    moved->parentID = 0;
    ASSERT_EQ(books.connection.update(*moved), 1);
    books.appDelegate.notifications.post(NotificationName::ExpendChangedNotification);
    EXPECT_EQ(lines(), before);
    controller.prepareReport();
    EXPECT_EQ(lines().first(), u"Fuel|1||1"_s);
}

TEST_F(ExpendReport, aChangedCatalogIsReadAgainByTheFilter)
{
    EXPECT_TRUE(controller.expendSelectView.expends().empty());
    books.addExpend(u"Rent"_s);
    books.appDelegate.notifications.post(NotificationName::ExpendChangedNotification);
    EXPECT_EQ(controller.expendSelectView.expends().size(), 1U);
}

TEST_F(ExpendReport, aDocumentsRowOpensItAndAnyOtherRowDoesNothing)
{
    WatchedWorkspace workspace;
    books.appDelegate.setWorkspace(&workspace);
    const qint64 document = books.spend(books.addExpend(u"Rent"_s), 1);
    controller.prepareReport();
    for (int row = -1; row <= view.numberOfRows(); ++row)
        view.doubleAction(row);
    EXPECT_EQ(workspace.opened, QStringList{u"Money"_s + QString::number(document)});
}

TEST_F(ExpendReport, theChartHasTheSharesOfTheTopOfTheTree)
{
    const qint64 running = books.addType(u"Running"_s);
    books.spend(books.addExpend(u"Fuel"_s, running), 30, true);
    books.spend(books.addExpend(u"Insurance"_s, running), 20);
    books.spend(books.addExpend(u"Rent"_s), 50);
    books.addExpend(u"Unused"_s);
    controller.prepareReport();
    int redraws = 0;
    controller.chartView.onRedraw = [&redraws] { ++redraws; };
    for (int times = 0; times < 2; ++times)
        controller.showChart();
    EXPECT_TRUE(controller.chartPopover.isOpen());
    EXPECT_EQ(redraws, 2);
    const ChartView& chart = controller.chartView;
    ASSERT_EQ(chart.keys, (std::vector<QString>{u"Running"_s, u"Rent"_s}));
    EXPECT_EQ(chart.data.at(u"Running"_s).total, Decimal(50));
    EXPECT_EQ(chart.data.at(u"Running"_s).constant, Decimal(20));
    EXPECT_EQ(chart.data.at(u"Rent"_s).total, Decimal(50));
    EXPECT_EQ(chart.data.at(u"Rent"_s).constant, Decimal(50));
}

TEST_F(ExpendReport, twoSpendingsOfOneNameAreOneSlice)
{
    books.spend(books.addExpend(u"Rent"_s), 1);
    books.spend(books.addExpend(u"Rent"_s), 2, true);
    controller.prepareReport();
    controller.showChart();
    ASSERT_EQ(controller.chartView.keys.size(), 1U);
    EXPECT_EQ(controller.chartView.data.at(u"Rent"_s).total, Decimal(3));
    EXPECT_EQ(controller.chartView.data.at(u"Rent"_s).constant, Decimal(1));
}

namespace {

// The report as it is worded, record by record and query by query.
class LiteralExpendReport {
public:
    LiteralExpendReport(Connector& connector, qint64 from, qint64 to)
        : m_connector(connector), m_from(from), m_to(to)
    {}
    // "indent name|constant|variable|total|date|comment", depth first.
    QStringList lines()
    {
        appendChildren<ExpendType>(0, 0);
        appendChildren<Expend>(0, 0);
        appendSums(u"TOTAL FOR PERIOD:"_s, documentsWhere({}), u"||"_s);
        return m_lines;
    }

private:
    using Documents = std::vector<std::shared_ptr<MoneyDocument>>;

    Documents documentsWhere(const std::string& condition)
    {
        return m_connector.freeSQL<MoneyDocument>("WHERE date>? AND date<=? AND is_confirmed=1"
                                                  " AND doc_type_id=?" +
                                                      condition + " ORDER BY date ASC",
                                                  {m_from, m_to, DocType::MoneyToExpend});
    }
    Documents documentsOf(const Expend& expend)
    {
        return documentsWhere(" AND (expend_id=" + std::to_string(expend.id) + ")");
    }
    Documents documentsOf(const ExpendType& type)
    {
        Documents all;
        for (const auto& below : m_connector.freeSQL<ExpendType>("WHERE parent_id=?", {type.id}))
            std::ranges::copy(documentsOf(*below), std::back_inserter(all));
        for (const auto& below : m_connector.freeSQL<Expend>("WHERE parent_id=?", {type.id}))
            std::ranges::copy(documentsOf(*below), std::back_inserter(all));
        return all;
    }
    void appendSums(const QString& name, const Documents& documents, const QString& rest)
    {
        Decimal constant;
        Decimal variable;
        for (const auto& document : documents) {
            Decimal& sum = document->variable ? variable : constant;
            sum = sum.plus(document->innerDocSum, moneyHandler);
        }
        const Decimal total = constant.plus(variable, moneyHandler);
        if (!total.isZero() || name.startsWith(u"TOTAL"_s))
            m_lines += name + u'|' + (constant.isZero() ? QString() : constant.toText()) + u'|' +
                       (variable.isZero() ? QString() : variable.toText()) + u'|' + total.toText() + rest;
    }
    template <class Record>
    void appendChildren(qint64 parentID, int level)
    {
        for (const auto& record :
             m_connector.freeSQL<Record>("WHERE parent_id=? ORDER BY name ASC", {parentID}))
            append(*record, level);
    }
    void append(const ExpendType& type, int level)
    {
        appendSums(QString(3 * level, u' ') + type.name, documentsOf(type), u"||"_s);
        // By name, whether group or not: the names of this project are all different.
        std::vector<std::pair<QString, std::function<void()>>> below;
        for (const auto& child : m_connector.freeSQL<ExpendType>("WHERE parent_id=?", {type.id}))
            below.emplace_back(child->name, [=, this] { append(*child, level + 1); });
        for (const auto& child : m_connector.freeSQL<Expend>("WHERE parent_id=?", {type.id}))
            below.emplace_back(child->name, [=, this] { append(*child, level + 1); });
        std::ranges::sort(below, textLess, [](const auto& child) { return child.first; });
        for (const auto& [name, appendIt] : below)
            appendIt();
    }
    void append(const Expend& expend, int level)
    {
        appendSums(QString(3 * level, u' ') + expend.name, documentsOf(expend), u"||"_s);
        for (const auto& document : documentsOf(expend))
            appendSums(QString(3 * level + 3, u' ') + document->name(), {document},
                       u'|' + QString::number(document->date) + u'|' + document->comment);
    }

    Connector& m_connector;
    qint64 m_from;
    qint64 m_to;
    QStringList m_lines;
};

} // namespace

TEST_F(ExpendReport, aGeneratedProjectAgreesCellByCellWithTheWording)
{
    std::mt19937 random(20150315);
    const auto upTo = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    for (int type = 1; type <= 12; ++type)
        books.addType(u"Type %1"_s.arg(random() % 1000 * 100 + static_cast<unsigned>(type)), upTo(type));
    for (int expend = 1; expend <= 40; ++expend)
        books.addExpend(u"Spending %1"_s.arg(random() % 1000 * 100 + static_cast<unsigned>(expend)),
                        upTo(13));
    for (int document = 0; document < 600; ++document) {
        books.addMoney(upTo(9) == 0 ? DocType::MoneyToContragent : DocType::MoneyToExpend,
                       static_cast<double>(upTo(1'000'000)) / 100, [&](MoneyDocument& money) {
                           money.expendID = upTo(40) + 1;
                           money.variable = upTo(2) == 0;
                           money.confirmed = upTo(10) != 0;
                           money.date = controller.dateFrom.moment() + document * 173 - 3600;
                           money.comment = QString::number(document);
                       });
    }
    controller.prepareReport();
    QStringList shown;
    for (int row = 0; row < view.numberOfRows(); ++row) {
        QStringList cells;
        for (const QString& cell :
             {u"name"_s, u"constant"_s, u"variable"_s, u"total"_s, u"date"_s, u"comment"_s})
            cells << cellText(view.value(row, cell));
        shown << cells.join(u'|');
    }
    LiteralExpendReport literal(books.connection, controller.dateFrom.moment(), controller.dateTo.moment());
    EXPECT_GT(shown.size(), 300);
    EXPECT_EQ(shown, literal.lines());
}

} // namespace zelvor
