#include "documents/document_model.h"

#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void DocumentModel::insertManager(const std::shared_ptr<Manager>& record)
{
    manager = Link<Manager>(record);
    managerID = record ? record->id : 0;
}

void DocumentModel::insertContragent(const std::shared_ptr<Contragent>& record)
{
    contragent = Link<Contragent>(record);
    contragentID = record ? record->id : 0;
}

QVariant DocumentModel::valueForIdentifier(QStringView key) const
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

QString DocumentModel::titleStart() const
{
    return titleOpener() + docTypeName(docType());
}

QString DocumentModel::name() const
{
    return titleStart() + u"' #"_s + QString::number(docNumber) +
           (confirmed ? localized(" (read)") : localized(" (write)"));
}

} // namespace zelvor
