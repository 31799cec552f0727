#include "desktop/commands.h"

#include "core/localized.h"
#include "core/localized_as.h"
#include "desktop/desktop_settings.h"
#include "desktop/icons.h"
#include "desktop/main_window.h"
#include "desktop/mnemonics.h"
#include "desktop/quick_open.h"
#include "desktop/theme.h"
#include "shell/application_shell.h"

#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

using enum DocType;

constexpr DocType moneyDocuments[] = {
    MoneyFromContragent, MoneyToContragent, MoneyToExpend, MoneyFromEmployee,
    MoneyToEmployee,     InnerTransaction,  MoneyAdd};
constexpr DocType productDocuments[] = {BuyProduct, SellProduct,   SellIntangibles, MoveProduct,
                                        AddProduct, DeleteProduct, Return};
constexpr DocType propertyDocuments[] = {BuyProperty, SellProperty, AddProperty, DeleteProperty};
constexpr DocType journals[] = {AllDocumentsJournal, ProductJournal, MoneyJournal, PropertyJournal};
constexpr DocType reports[] = {BalanceSheet,     PaymentCalendar,   ProductsOnStockReport, PeriodSellReport,
                               ContragentReport, ContragentsReport, AccountReport,         EmployeeReport,
                               ExpendReport,     DynamicsReport};
constexpr DocType mainCatalogs[] = {ContragentCatalog, ProductCatalog, AccountCatalog,
                                    StockCatalog,      ManagerCatalog, ExpendCatalog};
constexpr DocType smallCatalogs[] = {FunctionCatalog, AccountTypeCatalog, CurrencyCatalog, MeasurementCatalog,
                                     DeleteBasisCatalog};

constexpr int numberedTabs = 9;

QString plainText(const QString& text)
{
    return QString(text).replace(u'&', u"&&"_s);
}

// The part of a composed field that takes text.
QWidget* editorOf(QWidget* widget)
{
    if (qobject_cast<QAbstractSpinBox*>(widget) || qobject_cast<QComboBox*>(widget))
        return widget->findChild<QLineEdit*>();
    return widget;
}

bool hasMethod(const QObject* object, const char* method)
{
    const QByteArray signature = QByteArray(method) + "()";
    return object && object->metaObject()->indexOfMethod(signature.constData()) >= 0;
}

// The chosen rows as a spreadsheet takes them.
QString selectedText(const QAbstractItemView& view)
{
    QModelIndexList cells =
        view.selectionModel() ? view.selectionModel()->selectedIndexes() : QModelIndexList();
    std::ranges::sort(cells, [&](const QModelIndex& a, const QModelIndex& b) {
        const int topA = view.visualRect(a).top();
        const int topB = view.visualRect(b).top();
        return topA != topB ? topA < topB : a.column() < b.column();
    });
    QString text;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (i > 0)
            text += view.visualRect(cells[i]).top() == view.visualRect(cells[i - 1]).top() ? u'\t' : u'\n';
        text += cells[i].data().toString();
    }
    return text;
}

} // namespace

Commands::Commands(MainWindow& window, ApplicationShell& shell, DesktopSettings& settings)
    : QObject(&window), m_window(window), m_shell(shell), m_settings(settings)
{
    addFileMenu();
    addEditMenu();
    addViewMenu();
    addTypeMenus();
    addHelpMenu();
    for (QMenu* const menu : window.menuBar()->findChildren<QMenu*>()) {
        assignMnemonics(menu);
        connect(menu, &QMenu::aboutToShow, this, &Commands::update);
    }
    assignMnemonics(window.menuBar());
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
    update();
}

QMenu* Commands::addMenu(const QString& title)
{
    return m_window.menuBar()->addMenu(title);
}

QAction* Commands::add(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                       std::function<void()> run, const QString& icon)
{
    QAction* const action = menu->addAction(lineIcon(icon), text);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(key);
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this, std::move(run));
    return action;
}

void Commands::addForPage(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                          PageCommand command, const QString& icon)
{
    const auto perform = [this, command] {
        Page* const page = m_window.activePage();
        if (page && page->can(command))
            page->perform(command);
    };
    m_pageActions.push_back({add(menu, name, text, key, perform, icon), command});
}

