#pragma once

#include <QtWidgets/QWidget>

class QTableWidget;

namespace zelvor {

class ApplicationShell;

// "Project Management": the known projects with open, create, forget.
class ProjectWindow : public QWidget {
    Q_OBJECT

public:
    explicit ProjectWindow(ApplicationShell& shell);
};

} // namespace zelvor
