#pragma once

#include "catalogs/delete_basis.h"
#include "catalogs/property.h"
#include "documents/document_model.h"

namespace zelvor {

// The coming or going of a fixed asset. Stored only by its confirmation: there is no draft.
class PropertyDocument : public DocumentModel {
public:
    qint64 propertyID = 0;
    qint64 deleteBasisID = 0; // the reason of a write-off

    Link<Property> property;
    Link<DeleteBasis> deleteBasis;

    void insertProperty(const std::shared_ptr<Property>& record);

    QString journalNameFrom(const QString& start) const override;
    static const TableInfo& table();

protected:
    QString titleOpener() const override;
};

} // namespace zelvor
