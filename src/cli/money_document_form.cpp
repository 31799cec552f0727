#include "cli/document_form.h"

#include "documents/money_document_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// The rate between two accounts is worked out when the second is chosen, so the received sum comes last.
void enterFields(OperationReader& reader, MoneyDocumentViewController& form)
{
    MoneyDocumentView& view = form.mainView;
    enterNumber(reader, u"sum"_s, view.docSum);
    enterLink(reader, u"account_from"_s, form.accountFromEnabled(),
              [&](qint64 id) { return view.setAccountFromID(id); });
    enterLink(reader, u"account_to"_s, form.accountToEnabled(),
              [&](qint64 id) { return view.setAccountToID(id); });
    enterLink(reader, u"contragent"_s, form.contragentEnabled(),
              [&](qint64 id) { return form.setContragentFromID(id); });
    enterLink(reader, u"employee"_s, form.employeeEnabled(),
              [&](qint64 id) { return view.setEmployeeFromID(id); });
    enterLink(reader, u"expend"_s, form.expendEnabled(), [&](qint64 id) { return form.setExpendFromID(id); });
    enterLink(reader, u"manager"_s, true, [&](qint64 id) { return form.setManagerFromID(id); });
    enterNumber(reader, u"sum_to"_s, view.docSumTo);
    enterBoolean(reader, u"loans"_s, view.loansCheck);
    enterBoolean(reader, u"variable"_s, view.variableCheck);
    enterBoolean(reader, u"divident"_s, view.dividentCheck);
    enterText(reader, u"comment"_s, view.comment);
}

} // namespace

Answer newMoneyDocument(Program& program, OperationReader& reader, DocType type)
{
    AppDelegate& appDelegate = program.appDelegate;
    auto document = std::make_shared<MoneyDocument>();
    document->insertDocType(type);
    document->date = reader.moment(u"date"_s, appDelegate.calendar, appDelegate.now() - 1);
    const bool confirms = reader.boolean(u"confirm"_s, false);
    MoneyDocumentViewController form(appDelegate, std::move(document));
    form.prepareData();
    enterFields(reader, form);
    if (const QString error = reader.error(); !error.isEmpty())
        return Answer::invalid(error);
    return answerOf(confirms ? form.confirmDoc() : form.writeDoc(), form, program.dialogs);
}

} // namespace zelvor
