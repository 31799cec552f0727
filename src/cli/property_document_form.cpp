#include "cli/document_form.h"

#include "documents/property_document_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qint64 longestDeferment = 36'500; // days
constexpr qint64 longestPeriod = 12'000;    // months

// Choosing an asset fills the sum, so a given sum comes after it.
void enterFields(OperationReader& reader, PropertyDocumentViewController& form)
{
    PropertyDocumentView& view = form.mainView;
    enterLink(reader, u"property"_s, form.propertyControllsEnabled(),
              [&](qint64 id) { return form.setPropertyFromID(id); });
    enterText(reader, u"property_name"_s, view.propertyName);
    enterLink(reader, u"contragent"_s, form.contragentEnabled(),
              [&](qint64 id) { return form.setContragentFromID(id); });
    enterLink(reader, u"delete_basis"_s, !form.deleteBasisHidden(),
              [&](qint64 id) { return form.setDeleteBasisFromID(id); });
    enterLink(reader, u"manager"_s, true, [&](qint64 id) { return form.setManagerFromID(id); });
    enterNumber(reader, u"sum"_s, form.docSum);
    enterBoolean(reader, u"amortized"_s, view.amortizedCheck);
    enterWhole(reader, u"period"_s, form.amortizationPeriod, longestPeriod);
    enterWhole(reader, u"deferment"_s, form.deferment, longestDeferment);
    enterText(reader, u"comment"_s, view.comment);
}

} // namespace

Answer newPropertyDocument(Program& program, OperationReader& reader, DocType type)
{
    AppDelegate& appDelegate = program.appDelegate;
    auto document = std::make_shared<PropertyDocument>();
    document->insertDocType(type);
    document->date = reader.moment(u"date"_s, appDelegate.calendar, appDelegate.now() - 1);
    if (!reader.boolean(u"confirm"_s, false))
        reader.fail(u"a fixed-asset document has no draft: 'confirm' must be true"_s);
    PropertyDocumentViewController form(appDelegate, std::move(document));
    form.prepareData();
    enterFields(reader, form);
    if (const QString error = reader.error(); !error.isEmpty())
        return Answer::invalid(error);
    return answerOf(form.confirmDoc(), form, program.dialogs);
}

} // namespace zelvor