void Commands::addEdit(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                       const char* method)
{
    m_editActions.push_back({add(menu, name, text, key, [this, method] { edit(method); }), method});
}

void Commands::addTypes(QMenu* menu, std::span<const DocType> types)
{
    if (!menu->isEmpty())
        menu->addSeparator();
    for (const DocType type : types) {
        QAction* const action = add(
            menu, docTypeCase(type).toLatin1().constData(), docTypeName(type), {},
            [this, type] { m_shell.mainWindowController.topMenuAction(type); }, docTypeImage(type));
        m_typeActions.push_back({action, type});
    }
}

// --- the menus

void Commands::addFileMenu()
{
    QMenu* const menu = addMenu(localized("File"));
    ProjectSelectWindowController& projects = m_shell.startWindowController;
    add(
        menu, "newProject", localized("New Project…"), {}, [&projects] { projects.createNewBusiness(); },
        u"create"_s);
    add(
        menu, "openProject", localized("Open Project…"), QKeySequence::Open,
        [&projects] { projects.openExistingProject(); }, u"open"_s);
    add(
        menu, "manageProjects", localized("Project Management"), {},
        [this] { Q_EMIT m_window.projectsRequested(); }, u"project"_s);
    menu->addSeparator();
    add(
        menu, "preferences", localized("Preferences…"), QKeySequence(Qt::CTRL | Qt::Key_Comma),
        [this] { Q_EMIT m_window.preferencesRequested(); }, u"preferences"_s);
    menu->addSeparator();
    addForPage(menu, "print", localized("Print…"), QKeySequence::Print, PageCommand::Print, u"print"_s);
    addForPage(menu, "export", localized("Export…"), {}, PageCommand::Export, u"export"_s);
    menu->addSeparator();
    m_closeTab = add(
        menu, "closeTab", localized("Close Tab"), QKeySequence(Qt::CTRL | Qt::Key_W),
        [this] { m_shell.mainWindowController.closeTab(activeTab()); }, u"close"_s);
    add(menu, "closeProject", localized("Close Project"), {}, [this] { m_shell.closeWindow(); });
    add(menu, "quit", localized("Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q),
        [this] { Q_EMIT m_window.quitRequested(); });
}

void Commands::addEditMenu()
{
    QMenu* const menu = addMenu(localizedAs("Edit", "menu"));
    addEdit(menu, "undo", localized("Undo"), QKeySequence::Undo, "undo");
    addEdit(menu, "redo", localized("Redo"), QKeySequence::Redo, "redo");
    menu->addSeparator();
    addEdit(menu, "cut", localized("Cut"), QKeySequence::Cut, "cut");
    addEdit(menu, "copy", localized("Copy"), QKeySequence::Copy, "copy");
    addEdit(menu, "paste", localized("Paste"), QKeySequence::Paste, "paste");
    addEdit(menu, "selectAll", localized("Select All"), QKeySequence::SelectAll, "selectAll");
    menu->addSeparator();
    addForPage(menu, "find", localized("Find"), QKeySequence::Find, PageCommand::Find, u"search"_s);
    add(menu, "findAnything", localized("Find Anything"), QKeySequence(Qt::CTRL | Qt::Key_K),
        [this] { m_window.quickOpen()->setFocus(Qt::ShortcutFocusReason); });
    addForPage(menu, "editRow", localized("Edit Row"), QKeySequence(Qt::Key_F2), PageCommand::Edit,
               u"edit"_s);
}

void Commands::addViewMenu()
{
    QMenu* const menu = addMenu(localized("View"));
    m_viewMenu = menu;
    m_toggleLeft = add(menu, "toggleLeftView", localized("Collapse Left Pane"), QKeySequence(Qt::Key_F9),
                       [this] { m_shell.mainWindowController.toggleLeftViewButton.userChanged(); });
    addAppearanceMenu(menu);
    addLanguageMenu(menu);
    menu->addSeparator();
    m_nextTab = add(menu, "nextTab", localized("Next Tab"), QKeySequence(Qt::CTRL | Qt::Key_Tab),
                    [this] { selectNeighbour(1); });
    m_previousTab = add(menu, "previousTab", localized("Previous Tab"),
                        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), [this] { selectNeighbour(-1); });
    // The key that a keyboard sends for Tab with Shift held.
    m_previousTab->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
                                 QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab)});
    addTabMenu(menu);
    menu->addSeparator();
    addForPage(menu, "refresh", localized("Refresh"), QKeySequence(Qt::Key_F5), PageCommand::Refresh,
               u"refresh"_s);
    m_fullScreen = add(menu, "fullScreen", localized("Full Screen"), QKeySequence(Qt::Key_F11),
                       [this] { m_window.setWindowState(m_window.windowState() ^ Qt::WindowFullScreen); });
    m_fullScreen->setCheckable(true);
}

