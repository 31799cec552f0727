#include "desktop/page_factory.h"

#include "catalogs/contragent_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "desktop/balance_page.h"
#include "desktop/contragents_page.h"
#include "desktop/journal_page.h"
#include "desktop/measurements_page.h"
#include "desktop/period_sell_page.h"
#include "desktop/product_document_page.h"
#include "desktop/products_page.h"
#include "desktop/stocks_page.h"
#include "documents/document_journal_view_controller.h"
#include "documents/product_document_view_controller.h"
#include "period/balance_view_controller.h"
#include "reports/period_sell_report_view_controller.h"
#include "shell/main_view_controller.h"

namespace zelvor {

namespace {

Page* makePermanentPage(const BaseView* view, MainViewController& workspace, QWidget* parent)
{
    if (view == &workspace.productController->view)
        return new ProductsPage(*workspace.productController, parent);
    if (view == &workspace.contragentController->view)
        return new ContragentsPage(*workspace.contragentController, parent);
    if (view == &workspace.stockController->view)
        return new StocksPage(*workspace.stockController, parent);
    if (view == &workspace.measurementController->view)
        return new MeasurementsPage(*workspace.measurementController, parent);
    if (view == &workspace.balanceController->view)
        return new BalancePage(*workspace.balanceController, parent);
    return nullptr;
}

} // namespace

Page* makePage(const TabPage& page, MainViewController& workspace, QWidget* parent)
{
    if (!page.controller)
        return makePermanentPage(page.view, workspace, parent);
    if (auto* const form = dynamic_cast<ProductDocumentViewController*>(page.controller.get())) {
        auto* const made = new ProductDocumentPage(*form, parent);
        made->onClose = [&workspace, form] { workspace.closeTab(form->mainView.index()); };
        return made;
    }
    if (auto* const journal = dynamic_cast<DocumentJournalViewController*>(page.controller.get()))
        return new JournalPage(*journal, parent);
    if (auto* const report = dynamic_cast<PeriodSellReportViewController*>(page.controller.get()))
        return new PeriodSellPage(*report, parent);
    return nullptr;
}

} // namespace zelvor
