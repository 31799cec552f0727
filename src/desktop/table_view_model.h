#pragma once

#include "core/view.h"
#include "desktop/cell_painter.h"

#include <QtCore/QAbstractTableModel>

#include <memory>
#include <vector>

namespace zelvor {

// Any TableView as a Qt item model: one model for all lists. It keeps no copy of the rows. The view's hidden
// columns stay in the model; whoever shows it hides them. A filter leaves the rows that hold every typed
// word in one of their texts.
//
// The view tells of new rows whenever it likes, also while it answers Qt; the model takes them over only
// between Qt's questions.
class TableViewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    TableViewModel(TableView& view, const Calendar& calendar, QObject* parent = nullptr);

    TableView& view() const { return m_view; }
    const std::vector<ViewColumn>& columns() const { return m_columns; }
    int columnWithIdentifier(const QString& identifier) const; // -1 for none

    // The view's row behind a shown one, and back; -1 for none.
    int viewRow(int shownRow) const;
    int shownRow(int viewRow) const;

    const QString& filter() const { return m_filter; }
    void setFilter(const QString& filter);
    // Has a stale view read, and shows what changed while nobody looked.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order) override;

Q_SIGNALS:
    // The view's rows were taken over: as a reset, or, where rows and columns stand as they stood, as changed
    // data.
    void reloaded();

private:
    void reload();
    void takeOver();
    std::vector<int> matchingRows(int rows, const std::vector<ViewColumn>& columns) const;

    TableView& m_view;
    const Calendar& m_calendar;
    std::vector<ViewColumn> m_columns;
    int m_rowCount = 0;
    QString m_filter;
    std::vector<int> m_filteredRows;                              // view rows; unused without a filter
    std::shared_ptr<void> m_listening = std::make_shared<char>(); // to the view, as long as the model lives
    bool m_reloading = false;
    bool m_reloadWaits = false;
    mutable int m_questions = 0; // of Qt's, being answered
};

} // namespace zelvor
