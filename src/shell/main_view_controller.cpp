#include "shell/main_view_controller.h"

#include "core/localized.h"

namespace zelvor {

MainViewController::MainViewController(AppDelegate& owner)
    : ModelController(owner), balanceController(owner), m_period(owner)
{
    balanceLabel.setText(localized("Balance"));
    appDelegate.setWorkspace(this);
    NotificationCenter& center = appDelegate.notifications;
    m_observations.push_back(center.observe(NotificationName::BalanceCalculatedNotification,
                                            [this](const Notification&) { updateBalance(); }));
    m_observations.push_back(center.observe(NotificationName::DefaultsChangedNotification,
                                            [this](const Notification&) { updateDefaults(); }));
}

MainViewController::~MainViewController()
{
    appDelegate.setWorkspace(nullptr);
}

void MainViewController::checkParams()
{
    const std::shared_ptr<Params> params = appDelegate.params();
    const bool shown = params && params->showCurrentBalance;
    balance.setHidden(!shown);
    balanceLabel.setHidden(!shown);
    balanceController.balanceShown = shown;
    if (shown)
        balanceController.refresh();
}

void MainViewController::prepareAllData()
{
    balanceController.prepareData();
}

void MainViewController::updateBalance()
{
    balance.setReal(balanceController.balance());
    balance.setColor(balance.value().isNegative() ? redColor : inOrderColor);
}

} // namespace zelvor
