#include "shell/project_select_window_controller.h"

#include "core/localized.h"
#include "core/text_order.h"
#include "shell/project_creation.h"

#include <QtCore/QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// The file's name without its last dot-part: "a.b.pdb" is the project "a.b".
QString projectNameOf(const QString& path)
{
    return QFileInfo(path).completeBaseName();
}

// The typed name decides: underscores for blanks, the extension ".pdb" whatever the panel added.
QString projectPathOf(const QString& chosen)
{
    QString name = QFileInfo(chosen).fileName();
    if (name.endsWith(u".pdb"_s))
        name.chop(4);
    return QFileInfo(chosen).absolutePath() + u'/' + businessKey(name) + u".pdb"_s;
}

} // namespace

QString businessKey(const QString& name)
{
    QString key = name;
    return key.replace(u' ', u'_');
}

ProjectSelectWindowController::ProjectSelectWindowController(AppDelegate& owner) : ModelController(owner)
{
    tableView.onUserChange = [this] { tableViewSelectionDidChange(); };
    openButton.onUserChange = [this] { openProject(); };
    deleteButton.onUserChange = [this] { deleteProject(); };
    tableViewSelectionDidChange();
}

void ProjectSelectWindowController::showWindow()
{
    windowTitle.setText(localized("Project Management"));
    initRecentBusinesses();
    window.open();
}

void ProjectSelectWindowController::initRecentBusinesses()
{
    businesses.clear();
    const QMap<QString, QString> known = appDelegate.defaults.businesses();
    for (auto entry = known.begin(); entry != known.end(); ++entry) {
        QString name = entry.key();
        businesses.push_back({name.replace(u'_', u' '), entry.value()});
    }
    std::ranges::stable_sort(businesses,
                             [](const Business& a, const Business& b) { return textLess(a.name, b.name); });
    tableView.selectRow(-1);
    tableViewSelectionDidChange();
    if (onReload)
        onReload();
}

void ProjectSelectWindowController::tableViewSelectionDidChange()
{
    const bool selected = selectedBusiness() != nullptr;
    openButton.setEnabled(selected);
    deleteButton.setEnabled(selected);
}

const Business* ProjectSelectWindowController::selectedBusiness() const
{
    const int row = tableView.selectedRow();
    return row >= 0 && row < static_cast<int>(businesses.size()) ? &businesses[static_cast<std::size_t>(row)]
                                                                 : nullptr;
}

void ProjectSelectWindowController::createNewBusiness()
{
    const std::optional<QString> chosen = appDelegate.dialogs.savePath(
        {localized("Creating new Business"), localized("Name"), localized("Create"), u"pdb"_s});
    if (!chosen)
        return;
    leaveOpenProject([this, path = projectPathOf(*chosen)] { createAt(path); });
}

// A failed opening leaves nothing open, so the project that is has its documents saved and its window closed
// before.
void ProjectSelectWindowController::leaveOpenProject(std::function<void()> then)
{
    if (appDelegate.connector.isOpen() && onLeaveProject)
        onLeaveProject(std::move(then));
    else
        then();
}

void ProjectSelectWindowController::createAt(const QString& path)
{
    if (!createProject(appDelegate.connector, path)) {
        m_problem = appDelegate.connector.openError();
        reportUnopened(path);
        return;
    }
    projectOpened(registerProject(path));
}

void ProjectSelectWindowController::openExistingProject()
{
    const std::optional<QString> path = appDelegate.dialogs.openPath(
        {localized("Open Existing Project"), localized("Name"), localized("Open"), {u"pdb"_s}});
    if (!path)
        return;
    leaveOpenProject([this, chosen = *path] {
        open(chosen, [this, chosen](Opening opening) {
            if (opening == Opening::Opened)
                projectOpened(registerProject(chosen));
            else if (opening == Opening::Failed)
                reportUnopened(chosen);
        });
    });
}

void ProjectSelectWindowController::openProject()
{
    const Business* selected = selectedBusiness();
    if (!selected)
        return;
    if (isOpenNow(*selected)) {
        window.close();
        return;
    }
    if (!QFileInfo::exists(selected->url)) {
        offerToForget(*selected);
        return;
    }
    leaveOpenProject([this, business = *selected] {
        selectBusiness(business);
        openBusiness(business);
    });
}

