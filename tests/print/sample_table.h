#pragma once

#include "core/view.h"

#include <QtCore/QHash>

#include <utility>
#include <vector>

namespace zelvor {

// A report of given cells, whatever the columns are called.
class SampleTable : public TableView {
public:
    using Cells = QHash<QString, QVariant>;

    SampleTable() : TableView(QStringLiteral("Sample"), blackColor) {}
    // One row, of that name.
    explicit SampleTable(const QString& rowName) : SampleTable()
    {
        append({{QStringLiteral("name"), rowName}});
    }

    void append(Cells cells, bool isGathering = false) { m_lines.push_back({std::move(cells), isGathering}); }

    std::vector<ViewColumn> columns() const override { return {}; }
    int numberOfRows() const override { return static_cast<int>(m_lines.size()); }
    QVariant value(int row, const QString& identifier) const override
    {
        return m_lines[static_cast<std::size_t>(row)].cells.value(identifier, QString());
    }
    CellStyle cellStyle(int row, const QString&) const override
    {
        const bool isGathering = m_lines[static_cast<std::size_t>(row)].isGathering;
        return {.font = isGathering ? CellFont::GatheringBold12 : CellFont::Small};
    }

private:
    struct Line {
        Cells cells;
        bool isGathering;
    };
    std::vector<Line> m_lines;
};

} // namespace zelvor
