#include "desktop/main_window.h"

#include "desktop/about_window.h"
#include "desktop/commands.h"
#include "desktop/desktop_settings.h"
#include "desktop/foot_line.h"
#include "desktop/header_panel.h"
#include "desktop/icons.h"
#include "desktop/menu_tree.h"
#include "desktop/page.h"
#include "desktop/page_stack.h"
#include "desktop/quick_open.h"
#include "desktop/shared_popovers.h"
#include "desktop/tab_strip.h"
#include "desktop/window_place.h"
#include "shell/application_shell.h"

#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtGui/QCloseEvent>
#include <QtGui/QDesktopServices>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr QSize firstSize(1440, 900);
constexpr QSize leastSize(1000, 640); // narrower, the fields of a document would stand in each other's way
constexpr int widestMenu = 300;
constexpr int narrowestPage = 320;

const QString& placeKey()
{
    static const QString key = u"main"_s;
    return key;
}

QVBoxLayout* rowsWithoutGaps(QWidget* parent)
{
    auto* const rows = new QVBoxLayout(parent);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    return rows;
}

} // namespace

MainWindow::MainWindow(ApplicationShell& shell, DesktopSettings& settings)
    : m_shell(shell), m_workspace(shell.mainWindowController), m_settings(settings),
      m_header(new HeaderPanel(shell)), m_splitter(new QSplitter),
      m_menuTree(new MenuTree(shell.mainMenuController)),
      m_tabStrip(new TabStrip(m_workspace.tabView.header)), m_pages(new PageStack(m_workspace)),
      m_commands(nullptr)
{
    setObjectName(u"mainWindow"_s);
    setWindowIcon(pictureIcon(u"zelvor"_s));
    layOut();
    m_commands = new Commands(*this, shell, settings);
    listen();
    makeSharedPopovers(m_workspace, this);
    restorePlace(*this, settings, placeKey(), firstSize);
}

MainWindow::~MainWindow()
{
    if (isVisible())
        rememberState();
    m_workspace.window = nullptr;
    m_workspace.onHeaderPanelChanged = {};
    m_workspace.tabView.onPagesChanged = {};
    m_shell.mainMenuController.onReload = {};
}

void MainWindow::layOut()
{
    auto* const right = new QWidget;
    auto* const rightRows = rowsWithoutGaps(right);
    rightRows->addWidget(m_tabStrip);
    rightRows->addWidget(m_pages, 1);
    right->setMinimumWidth(narrowestPage);
    m_menuTree->setMinimumWidth(MainViewController::leftViewWidth);
    m_menuTree->setMaximumWidth(widestMenu);
    m_splitter->setObjectName(u"splitView"_s);
    m_splitter->setHandleWidth(1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_menuTree);
    m_splitter->addWidget(right);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({MainViewController::leftViewWidth, firstSize.width()});

    auto* const center = new QWidget;
    auto* const rows = rowsWithoutGaps(center);
    rows->addWidget(m_header);
    rows->addWidget(m_splitter, 1);
    rows->addWidget(new FootLine(m_workspace));
    setCentralWidget(center);
}

void MainWindow::listen()
{
    connect(m_tabStrip, &TabStrip::closeRequested, this,
            [this](int position) { m_workspace.closeTab(position); });
    connect(m_tabStrip, &TabStrip::pageRequested, m_pages, &PageStack::takeFocus);
    connect(m_header->quickOpen(), &QuickOpen::left, m_pages, &PageStack::takeFocus);
    m_workspace.window = this;
    m_workspace.tabView.onPagesChanged = [this] { showPages(); };
    m_workspace.onHeaderPanelChanged = [this] { m_header->showSettings(); };
    m_shell.mainMenuController.onReload = [this] {
        m_menuTree->reload();
        m_commands->showMenuTitles();
    };
    const QPointer<MainWindow> self(this); // outlets cannot forget whom they tell
    m_shell.window.onChange([self] {
        if (self)
            self->showOrHide();
    });
    m_workspace.toggleLeftViewButton.onChange([self] {
        if (self)
            self->m_commands->update();
    });
    m_shell.windowTitle.onChange([self] {
        if (self)
            self->showTitle();
    });
}

