#pragma once

#include <QtCore/QString>

#include <functional>
#include <memory>
#include <vector>

namespace zelvor {

// What the parts of the program tell each other. A receiver re-reads what it needs.
enum class NotificationName {
    AccountBalanceChangedNotification,
    AccountChangedNotification,
    AccountTypeAddCanceledNotification,
    AccountTypeChangedNotification,
    BalanceCalculatedNotification,
    BalanceChangedNotification,
    ContragentBalanceChangedNotification,
    ContragentChangedNotification,
    CurrencyChangedNotification,
    CurrencyUpdatedNotification,
    DefaultsChangedNotification,
    DocWithContragentChangedNotification,
    ExpendChangedNotification,
    ExpendDocChangedNotification,
    FunctionAddCanceledNotification,
    FunctionChangedNotification,
    HasNewVersionNotification,
    ManagerAddCancelledNotification,
    ManagerBalanceChangedNotification,
    ManagerChangedNotification,
    MeasurementsAddCanceledNotification,
    MeasurementsChangedNotification,
    MeasurementsChangedNotificationForSelf,
    MoneyDocChangedNotification,
    ProductAmountChangedNotification,
    ProductBaseCostChangedNotification,
    ProductChangedNotification,
    ProductChangedNotificationForSelf,
    ProductDocChangedNotification,
    PropertiesChangedNotification,
    StockChangedNotification,
    // Kept names without traffic.
    DataBaseConnectedNotification,
    ProductAddNotification,
    PropertiesAddRemoveNotification,
    PropertiesAmortizedNotification,
};

// The identifier as text: "AccountChangedNotification".
QString notificationNameText(NotificationName name);

// What a posting carries: who posted it, and for a record added on behalf of another form its name.
struct Notification {
    NotificationName name;
    const void* object = nullptr; // the posting controller, or none
    QString text;                 // the new record's name; null when the posting carries none
};

// Delivers notifications within one program, synchronously, in the order of registration. Used from one
// thread; the two names that workers cause (CurrencyUpdated, HasNewVersion) are posted by the code that
// takes the worker's reply over to the main thread.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    // Ends its registration when it goes; may outlive the centre.
    class Observation {
    public:
        Observation() = default;
        Observation(Observation&&) noexcept = default;
        Observation& operator=(Observation&&) noexcept;
        ~Observation();

    private:
        friend class NotificationCenter;
        struct Registration;
        std::weak_ptr<Registration> m_registration;
    };

    // A handler may post, and may end any observation, its own too, while a posting is delivered.
    [[nodiscard]] Observation observe(NotificationName name, Handler handler);
    // Hears every posting: for the command line's and the tests' records of what was told.
    [[nodiscard]] Observation observeAll(Handler handler);
    void post(NotificationName name, const void* object = nullptr, const QString& text = {});

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace zelvor
