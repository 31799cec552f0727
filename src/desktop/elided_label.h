#pragma once

#include <QtWidgets/QLabel>

namespace zelvor {

// A line of text that gives way: cut off at its end when there is no room, and whole in its tool tip then.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    bool isElided() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zelvor
