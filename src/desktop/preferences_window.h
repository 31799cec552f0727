#pragma once

#include <QtWidgets/QWidget>

namespace zelvor {

class ApplicationShell;

// "Parameters for <project>": every field of the settings row.
class PreferencesWindow : public QWidget {
    Q_OBJECT

public:
    explicit PreferencesWindow(ApplicationShell& shell);
};

} // namespace zelvor
