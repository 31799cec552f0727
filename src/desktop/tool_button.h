#pragma once

#include <QtWidgets/QToolButton>

namespace zelvor {

class AddMenuButton;

// A button of a page's tools row: picture, text, and a tip that names its keys. The keyboard reaches it by
// Tab; a click leaves the focus in the list.
class ToolButton : public QToolButton {
    Q_OBJECT

public:
    ToolButton(const QString& icon, const QString& text, const QString& tip, QWidget* parent);

    QSize sizeHint() const override;

protected:
    // The arrow of a menu stands beside the text, large enough to be seen.
    void initStyleOption(QStyleOptionToolButton* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

// Makes it the add button of a tree catalog: its menu opens as soon as the mouse goes down, or by Space,
// Enter or Alt+Down.
void bindAddMenu(AddMenuButton& outlet, ToolButton* button);

} // namespace zelvor
