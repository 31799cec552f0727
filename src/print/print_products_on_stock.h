#pragma once

#include "print/table_form.h"

namespace zelvor {

// The products on warehouses report on paper. Two warehouses need the sheet's long side; for more there is no
// room. The band has two lines: a warehouse's name stands above its three columns.
class PrintProductsOnStock final : public TableForm {
public:
    PrintProductsOnStock(AppDelegate& owner, QStringList names);

    const QStringList stockNames;
    const bool many; // two warehouses
    qint64 date = 0; // of the report

protected:
    QString heading() const override;
    double bandHeight() const override { return 2 * lineHeight; }
    void drawTitles(Canvas& canvas, double bandTop) const override;
    bool isShown(const TableView& report, int row) const override;
    QString cellText(const TableView& report, int row, const Column& column) const override;
};

} // namespace zelvor
