#include "cli/command.h"
#include "cli/report.h"
#include "cli/report_options.h"
#include "reports/period_sell_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {
    {"--from", true},        {"--to", true},
    {"--by", true},          {"--collapse", true},
    {"--sort", true},        {"--product-groups", true},
    {"--products", true},    {"--contragent-groups", true},
    {"--contragents", true}, {"--managers", true},
};

// A box that the type of the report keeps closed cannot be ticked.
void enterCollapse(ReportOptions& given, PeriodSellReportView& view)
{
    const QStringList known{u"products"_s, u"contragents"_s, u"managers"_s};
    CheckBox* const boxes[] = {&view.productsGroupCheck, &view.contragentsGroupCheck,
                               &view.managersGroupCheck};
    for (const QString& word : given.words(u"--collapse"_s, known)) {
        const qsizetype place = known.indexOf(word);
        if (place < 0)
            continue;
        CheckBox& box = *boxes[place];
        if (!box.enabled())
            given.fail(u"--collapse "_s + word + u" does not go with this --by"_s);
        box.setOn(true);
    }
}

void enterFilters(ReportOptions& given, PeriodSellReportViewController& report)
{
    report.setProductTypeIDs(given.ids(u"--product-groups"_s));
    report.setProductIDs(given.ids(u"--products"_s));
    report.setContragentTypeIDs(given.ids(u"--contragent-groups"_s));
    report.setContragentIDs(given.ids(u"--contragents"_s));
    report.setSelectedManagers(given.ids(u"--managers"_s));
}

struct SortOrder {
    QString key;
    bool ascending = true;
};

SortOrder sortOrder(ReportOptions& given, const Arguments& arguments)
{
    const QStringList keys{u"name"_s, u"amount"_s, u"base"_s, u"price"_s, u"profit"_s, u"percent"_s};
    SortOrder order;
    const std::optional<QString> text = arguments.value(u"--sort"_s);
    if (!text)
        return order;
    order.ascending = !text->endsWith(u":desc");
    order.key = order.ascending ? *text : text->chopped(5);
    if (!keys.contains(order.key))
        given.fail(u"--sort must be one of "_s + keys.join(u", "_s) + u", with :desc or without"_s);
    return order;
}

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    PeriodSellReportViewController report(appDelegate);
    PeriodSellReportView& view = report.mainView;
    ReportOptions given(arguments, appDelegate.calendar);
    report.prepareData();
    given.enterPeriod(report.dateFrom, report.dateTo);
    view.reportTypeSelect.selectTag(given.choice(u"--by"_s, {u"products"_s, u"customers"_s, u"managers"_s}));
    view.reportTypeChanged();
    enterCollapse(given, view);
    enterFilters(given, report);
    const SortOrder order = sortOrder(given, arguments);
    if (!given.error().isEmpty())
        return badUsage(given.error());
    // A period that ends before it begins is computed by nobody, and still asked for under its own dates.
    view.setName(report.getNameForTabView());
    report.prepareReport();
    if (!order.key.isEmpty())
        view.sort(order.key, order.ascending);
    const auto& rows = view.reportRows();
    return print({view, [&](int row) { return rows[static_cast<std::size_t>(row)]->rowType(); }});
}

} // namespace

const Report periodSellReport{
    "period-sell",
    "[--from DAY] [--to DAY] [--by products|customers|managers]\n"
    "[--collapse products,contragents,managers] [--sort KEY[:desc]]\n"
    "[--product-groups IDS] [--products IDS] [--contragent-groups IDS]\n"
    "[--contragents IDS] [--managers IDS]",
    options,
    run,
};

} // namespace zelvor
