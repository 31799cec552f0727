#pragma once

#include "catalogs/contragent_select_view.h"
#include "reports/contragent_report_view.h"
#include "reports/report_view_controller.h"

namespace zelvor {

// The statement of account of one counterparty: each confirmed document of a period with the balance before
// and after it. dateFrom is outside the period, dateTo inside.
class ContragentReportViewController final : public ReportViewController, public ContragentSelectProtocol {
public:
    explicit ContragentReportViewController(AppDelegate& owner);

    ContragentReportView mainView;
    Label selectedContragent{QStringLiteral("selectedContragent")}; // the name; empty while none is chosen
    ContragentSelectView contragentSelectView;

    void prepareData() override;
    // Without a counterparty nothing is computed and the old table stays.
    void updateReport() override;
    QString getNameForTabView() const override;

    // None while nothing is chosen.
    const std::shared_ptr<Contragent>& contragent() const { return m_contragent; }
    void selectContragent(); // opens the chooser
    void setNewContragent(const std::shared_ptr<Contragent>& contragent) override;
    // The counterparty with that id, a hidden one too; false when there is none.
    bool setContragentFromID(qint64 id);
    void clearContragent() { setNewContragent(nullptr); }
    // The statement of that counterparty between two moments, computed; false when there is no such one.
    bool openReport(qint64 contragentID, qint64 start, qint64 finish);

private:
    void updateContragents();
    std::vector<std::shared_ptr<DocumentModel>> readDocuments() const;
    Decimal startBalance(const std::vector<std::shared_ptr<DocumentModel>>& documents) const;

    std::shared_ptr<Contragent> m_contragent;
    NotificationCenter::Observation m_contragentsChanged;
    NotificationCenter::Observation m_documentConfirmed;
};

} // namespace zelvor
