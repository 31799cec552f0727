#include "desktop/journal_page.h"

#include "core/localized.h"
#include "documents/document_journal_view_controller.h"

namespace zelvor {

JournalPage::JournalPage(DocumentJournalViewController& controller, QWidget* parent)
    : TablePage(controller.mainView, controller.appDelegate.calendar,
                localized("No documents in this period."), parent),
      m_controller(controller)
{}

} // namespace zelvor
