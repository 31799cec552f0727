#pragma once

#include "shell/tab_view_header.h"

#include <QtWidgets/QWidget>

namespace zelvor {

// Draws the strip of tabs and takes its clicks; where a tab stands and what happens is the header's.
class TabStrip : public QWidget {
    Q_OBJECT

public:
    explicit TabStrip(TabViewHeader& header, QWidget* parent = nullptr);

    QSize sizeHint() const override { return {200, static_cast<int>(TabViewHeader::height)}; }
    QRectF tabRect(int position) const;
    QRectF closeButtonRect(int position) const;

Q_SIGNALS:
    void closeRequested(int position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    TabViewHeader& m_header;
};

} // namespace zelvor
