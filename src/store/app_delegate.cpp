#include "store/app_delegate.h"

#include "core/localized.h"

#include <array>

namespace zelvor {

namespace {

// Everything that shows records hears that they changed.
constexpr std::array everythingChanged{
    NotificationName::AccountTypeChangedNotification,
    NotificationName::AccountChangedNotification,
    NotificationName::ContragentChangedNotification,
    NotificationName::CurrencyChangedNotification,
    NotificationName::ExpendChangedNotification,
    NotificationName::FunctionChangedNotification,
    NotificationName::ManagerChangedNotification,
    NotificationName::MeasurementsChangedNotification,
    NotificationName::MeasurementsChangedNotificationForSelf,
    NotificationName::ProductChangedNotification,
    NotificationName::ProductChangedNotificationForSelf,
    NotificationName::StockChangedNotification,
    NotificationName::PropertiesChangedNotification,
    NotificationName::ProductDocChangedNotification,
    NotificationName::MoneyDocChangedNotification,
    NotificationName::DocWithContragentChangedNotification,
    NotificationName::ExpendDocChangedNotification,
    NotificationName::BalanceChangedNotification,
    NotificationName::AccountBalanceChangedNotification,
    NotificationName::ContragentBalanceChangedNotification,
    NotificationName::ManagerBalanceChangedNotification,
    NotificationName::ProductAmountChangedNotification,
    NotificationName::ProductBaseCostChangedNotification,
};

} // namespace

AppDelegate::AppDelegate(Surroundings surroundings, std::unique_ptr<Connector> connectorToOwn)
    : connector(connectorToOwn ? *connectorToOwn : *(connectorToOwn = std::make_unique<Connector>())),
      clock(surroundings.clock), calendar(std::move(surroundings.calendar)), dialogs(surroundings.dialogs),
      defaults(surroundings.defaults), settings(QStringList{defaults.folder()} + systemSettingsFolders()),
      m_connector(std::move(connectorToOwn))
{
    // What was told before the failed commit is no longer true.
    connector.onCommitFailed = [this](const QString& what) {
        for (const NotificationName name : everythingChanged)
            notifications.post(name, this);
        dialogs.showAlert({localized("The changes were not saved!"), what, {localized("OK")}, 0});
    };
}

AppDelegate::~AppDelegate()
{
    connector.onCommitFailed = {};
}

} // namespace zelvor
