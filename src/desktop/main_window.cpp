#include "desktop/main_window.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/page.h"
#include "desktop/page_factory.h"
#include "desktop/shared_popovers.h"
#include "desktop/tab_strip.h"
#include "shell/application_shell.h"

#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtGui/QCloseEvent>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <unordered_set>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

MainWindow::MainWindow(ApplicationShell& shell)
    : m_shell(shell), m_workspace(shell.mainWindowController), m_splitter(new QSplitter),
      m_menuTree(new QTreeWidget), m_tabStrip(new TabStrip(m_workspace.tabView.header)),
      m_pages(new QStackedWidget)
{
    setObjectName(u"mainWindow"_s);
    auto* const right = new QWidget;
    auto* const rightRows = new QVBoxLayout(right);
    rightRows->setContentsMargins(0, 0, 0, 0);
    rightRows->setSpacing(0);
    rightRows->addWidget(m_tabStrip);
    rightRows->addWidget(m_pages, 1);
    m_splitter->addWidget(m_menuTree);
    m_splitter->addWidget(right);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({MainViewController::leftViewWidth, 1000});

    auto* const foot = new QHBoxLayout;
    auto* const state = new QLabel;
    auto* const balanceLabel = new QLabel;
    auto* const balance = new QLabel;
    bind(m_workspace.stateField, state);
    bind(m_workspace.balanceLabel, balanceLabel);
    bind(m_workspace.balance, balance);
    foot->addWidget(state, 1);
    foot->addWidget(balanceLabel);
    foot->addWidget(balance);
    auto* const center = new QWidget;
    auto* const rows = new QVBoxLayout(center);
    rows->addWidget(m_splitter, 1);
    rows->addLayout(foot);
    setCentralWidget(center);

    m_menuTree->setHeaderHidden(true);
    const QPointer<MainWindow> self(this);
    m_shell.mainMenuController.onReload = [self] {
        if (!self)
            return;
        self->m_menuTree->clear();
        for (const auto& group : self->m_shell.mainMenuController.sourceListItems) {
            auto* const node = new QTreeWidgetItem(self->m_menuTree, {group->title});
            for (const auto& item : group->children) {
                auto* const leaf = new QTreeWidgetItem(node, {item->title});
                leaf->setData(0, Qt::UserRole, rawValue(item->type));
            }
            node->setExpanded(group->expanded);
        }
    };
    connect(m_menuTree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (const auto type = typeFromInt(item->data(0, Qt::UserRole).toInt()); item->parent() && type)
            m_workspace.topMenuAction(*type);
    });
    connect(m_tabStrip, &TabStrip::closeRequested, this,
            [this](int position) { m_workspace.closeTab(position); });
    m_workspace.tabView.onPagesChanged = [self] {
        if (self)
            self->showPages();
    };
    m_workspace.window = this;
    makeSharedPopovers(m_workspace, this);
    shell.window.onChange([self] {
        if (self)
            self->setVisible(self->m_shell.window.isOpen());
    });
    shell.windowTitle.onChange([self] {
        if (self)
            self->setWindowTitle(self->m_shell.windowTitle.text());
    });
    resize(1440, 900);
}

MainWindow::~MainWindow()
{
    m_workspace.window = nullptr;
    m_workspace.tabView.onPagesChanged = {};
    m_shell.mainMenuController.onReload = {};
}

Page* MainWindow::pageOf(const TabPage& page)
{
    Page*& made = m_pageOf[page.view];
    if (!made) {
        made = makePage(page, m_workspace, m_pages);
        if (made)
            m_pages->addWidget(made);
    }
    return made;
}

Page* MainWindow::activePage() const
{
    return qobject_cast<Page*>(m_pages->currentWidget());
}

void MainWindow::showPages()
{
    std::unordered_set<const BaseView*> open;
    for (const TabPage& page : m_workspace.tabView.body.pages())
        open.insert(page.view);
    for (auto entry = m_pageOf.begin(); entry != m_pageOf.end();) {
        if (open.contains(entry->first)) {
            ++entry;
            continue;
        }
        delete entry->second;
        entry = m_pageOf.erase(entry);
    }
    const TabPage* const active = m_workspace.tabView.activePage();
    if (Page* const page = active ? pageOf(*active) : nullptr) {
        m_pages->setCurrentWidget(page);
        page->takeFocus();
    }
}

void MainWindow::adjustWindowWidthForProductDocument(int width)
{
    const int missing = width - m_pages->width();
    if (missing > 0)
        resize(this->width() + missing, height());
}

void MainWindow::setLeftViewCollapsed(bool collapsed)
{
    m_menuTree->setVisible(!collapsed);
}

void MainWindow::showAbout() {}

void MainWindow::openUrl(const QString& url)
{
    QDesktopServices::openUrl(QUrl(url));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    m_shell.closeWindow();
}

} // namespace zelvor
