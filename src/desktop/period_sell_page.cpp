#include "desktop/period_sell_page.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/busy_cursor.h"
#include "desktop/filter_field.h"
#include "desktop/measures.h"
#include "desktop/period_bar.h"
#include "desktop/report_tools.h"
#include "desktop/selection_popover.h"
#include "desktop/sort_keeper.h"
#include "desktop/total_strip.h"
#include "desktop/wrap_layout.h"
#include "reports/period_sell_report_view_controller.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

QString whatToDo()
{
    return localized("Choose the period and press \"Refresh\".");
}

} // namespace

PeriodSellPage::PeriodSellPage(PeriodSellReportViewController& controller, QWidget* parent)
    : TablePage(controller.mainView, controller.appDelegate.calendar, whatToDo(), parent),
      m_controller(controller), m_order(new SortKeeper(list()))
{
    rows()->insertLayout(1, makePeriodAndFilters());
    rows()->insertLayout(2, makeShape());
    TotalStrip::addBelow(list(), 1, rows());
    showBusyCursor(controller.progress, this);
    listen();
}

PeriodSellPage::~PeriodSellPage()
{
    for (const QPointer<SelectionPopover>& popover : m_popovers)
        delete popover.data();
}

QLayout* PeriodSellPage::makePeriodAndFilters()
{
    PeriodSellReportViewController& report = m_controller;
    auto* const bar = new WrapLayout(measures::groupGap, measures::rowGap);
    m_period = new PeriodBar({report.dateFrom, report.dateFromLabel, report.dateTo, report.dateToLabel},
                             report.appDelegate.calendar, this);
    connect(m_period, &PeriodBar::currentPeriodChosen, this, [&report] { report.setCurrentPeriod(); });
    connect(m_period, &PeriodBar::submitted, this, &PeriodSellPage::run);
    setTabOrder(searchLine(), m_period->firstField());
    m_lastFilter = m_period->lastField();
    bar->addWidget(m_period);

    FilterField* const products =
        addFilter(bar, u"Products"_s, localized("Products"), report.selectedProductsDisplay);
    connect(products, &FilterField::chooseRequested, this, [&report] { report.selectProduct(); });
    connect(products, &FilterField::clearRequested, this, [&report] { report.clearProductIDs(); });
    addPopover(report.productsSelectView, localized("Products"), products);

    FilterField* const contragents =
        addFilter(bar, u"Contragents"_s, localized("Customers"), report.selectedContragentsDisplay);
    connect(contragents, &FilterField::chooseRequested, this, [&report] { report.selectContragent(); });
    connect(contragents, &FilterField::clearRequested, this, [&report] { report.clearContragentIDs(); });
    addPopover(report.contragentSelectView, localized("Customers"), contragents);

    FilterField* const managers =
        addFilter(bar, u"Managers"_s, localized("Managers"), report.selectedManagersDisplay);
    connect(managers, &FilterField::chooseRequested, this, [&report] { report.selectManager(); });
    connect(managers, &FilterField::clearRequested, this, [&report] { report.clearManagerIDs(); });
    addPopover(report.managerSelectView, localized("Managers"), managers);
    return bar;
}

FilterField* PeriodSellPage::addFilter(QLayout* bar, const QString& name, const QString& title,
                                       Label& display)
{
    auto* const field = new FilterField(name, title, display, this);
    setTabOrder(m_lastFilter, field->firstField());
    m_lastFilter = field->lastField();
    bar->addWidget(field);
    return field;
}

template <class SelectView>
void PeriodSellPage::addPopover(SelectView& view, const QString& title, FilterField* field)
{
    auto* const popover = new SelectionPopover(view, title, m_controller.appDelegate.calendar, this);
    popover->setAnchor([field] { return field->globalFieldRect(); });
    m_popovers.emplace_back(popover);
}

QWidget* PeriodSellPage::makeReportType()
{
    auto* const frame = new QWidget(this);
    auto* const row = new QHBoxLayout(frame);
    row->setContentsMargins({});
    row->setSpacing(measures::rowGap);
    row->addWidget(new QLabel(localized("By"), frame));
    auto* const types = new QButtonGroup(frame);
    const QString texts[] = {localized("products"), localized("customers"), localized("managers")};
    for (int tag = 0; tag < 3; ++tag) {
        auto* const radio = new QRadioButton(texts[tag], frame);
        radio->setObjectName(u"reportType"_s + QString::number(tag));
        radio->setAccessibleName(localized("By") + u' ' + texts[tag]);
        types->addButton(radio, tag);
        row->addWidget(radio);
        setTabOrder(m_lastFilter, radio);
        m_lastFilter = radio;
    }
    bind(m_controller.mainView.reportTypeSelect, types, frame, localized("Report by"));
    return frame;
}

