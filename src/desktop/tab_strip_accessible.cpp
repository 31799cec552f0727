#include "desktop/tab_strip_accessible.h"

#include "core/localized.h"
#include "desktop/tab_strip.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAccessibleWidget>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// One tab, told by its place. It says of itself that it is gone when fewer tabs are left.
class TabAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    TabAccessible(TabStrip* strip, int position) : m_strip(strip), m_position(position) {}

    bool isValid() const override { return m_strip && m_position < m_strip->count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_strip); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return tab().title;
        return kind == QAccessible::Description ? tab().toolTip : QString();
    }
    QRect rect() const override
    {
        if (!isValid() || !m_strip->isVisible())
            return {};
        const QRect local = m_strip->tabRect(m_position).toRect();
        return {m_strip->mapToGlobal(local.topLeft()), local.size()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool active = m_position == m_strip->activeTab();
        state.selectable = true;
        state.selected = active;
        state.focusable = true;
        state.focused = active && m_strip->hasFocus();
        state.invisible = !m_strip->isVisible();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override
    {
        return isValid() ? QStringList{pressAction(), closeAction()} : QStringList();
    }
    QString localizedActionName(const QString& name) const override
    {
        return name == closeAction() ? localized("Close Tab")
                                     : QAccessibleActionInterface::localizedActionName(name);
    }
    void doAction(const QString& name) override
    {
        if (!isValid())
            return;
        if (name == pressAction())
            m_strip->selectTab(m_position);
        else if (name == closeAction())
            m_strip->requestClose(m_position);
    }
    QStringList keyBindingsForAction(const QString& name) const override
    {
        return name == closeAction() ? QStringList{u"Ctrl+W"_s} : QStringList();
    }

private:
    static QString closeAction() { return u"Close"_s; }
    const TabViewHeaderTab& tab() const
    {
        return m_strip->header().tabs()[static_cast<std::size_t>(m_position)];
    }

    QPointer<TabStrip> m_strip;
    int m_position;
};

class TabStripAccessible final : public QAccessibleWidget {
public:
    explicit TabStripAccessible(TabStrip* strip) : QAccessibleWidget(strip, QAccessible::PageTabList) {}
    ~TabStripAccessible() override
    {
        for (const QAccessible::Id id : m_tabs)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return strip() ? strip()->count() : 0; }
    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (static_cast<int>(m_tabs.size()) <= index)
            m_tabs.push_back(QAccessible::registerAccessibleInterface(
                new TabAccessible(strip(), static_cast<int>(m_tabs.size()))));
        return QAccessible::accessibleInterface(m_tabs[static_cast<std::size_t>(index)]);
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint local = strip()->mapFromGlobal(QPoint(x, y));
        return strip()->rect().contains(local) ? child(strip()->header().positionAt(local.x())) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* tab) const override
    {
        for (int index = 0; index < childCount(); ++index) {
            if (child(index) == tab)
                return index;
        }
        return -1;
    }
    QAccessibleInterface* focusChild() const override
    {
        return strip()->hasFocus() ? child(strip()->activeTab()) : nullptr;
    }

private:
    TabStrip* strip() const { return static_cast<TabStrip*>(object()); }

    mutable std::vector<QAccessible::Id> m_tabs; // made when first asked for
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* const strip = qobject_cast<TabStrip*>(object);
    return strip ? new TabStripAccessible(strip) : nullptr;
}

} // namespace

// Qt takes the same factory only once.
void installTabStripAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace zelvor
