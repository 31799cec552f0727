#pragma once

#include "core/outlets.h"

#include <QtCore/QAbstractListModel>

#include <vector>

namespace zelvor {

// The entries of a chooser for its combo box, however many. Entries that stay the same are not set up anew.
class ChooserModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setItems(const std::vector<PopUpButton::Item>& items);
    int rowOfTag(qint64 tag) const; // the first one; -1 for none
    qint64 tag(int row) const;      // 0 outside the entries

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::vector<PopUpButton::Item> m_items;
};

} // namespace zelvor