void Commands::addAppearanceMenu(QMenu* view)
{
    QMenu* const menu = view->addMenu(localized("Appearance"));
    auto* const group = new QActionGroup(menu);
    const auto offer = [&](const char* name, const QString& text, Appearance appearance) {
        QAction* const action = add(menu, name, text, {}, [this, appearance] {
            m_settings.setAppearance(appearance);
            applyAppearance(*qApp, appearance);
        });
        action->setCheckable(true);
        action->setChecked(m_settings.appearance() == appearance);
        group->addAction(action);
    };
    offer("appearanceSystem", localized("As the System"), Appearance::System);
    offer("appearanceLight", localized("Light"), Appearance::Light);
    offer("appearanceDark", localized("Dark"), Appearance::Dark);
}

void Commands::addLanguageMenu(QMenu* view)
{
    QMenu* const menu = view->addMenu(localized("Language"));
    auto* const group = new QActionGroup(menu);
    const auto offer = [&](const char* name, const QString& text, const QString& language) {
        QAction* const action = add(menu, name, text, {}, [this, language] { chooseLanguage(language); });
        action->setCheckable(true);
        action->setChecked(m_settings.language() == language);
        group->addAction(action);
    };
    offer("languageSystem", localized("Language of the System"), {});
    offer("languageEnglish", u"English"_s, u"en"_s);
    offer("languageRussian", u"Русский"_s, u"ru"_s);
    menu->addSeparator();
    menu->addAction(localized("Takes effect at the next start"))->setEnabled(false);
}

void Commands::addTabMenu(QMenu* view)
{
    m_tabMenu = view->addMenu(localized("Go to Tab"));
    for (int position = 0; position < numberedTabs; ++position) {
        const auto key = QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + position));
        const QByteArray name = "tab" + QByteArray::number(position + 1);
        m_tabActions.push_back(
            add(m_tabMenu, name.constData(), {}, key, [this, position] { selectTab(position); }));
        m_tabActions.back()->setCheckable(true);
    }
}

void Commands::addTypeMenus()
{
    QMenu* const documents = addMenu(localized("Documents"));
    addTypes(documents, productDocuments);
    addTypes(documents, moneyDocuments);
    addTypes(documents, propertyDocuments);
    documents->addSeparator();
    addForPage(documents, "save", localized("Save"), QKeySequence::Save, PageCommand::Save, u"save"_s);
    addForPage(documents, "confirm", localized("Confirm"), QKeySequence(Qt::CTRL | Qt::Key_Return),
               PageCommand::Confirm, u"confirm"_s);
    addForPage(documents, "deleteDocument", localized("Delete"), {}, PageCommand::Delete, u"delete"_s);
    QMenu* const journalMenu = addMenu(localized("Journals"));
    addTypes(journalMenu, journals);
    QMenu* const reportMenu = addMenu(localized("Reports"));
    addTypes(reportMenu, reports);
    QMenu* const catalogMenu = addMenu(localized("Catalogs"));
    addTypes(catalogMenu, mainCatalogs);
    addTypes(catalogMenu, smallCatalogs);
    m_typeMenus = {documents, journalMenu, reportMenu, catalogMenu};
}

