#pragma once

#include "core/business.h"
#include "core/outlets.h"
#include "store/model_controller.h"

#include <QtCore/QString>

#include <functional>
#include <vector>

namespace zelvor {

// "Project Management": lists the known projects, creates, opens and forgets them. The list lies in the
// user's defaults, in no project file; forgetting a project leaves its file alone.
class ProjectSelectWindowController : public ModelController {
public:
    explicit ProjectSelectWindowController(AppDelegate& appDelegate);

    std::vector<Business> businesses; // sorted by name
    TableOutlet tableView{QStringLiteral("tableView")};
    Button openButton{QStringLiteral("openButton")};
    Button deleteButton{QStringLiteral("deleteButton")};
    Label windowTitle{QStringLiteral("windowTitle")};
    Popover window{QStringLiteral("window")}; // open while it is on the screen

    // A project was opened or created: this window has closed, the default currency is to be checked.
    std::function<void()> onProjectOpened;
    // The project that is open is to be left first; `then` runs when it was, and not when the user keeps it.
    std::function<void(std::function<void()> then)> onLeaveProject;
    // The list was read anew.
    std::function<void()> onReload;

    void showWindow();
    void initRecentBusinesses();
    void tableViewSelectionDidChange();
    void createNewBusiness();
    void openExistingProject();
    void openProject();
    // A file that the user handed over: it becomes one of the known projects. When it cannot be opened the
    // user is told and this window is up.
    void openFile(const QString& path);
    void deleteProject();

    // Opens a file to work in. One without a settings row is refused here, though it may be a sound file:
    // there would be no window to show for it.
    bool openProjectFile(const QString& path, Access access = Access::ReadWrite);
    // Puts a project among the known ones under its file's name and makes it the one to open at the next
    // start. Answers its key.
    QString registerProject(const QString& path);

private:
    enum class Opening { Opened, Failed, Cancelled };

    // Opens the project; one that another program holds, for reading only, if the user wants that.
    void open(const QString& path, std::function<void(Opening)> then);
    void leaveOpenProject(std::function<void()> then);
    void createAt(const QString& path);
    void openBusiness(const Business& business);
    bool isOpenNow(const Business& business) const;
    const Business* selectedBusiness() const;
    void selectBusiness(const Business& business);
    void projectOpened(const QString& key);
    void reportUnopened(const QString& path);
    void offerToForget(const Business& business);

    QString m_problem; // why nothing was opened or made
};

// The key of a project in the defaults: its name with "_" for blanks.
QString businessKey(const QString& name);

} // namespace zelvor
