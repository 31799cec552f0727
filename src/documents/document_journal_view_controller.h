#pragma once

#include "core/doc_type.h"
#include "core/notification_center.h"
#include "core/outlets.h"
#include "documents/document_journal_view.h"
#include "store/model_controller.h"

#include <memory>
#include <vector>

namespace zelvor {

// The list of a period's documents, by kind and type; an unconfirmed one can be deleted from it. Bounds are
// moments: after dateFrom, up to and with dateTo. Once prepared it re-reads after a change of documents: at
// once while its view is visible, otherwise when its rows are asked for next.
class DocumentJournalViewController final : public ModelViewController {
public:
    // documentTypes is "Product", "Money" or "All".
    DocumentJournalViewController(AppDelegate& appDelegate, QString documentTypes);
    ~DocumentJournalViewController() override;

    const QString documentTypes;
    std::shared_ptr<DocumentModel> docToDelete; // none, or unconfirmed

    const std::vector<DocType> productTypes;
    const std::vector<DocType> moneyTypes;
    const std::vector<DocType> propertyTypes;

    DatePicker dateFrom{QStringLiteral("dateFrom")};
    DatePicker dateTo{QStringLiteral("dateTo")};
    PopUpButton docTypeSelect{QStringLiteral("docTypeSelect")}; // tags are raw values, 0 for all
    Label dateFromLabel{QStringLiteral("dateFromLabel")};
    Label dateToLabel{QStringLiteral("dateToLabel")};
    Button deleteDocumentMenuItem{QStringLiteral("deleteDocumentMenuItem")};
    Progress progress{QStringLiteral("progress")};
    DocumentJournalView mainView;

    void prepareData() override;
    void initDocTypeSelect();
    // The day of today.
    void setCurrentDate();
    // From the first day of the running report period to today, and reads.
    void setCurrentPeriod();
    void prepareJournal();
    void updateJournal() { prepareJournal(); }
    void updateDocs();
    // Reads when a change was told since the last reading.
    void readIfStale();
    QString getNameForTabView() const;
    // Labels red when dateFrom is after dateTo.
    void checkDates();
    // The context menu opens over a row, -1 for none: only an unconfirmed document can be deleted.
    void menuWillOpen(int clickedRow);
    // True when docToDelete is gone from the file. Failures are not told.
    bool deleteDocument();
    void openDocument(int row);

private:
    template <class Record>
    void readKind(const std::vector<DocType>& types);
    void readSelected();
    void bindOutlets();
    void datesChanged();
    bool removeProductDocument(qint64 id);
    bool removeMoneyDocument(qint64 id);

    std::vector<NotificationCenter::Observation> m_observations;
    bool m_prepared = false;
    bool m_stale = false;
};

} // namespace zelvor
