#pragma once

#include "core/notification_center.h"

#include <algorithm>
#include <vector>

namespace zelvor {

// Everything that a program posted, in order.
class RecordedNotifications {
public:
    explicit RecordedNotifications(NotificationCenter& center)
        : m_observation(center.observeAll([this](const Notification& notification) {
              names.push_back(notification.name);
              notifications.push_back(notification);
          }))
    {}
    RecordedNotifications(const RecordedNotifications&) = delete;
    RecordedNotifications& operator=(const RecordedNotifications&) = delete;

    bool has(NotificationName name) const { return count(name) > 0; }
    std::size_t count(NotificationName name) const
    {
        return static_cast<std::size_t>(std::count(names.begin(), names.end(), name));
    }
    void clear()
    {
        names.clear();
        notifications.clear();
    }

    std::vector<NotificationName> names;
    std::vector<Notification> notifications;

private:
    NotificationCenter::Observation m_observation;
};

} // namespace zelvor
