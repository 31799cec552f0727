#include "reports/expend_report_view_controller.h"

#include "core/doc_type.h"
#include "core/localized.h"
#include "core/text_order.h"
#include "reports/filter_popover.h"
#include "reports/id_filter.h"

#include <unordered_map>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

using Row = std::shared_ptr<ExpendReportRow>;

// The records that the filter lets through, by name. The filter is not bound to the query: a long one would
// be more than a statement takes.
template <class Record>
std::vector<std::shared_ptr<Record>> readRecords(Connector& connector, const IDFilter& filter)
{
    auto records = connector.freeSQL<Record>();
    std::erase_if(records, [&filter](const auto& record) { return !filter.passes(record->id); });
    std::ranges::stable_sort(records, NameLess{});
    return records;
}

Row gatheringRow(const std::shared_ptr<const ExpendModel>& expend)
{
    auto row = std::make_shared<ExpendReportRow>();
    row->groupRow = true;
    row->expend = expend;
    return row;
}

} // namespace

// The tree while it is made: the rows of the groups and of the spendings, and where they are found.
struct ExpendReportViewController::Tree {
    ExpendReportRow::Children gathering;
    std::unordered_map<qint64, Row> byType;
    std::unordered_map<qint64, Row> byExpend;
    ExpendReportRow::Children top;
    Row footer = std::make_shared<ExpendReportRow>();

    Tree(Connector& connector, const IDFilter& typeFilter, const IDFilter& expendFilter)
    {
        footer->groupRow = true;
        footer->footer = true;
        footer->name = localized("TOTAL FOR PERIOD:");
        for (const auto& type : readRecords<ExpendType>(connector, typeFilter))
            append(type, byType);
        for (const auto& expend : readRecords<Expend>(connector, expendFilter))
            append(expend, byExpend);
        for (const Row& row : gathering)
            place(row);
    }
    void append(const std::shared_ptr<ExpendModel>& expend, std::unordered_map<qint64, Row>& rows)
    {
        gathering.push_back(gatheringRow(expend));
        rows.emplace(expend->id, gathering.back());
    }
    // At the top stands what has no group, or one that was filtered out or is nowhere. Groups that a strange
    // file puts into each other have one at the top too.
    void place(const Row& row)
    {
        const auto group = byType.find(row->expend->parentID);
        if (row->expend->parentID == 0 || group == byType.end() || row->holds(*group->second))
            top.push_back(row);
        else
            group->second->setChild(row);
    }
    // A document of a spending that is nowhere stands at the top: no sum is lost.
    void place(const Row& row, qint64 expendID)
    {
        const auto expend = byExpend.find(expendID);
        if (expend == byExpend.end()) {
            top.push_back(row);
            return;
        }
        expend->second->setChild(row);
        if (!row->innerConst.isZero())
            expend->second->addToConstant(row->innerConst);
        if (!row->innerVariable.isZero())
            expend->second->addToVariable(row->innerVariable);
    }
};

ExpendReportViewController::ExpendReportViewController(AppDelegate& owner)
    : ReportViewController(owner), mainView(owner), expendSelectView(owner)
{
    expendSelectView.hideColumn(false);
    selectedExpends.setText(localized("All Spendings"));
    mainView.computeAgain = [this] { prepareReport(); };
    groupCheck.onUserChange = [this] { groupClicked(); };
    NotificationCenter& center = appDelegate.notifications;
    m_expendsChanged = staleWhen(center, NotificationName::ExpendChangedNotification, expendSelectView);
    m_documentsChanged = center.observe(NotificationName::ExpendDocChangedNotification,
                                        [this](const Notification&) { mainView.markStale(); });
}

void ExpendReportViewController::prepareData()
{
    setCurrentDate();
    mainView.setName(getNameForTabView());
}

QString ExpendReportViewController::getNameForTabView() const
{
    const QString opening = m_expendIDs.empty() ? localized("Report by All Spendings.")
                                                : localized("Report by Selected Spendings.");
    return opening + periodText();
}

void ExpendReportViewController::updateReport()
{
    progress.start();
    const auto readTree = [this] {
        return Tree(appDelegate.connector, IDFilter(m_expendTypeIDs), IDFilter(m_expendIDs));
    };
    Tree tree = readTree();
    if (!placeDocuments(tree))
        tree = readTree(); // no half of a report
    tree.top.push_back(tree.footer);
    m_dataRows = std::move(tree.top);
    mainView.setPeriod(dateFrom.moment(), dateTo.moment());
    groupClicked();
    mainView.setName(getNameForTabView());
    progress.stop();
}

// False when the read broke off.
bool ExpendReportViewController::placeDocuments(Tree& tree)
{
    const IDFilter filter(m_expendIDs);
    return appDelegate.connector.scan(
        "SELECT id, date, doc_number, expend_id, doc_sum, is_variable, comment FROM money_doc"
        " WHERE date>? AND date<=? AND is_confirmed=1 AND doc_type_id=? ORDER BY date ASC",
        {dateFrom.moment(), dateTo.moment(), DocType::MoneyToExpend}, [&](const Statement& document) {
            const qint64 expendID = document.integer(3);
            if (!filter.passes(expendID))
                return;
            const auto row = std::make_shared<ExpendReportRow>();
            row->document = SpendingDocument{document.integer(0), document.integer(1), document.integer(2),
                                             document.text(6)};
            const Decimal sum = Decimal::fromDouble(document.real(4), moneyHandler);
            const bool isVariable = document.integer(5) != 0;
            (isVariable ? row->innerVariable : row->innerConst) = sum;
            tree.place(row, expendID);
            isVariable ? tree.footer->addToVariable(sum) : tree.footer->addToConstant(sum);
        });
}

void ExpendReportViewController::openRows(const ExpendReportRow::Children& rows,
                                          ExpendReportRow::Children& opened) const
{
    for (const Row& row : rows) {
        if ((row->full() || row->footer) && (row->groupRow || !groupCheck.isOn()))
            opened.push_back(row);
        openRows(row->children(), opened);
    }
}

void ExpendReportViewController::groupClicked()
{
    ExpendReportRow::Children opened;
    openRows(m_dataRows, opened);
    mainView.setRows(std::move(opened));
}

void ExpendReportViewController::showChart()
{
    mainView.rows(); // computes what is out of date
    chartView.clear();
    for (const Row& row : m_dataRows) {
        if (!row->footer && row->full())
            chartView.add(row->title(), row->innerTotal(), row->innerConst);
    }
    chartView.redraw();
    chartPopover.open();
}

void ExpendReportViewController::selectExpends()
{
    expendSelectView.expendIDs = m_expendIDs;
    expendSelectView.expendTypeIDs = m_expendTypeIDs;
    openAsFilter(expendSelectView, *this, m_expendIDs.empty() && m_expendTypeIDs.empty());
}

void ExpendReportViewController::clearExpends()
{
    m_expendIDs.clear();
    m_expendTypeIDs.clear();
    expendSelectView.expendIDs.clear();
    expendSelectView.expendTypeIDs.clear();
    expendSelectView.selectAll();
    selectedExpends.setText(localized("All Spendings"));
}

} // namespace zelvor
