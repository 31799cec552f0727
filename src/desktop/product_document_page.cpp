#include "desktop/product_document_page.h"

#include "core/localized.h"
#include "documents/product_document_view_controller.h"

namespace zelvor {

ProductDocumentPage::ProductDocumentPage(ProductDocumentViewController& controller, QWidget* parent)
    : TablePage(controller.mainView, controller.appDelegate.calendar, localized("No rows yet."), parent),
      m_controller(controller)
{}

} // namespace zelvor
