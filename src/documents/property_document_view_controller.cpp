#include "documents/property_document_view_controller.h"

#include "catalogs/contragent_select_view.h"
#include "core/text_order.h"
#include "documents/visible_record.h"
#include "store/params.h"

#include <algorithm>

namespace zelvor {

using enum DocType;

PropertyDocumentViewController::PropertyDocumentViewController(
    AppDelegate& owner, std::shared_ptr<PropertyDocument> documentToShow)
    : DocumentViewController(owner), document(std::move(documentToShow)), mainView(*this)
{
    propertySelectView.addProperty = [this](const std::shared_ptr<Property>& property) {
        addProperty(property);
    };
    bindFields();
    observeCatalogs();
}

PropertyDocumentViewController::~PropertyDocumentViewController() = default;

void PropertyDocumentViewController::bindFields()
{
    docSum.onUserChange = [this] { mainView.checkControlls(); };
    amortizationPeriod.onUserChange = [this] { mainView.checkControlls(); };
    deferment.onUserChange = [this] {
        defermentSlider.setValue(deferment.integer());
        mainView.checkControlls();
    };
    defermentSlider.onUserChange = [this] {
        deferment.setValue(defermentSlider.value());
        mainView.checkControlls();
    };
}

void PropertyDocumentViewController::observeCatalogs()
{
    m_observations.push_back(
        appDelegate.notifications.observe(NotificationName::PropertiesChangedNotification,
                                          [this](const Notification&) { updateProperties(); }));
    m_observations.push_back(
        appDelegate.notifications.observe(NotificationName::ContragentChangedNotification,
                                          [this](const Notification&) { updateContragents(); }));
}

void PropertyDocumentViewController::updateContragents()
{
    if (m_contragentSelectView)
        m_contragentSelectView->markStale();
    if (document->confirmed || document->contragentID == 0)
        return;
    const auto changed = appDelegate.connector.select<Contragent>(document->contragentID, Fill::Nothing);
    if (!changed)
        return;
    document->insertContragent(changed); // the deferment stays as it was entered
    showParties();
}

ContragentSelectView& PropertyDocumentViewController::contragentSelectView()
{
    if (!m_contragentSelectView) {
        m_contragentSelectView = std::make_unique<ContragentSelectView>(appDelegate);
        m_contragentSelectView->sender = this;
    }
    return *m_contragentSelectView;
}

void PropertyDocumentViewController::selectContragent()
{
    if (!document->confirmed && contragentEnabled())
        contragentSelectView().selectPopover.open();
}

bool PropertyDocumentViewController::contragentEnabled() const
{
    const DocType type = document->docType();
    return type == BuyProperty || type == SellProperty;
}

bool PropertyDocumentViewController::propertyTextEnabled() const
{
    const DocType type = document->docType();
    return type == BuyProperty || type == AddProperty;
}

bool PropertyDocumentViewController::propertyControllsEnabled() const
{
    const DocType type = document->docType();
    return type == SellProperty || type == DeleteProperty;
}

bool PropertyDocumentViewController::deleteBasisEnabled() const
{
    return document->docType() == DeleteProperty;
}

bool PropertyDocumentViewController::deleteBasisHidden() const
{
    return !propertyControllsEnabled();
}

bool PropertyDocumentViewController::sumEnabled() const
{
    return document->docType() != DeleteProperty;
}

bool PropertyDocumentViewController::controlsEnabled() const
{
    return propertyTextEnabled();
}

void PropertyDocumentViewController::prepareData()
{
    if (document->id == 0 && document->date == 0)
        document->date = appDelegate.now();
    if (const auto params = appDelegate.params())
        defermentSlider.setMaximum(params->maxDeferment);
    docSum.setValue(document->innerDocSum);
    currentCost.setValue(document->property->innerCurrentCost);
    amortizationPeriod.setValue(document->property->amortizationPeriod);
    if (document->id != 0) // a file may hold any two moments
        deferment.setValue(
            Decimal::fromParts((Int128(document->payToDate) - document->date) / secondsPerDay, 0));
    defermentSlider.setValue(deferment.integer());
    updateInterface();
}

void PropertyDocumentViewController::setNewContragent(const std::shared_ptr<Contragent>& contragent)
{
    if (document->confirmed || !contragentEnabled())
        return;
    document->insertContragent(contragent);
    deferment.setValue(document->contragent->deferment);
    defermentSlider.setValue(deferment.integer());
    showParties();
}

void PropertyDocumentViewController::clearContragent()
{
    setNewContragent(nullptr);
}

bool PropertyDocumentViewController::setContragentFromID(qint64 contragentID)
{
    const auto contragent = visibleRecord<Contragent>(appDelegate.connector, contragentID);
    setNewContragent(contragent);
    return contragent || contragentID == 0;
}

void PropertyDocumentViewController::prepareProperties()
{
    auto held = appDelegate.connector.freeSQL<Property>("WHERE sold_date=?", {0});
    std::ranges::stable_sort(held, NameLess{});
    propertySelectView.setProperties(std::move(held));
    m_propertiesStale = false;
}

void PropertyDocumentViewController::updateProperties()
{
    m_propertiesStale = true;
    if (propertySelectPopover.isOpen())
        prepareProperties();
}

void PropertyDocumentViewController::selectProperty()
{
    if (document->confirmed || !propertyControllsEnabled())
        return;
    if (m_propertiesStale)
        prepareProperties();
    propertySelectPopover.open();
}

void PropertyDocumentViewController::addProperty(const std::shared_ptr<Property>& property)
{
    if (document->confirmed || !propertyControllsEnabled())
        return;
    document->insertProperty(property);
    amortizationPeriod.setValue(document->property->amortizationPeriod);
    currentCost.setValue(document->property->innerCurrentCost);
    if (document->docType() == SellProperty)
        docSum.setValue(document->property->innerCurrentCost);
    mainView.amortizedCheck.setOn(document->property->isAmortized);
    propertySelectPopover.close();
    showParties();
}

void PropertyDocumentViewController::clearProperty()
{
    addProperty(nullptr);
}

void PropertyDocumentViewController::cancelPopover()
{
    propertySelectPopover.close();
}

bool PropertyDocumentViewController::setPropertyFromID(qint64 propertyID)
{
    auto property = propertyID == 0 ? nullptr : appDelegate.connector.select<Property>(propertyID);
    if (property && property->soldDate != 0)
        property.reset();
    addProperty(property);
    return property || propertyID == 0;
}

void PropertyDocumentViewController::prepareDeleteBasises()
{
    auto basises = appDelegate.connector.freeSQL<DeleteBasis>();
    std::ranges::stable_sort(basises, NameLess{});
    std::vector<PopUpButton::Item> items;
    for (const std::shared_ptr<DeleteBasis>& basis : basises)
        items.push_back({.title = basis->name, .tag = basis->id});
    mainView.deleteBasisSelect.setItems(std::move(items));
}

bool PropertyDocumentViewController::setDeleteBasisFromID(qint64 basisID)
{
    if (document->confirmed || deleteBasisHidden())
        return basisID == 0;
    const auto basis = basisID == 0 ? nullptr : appDelegate.connector.select<DeleteBasis>(basisID);
    document->deleteBasis = Link<DeleteBasis>(basis);
    document->deleteBasisID = basis ? basisID : 0;
    showParties();
    return basis || basisID == 0;
}

bool PropertyDocumentViewController::setManagerFromID(qint64 managerID)
{
    if (document->confirmed)
        return false;
    const auto manager = visibleRecord<Manager>(appDelegate.connector, managerID);
    document->insertManager(manager);
    return manager || managerID == 0;
}

void PropertyDocumentViewController::closeDoc()
{
    // A copy: closing may take this form, and the callback with it, away.
    const std::function<void()> close = onClose;
    if (close)
        close();
}

void PropertyDocumentViewController::updateInterface()
{
    documentTitle.setText(document->name());
    documentTitle.setColor(document->titleFontColor());
    mainView.setName(document->name());
    mainView.setTitleColor(document->titleFontColor());
    const bool open = !document->confirmed;
    docSum.setEnabled(open && sumEnabled());
    currentCost.setEnabled(false);
    amortizationPeriod.setEnabled(open && controlsEnabled());
    deferment.setEnabled(open && contragentEnabled());
    defermentSlider.setEnabled(open && contragentEnabled());
    mainView.showDocument();
    showParties();
}

void PropertyDocumentViewController::showParties()
{
    contragentBalance.setValue(document->contragent->innerBalance);
    contragentBalance.setColor(document->contragent->balanceFontColor());
    mainView.showParties();
    mainView.checkControlls();
}

} // namespace zelvor