void Commands::addHelpMenu()
{
    QMenu* const menu = addMenu(localized("Help"));
    add(
        menu, "help", localized("Zelvor Help"), QKeySequence(Qt::Key_F1),
        [this] { m_shell.mainWindowController.showHelp(); }, u"help"_s);
    add(
        menu, "about", localized("About Zelvor"), {}, [this] { m_shell.mainWindowController.showAbout(); },
        u"about"_s);
}

// --- what they do

void Commands::chooseLanguage(const QString& language)
{
    m_settings.setLanguage(language);
    m_shell.mainWindowController.setStateString(localized("The language changes at the next start."));
}

int Commands::activeTab() const
{
    const TabViewHeader& header = m_shell.mainWindowController.tabView.header;
    return header.tabs().empty() ? -1 : header.activTab.value_or(-1);
}

void Commands::selectTab(int position)
{
    m_shell.mainWindowController.tabView.openExistingTab(position);
}

void Commands::selectNeighbour(int step)
{
    const int count = static_cast<int>(m_shell.mainWindowController.tabView.header.tabs().size());
    if (count > 0)
        selectTab((activeTab() + step + count) % count);
}

// --- what can be done now

void Commands::update()
{
    const Page* const page = m_window.activePage();
    for (const PageAction& entry : m_pageActions)
        entry.action->setEnabled(page && page->can(entry.command));
    updateTabs();
    updateEditing();
    updateLeftPane();
    m_fullScreen->setChecked(m_window.isFullScreen());
}

void Commands::updateLeftPane()
{
    const bool collapsed = m_shell.mainWindowController.toggleLeftViewButton.isOn();
    if (collapsed == m_saysShow)
        return;
    m_saysShow = collapsed;
    m_toggleLeft->setText(collapsed ? localized("Show Left Pane") : localized("Collapse Left Pane"));
    assignMnemonics(m_viewMenu);
}

void Commands::updateTabs()
{
    const std::vector<TabViewHeaderTab>& tabs = m_shell.mainWindowController.tabView.header.tabs();
    m_closeTab->setEnabled(!tabs.empty());
    m_nextTab->setEnabled(tabs.size() > 1);
    m_previousTab->setEnabled(tabs.size() > 1);
    m_tabMenu->setEnabled(!tabs.empty());
    for (std::size_t position = 0; position < m_tabActions.size(); ++position) {
        QAction* const action = m_tabActions[position];
        const bool exists = position < tabs.size();
        action->setVisible(exists);
        action->setChecked(exists && static_cast<int>(position) == activeTab());
        if (exists)
            action->setText(u'&' + QString::number(position + 1) + u"  "_s + plainText(tabs[position].title));
    }
}

void Commands::showMenuTitles()
{
    for (const auto& group : m_shell.mainMenuController.sourceListItems) {
        for (const auto& item : group->children) {
            const auto entry = std::ranges::find(m_typeActions, item->type, &TypeAction::type);
            if (entry != m_typeActions.end())
                entry->action->setText(plainText(item->title));
        }
    }
    for (QMenu* const menu : m_typeMenus)
        assignMnemonics(menu);
}

// The menu bar takes the focus while it is used by keys; the entries still mean the field that had it.
void Commands::followFocus(QWidget* now)
{
    if (!now || qobject_cast<QMenuBar*>(now) || qobject_cast<QMenu*>(now))
        return;
    m_editor = editorOf(now);
    updateEditing();
}

void Commands::updateEditing()
{
    const auto* const list = qobject_cast<QAbstractItemView*>(m_editor.data());
    for (const EditAction& entry : m_editActions) {
        const bool copiesRows = list && qstrcmp(entry.method, "copy") == 0;
        entry.action->setEnabled(copiesRows || hasMethod(m_editor, entry.method));
    }
}

void Commands::edit(const char* method)
{
    if (hasMethod(m_editor, method)) {
        QMetaObject::invokeMethod(m_editor, method);
        return;
    }
    if (const auto* const list = qobject_cast<QAbstractItemView*>(m_editor.data()))
        QGuiApplication::clipboard()->setText(selectedText(*list));
}

} // namespace zelvor