Page* MainWindow::activePage() const
{
    return m_pages->activePage();
}

QuickOpen* MainWindow::quickOpen() const
{
    return m_header->quickOpen();
}

void MainWindow::showOrHide()
{
    if (!m_shell.window.isOpen()) {
        hide();
        return;
    }
    showTitle();
    restoreState();
    show();
    holdLeastSize(); // its frame is known now
    connect(windowHandle(), &QWindow::screenChanged, this, &MainWindow::holdLeastSize, Qt::UniqueConnection);
    if (!isMaximized() && !isFullScreen())
        moveOntoScreen(*this);
    focusPage();
}

// A small screen holds the window whole all the same.
void MainWindow::holdLeastSize()
{
    const QSize frame = frameGeometry().size() - size();
    setMinimumSize(leastSize.boundedTo(screen()->availableSize() - frame));
}

void MainWindow::showTitle()
{
    setWindowTitle(m_shell.windowTitle.text());
    m_header->showSettings();
}

void MainWindow::showPages()
{
    m_pages->followTabs();
    m_commands->update();
    focusPage();
}

// Whoever walks along the tabs by keys stays there.
void MainWindow::focusPage()
{
    if (!m_tabStrip->hasFocus() || m_tabStrip->count() == 0)
        m_pages->takeFocus();
}

void MainWindow::adjustWindowWidthForProductDocument(int width)
{
    if (isMaximized() || isFullScreen())
        return;
    const int missing = width - m_pages->width();
    const int room = screen()->availableGeometry().width() - (frameGeometry().width() - this->width());
    if (missing <= 0 || this->width() >= room)
        return;
    resize(std::min(this->width() + missing, room), height());
    moveOntoScreen(*this);
}

void MainWindow::setLeftViewCollapsed(bool collapsed)
{
    m_menuTree->setVisible(!collapsed);
    if (!collapsed)
        m_splitter->setSizes({MainViewController::leftViewWidth, m_splitter->width()});
    m_splitter->refresh(); // the page has its width now, not at the next turn of the loop
}

void MainWindow::showAbout()
{
    auto* const about = new AboutWindow(this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void MainWindow::openUrl(const QString& url)
{
    QDesktopServices::openUrl(QUrl(url));
}

// A key of a command must find out whether it can be done now, not when a menu was open last.
bool MainWindow::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride)
        m_commands->update();
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    m_shell.closeWindow();
}

void MainWindow::hideEvent(QHideEvent* event)
{
    rememberState();
    QMainWindow::hideEvent(event);
}

void MainWindow::rememberState()
{
    rememberPlace(*this, m_settings, placeKey());
    const bool collapsed = m_workspace.toggleLeftViewButton.isOn();
    m_settings.setBytes(u"leftPaneCollapsed"_s, collapsed ? "1"_ba : "0"_ba);
    if (!collapsed)
        m_settings.setBytes(u"leftPane"_s, QByteArray::number(m_menuTree->width()));
    m_settings.setBytes(u"closedGroups"_s, m_menuTree->closedGroups());
}

void MainWindow::restoreState()
{
    m_menuTree->setClosedGroups(m_settings.bytes(u"closedGroups"_s));
    const int menuWidth = m_settings.bytes(u"leftPane"_s).toInt();
    if (menuWidth > 0)
        m_splitter->setSizes({menuWidth, std::max(m_splitter->width() - menuWidth, 1)});
    const bool collapsed = m_settings.bytes(u"leftPaneCollapsed"_s) == "1";
    if (collapsed != m_workspace.toggleLeftViewButton.isOn())
        m_workspace.toggleLeftView();
}

} // namespace zelvor