QLayout* PeriodSellPage::makeShape()
{
    PeriodSellReportView& report = m_controller.mainView;
    auto* const bar = new WrapLayout(measures::groupGap, measures::rowGap);
    bar->addWidget(makeReportType());
    const auto addCheck = [this, bar](CheckBox& outlet, const QString& text, const QString& tip) {
        auto* const check = new QCheckBox(text, this);
        check->setToolTip(tip);
        bind(outlet, check);
        bar->addWidget(check);
        setTabOrder(m_lastFilter, check);
        m_lastFilter = check;
    };
    addCheck(report.productsGroupCheck, localized("Only product groups"),
             localized("Hides the products; their groups keep the sums"));
    addCheck(report.contragentsGroupCheck, localized("Only customers"),
             localized("Hides the products; their customers keep the sums"));
    addCheck(report.managersGroupCheck, localized("Managers without customers"),
             localized("Puts the products right below each manager, from the next \"Refresh\" on"));
    m_refresh = makeRefreshButton(this);
    connect(m_refresh, &QPushButton::clicked, this, &PeriodSellPage::run);
    bar->addWidget(m_refresh);
    m_outdated = new QLabel(localized("Changed: press \"Refresh\" to see it"), this);
    m_outdated->setObjectName(u"outdatedNote"_s);
    m_outdated->setForegroundRole(QPalette::PlaceholderText);
    m_outdated->hide();
    bar->addWidget(m_outdated);
    chainTabs({m_lastFilter, m_refresh, list()});
    return bar;
}

void PeriodSellPage::listen()
{
    PeriodSellReportView& report = m_controller.mainView;
    const QPointer<PeriodSellPage> self(this);
    const std::vector<Outlet*> choices{&m_controller.dateFrom,
                                       &m_controller.dateTo,
                                       &m_controller.selectedProductsDisplay,
                                       &m_controller.selectedContragentsDisplay,
                                       &m_controller.selectedManagersDisplay,
                                       &report.reportTypeSelect,
                                       &report.managersGroupCheck};
    for (Outlet* const choice : choices) {
        choice->onChange([self] {
            if (self)
                self->markOutdated();
        });
    }
    m_controller.progress.onChange([self] {
        if (self && !self->m_controller.progress.isRunning())
            self->showResult();
    });
    report.onReload([self] {
        if (self) {
            self->m_order->showMark(); // also where groups part the rows
            self->showTitle(self->view().name());
        }
    });
}

void PeriodSellPage::run()
{
    m_period->commit();
    m_controller.prepareReport();
}

// Where nothing stands, the sentence in the middle says it: "Nothing was sold" was about other choices.
void PeriodSellPage::markOutdated()
{
    const bool empty = m_controller.mainView.numberOfRows() == 0;
    m_outdated->setVisible(!empty);
    if (empty)
        setEmptyText(whatToDo());
}

void PeriodSellPage::showResult()
{
    m_outdated->hide();
    m_order->sortAgain();
    setEmptyText(localized("Nothing was sold in this period."));
}

void PeriodSellPage::takeFocus()
{
    if (m_controller.mainView.numberOfRows() > 0)
        TablePage::takeFocus();
    else
        m_period->firstField()->setFocus(Qt::OtherFocusReason);
}

SelectionPopover* PeriodSellPage::openPopover() const
{
    for (const QPointer<SelectionPopover>& popover : m_popovers) {
        if (popover && popover->isVisible())
            return popover;
    }
    return nullptr;
}

// A line of the report has nothing to open. While a popover is open, the page behind it waits.
bool PeriodSellPage::can(PageCommand command) const
{
    if (openPopover())
        return command == PageCommand::Find;
    return command != PageCommand::Edit && TablePage::can(command);
}

void PeriodSellPage::perform(PageCommand command)
{
    SelectionPopover* const popover = openPopover();
    if (popover && command == PageCommand::Find)
        popover->startSearch();
    else if (command == PageCommand::Refresh)
        run();
    else
        TablePage::perform(command);
}

} // namespace zelvor
