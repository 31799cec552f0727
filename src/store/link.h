#pragma once

#include <memory>

namespace zelvor {

// A record held by another record. Until something is put in it reads as an empty record of its class,
// made only when somebody writes to it; so a list of a hundred thousand documents does not carry as many
// empty counterparties.
template <class T>
class Link {
public:
    Link() = default;
    Link(std::shared_ptr<T> record) : m_record(std::move(record)) {}

    const T* operator->() const { return get(); }
    const T& operator*() const { return *get(); }
    const T* get() const { return m_record ? m_record.get() : &emptyRecord(); }
    // For writing: the held record, or a fresh one of our own.
    T& edit()
    {
        if (!m_record)
            m_record = std::make_shared<T>();
        return *m_record;
    }
    // The held record; null while the link is empty.
    const std::shared_ptr<T>& shared() const { return m_record; }
    bool isEmpty() const { return !m_record; }
    void reset() { m_record.reset(); }

private:
    static const T& emptyRecord()
    {
        static const T empty;
        return empty;
    }
    std::shared_ptr<T> m_record;
};

} // namespace zelvor
