#pragma once

#include <QtWidgets/QLayout>

#include <vector>

namespace zelvor {

// Puts its items side by side and goes on in the next line where the width ends: a bar of controls that fits
// every window, font size and language.
class WrapLayout : public QLayout {
public:
    // The gaps between two items of a line and between two lines.
    WrapLayout(int gap, int lineGap);
    ~WrapLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    // Places the items, or only reckons; answers the height that they need.
    int arrange(const QRect& rect, bool place) const;
    void placeLine(const std::vector<QLayoutItem*>& line, const QPoint& corner, int height, int right) const;

    std::vector<QLayoutItem*> m_items;
    int m_gap;
    int m_lineGap;
};

} // namespace zelvor