void ProjectSelectWindowController::openBusiness(const Business& business)
{
    open(business.url, [this, business](Opening opening) {
        if (opening == Opening::Opened)
            projectOpened(businessKey(business.name));
        else if (opening == Opening::Failed && QFileInfo::exists(business.url))
            reportUnopened(business.url);
        else if (opening == Opening::Failed)
            offerToForget(business);
    });
}

bool ProjectSelectWindowController::isOpenNow(const Business& business) const
{
    const Connector& connector = appDelegate.connector;
    return connector.isOpen() && QFileInfo(connector.path()) == QFileInfo(business.url);
}

// Leaving a project reads the list anew, and nothing is selected then.
void ProjectSelectWindowController::selectBusiness(const Business& business)
{
    const auto found = std::ranges::find(businesses, business.name, &Business::name);
    if (found == businesses.end())
        return;
    tableView.selectRow(static_cast<int>(found - businesses.begin()));
    tableViewSelectionDidChange();
}

void ProjectSelectWindowController::openFile(const QString& path)
{
    open(path, [this, path](Opening opening) {
        if (opening == Opening::Opened) {
            projectOpened(registerProject(path));
            return;
        }
        if (opening == Opening::Failed)
            reportUnopened(path);
        showWindow();
    });
}

void ProjectSelectWindowController::open(const QString& path, std::function<void(Opening)> then)
{
    Connector& connector = appDelegate.connector;
    if (openProjectFile(path)) {
        then(Opening::Opened);
        return;
    }
    if (!connector.isLockedByOther()) {
        then(Opening::Failed);
        return;
    }
    const Alert question{localized("The project is in use by another program."),
                         connector.openError() + u'\n' +
                             localized("It can be opened for reading. Nothing can be changed then."),
                         {localized("Open Read-Only"), localized("Cancel")},
                         0};
    appDelegate.dialogs.ask(question, [this, path, then = std::move(then)](int answer) {
        if (answer != firstButton)
            then(Opening::Cancelled);
        else
            then(openProjectFile(path, Access::ReadOnly) ? Opening::Opened : Opening::Failed);
    });
}

bool ProjectSelectWindowController::openProjectFile(const QString& path, Access access)
{
    Connector& connector = appDelegate.connector;
    const bool opened = connector.open(path, access);
    m_problem = connector.openError();
    if (!opened || appDelegate.params())
        return opened;
    connector.close();
    m_problem = localized("%1 has no settings: it is no project, or it is damaged.").arg(path);
    return false;
}

QString ProjectSelectWindowController::registerProject(const QString& path)
{
    const QString key = businessKey(projectNameOf(path));
    QMap<QString, QString> known = appDelegate.defaults.businesses();
    known.insert(key, QFileInfo(path).absoluteFilePath());
    appDelegate.defaults.setBusinesses(known);
    return key;
}

void ProjectSelectWindowController::projectOpened(const QString& key)
{
    appDelegate.defaults.setDefaultBusiness(key);
    appDelegate.defaults.synchronize();
    initRecentBusinesses();
    window.close();
    if (onProjectOpened)
        onProjectOpened();
}

void ProjectSelectWindowController::reportUnopened(const QString& path)
{
    appDelegate.dialogs.showAlert({localized("Can't open project file!"),
                                   m_problem.isEmpty() ? path : m_problem,
                                   {localized("Close")},
                                   0});
}

void ProjectSelectWindowController::offerToForget(const Business& business)
{
    Alert alert;
    alert.messageText = localized("Can't find project file!");
    alert.informativeText = localized("Project ") + business.name +
                            localized(" is not found at specified path. Do you wish to delete useless line?");
    alert.buttons = {localized("Delete"), localized("Cancel")};
    appDelegate.dialogs.ask(alert, [this](int answer) {
        if (answer == firstButton)
            deleteProject();
    });
}

void ProjectSelectWindowController::deleteProject()
{
    const Business* selected = selectedBusiness();
    if (!selected)
        return;
    const QString key = businessKey(selected->name);
    QMap<QString, QString> known = appDelegate.defaults.businesses();
    known.remove(key);
    appDelegate.defaults.setBusinesses(known);
    // Beside an open project the next start stays that one's, and its preferences keep their title.
    if (!appDelegate.connector.isOpen() || appDelegate.defaults.defaultBusiness() == key)
        appDelegate.defaults.removeDefaultBusiness();
    appDelegate.defaults.synchronize();
    initRecentBusinesses();
}

} // namespace zelvor
