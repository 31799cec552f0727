#pragma once

#include <QtWidgets/QLineEdit>

namespace zelvor {

// The search line above a list (Ctrl+F). Escape empties it, then gives the focus back to the list; the arrow
// down goes into the list.
class SearchLine : public QLineEdit {
    Q_OBJECT

public:
    // `list` gets the focus back.
    explicit SearchLine(QWidget* list, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* m_list;
};

} // namespace zelvor
