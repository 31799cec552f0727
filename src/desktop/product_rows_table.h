#pragma once

#include "desktop/table_list.h"

class QLineEdit;

namespace zelvor {

// The rows of a product document. Enter in the amount goes to the price, Enter in the price leaves the table
// for the next product; typing a figure on a row edits its amount.
class ProductRowsTable : public TableList {
    Q_OBJECT

public:
    ProductRowsTable(TableView& view, const Calendar& calendar, QWidget* parent = nullptr);

    // Stores what is being typed in a cell. False when that is no number: then the cursor stays there.
    bool finishEditing();
    // As high as the header and all rows: there is no empty ground below the last one.
    int contentHeight() const;

Q_SIGNALS:
    // The row under the cursor is entered, or the cursor was moved down beyond the last one.
    void leftDownwards();
    void deleteRequested();
    // Letters were typed on a row: the beginning of a product's name.
    void nameTyped(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void editCurrent();
    QLineEdit* openEditor() const; // null for none
    void goOn(int key);
};

} // namespace zelvor
