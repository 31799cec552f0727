#include "documents/property_document.h"

#include "core/localized.h"

#include <QtCore/QStringBuilder>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void PropertyDocument::insertProperty(const std::shared_ptr<Property>& record)
{
    property = Link<Property>(record);
    propertyID = record ? record->id : 0;
}

QString PropertyDocument::titleOpener() const
{
    return localized("Property Document '");
}

QString PropertyDocument::journalNameFrom(const QString& start) const
{
    return start % u"' #"_s % QString::number(docNumber) % u" ("_s % property->name % u')';
}

QVariant PropertyDocument::valueForIdentifier(QStringView key) const
{
    if (key == u"number")
        return docNumber;
    if (key == u"date")
        return date;
    if (key == u"confirmed")
        return confirmed;
    if (key == u"correction")
        return correction;
    if (key == u"journalName")
        return journalName();
    if (key == u"sum")
        return docSum();
    if (key == u"contragent")
        return contragentName();
    if (key == u"manager")
        return managerName();
    if (key == u"comment")
        return comment;
    return QString();
}

const TableInfo& PropertyDocument::table()
{
    using Document = PropertyDocument;
    static constexpr ColumnInfo columns[] = {
        integerColumn<&Document::docTypeID>("doc_type_id"),
        integerColumn<&Document::date>("date"),
        integerColumn<&Document::docNumber>("doc_number"),
        integerColumn<&Document::contragentID>("contragent_id"),
        realColumn<Document, &Document::docSum, &Document::setDocSum>("doc_sum"),
        integerColumn<&Document::managerID>("manager_id"),
        textColumn<&Document::comment>("comment"),
        booleanColumn<&Document::confirmed>("is_confirmed"),
        booleanColumn<&Document::correction>("is_correction"),
        integerColumn<&Document::parentDocID>("parent_doc_id"),
        integerColumn<&Document::parentDocTypeID>("parent_doc_type_id"),
        integerColumn<&Document::payToDate>("pay_to_date"),
        realColumn<Document, &Document::leftToPay, &Document::setLeftToPay>("left_to_pay"),
        realColumn<Document, &Document::contragentBalance, &Document::setContragentBalance>(
            "contragent_balance"),
        integerColumn<&Document::propertyID>("property_id"),
        integerColumn<&Document::deleteBasisID>("delete_basis_id"),
    };
    static constexpr LinkInfo links[] = {
        linkOf<&Document::managerID, &Document::manager>(),
        linkOf<&Document::contragentID, &Document::contragent>(),
        linkOf<&Document::propertyID, &Document::property>(),
        linkOf<&Document::deleteBasisID, &Document::deleteBasis>(),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_property_doc_date", "property_doc(date)"},
        {"ix_property_doc_open", "property_doc(contragent_id, doc_type_id) WHERE left_to_pay>0"},
    };
    static constexpr TableInfo info{"property_doc", columns, links, indexes, nullptr, makeRecord<Document>};
    return info;
}

} // namespace zelvor
