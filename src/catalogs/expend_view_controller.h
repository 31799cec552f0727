#pragma once

#include "catalogs/add_menu_button.h"
#include "catalogs/expend_view.h"
#include "catalogs/tree_catalog_controller.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

// The spendings catalog: kinds of expense and their groups. A tick in the list or a move tells nobody; only
// the popovers do.
class ExpendViewController : public TreeCatalogController<ExpendModel, ExpendType, Expend> {
public:
    explicit ExpendViewController(AppDelegate& owner);

    ExpendView view{*this};
    AddMenuButton addExpendButton{u"addExpendButton"_s};

    Popover expendTypePopover{u"expendTypePopover"_s};
    Label expendTypePopoverName{u"expendTypePopoverName"_s};
    TextField expendTypeName{u"expendTypeName"_s};
    PopUpButton expendTypeGroupSelect{u"expendTypeGroupSelect"_s};
    Label expendTypeError{u"expendTypeError"_s};
    Button expendTypeOkButton{u"expendTypeOkButton"_s};

    Popover expendPopover{u"expendPopover"_s};
    Label expendPopoverName{u"expendPopoverName"_s};
    TextField expendName{u"expendName"_s};
    PopUpButton expendGroupSelect{u"expendGroupSelect"_s};
    TextField expendDescription{u"expendDescription"_s};
    CheckBox expendConstantCheckBox{u"expendConstantCheckBox"_s};
    CheckBox expendHiddenCheckBox{u"expendHiddenCheckBox"_s};
    Label expendError{u"expendError"_s};
    Button expendOkButton{u"expendOkButton"_s};

    void prepareExpends() { prepare(); }
    void addExpend();
    void addExpendType();
    void addExpendTypeFromPopover();
    void editExpend() { edit(); }
    void writeExpend() { write(); }
    void cancelExpendPopover() { cancelLeaf(); }
    void cancelExpendTypePopover() { cancelGroup(); }
    void clearExpendPopover() { clearLeafForm(); }
    void clearExpendTypePopover() { clearGroupForm(); }
    bool updateExpend(const std::shared_ptr<Expend>& expend) { return update(expend); }
    bool updateExpendType(const std::shared_ptr<ExpendType>& type) { return update(type); }
    void bindExpendFields() { bindLeafFields(); }
    void bindExpendTypeFields() { bindGroupFields(); }
    void backBindExpendFields() { backBindLeafFields(); }
    void backBindExpendTypeFields() { backBindGroupFields(); }
    void initExpendTypeSelects() { initGroupSelects(); }

protected:
    ExpendView& tree() override { return view; }
    TreeForm groupForm() override;
    TreeForm leafForm() override;
    void bindGroup(ExpendType& type) override;
    void bindLeaf(Expend& expend) override;
    void backBindGroup(ExpendType& type) override;
    bool backBindLeaf(Expend& expend) override;
    QString titleOfEdited(bool group) const override;
    void postChanged() override;
    void postUpdated() override {}
    void treeBuilt() override { initExpendTypeSelects(); }
    QString emptyChoiceTitle() const override { return u"-----"_s; }
};

} // namespace zelvor
