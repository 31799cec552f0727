#pragma once

#include "documents/money_document_view_controller.h"
#include "documents/property_document_view_controller.h"
#include "support/books.h"

#include <memory>

namespace zelvor {

// The forms of documents as a user opens and fills them.

using MoneyForm = MoneyDocumentViewController;
using PropertyForm = PropertyDocumentViewController;

// A new document, dated a second before now.
inline std::unique_ptr<MoneyForm> newMoneyForm(Books& books, DocType type)
{
    auto document = std::make_shared<MoneyDocument>();
    document->insertDocType(type);
    document->date = books.clock.now() - 1;
    auto form = std::make_unique<MoneyForm>(books.appDelegate, document);
    form->prepareData();
    return form;
}

inline std::unique_ptr<PropertyForm> newPropertyForm(Books& books, DocType type)
{
    auto document = std::make_shared<PropertyDocument>();
    document->insertDocType(type);
    document->date = books.clock.now() - 1;
    auto form = std::make_unique<PropertyForm>(books.appDelegate, document);
    form->prepareData();
    return form;
}

// A stored document, opened again.
inline std::unique_ptr<MoneyForm> openMoneyForm(Books& books, qint64 id)
{
    auto form = std::make_unique<MoneyForm>(books.appDelegate, books.db.select<MoneyDocument>(id));
    form->prepareData();
    return form;
}

inline void enter(NumberField& field, double value)
{
    field.setReal(value);
    EXPECT_TRUE(field.userChanged()) << qPrintable(field.name());
}

inline void enter(TextField& field, const QString& text)
{
    field.setText(text);
    EXPECT_TRUE(field.userChanged()) << qPrintable(field.name());
}

inline void tick(CheckBox& box)
{
    box.setOn(true);
    EXPECT_TRUE(box.userChanged()) << qPrintable(box.name());
}

inline void choose(PopUpButton& popUp, qint64 tag)
{
    EXPECT_TRUE(popUp.selectTag(tag));
    EXPECT_TRUE(popUp.userChanged()) << qPrintable(popUp.name());
}

// A confirmed document of a counterparty that is not paid yet; `due` counts in seconds from now.
template <class Document>
std::shared_ptr<Document> openDocument(Books& books, DocType type, const Contragent& contragent, double left,
                                       qint64 due)
{
    Document document;
    document.insertDocType(type);
    document.date = books.clock.now() - 100;
    document.contragentID = contragent.id;
    document.docNumber = 1;
    document.setDocSum(left);
    document.setLeftToPay(left);
    document.payToDate = books.clock.now() + due;
    document.confirmed = true;
    return books.store(document);
}

inline QString lastAlertText(const Books& books)
{
    return books.dialogs.alerts.empty() ? QStringLiteral("no alert")
                                        : books.dialogs.alerts.back().informativeText;
}

// Whether every posting since it was made went out inside the open transaction.
class PostingsInsideTransaction {
public:
    explicit PostingsInsideTransaction(Books& books)
        : m_observation(books.appDelegate.notifications.observeAll(
              [this, &books](const Notification&) { ++(books.db.inTransaction() ? inside : outside); }))
    {}
    int inside = 0;
    int outside = 0;

private:
    NotificationCenter::Observation m_observation;
};

} // namespace zelvor
