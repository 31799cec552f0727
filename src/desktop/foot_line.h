#pragma once

#include <QtWidgets/QFrame>

namespace zelvor {

class MainViewController;

// The line at the foot of the main window: what was done last at the left, the balance at the right.
class FootLine : public QFrame {
    Q_OBJECT

public:
    explicit FootLine(MainViewController& workspace, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zelvor
