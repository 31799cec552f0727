#pragma once

#include "reports/period_sell_report_view.h"
#include "reports/report_view_controller.h"

#include <vector>

namespace zelvor {

// What was sold in a period, for how much and at what profit: filters and dates of the report. A filter is a
// list of ids; an empty one lets everything through.
class PeriodSellReportViewController final : public ReportViewController {
public:
    explicit PeriodSellReportViewController(AppDelegate& owner);

    PeriodSellReportView mainView;
    Label selectedContragentsDisplay{QStringLiteral("selectedContragentsDisplay")};
    Label selectedProductsDisplay{QStringLiteral("selectedProductsDisplay")};
    Label selectedManagersDisplay{QStringLiteral("selectedManagersDisplay")};

    void prepareData() override;
    void updateReport() override;
    QString getNameForTabView() const override;

    void setContragentIDs(std::vector<qint64> ids) { m_query.contragentIDs = std::move(ids); }
    void setContragentTypeIDs(std::vector<qint64> ids) { m_query.contragentTypeIDs = std::move(ids); }
    void setProductIDs(std::vector<qint64> ids) { m_query.productIDs = std::move(ids); }
    void setProductTypeIDs(std::vector<qint64> ids) { m_query.productTypeIDs = std::move(ids); }
    void setSelectedManagers(std::vector<qint64> ids) { m_query.selectedManagers = std::move(ids); }
    // Tells the filters in the display fields.
    void setStringPredicates();
    void clearContragentIDs();
    void clearProductIDs();
    void clearManagerIDs();

private:
    PeriodSellReportRows prepareReportData();

    PeriodSellReportQuery m_query;
};

} // namespace zelvor
