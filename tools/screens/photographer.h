#pragma once

#include "desktop/desktop_application.h"

#include <QtCore/QString>

namespace zelvor {

class Page;

// Goes through the pages of the real desktop as a person would and saves a picture of each as
// `folder`/NAME.png. The project should be a copy: a form is opened and cancelled again, nothing is saved.
class Photographer {
public:
    Photographer(DesktopApplication& desktop, QString folder);

    // The project window, the main window with every page, the preferences. False when a picture is missing.
    bool photograph(const QString& project);

private:
    void photographCatalogs();
    void photographDocuments();
    void photographJournals();
    void photographReports();

    Page* open(DocType type);
    void openForm(const QString& name);
    void storeDraft();
    void openStored(DocType type, bool confirmed, const QString& name);
    void choosePeriod(Page& page);
    void save(QWidget& window, const QString& name);
    void fail(const QString& what);

    DesktopApplication& m_desktop;
    QString m_folder;
    bool m_complete = true;
};

} // namespace zelvor
