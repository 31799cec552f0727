#include "desktop/quick_open.h"

#include "core/localized.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "shell/application_shell.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidget>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int longestList = 12;
constexpr int listWidth = 460;

bool holdsAllWords(const QString& text, const QStringList& words)
{
    return std::ranges::all_of(words,
                               [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

QuickOpen::QuickOpen(ApplicationShell& shell, QWidget* parent)
    : QLineEdit(parent), m_shell(shell), m_list(new QTreeWidget(this))
{
    setObjectName(u"quickOpen"_s);
    setAccessibleName(localized("Find anything"));
    setPlaceholderText(localized("Find anything   Ctrl+K"));
    setClearButtonEnabled(true);
    addAction(lineIcon(u"search"_s), LeadingPosition)->setText(localized("Search"));
    connect(this, &QLineEdit::textEdited, this, &QuickOpen::list);

    m_list->setObjectName(u"quickOpenList"_s);
    m_list->setAccessibleName(localized("Found"));
    m_list->setColumnCount(2);
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setIconSize({measures::menuIcon, measures::menuIcon});
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_list->hide();
    connect(m_list, &QTreeWidget::itemClicked, this, &QuickOpen::openCurrent);
}

QuickOpen::~QuickOpen() = default;

QSize QuickOpen::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 40, QLineEdit::sizeHint().height()};
}

// Open pages come first: what one works on is looked for most.
std::vector<QuickOpen::Target> QuickOpen::targets() const
{
    std::vector<Target> all;
    CustomTabView& tabs = m_shell.mainWindowController.tabView;
    for (const TabViewHeaderTab& tab : tabs.header.tabs())
        all.push_back({tab.title, localized("Open page"), u"journal"_s,
                       [&tabs, position = tab.position] { tabs.openExistingTab(position); }});
    MainMenuController& menu = m_shell.mainMenuController;
    for (const auto& group : menu.sourceListItems) {
        const QString groupTitle = group->title;
        for (const auto& item : group->children)
            all.push_back(
                {item->title, groupTitle, item->icon, [&menu, item = item] { menu.menuItemClicked(*item); }});
    }
    return all;
}

void QuickOpen::list()
{
    const QString typed = text().simplified();
    m_found = targets();
    std::erase_if(m_found, [words = typed.split(u' ', Qt::SkipEmptyParts)](const Target& target) {
        return !holdsAllWords(target.title + u' ' + target.group, words);
    });
    std::ranges::stable_partition(
        m_found, [&](const Target& target) { return target.title.startsWith(typed, Qt::CaseInsensitive); });
    std::ranges::stable_partition(
        m_found, [&](const Target& target) { return target.title.compare(typed, Qt::CaseInsensitive) == 0; });
    m_list->clear();
    for (const Target& target : m_found) {
        auto* const row = new QTreeWidgetItem(m_list, {target.title, target.group});
        row->setIcon(0, lineIcon(target.icon));
        row->setForeground(1, palette().color(QPalette::PlaceholderText));
        row->setSizeHint(0, {0, fontMetrics().height() + measures::rowPadding});
    }
    if (m_found.empty()) {
        auto* const nothing = new QTreeWidgetItem(m_list, {localized("Nothing of that name.")});
        nothing->setFlags(Qt::NoItemFlags);
    }
    m_list->setCurrentItem(m_found.empty() ? nullptr : m_list->topLevelItem(0));
    placeList();
}

void QuickOpen::placeList()
{
    QWidget* const host = window();
    const int rows = std::clamp(static_cast<int>(m_found.size()), 1, longestList);
    const int height = rows * (fontMetrics().height() + measures::rowPadding) + 2 * m_list->frameWidth();
    const int width = std::min(std::max(listWidth, this->width()), host->width());
    const QPoint below = mapTo(host, QPoint(this->width() - width, this->height() + measures::labelGap));
    m_list->setParent(host);
    m_list->setGeometry(std::max(below.x(), 0), below.y(), width,
                        std::min(height, host->height() - below.y()));
    m_list->show();
    m_list->raise();
}

void QuickOpen::move(int rows)
{
    const int count = static_cast<int>(m_found.size());
    if (count == 0)
        return;
    const int current = m_list->indexOfTopLevelItem(m_list->currentItem());
    m_list->setCurrentItem(m_list->topLevelItem(std::clamp(current + rows, 0, count - 1)));
}

void QuickOpen::openCurrent()
{
    const int current = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (current < 0 || current >= static_cast<int>(m_found.size()))
        return;
    const std::function<void()> open = m_found[static_cast<std::size_t>(current)].open;
    leave();
    open();
}

void QuickOpen::leave()
{
    clear();
    m_list->hide();
    Q_EMIT left();
}

void QuickOpen::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        m_list->isVisible() ? move(1) : list();
        return;
    case Qt::Key_Up:
        move(-1);
        return;
    case Qt::Key_PageDown:
        move(longestList - 1);
        return;
    case Qt::Key_PageUp:
        move(1 - longestList);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        openCurrent();
        return;
    case Qt::Key_Escape:
        leave();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void QuickOpen::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::ShortcutFocusReason)
        list();
}

void QuickOpen::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        m_list->hide();
}

} // namespace zelvor
