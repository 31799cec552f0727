#pragma once

#include "catalogs/delete_basis_view.h"
#include "catalogs/flat_catalog_controller.h"

namespace zelvor {

// The catalog of reasons for writing an asset off. Nobody is told of a change: documents read it when they
// open.
class DeleteBasisViewController : public FlatCatalogController<DeleteBasis> {
public:
    explicit DeleteBasisViewController(AppDelegate& owner);

    DeleteBasisView view{*this};
    Popover basisPopover{QStringLiteral("basisPopover")};
    Label basisPopoverTitle{QStringLiteral("basisPopoverTitle")};
    TextField basisName{QStringLiteral("basisName")};
    Label basisWarning{QStringLiteral("basisWarning")};
    Button okButton{QStringLiteral("okButton")};

    void addBasis();
    void editBasis();
    void cancelBasisPopover() { closeForm(); }
    void writeBasis() { writeForm(); }
    void bindFields() override { basisName.setText(focusedObject->name); }
    void backBindFields() override { focusedObject->name = basisName.text(); }
    void prepareBasises() { prepare(); }

protected:
    CatalogListView<DeleteBasis>& list() override { return view; }
    CatalogForm form() override
    {
        return {basisPopover, basisPopoverTitle, basisName, basisWarning, okButton};
    }
};

} // namespace zelvor
