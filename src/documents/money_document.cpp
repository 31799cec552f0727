#include "documents/money_document.h"

#include "core/localized.h"
#include "documents/document_columns.h"

#include <QtCore/QStringBuilder>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void MoneyDocument::settAccountFrom(const std::shared_ptr<Account>& record)
{
    accountFrom = Link<Account>(record);
    accountFromID = record ? record->id : 0;
}

void MoneyDocument::settAccountTo(const std::shared_ptr<Account>& record)
{
    accountTo = Link<Account>(record);
    accountToID = record ? record->id : 0;
}

void MoneyDocument::settEmployee(const std::shared_ptr<Manager>& record)
{
    employee = Link<Manager>(record);
    employeeID = record ? record->id : 0;
}

void MoneyDocument::settExpend(const std::shared_ptr<Expend>& record)
{
    expend = Link<Expend>(record);
    expendID = record ? record->id : 0;
}

QString MoneyDocument::titleOpener() const
{
    return localized("Money Document '");
}

QString MoneyDocument::journalNameFrom(const QString& start) const
{
    const QString number = QString::number(docNumber);
    if (docType() == DocType::MoneyToExpend)
        return start % u"' ("_s % expend->name % u") #"_s % number;
    return start % u"' #"_s % number;
}

QVariant MoneyDocument::valueForIdentifier(QStringView key) const
{
    if (key == u"stockFrom")
        return accountFrom->name;
    if (key == u"stockTo")
        return accountTo->name;
    return DocumentModel::valueForIdentifier(key);
}

const TableInfo& MoneyDocument::table()
{
    using Document = MoneyDocument;
    static constexpr auto columns = withDocumentColumns({
        integerColumn<&Document::accountFromID>("account_from_id"),
        integerColumn<&Document::accountToID>("account_to_id"),
        booleanColumn<&Document::loans>("is_loans"),
        integerColumn<&Document::employeeID>("employee_id"),
        integerColumn<&Document::expendID>("expend_id"),
        booleanColumn<&Document::variable>("is_variable"),
        booleanColumn<&Document::divident>("is_divident"),
        realColumn<Document, &Document::exchangeRate, &Document::setExchangeRate>("exchange_rate"),
        realColumn<Document, &Document::convertedSum, &Document::setConvertedSum>("converted_sum"),
        realColumn<Document, &Document::accountFromBalance, &Document::setAccountFromBalance>(
            "account_from_balance"),
        realColumn<Document, &Document::accountToBalance, &Document::setAccountToBalance>(
            "account_to_balance"),
        realColumn<Document, &Document::managerBalance, &Document::setManagerBalance>("manager_balance"),
    });
    static constexpr LinkInfo links[] = {
        linkOf<&Document::managerID, &Document::manager>(),
        linkOf<&Document::contragentID, &Document::contragent>(),
        linkOf<&Document::accountFromID, &Document::accountFrom>(),
        linkOf<&Document::accountToID, &Document::accountTo>(),
        linkOf<&Document::employeeID, &Document::employee>(),
        linkOf<&Document::expendID, &Document::expend>(),
    };
    // The statements' are partial: a document stands in those of the parties that it has, and nowhere else.
    static constexpr IndexInfo indexes[] = {
        {"ix_money_doc_date", "money_doc(date)"},
        {"ix_money_doc_contragent", "money_doc(contragent_id, date) WHERE contragent_id<>0"},
        {"ix_money_doc_employee", "money_doc(employee_id, date) WHERE employee_id<>0"},
        {"ix_money_doc_account_from", "money_doc(account_from_id, date) WHERE account_from_id<>0"},
        {"ix_money_doc_account_to", "money_doc(account_to_id, date) WHERE account_to_id<>0"},
    };
    static constexpr TableInfo info{"money_doc", columns, links, indexes, nullptr, makeRecord<Document>};
    return info;
}

} // namespace zelvor
