#pragma once

#include "core/view.h"

namespace zelvor {

// The table of a report of a period. The period is the one that the rows were computed for, so that a print
// never tells other dates than its figures have; seconds since 1970 UTC, both as the date pickers had them.
class ReportView : public TableView {
public:
    explicit ReportView(QString viewName) : TableView(std::move(viewName), reportTitleColor)
    {
        setGroundColor(reportGroundColor);
    }

    qint64 start() const { return m_start; }
    qint64 finish() const { return m_finish; }
    void setPeriod(qint64 start, qint64 finish)
    {
        m_start = start;
        m_finish = finish;
    }

    bool canExportToExcel() const override { return true; }

private:
    qint64 m_start = 0;
    qint64 m_finish = 0;
};

} // namespace zelvor
