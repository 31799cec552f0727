#pragma once

#include "core/outlets.h"
#include "core/view.h"
#include "documents/document_model.h"

#include <array>
#include <memory>
#include <vector>

namespace zelvor {

class DocumentJournalViewController;

// The table of a document journal.
class DocumentJournalView : public TableView {
public:
    explicit DocumentJournalView(DocumentJournalViewController& controller);

    // The documents in the order shown, as they were read last.
    std::vector<std::shared_ptr<DocumentModel>> documents;
    // The dates that they were read for; seconds since 1970 UTC.
    qint64 start() const { return m_start; }
    qint64 finish() const { return m_finish; }
    void setPeriod(qint64 start, qint64 finish)
    {
        m_start = start;
        m_finish = finish;
    }

    bool canExportToExcel() const override { return true; }
    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override;
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;
    // By "number", "date", "sum" or "contragent".
    void sort(const QString& key, bool ascending) override;
    void doubleAction(int row) override;
    // None outside the rows.
    std::shared_ptr<DocumentModel> documentAt(int row) const;
    // Selects the row of the same document as it was read last; none when it is not shown.
    void selectDocument(const DocumentModel* document);

private:
    QString journalName(const DocumentModel& document) const;

    DocumentJournalViewController& m_controller;
    qint64 m_start = 0;
    qint64 m_finish = 0;
    mutable std::array<QString, docTypeCount> m_titleStarts; // by raw value, as they are needed
};

} // namespace zelvor
