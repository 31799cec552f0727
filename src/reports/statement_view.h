#pragma once

#include "reports/report_view.h"
#include "reports/statement_row.h"
#include "store/app_delegate.h"

#include <vector>

namespace zelvor {

// The table of a statement of account: the start row, the documents by date, the end row.
class StatementView : public ReportView {
public:
    explicit StatementView(AppDelegate& owner) : ReportView(QString()), m_appDelegate(owner) {}

    const std::vector<StatementRow>& rows() const;
    // The name of whoever the statement is of, as it was computed; for the print.
    const QString& target() const;
    // Takes the rows just computed; the selection stays on its document.
    void setRows(std::vector<StatementRow> rows, QString target);
    // Opens the row's document as a tab.
    void openDocument(int row);

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(rows().size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;
    void doubleAction(int row) override { openDocument(row); }

private:
    const StatementRow* rowAt(int row) const;
    int placeOf(const DocumentModel* document) const;

    AppDelegate& m_appDelegate;
    std::vector<StatementRow> m_rows;
    QString m_target;
};

} // namespace zelvor
