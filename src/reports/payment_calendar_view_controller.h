#pragma once

#include "core/notification_center.h"
#include "reports/payment_calendar_view.h"
#include "store/model_controller.h"

#include <vector>

namespace zelvor {

// Who still owes us and whom we still owe: every confirmed document that is not paid in full, as things stand
// now. After a change it is read at once only while somebody looks; otherwise the next who asks has it read.
class PaymentCalendarViewController final : public ModelController {
public:
    explicit PaymentCalendarViewController(AppDelegate& owner);

    PaymentCalendarView mainView;

    void prepareReport();
    // A balance or a document of a counterparty changed.
    void updateReport();
    // Reads a calendar that is out of date.
    void refresh();
    // Another project is coming: nothing of the one that was read stays, and nothing is read yet.
    void forget();
    // Opens the document of a line as a tab; a summary line has none.
    void openDocument(int row);
    // Whether the line's document should have been paid before this moment, by the second.
    bool isOverdue(const PaymentCalendarRow& row) const;

private:
    std::vector<std::shared_ptr<DocumentModel>> readDocuments();

    bool m_stale = true;
    NotificationCenter::Observation m_balanceChanged;
    NotificationCenter::Observation m_documentChanged;
};

} // namespace zelvor
