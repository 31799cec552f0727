#pragma once

#include "catalogs/selection_owner.h"
#include "core/notification_center.h"
#include "documents/document_view_controller.h"
#include "documents/product_document.h"
#include "documents/product_document_view.h"
#include "documents/product_finder.h"

#include <functional>
#include <memory>
#include <vector>

namespace zelvor {

class ContragentSelectView;
class MeasurementViewController;
class ProductViewController;

// The form of a product document: its rows, prices, discount, taxes and totals, saving it as a draft,
// deleting the draft, confirming it. Actions answer whether they were carried out; a refused confirmation has
// shown an alert and changed nothing, neither in the file nor in the document.
//
// Who fills the form without a screen: prepareData(), then the counterparty and the warehouses by their ids,
// the discount, the rows, and last what a row differs in. The product tree and the counterparty chooser are
// made when they are asked for.
class ProductDocumentViewController final : public DocumentViewController, public ContragentSelectProtocol {
public:
    // A new document has its type and nothing else.
    ProductDocumentViewController(AppDelegate& owner, std::shared_ptr<ProductDocument> documentToShow);
    ~ProductDocumentViewController() override;

    const std::shared_ptr<ProductDocument> document;
    NumberField deferment{QStringLiteral("deferment")};                   // days
    NumberField contragentDiscount{QStringLiteral("contragentDiscount")}; // percent
    Slider contragentDiscountSlider{QStringLiteral("contragentDiscountSlider")};
    CheckBox vatCheck{QStringLiteral("vatCheck")}; // prices include VAT
    CheckBox gstCheck{QStringLiteral("gstCheck")}; // GST comes on top of prices
    NumberField shipment{QStringLiteral("shipment")};
    NumberField totalAmount{QStringLiteral("totalAmount")};
    NumberField totalPacks{QStringLiteral("totalPacks")};
    NumberField totalSum{QStringLiteral("totalSum")};   // without tax and shipment
    NumberField vatAmount{QStringLiteral("vatAmount")}; // of the tax that leads, VAT or GST
    NumberField balanceDue{QStringLiteral("balanceDue")};
    ProductDocumentView mainView;
    // The counterparty chooser, and the product tree beside the table with its units; each is made when it
    // is asked for.
    ContragentSelectView& contragentSelectView();
    ProductViewController& mainProductView();
    // The products of that tree by what is typed of their names.
    ProductFinder& productFinder();
    // Takes the tab away; set by whoever shows the form.
    std::function<void()> onClose;
    // Ends what is being typed on the screen; false when that cannot be taken over. Set by whoever shows the
    // form.
    std::function<bool()> onEndEditing;

    DocumentModel& documentModel() override { return *document; }
    QStringList missingInputs() const override { return mainView.missingInputs(); }
    void prepareData() override;

    // Neither confirmed nor out of a project that is open for reading only.
    bool isEditable() const { return !document->confirmed && !appDelegate.connector.isReadOnly(); }

    // What the document's type uses; a warehouse and a counterparty that it uses are also required.
    bool stockFromEnabled() const;
    bool stockToEnabled() const;
    bool contragentEnabled() const;
    bool shipmentEnabled() const;
    bool discountEnabled() const;

    void selectContragent(); // opens the chooser
    void setNewContragent(const std::shared_ptr<Contragent>& contragent) override;
    void clearContragent();
    // The record with that id, 0 for none. False, and nothing chosen, when there is no such record or it is
    // hidden.
    bool setContragentFromID(qint64 contragentID);
    bool setManagerFromID(qint64 managerID); // the responsible employee

    // What a new row of the product costs.
    Decimal rowPrice(const Product& product) const;
    // The row with the product, or none.
    std::shared_ptr<ProductDocumentRow> hasRowWithProduct(const Product& product) const;
    // A drop on the table: one more of a product that has a row, otherwise a new row at the type's price.
    // The row's place, or -1 when the document takes no more rows or there is no such product.
    int addProduct(const std::shared_ptr<Product>& product);
    int addProductFromID(qint64 productID);
    // "amount", "price", "includeShipment" (0 is off), and "vatRate", "gstRate" in percent. False, and
    // nothing changed, for a number that cannot be kept.
    bool setRowValue(int row, const QString& identifier, const Decimal& value);
    // The selected row; one that is stored leaves the file at once.
    bool deleteRow();
    void calculateTotals();
    // Prices every row anew by the form's discount, but for products without a price. Whether a price became
    // another one.
    bool checkDiscount();

    bool writeDoc();
    bool deleteDoc();
    // The same, when the user says so: there is no way back.
    void askDeleteDoc();
    void closeDoc();
    bool confirmDoc();
    void changeInterface();

    // The warehouse that goods leave was chosen: the product tree shows what it holds.
    void stockFromChanged();
    void updateContragents();
    void updateStocks();
    void updateManagers() { mainView.managersChanged(); }

private:
    struct Confirmation; // the steps by type, and what is told afterwards
    bool isSell() const;
    std::shared_ptr<ProductDocumentRow> newRow(const std::shared_ptr<Product>& product);
    Decimal discounted(const Decimal& price) const;
    bool hasStorableNumbers(); // shows an alert when not
    bool checkStoredRows();
    void takeFields();
    void rowsChanged();
    void setDiscount(const Decimal& percent);
    void observeCatalogs();
    void initialColumnHide();

    bool runSteps();
    void readAnew();
    bool checkDate();
    bool checkStockAmount();
    bool deleteProductsFromStock();
    bool addProductsToStock();
    bool changeBaseCosts();
    bool checkProductDocs();
    bool changeContragentBalance();
    void finalizeDocument();
    void postConfirmed();

    std::vector<NotificationCenter::Observation> m_observations;
    std::unique_ptr<ContragentSelectView> m_contragentSelectView;
    std::unique_ptr<MeasurementViewController> m_measurementController;
    std::unique_ptr<ProductViewController> m_mainProductView;
    std::unique_ptr<ProductFinder> m_productFinder;
    std::shared_ptr<const bool> m_alive = std::make_shared<bool>(true); // for answers that come late
};

} // namespace zelvor
