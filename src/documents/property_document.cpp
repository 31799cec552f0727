#include "documents/property_document.h"

#include "core/localized.h"
#include "documents/document_columns.h"

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

const TableInfo& PropertyDocument::table()
{
    using Document = PropertyDocument;
    static constexpr auto columns = withDocumentColumns({
        integerColumn<&Document::propertyID>("property_id"),
        integerColumn<&Document::deleteBasisID>("delete_basis_id"),
    });
    static constexpr LinkInfo links[] = {
        linkOf<&Document::managerID, &Document::manager>(),
        linkOf<&Document::contragentID, &Document::contragent>(),
        linkOf<&Document::propertyID, &Document::property>(),
        linkOf<&Document::deleteBasisID, &Document::deleteBasis>(),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_property_doc_date", "property_doc(date)"},
        {"ix_property_doc_contragent", "property_doc(contragent_id, date) WHERE contragent_id<>0"},
        {"ix_property_doc_open", "property_doc(contragent_id, doc_type_id) WHERE left_to_pay>0"},
    };
    static constexpr TableInfo info{"property_doc", columns, links, indexes, nullptr, makeRecord<Document>};
    return info;
}

} // namespace zelvor
