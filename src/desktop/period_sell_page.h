#pragma once

#include "core/outlets.h"
#include "desktop/list_page.h"

#include <QtCore/QPointer>

class QPushButton;

namespace zelvor {

class FilterField;
class PeriodBar;
class SortKeeper;
class PeriodSellReportViewController;
class SelectionPopover;

// The report of what was sold in a period, with its filters. It is computed when the user asks for it; a
// line beside the button says while the table does not show what was chosen since.
class PeriodSellPage : public TablePage {
    Q_OBJECT

public:
    explicit PeriodSellPage(PeriodSellReportViewController& controller, QWidget* parent = nullptr);
    ~PeriodSellPage() override;

    void takeFocus() override;
    bool can(PageCommand command) const override;
    void perform(PageCommand command) override;

private:
    QLayout* makePeriodAndFilters();
    QLayout* makeShape();
    QWidget* makeReportType();
    FilterField* addFilter(QLayout* bar, const QString& name, const QString& title, Label& display);
    template <class SelectView>
    void addPopover(SelectView& view, const QString& title, FilterField* field);
    SelectionPopover* openPopover() const; // none is
    void run();
    void listen();
    void markOutdated();
    void showResult();

    PeriodSellReportViewController& m_controller;
    PeriodBar* m_period = nullptr;
    SortKeeper* m_order;
    QWidget* m_lastFilter = nullptr;
    QPushButton* m_refresh = nullptr;
    QLabel* m_outdated = nullptr;
    std::vector<QPointer<SelectionPopover>> m_popovers; // children of the window
};

} // namespace zelvor
