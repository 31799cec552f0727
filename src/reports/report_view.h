#pragma once

#include "core/view.h"

#include <functional>
#include <utility>

namespace zelvor {

// The table of a report of a period. The period is the one that the rows were computed for, so that a print
// never tells other dates than its figures have; seconds since 1970 UTC, both as the date pickers had them.
class ReportView : public TableView {
public:
    explicit ReportView(QString viewName) : TableView(std::move(viewName), reportTitleColor)
    {
        setGroundColor(reportGroundColor);
    }

    qint64 start() const
    {
        refresh();
        return m_start;
    }
    qint64 finish() const
    {
        refresh();
        return m_finish;
    }
    // Whoever computes rows sets their period first.
    void setPeriod(qint64 start, qint64 finish)
    {
        m_start = start;
        m_finish = finish;
        m_computed = true;
        m_stale = false;
    }

    // Computes the report again; hung on by the controller of a report that follows changes of the file.
    std::function<void()> computeAgain;
    // The file changed and the report with it: it is computed again at once while it is on the screen,
    // otherwise when somebody asks for its rows. One that was never computed waits for its user.
    void markStale()
    {
        m_stale = m_computed;
        if (isVisible())
            refresh();
    }

    bool canExportToExcel() const override { return true; }

protected:
    // Every question about the rows comes by here first.
    void refresh() const
    {
        if (std::exchange(m_stale, false) && computeAgain)
            computeAgain();
    }

private:
    qint64 m_start = 0;
    qint64 m_finish = 0;
    bool m_computed = false;
    mutable bool m_stale = false;
};

} // namespace zelvor
