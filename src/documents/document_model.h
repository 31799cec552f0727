#pragma once

#include "catalogs/contragent.h"
#include "catalogs/manager.h"
#include "core/colors.h"
#include "core/doc_type.h"
#include "store/table_info.h"

namespace zelvor {

// What the three document records share. A document does nothing until it is confirmed, and is read-only for
// good after that.
class DocumentModel : public TableModelWithNumbers {
public:
    qint64 docTypeID = 0; // raw value of the DocType
    qint64 date = 0;      // seconds since 1970 UTC
    qint64 docNumber = 0; // serial number within the type; 0 until confirmed
    qint64 contragentID = 0;
    Decimal innerDocSum; // currency of the project
    double docSum() const { return innerDocSum.toDouble(); }
    void setDocSum(double value) { innerDocSum = Decimal::fromDouble(value, decimalHandler); }
    qint64 managerID = 0; // responsible employee
    QString comment;
    bool confirmed = false;
    bool correction = false; // a column of the journal; nothing sets it
    qint64 parentDocID = 0;
    qint64 parentDocTypeID = 0;
    qint64 payToDate = 0;   // due date of the unpaid rest, seconds since 1970 UTC
    Decimal innerLeftToPay; // unpaid rest; always 0 in money documents
    double leftToPay() const { return innerLeftToPay.toDouble(); }
    void setLeftToPay(double value) { innerLeftToPay = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerContragentBalance; // the counterparty's balance before this document
    double contragentBalance() const { return innerContragentBalance.toDouble(); }
    void setContragentBalance(double value)
    {
        innerContragentBalance = Decimal::fromDouble(value, decimalHandler);
    }

    Link<Manager> manager;
    Link<Contragent> contragent;

    // NilType for a raw value without a case.
    DocType docType() const { return typeFromInt(docTypeID).value_or(DocType::NilType); }
    void insertDocType(DocType type) { docTypeID = rawValue(type); }
    void insertManager(const std::shared_ptr<Manager>& record);
    void insertContragent(const std::shared_ptr<Contragent>& record);

    QString managerName() const { return manager->name; }
    QString contragentName() const { return contragent->name; }
    // "Product Document 'Sale' #12", as the journal shows it.
    QString journalName() const { return journalNameFrom(titleStart()); }
    // The same for a list, which keeps the start of each type: working that out is most of the cost.
    virtual QString journalNameFrom(const QString& start) const = 0;
    // Opener and type name, without the closing quote: "Product Document 'Sale".
    QString titleStart() const;
    // "Product Document 'Sale' #12 (read)", as the form and its tab show it; " (write)" until confirmed.
    QString name() const;
    Color titleFontColor() const { return confirmed ? inOrderColor : redColor; }
    // The columns of a journal that all kinds fill alike.
    QVariant valueForIdentifier(QStringView key) const override;

protected:
    // "Product Document '", localised.
    virtual QString titleOpener() const = 0;
};

} // namespace zelvor
