#pragma once

#include "shell/tab_view_header.h"

#include <QtWidgets/QWidget>

class QPainterPath;

namespace zelvor {

// Draws the strip of tabs and takes its clicks and keys; where a tab stands and what happens is the
// header's. Screen readers reach it as a list of tabs (see TabStripAccessible).
class TabStrip : public QWidget {
    Q_OBJECT

public:
    explicit TabStrip(TabViewHeader& header, QWidget* parent = nullptr);
    ~TabStrip() override;

    QSize sizeHint() const override { return {200, static_cast<int>(TabViewHeader::height)}; }
    const TabViewHeader& header() const { return m_header; }
    int count() const { return static_cast<int>(m_header.tabs().size()); }
    // -1 when there is none.
    int activeTab() const;
    QRectF tabRect(int position) const;
    QRectF titleRect(int position) const;
    QRectF closeButtonRect(int position) const;
    void selectTab(int position) { m_header.changeActivTab(position); }
    void requestClose(int position);

Q_SIGNALS:
    void closeRequested(int position);
    // Enter or Down: the user goes on in the page.
    void pageRequested();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void drawTab(QPainter& painter, const TabViewHeaderTab& tab) const;
    void drawTitle(QPainter& painter, const TabViewHeaderTab& tab) const;
    void drawCloseButton(QPainter& painter, int position) const;
    int closeButtonAt(const QPointF& point) const;
    void headerChanged();
    void tellScreenReader();

    TabViewHeader& m_header;
    int m_pressed = -1;      // tab under the pressed button
    int m_pressedClose = -1; // close button under the pressed button
    int m_hoveredClose = -1;
    int m_toldCount = 0; // as screen readers know it
    int m_toldActive = -1;
};

} // namespace zelvor
