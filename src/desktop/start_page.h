#pragma once

#include <QtWidgets/QWidget>

class QPushButton;
class QVBoxLayout;

namespace zelvor {

class MainViewController;
enum class DocType : int;

// What stands in the window while no page is open: what to do next.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(MainViewController& workspace, QWidget* parent = nullptr);

    void takeFocus();

private:
    QPushButton* addButton(const char* name, DocType type, const QString& text, QVBoxLayout* rows);

    MainViewController& m_workspace;
    QPushButton* m_first;
};

} // namespace zelvor
