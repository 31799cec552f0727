#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class DocumentJournalViewController;

// A document journal with its period and type.
class JournalPage : public TablePage {
    Q_OBJECT

public:
    explicit JournalPage(DocumentJournalViewController& controller, QWidget* parent = nullptr);

private:
    DocumentJournalViewController& m_controller;
};

} // namespace zelvor
