#pragma once

#include "catalogs/contragent_select_view.h"
#include "catalogs/manager_select_view.h"
#include "catalogs/product_select_view.h"
#include "reports/period_sell_report_reader.h"
#include "reports/period_sell_report_view.h"
#include "reports/report_view_controller.h"

#include <vector>

namespace zelvor {

// What was sold in a period, for how much and at what profit: filters and dates of the report. A filter is a
// list of ids; an empty one lets everything through.
class PeriodSellReportViewController final : public ReportViewController,
                                             public ContragentIDsReceiver,
                                             public ProductIDsReceiver,
                                             public SelectedManagersReceiver {
public:
    explicit PeriodSellReportViewController(AppDelegate& owner);

    PeriodSellReportView mainView;
    Label selectedContragentsDisplay{QStringLiteral("selectedContragentsDisplay")};
    Label selectedProductsDisplay{QStringLiteral("selectedProductsDisplay")};
    Label selectedManagersDisplay{QStringLiteral("selectedManagersDisplay")};

    ContragentSelectView contragentSelectView;
    ProductSelectView productsSelectView;
    ManagerSelectView managerSelectView;

    void prepareData() override;
    void updateReport() override;
    QString getNameForTabView() const override;

    void setContragentIDs(const std::vector<qint64>& ids) override { m_query.contragentIDs = ids; }
    void setContragentTypeIDs(const std::vector<qint64>& ids) override { m_query.contragentTypeIDs = ids; }
    void setProductIDs(const std::vector<qint64>& ids) override { m_query.productIDs = ids; }
    void setProductTypeIDs(const std::vector<qint64>& ids) override { m_query.productTypeIDs = ids; }
    void setSelectedManagers(const std::vector<qint64>& ids) override { m_query.selectedManagers = ids; }
    // Tells the filters in the display fields.
    void setStringPredicates() override;
    // Open the popover of a filter with the ticks of the filter; an empty one has everything ticked.
    void selectContragent();
    void selectProduct();
    void selectManager();
    void clearContragentIDs();
    void clearProductIDs();
    void clearManagerIDs();

private:
    PeriodSellReportRows prepareReportData();

    PeriodSellReportQuery m_query;
    NotificationCenter::Observation m_contragentsChanged;
    NotificationCenter::Observation m_productsChanged;
    NotificationCenter::Observation m_managersChanged;
};

} // namespace zelvor
