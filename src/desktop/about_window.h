#pragma once

#include <QtWidgets/QDialog>

namespace zelvor {

// The program's name and version.
class AboutWindow : public QDialog {
    Q_OBJECT

public:
    explicit AboutWindow(QWidget* parent);
};

} // namespace zelvor
