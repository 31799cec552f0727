#include "core/notification_center.h"

#include <QtCore/QScopeGuard>

#include <algorithm>
#include <array>

namespace zelvor {

namespace {

// In the order of the enumeration.
constexpr std::array nameTexts{
    u"AccountBalanceChangedNotification",
    u"AccountChangedNotification",
    u"AccountTypeAddCanceledNotification",
    u"AccountTypeChangedNotification",
    u"BalanceCalculatedNotification",
    u"BalanceChangedNotification",
    u"ContragentBalanceChangedNotification",
    u"ContragentChangedNotification",
    u"CurrencyChangedNotification",
    u"CurrencyUpdatedNotification",
    u"DefaultsChangedNotification",
    u"DocWithContragentChangedNotification",
    u"ExpendChangedNotification",
    u"ExpendDocChangedNotification",
    u"FunctionAddCanceledNotification",
    u"FunctionChangedNotification",
    u"HasNewVersionNotification",
    u"ManagerAddCancelledNotification",
    u"ManagerBalanceChangedNotification",
    u"ManagerChangedNotification",
    u"MeasurementsAddCanceledNotification",
    u"MeasurementsChangedNotification",
    u"MeasurementsChangedNotificationForSelf",
    u"MoneyDocChangedNotification",
    u"ProductAmountChangedNotification",
    u"ProductBaseCostChangedNotification",
    u"ProductChangedNotification",
    u"ProductChangedNotificationForSelf",
    u"ProductDocChangedNotification",
    u"PropertiesChangedNotification",
    u"StockChangedNotification",
    u"DataBaseConnectedNotification",
    u"ProductAddNotification",
    u"PropertiesAddRemoveNotification",
    u"PropertiesAmortizedNotification",
};
constexpr std::size_t nameCount = nameTexts.size();
static_assert(nameCount == static_cast<std::size_t>(NotificationName::PropertiesAmortizedNotification) + 1);

} // namespace

QString notificationNameText(NotificationName name)
{
    return QString::fromUtf16(nameTexts[static_cast<std::size_t>(name)]);
}

struct NotificationCenter::Observation::Registration {
    State* state = nullptr;
    Handler handler;
    bool ended = false;
};

// Each name has its own list, in the order of registration; one that hears everything stands in all of them.
struct NotificationCenter::State {
    using Registration = Observation::Registration;
    using List = std::vector<std::shared_ptr<Registration>>;

    std::array<List, nameCount> lists;
    int depth = 0;         // postings under delivery, one inside the other
    bool hasEnded = false; // ended registrations wait for the outermost delivery to finish

    void end(Registration& registration)
    {
        registration.ended = true;
        hasEnded = true;
        if (depth == 0)
            removeEnded();
    }

    void removeEnded()
    {
        hasEnded = false;
        // A handler's captures may hold observations, whose end comes back here: let go of them last.
        List removed;
        for (List& list : lists) {
            const auto isEnded = [](const std::shared_ptr<Registration>& entry) { return entry->ended; };
            std::ranges::copy_if(list, std::back_inserter(removed), isEnded);
            std::erase_if(list, isEnded);
        }
    }

    void deliver(const Notification& notification)
    {
        List& list = lists[static_cast<std::size_t>(notification.name)];
        ++depth;
        const auto leave = qScopeGuard([this] {
            if (--depth == 0 && hasEnded)
                removeEnded();
        });
        // Handlers that are registered meanwhile hear the next posting, not this one.
        const std::size_t count = list.size();
        for (std::size_t i = 0; i < count; ++i) {
            // The list may move while the handler runs; what it holds stays until the delivery is over.
            Registration* const registration = list[i].get();
            if (!registration->ended)
                registration->handler(notification);
        }
    }
};

NotificationCenter::Observation& NotificationCenter::Observation::operator=(Observation&& other) noexcept
{
    if (this != &other) {
        Observation ending;
        ending.m_registration.swap(m_registration);
        m_registration.swap(other.m_registration);
    }
    return *this;
}

NotificationCenter::Observation::~Observation()
{
    if (const std::shared_ptr<Registration> registration = m_registration.lock())
        registration->state->end(*registration);
}

NotificationCenter::NotificationCenter() : m_state(std::make_unique<State>()) {}

NotificationCenter::~NotificationCenter()
{
    // A handler's captures may hold observations; their ends must not touch lists that are going away.
    ++m_state->depth;
    const auto lists = std::move(m_state->lists);
}

NotificationCenter::Observation NotificationCenter::observe(NotificationName name, Handler handler)
{
    const auto registration = std::make_shared<Observation::Registration>();
    registration->state = m_state.get();
    registration->handler = std::move(handler);
    m_state->lists[static_cast<std::size_t>(name)].push_back(registration);
    Observation observation;
    observation.m_registration = registration;
    return observation;
}

NotificationCenter::Observation NotificationCenter::observeAll(Handler handler)
{
    const auto registration = std::make_shared<Observation::Registration>();
    registration->state = m_state.get();
    registration->handler = std::move(handler);
    for (State::List& list : m_state->lists)
        list.push_back(registration);
    Observation observation;
    observation.m_registration = registration;
    return observation;
}

void NotificationCenter::post(NotificationName name, const void* object, const QString& text)
{
    m_state->deliver({name, object, text});
}

} // namespace zelvor
