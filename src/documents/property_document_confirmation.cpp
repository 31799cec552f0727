#include "core/localized.h"
#include "documents/property_document_view_controller.h"
#include "store/user_write.h"

#include <algorithm>
#include <array>

// The confirmation of a fixed-asset document: what is done and told for each type stands in the tables below.

namespace zelvor {

using enum DocType;
using enum NotificationName;

struct PropertyDocumentViewController::Confirmation {
    using Form = PropertyDocumentViewController;
    using Step = bool (Form::*)();
    struct Steps {
        DocType type;
        std::array<Step, 4> steps; // run in order until one refuses or none is left
    };

    static constexpr std::array<Steps, 4> byType{{
        {BuyProperty,
         {&Form::checkDate, &Form::setDocumentNumber, &Form::checkProductDocs,
          &Form::changeContragentBalance}},
        {SellProperty,
         {&Form::checkDate, &Form::setDocumentNumber, &Form::checkProductDocs,
          &Form::changeContragentBalance}},
        {AddProperty, {&Form::checkDate, &Form::setDocumentNumber}},
        {DeleteProperty, {&Form::checkDate, &Form::setDocumentNumber}},
    }};

    static constexpr std::array toldForAll{PropertiesChangedNotification, BalanceChangedNotification};
    static constexpr std::array toldWithContragent{DocWithContragentChangedNotification,
                                                   ContragentBalanceChangedNotification};
};

bool PropertyDocumentViewController::confirmDoc()
{
    if (!isReadyToConfirm())
        return false;
    progress.start();
    const PropertyDocument before = *document;
    UserWrite write(appDelegate.connector);
    document->innerDocSum = docSum.value().rounded(PropertyDocument::decimalHandler);
    if (!checkStoredDraft<PropertyDocument>() || !readAnew() || !runSteps() || !readProperty()) {
        write.fail();
    } else {
        finalizeDocument();
        if (!storeProperty(write) || !storeDocument(write))
            fail(localized("Can't confirm document.\n"));
    }
    const bool refused = write.failed();
    const bool confirmed = write.finish([this] {
        updateInterface();
        postConfirmed();
    });
    if (!confirmed) {
        *document = before;
        updateInterface();
        announceTakenBack();
        // Of a commit that failed the application has told already.
        if (refused)
            showAlert();
    }
    progress.stop();
    alertMessage.clear();
    return confirmed;
}

// The counterparty that the confirmation will change, as it stands in the file.
bool PropertyDocumentViewController::readAnew()
{
    Connector& connector = appDelegate.connector;
    if (contragentEnabled()) {
        const auto contragent = connector.select<Contragent>(document->contragentID, Fill::Nothing);
        if (!contragent) {
            fail(localized("Failed to change contragent's balance.\n"));
            fail(localized("Can't confirm document.\n"));
            return false;
        }
        document->insertContragent(contragent);
    }
    return true;
}

// Behind the check of the date: a month that it closes depreciates the asset. A new asset is copied, so that
// the form's own stays as it was typed when the confirmation fails.
bool PropertyDocumentViewController::readProperty()
{
    Connector& connector = appDelegate.connector;
    if (propertyTextEnabled()) {
        document->property = Link<Property>(std::make_shared<Property>(*document->property));
        return true;
    }
    const auto property = connector.select<Property>(document->propertyID, Fill::Nothing);
    if (!property || property->soldDate != 0) {
        fail(localized("The fixed asset is sold or written off already.\n"));
        fail(localized("Can't confirm document.\n"));
        return false;
    }
    document->insertProperty(property);
    return true;
}

bool PropertyDocumentViewController::runSteps()
{
    const auto entry =
        std::ranges::find(Confirmation::byType, document->docType(), &Confirmation::Steps::type);
    if (entry == Confirmation::byType.end())
        return false;
    return std::ranges::all_of(
        entry->steps, [this](Confirmation::Step step) { return step == nullptr || (this->*step)(); });
}

bool PropertyDocumentViewController::checkDate()
{
    return checkDateStep(
        localized("Last report period must be closed before we can proceed document with date from later "
                  "period. But we can't now close it for unknown reason!\n"));
}

// A credit that this document meets settles open documents of the opposite direction.
bool PropertyDocumentViewController::checkProductDocs()
{
    const Decimal& balance = document->contragent->innerBalance;
    const bool buys = document->docType() == BuyProperty;
    if (buys ? !balance.isNegative() : !balance.isPositive())
        return true;
    const Decimal credit = balance.absolute();
    const Decimal rest = document->innerDocSum <= credit ? document->innerDocSum : credit;
    return settle(buys ? openDocuments(SellProduct, SellIntangibles, SellProperty)
                       : openDocuments(BuyProduct, Return, BuyProperty),
                  rest);
}

bool PropertyDocumentViewController::changeContragentBalance()
{
    Contragent& contragent = document->contragent.edit();
    const Decimal balance = contragent.innerBalance;
    document->innerContragentBalance = balance;
    if (document->docType() == BuyProperty)
        contragent.addToBalance(document->innerDocSum);
    else
        contragent.subtractFromBalance(document->innerDocSum);
    setLeftToPay(balance);
    if (appDelegate.connector.update(contragent) == 1)
        return true;
    fail(localized("Failed to change contragent's balance.\n"));
    fail(localized("Can't confirm document.\n"));
    return false;
}

// What stays open of the sum after the counterparty's credit: money that it owes us counts for a purchase,
// money that it has with us for a sale.
void PropertyDocumentViewController::setLeftToPay(const Decimal& balance)
{
    const Decimal credit = document->docType() == BuyProperty ? balance.negated() : balance;
    const Decimal& sum = document->innerDocSum;
    if (!credit.isPositive())
        document->innerLeftToPay = sum;
    else if (credit < sum)
        document->innerLeftToPay = sum.minus(credit, PropertyDocument::decimalHandler);
    else
        document->innerLeftToPay = Decimal();
}

void PropertyDocumentViewController::finalizeDocument()
{
    document->payToDate = document->date + deferment.integer() * secondsPerDay;
    Property& property = document->property.edit();
    if (propertyTextEnabled()) {
        property.innerBaseCost = document->innerDocSum;
        property.innerCurrentCost = document->innerDocSum;
        property.amortizationPeriod = amortizationPeriod.integer();
        property.date = document->date;
    } else {
        property.soldDate = document->date;
        document->deleteBasisID = mainView.deleteBasisSelect.selectedTag();
    }
}

bool PropertyDocumentViewController::storeProperty(UserWrite& write)
{
    Property& property = document->property.edit();
    return write.step(property.id == 0 ? appDelegate.connector.insert(property)
                                       : appDelegate.connector.update(property));
}

bool PropertyDocumentViewController::storeDocument(UserWrite& write)
{
    document->confirmed = true;
    document->propertyID = document->property->id;
    return write.step(document->id == 0 ? appDelegate.connector.insert(*document)
                                        : appDelegate.connector.update(*document));
}

void PropertyDocumentViewController::postConfirmed()
{
    for (const NotificationName name : Confirmation::toldForAll)
        appDelegate.notifications.post(name, this);
    if (!contragentEnabled())
        return;
    for (const NotificationName name : Confirmation::toldWithContragent)
        appDelegate.notifications.post(name, this);
}

} // namespace zelvor
