#pragma once

#include "core/doc_type.h"
#include "core/outlets.h"
#include "core/view.h"

#include <memory>
#include <vector>

namespace zelvor {

class Params;
class Product;
class ProductDocument;
class ProductDocumentViewController;
class Stock;

// The table of a product document's rows with the controls around it: chooses the warehouses, shows the
// columns that the taxes ask for, and says what is still missing. Its ground warns while there are no rows.
//
// Columns: includeShipment, name, measurement, amount, packs, price, vatPercent, vat, totalNet, total.
class ProductDocumentView : public TableView {
public:
    explicit ProductDocumentView(ProductDocumentViewController& controller);

    // The settings as the form was opened; the empty settings in a file without any.
    std::shared_ptr<Params> params;
    std::vector<std::shared_ptr<Stock>> stocks; // not hidden, by name

    DatePicker date{QStringLiteral("date")};
    PopUpButton stockFromSelect{QStringLiteral("stockFromSelect")};
    PopUpButton stockToSelect{QStringLiteral("stockToSelect")};
    TextField contragentField{QStringLiteral("contragentField")}; // the name: chosen, never typed
    TextField comment{QStringLiteral("comment")};
    // The responsible employee. Holds only the document's own until prepareManagers() fills it.
    PopUpButton managerSelect{QStringLiteral("managerSelect")};

    Label stockFromLabel{QStringLiteral("stockFromLabel")};
    Label stockToLabel{QStringLiteral("stockToLabel")};
    Label contragentLabel{QStringLiteral("contragentLabel")};
    Label managerLabel{QStringLiteral("managerLabel")};
    Label saldoLabel{QStringLiteral("saldoLabel")};
    Label shipmentLabel{QStringLiteral("shipmentLabel")};
    Label totalLabel{QStringLiteral("totalLabel")};
    Label vatAmountLabel{QStringLiteral("vatAmountLabel")};
    Label balanceDueLabel{QStringLiteral("balanceDueLabel")};

    Button deleteSelectedRowsButton{QStringLiteral("deleteSelectedRowsButton")};
    Button deleteDocButton{QStringLiteral("deleteDocButton")};
    Button saveButton{QStringLiteral("saveButton")};
    Button confirmButton{QStringLiteral("confirmButton")};

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override;
    QVariant value(int row, const QString& identifier) const override;
    // A number may be given as a number or as a plain text: "12.50".
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    // A row dragged out of the product tree beside the table; only a product is taken, a group is not. The
    // row that it became is the selected one.
    bool validateDrop(const QString& pasteboard) const;
    bool acceptDrop(const QString& pasteboard);

    // Reads the warehouses into the pop-ups of the type; the document's own stay selected.
    void prepareStocks();
    // Reads the employees who are not hidden into their pop-up; from then on it follows the catalog.
    void prepareManagers();
    void managersChanged();
    void showManager();
    // The default warehouse, where the type uses one.
    void setDefaults();
    // Takes over the warehouse with that id, 0 for none. False, and nothing chosen, when there is no such
    // warehouse or it is hidden.
    bool setStockFromID(qint64 stockID);
    bool setStockToID(qint64 stockID);

    // Shows the document's values and enables what its type uses, while it is unconfirmed.
    void showDocument();
    void showContragent();
    // Title, number and colour as the document has them now.
    void showTitle();
    // Paints the labels of the required inputs, the ground and the confirm button.
    void paintRequired();
    void enableFields();
    // Shows the tax columns and their label, headed by the tax that leads.
    void showHideColumns();

    // What the user did.
    void checkControlls(const Outlet* sender = nullptr);
    void taxesChecked();
    void shipmentChanged();
    void discountChanged();
    // Another row of the table was selected, or none.
    void selectionChanged();
    // The labels of required inputs that are still missing, in form order.
    QStringList missingInputs() const;

private:
    enum class Tax { None, VAT, GST };
    struct Required {
        const Label* label;
        bool filled;
    };
    Tax tax() const;
    ProductDocument& document() const;
    QString rowIdentifier(const QString& column) const;
    std::vector<Required> required() const;
    void writeLabels();
    void bindFields();
    std::shared_ptr<Product> droppedProduct(const QString& pasteboard) const;
    std::shared_ptr<Stock> stockWithID(qint64 stockID) const;
    void fillStockSelect(PopUpButton& select, qint64 heldID, const QString& heldName) const;
    bool takeStockFrom(qint64 stockID);
    bool takeStockTo(qint64 stockID);

    ProductDocumentViewController& m_controller;
    bool m_managersPrepared = false;
};

} // namespace zelvor
