#include "desktop/balance_page.h"

#include "core/currency_struct.h"
#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/cell_text.h"
#include "desktop/measures.h"
#include "desktop/report_tools.h"
#include "desktop/total_strip.h"
#include "desktop/wrap_layout.h"
#include "period/balance_view_controller.h"
#include "store/params.h"

#include <QtCore/QPointer>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

BalancePage::BalancePage(BalanceViewController& controller, QWidget* parent)
    : TablePage(controller.view, controller.appDelegate.calendar, localized("Nothing to show yet."), parent),
      m_controller(controller)
{
    rows()->insertLayout(1, makeControls());
    TotalStrip::addBelow(list(), 2, rows()); // TOTAL and BALANCE
    const QPointer<BalancePage> self(this);
    controller.view.onReload([self] {
        if (self && self->isVisible())
            self->showDay();
    });
}

QLayout* BalancePage::makeControls()
{
    auto* const bar = new WrapLayout(measures::groupGap, measures::rowGap);
    auto* const groups = new QCheckBox(localized("Only groups"), this);
    bind(m_controller.groupCheckBox, groups);
    bar->addWidget(groups);
    auto* const refreshButton = makeRefreshButton(this);
    connect(refreshButton, &QPushButton::clicked, this, [this] { perform(PageCommand::Refresh); });
    bar->addWidget(refreshButton);
    chainTabs({searchLine(), groups, refreshButton, list()});
    return bar;
}

void BalancePage::showDay()
{
    const auto params = m_controller.appDelegate.params();
    const auto currency = params ? currencyFromInt(params->defaultCurrency) : std::nullopt;
    const QLocale locale;
    const QString today = locale.toString(
        m_controller.appDelegate.calendar.dateTime(m_controller.appDelegate.now()), shortDateFormat(locale));
    const QString sheet = localized("Balance on") + u' ' + today;
    showTitle(currency ? sheet + u", "_s + currencyShort(*currency) : sheet);
}

void BalancePage::showEvent(QShowEvent* event)
{
    showDay();
    TablePage::showEvent(event);
}

// A line of the sheet has nothing to open.
bool BalancePage::can(PageCommand command) const
{
    return command != PageCommand::Edit && TablePage::can(command);
}

void BalancePage::perform(PageCommand command)
{
    if (command == PageCommand::Refresh)
        m_controller.prepareData();
    else
        TablePage::perform(command);
}

} // namespace zelvor
