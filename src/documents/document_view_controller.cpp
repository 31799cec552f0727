#include "documents/document_view_controller.h"

#include "core/localized.h"
#include "documents/document_number.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "documents/property_document.h"
#include "period/period_closing.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

bool DocumentViewController::checkPopUp(const PopUpButton& popUp, Label& label)
{
    const bool filled = popUp.selectedTag() != 0;
    label.setColor(filled ? inOrderColor : redColor);
    return filled;
}

bool DocumentViewController::checkTextField(const TextField& field, Label& label)
{
    const bool filled = !field.text().isEmpty();
    label.setColor(filled ? inOrderColor : redColor);
    return filled;
}

bool DocumentViewController::isStorable(const Decimal& number)
{
    constexpr Decimal largest{10'000'000'000'000};
    return number.absolute() <= largest;
}

bool DocumentViewController::isReadyToConfirm()
{
    const QStringList missing = missingInputs();
    if (documentModel().confirmed)
        fail(localized("The document is confirmed already.\n"));
    else if (!missing.isEmpty())
        alertMessage += localized("These inputs are missing: ") + missing.join(u", "_s) + u".\n"_s;
    if (alertMessage.isEmpty())
        return true;
    showAlert();
    return false;
}

bool DocumentViewController::hasLaterDocument(qint64 date)
{
    constexpr auto later = "WHERE date>? AND is_confirmed=1";
    Connector& connector = appDelegate.connector;
    return connector.any<ProductDocument>(later, {date}) || connector.any<MoneyDocument>(later, {date}) ||
           connector.any<PropertyDocument>(later, {date});
}

bool DocumentViewController::refuseDate(const QString& message)
{
    alertMessage = message;
    return false;
}

bool DocumentViewController::checkDateStep(const QString& closingFailed)
{
    m_closedPeriod = false;
    const qint64 date = documentModel().date;
    if (hasLaterDocument(date))
        return refuseDate(localized("Can't confirm document: already have document with later date!\n"));
    if (date >= appDelegate.now())
        return refuseDate(localized("Can't confirm document with date from future!\n"));
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return refuseDate(localized("Can't check last report period!\n Can't confirm document!\n"));
    PeriodClosing period(appDelegate);
    if (date < period.timeIntervalFromInt(params->lastPeriodSaved))
        return refuseDate(localized("You are trying to confirm document with date from closed period!\n"));
    if (period.isPeriodSaved(params->lastPeriodSaved))
        return true;
    m_closedPeriod = period.closePeriodInside(period.getStartPeriodDateFromDate(date, *params), *params);
    return m_closedPeriod || refuseDate(closingFailed);
}

bool DocumentViewController::setDocumentNumber()
{
    DocumentModel& document = documentModel();
    const auto counters =
        appDelegate.connector.freeSQL<DocumentNumber>("WHERE doc_type_id=?", {document.docTypeID});
    // A file may hold any number; behind the last one there is none to hand out.
    constexpr qint64 lastNumber = std::numeric_limits<qint64>::max();
    if (!counters.empty() && counters.front()->docNumber < lastNumber) {
        document.docNumber = counters.front()->getNextNumber();
        if (appDelegate.connector.update(*counters.front()) == 1)
            return true;
    }
    fail(localized("Can't get serial number for document.\n"));
    fail(localized("Can't confirm document.\n"));
    return false;
}

std::vector<std::shared_ptr<DocumentModel>>
DocumentViewController::openDocuments(DocType productType, DocType otherProductType, DocType propertyType)
{
    const qint64 contragentID = documentModel().contragentID;
    Connector& connector = appDelegate.connector;
    const auto products = connector.freeSQL<ProductDocument>(
        "WHERE (doc_type_id=? OR doc_type_id=?) AND contragent_id=? AND left_to_pay>0 AND is_confirmed=1",
        {productType, otherProductType, contragentID}, Fill::Nothing);
    const auto properties = connector.freeSQL<PropertyDocument>(
        "WHERE doc_type_id=? AND contragent_id=? AND left_to_pay>0 AND is_confirmed=1",
        {propertyType, contragentID}, Fill::Nothing);
    std::vector<std::shared_ptr<DocumentModel>> open(products.begin(), products.end());
    std::ranges::sort(open, {}, &DocumentModel::id);
    open.insert(open.end(), properties.begin(), properties.end());
    std::ranges::sort(open.begin() + std::ssize(products), open.end(), {}, &DocumentModel::id);
    std::ranges::stable_sort(open, {}, &DocumentModel::payToDate);
    return open;
}

bool DocumentViewController::settle(const std::vector<std::shared_ptr<DocumentModel>>& open, Decimal rest)
{
    for (const std::shared_ptr<DocumentModel>& document : open) {
        const Decimal paid = std::min(document->innerLeftToPay, rest,
                                      [](const Decimal& a, const Decimal& b) { return a < b; });
        document->innerLeftToPay = document->innerLeftToPay.minus(paid, DocumentModel::decimalHandler);
        rest = rest.minus(paid, DocumentModel::decimalHandler);
        Connector& connector = appDelegate.connector;
        const auto property = std::dynamic_pointer_cast<PropertyDocument>(document);
        const int result = property ? connector.update(*property)
                                    : connector.update(static_cast<ProductDocument&>(*document));
        if (result != 1)
            return false;
        if (rest.isZero())
            break;
    }
    return true;
}

void DocumentViewController::announceTakenBack()
{
    if (!m_closedPeriod)
        return;
    m_closedPeriod = false;
    appDelegate.notifications.post(NotificationName::PropertiesChangedNotification, this);
    appDelegate.notifications.post(NotificationName::BalanceChangedNotification, this);
}

void DocumentViewController::showAlert()
{
    appDelegate.dialogs.showAlert(
        {localized("Ups! Something goes wrong!"), alertMessage, {localized("Close")}, 0});
    alertMessage.clear();
}

void DocumentViewController::fail(const QString& sentence)
{
    alertMessage += sentence;
}

} // namespace zelvor
