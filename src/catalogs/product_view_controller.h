#pragma once

#include "catalogs/add_menu_button.h"
#include "catalogs/product_view.h"
#include "catalogs/tree_catalog_controller.h"
#include "core/doc_type.h"

#include <optional>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class MeasurementViewController;

// What the product chooser of a document form knows of its document.
struct ChooserDocument {
    DocType docType = DocType::NilType;
    qint64 stockID = 0; // the warehouse that the document takes from; 0: none
    QString stockName;
};

// The product catalog. With a document set it is the chooser of that document's form: it shows what the
// warehouse holds and only the products that the document can take.
class ProductViewController : public TreeCatalogController<ProductModel, ProductGroup, Product> {
public:
    explicit ProductViewController(AppDelegate& owner);

    ProductView view{*this};
    MeasurementViewController* measurementController =
        nullptr;                    // adds a unit from the popover; set from outside
    bool addNewMeasurement = false; // a unit is being added from the popover
    bool onlyIntangibles = false;
    std::optional<ChooserDocument> document; // none on the catalog's own tab
    std::optional<QString> senderIdentifier; // who asked for the new unit

    Popover productGroupPopover{u"productGroupPopover"_s};
    Label productGroupPopoverName{u"productGroupPopoverName"_s};
    TextField productGroupName{u"productGroupName"_s};
    PopUpButton productGroupGroupSelect{u"productGroupGroupSelect"_s};
    TextField productGroupDescription{u"productGroupDescription"_s};
    Label productGroupError{u"productGroupError"_s};
    Button productGroupOkButton{u"productGroupOkButton"_s};

    Popover productPopover{u"productPopover"_s};
    Label productPopoverName{u"productPopoverName"_s};
    TextField productName{u"productName"_s};
    CheckBox productIsIntangibleCheckBox{u"productIsIntangibleCheckBox"_s};
    PopUpButton productGroupSelect{u"productGroupSelect"_s};
    PopUpButton productMeasurementSelect{u"productMeasurementSelect"_s};
    PopUpButton productPackSelect{u"productPackSelect"_s};
    NumberField productPackAmount{u"productPackAmount"_s};
    NumberField productBaseCost{u"productBaseCost"_s};
    Button productBaseCostOpenButton{u"productBaseCostOpenButton"_s};
    NumberField productPriceCost{u"productPriceCost"_s};
    NumberField productVatRate{u"productVatRate"_s};
    NumberField productGstRate{u"productGstRate"_s};
    TextField productDescription{u"productDescription"_s};
    Label productError{u"productError"_s};
    Button productOkButton{u"productOkButton"_s};

    AddMenuButton addProductButton{u"addProductButton"_s};
    Label stockNameLabelForProducts{u"stockNameLabelForProducts"_s};

    // Makes this the chooser of a document. Nothing is read before the tree is asked for.
    void setDocument(DocType docType, qint64 stockID, const QString& stockName);
    void prepareProducts();
    // Fills in what the document's warehouse holds and takes out what the document cannot take. Until the
    // products are prepared anew, what is out stays out.
    void prepareStockAmount();
    void prepareMeasurements();
    void refresh() override;
    void markStale() override;
    // A fresh empty unit when there is none of that id.
    std::shared_ptr<Measurement> getMeasurementWithID(qint64 id);
    QString getNameOfMeasurementWithID(qint64 id) { return getMeasurementWithID(id)->name; }

    void addProduct();
    void addProductGroup();
    void addProductGroupFromPopover();
    void editProduct() { edit(); }
    void writeProduct() { write(); }
    void cancelProductPopover() { cancelLeaf(); }
    void cancelProductGroupPopover() { cancelGroup(); }
    void clearProductPopover() { clearLeafForm(); }
    void clearProductGroupPopover() { clearGroupForm(); }
    bool updateProduct(const std::shared_ptr<Product>& product) { return update(product); }
    bool updateProductGroup(const std::shared_ptr<ProductGroup>& group) { return update(group); }
    void bindProductFields() { bindLeafFields(); }
    void bindProductGroupFields() { bindGroupFields(); }
    void backBindProductFields() { backBindLeafFields(); }
    void backBindProductGroupFields() { backBindGroupFields(); }
    void initProductGroupSelects() { initGroupSelects(); }
    void initMeasurementsSelect();
    // The lock of the base cost; the button shows the state that the user just gave it, off for open.
    void openCloseBaseCost();
    // Adds a unit from the product's popover: "newMeasurement" for the unit, anything else for the pack.
    void addMeasurement(const QString& sender);

    // Notifications.
    void updateMeasurements(const Notification& notification);
    void cancelUpdateMeasurements();
    void updateSelf(const Notification& notification);
    void updateProductAmount();
    void updateProductBaseCost();

protected:
    ProductView& tree() override { return view; }
    TreeForm groupForm() override;
    TreeForm leafForm() override;
    void bindGroup(ProductGroup& group) override;
    void bindLeaf(Product& product) override;
    void backBindGroup(ProductGroup& group) override;
    bool backBindLeaf(Product& product) override;
    void clearLeaf() override;
    void closeLocks() override;
    QString titleOfEdited(bool group) const override;
    void postChanged() override;
    void prepareLinked() override { prepareMeasurements(); }
    void treeBuilt() override { initProductGroupSelects(); }
    void takenBack() override;

private:
    void renewMeasurements();
    void readStockRows(qint64 stockID);
    void keepWhatTheDocumentTakes();
    void removeAllButTangible(bool intangible);
    void removeWithoutStock();
    void stockChanged();

    bool m_measurementsStale = false;
    bool m_stockStale = false;
};

} // namespace zelvor
