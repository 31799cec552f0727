#include "cli/document_operation.h"

#include "cli/document_form.h"
#include "documents/money_document_view_controller.h"
#include "documents/product_document_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

using NewDocument = Answer (*)(Program&, OperationReader&, DocType);

// The form of a type; none for what is no document.
NewDocument formOf(DocType type)
{
    using enum DocType;
    switch (type) {
    case BuyProduct:
    case SellProduct:
    case SellIntangibles:
    case MoveProduct:
    case AddProduct:
    case DeleteProduct:
    case Return:
        return newProductDocument;
    case MoneyFromContragent:
    case MoneyToContragent:
    case MoneyToExpend:
    case MoneyFromEmployee:
    case MoneyToEmployee:
    case InnerTransaction:
    case MoneyAdd:
        return newMoneyDocument;
    case BuyProperty:
    case SellProperty:
    case AddProperty:
    case DeleteProperty:
        return newPropertyDocument;
    default:
        return nullptr;
    }
}

template <class Document, class Form>
Answer actOnStored(Program& program, qint64 id, bool (Form::*action)())
{
    const auto document = program.appDelegate.connector.select<Document>(id);
    if (!document)
        return Answer::invalid(u"there is no document with the id "_s + QString::number(id));
    if (document->confirmed)
        return Answer::refused(u"The document is confirmed already.\n"_s);
    Form form(program.appDelegate, document);
    form.prepareData();
    return answerOf((form.*action)(), form, program.dialogs);
}

struct Stored {
    QString kind;
    qint64 id;
};

// The document that an operation names; fails the reader when it does not.
Stored readStored(OperationReader& reader)
{
    const Stored stored{reader.text(u"kind"_s), reader.integer(u"id"_s, 0)};
    if (stored.kind == u"Property")
        reader.fail(u"a fixed-asset document has no draft"_s);
    else if (stored.kind != u"Product" && stored.kind != u"Money")
        reader.fail(u"'kind' must be \"Product\" or \"Money\""_s);
    if (stored.id <= 0)
        reader.fail(u"'id' must name a document"_s);
    return stored;
}

} // namespace

Answer newDocument(Program& program, OperationReader& reader)
{
    const std::optional<DocType> type = docTypeFromCase(reader.text(u"type"_s));
    const NewDocument form = type ? formOf(*type) : nullptr;
    if (!form)
        return Answer::invalid(u"document: 'type' must name a type of document"_s);
    return form(program, reader, *type);
}

Answer confirmStored(Program& program, OperationReader& reader)
{
    const Stored stored = readStored(reader);
    if (const QString error = reader.error(); !error.isEmpty())
        return Answer::invalid(error);
    return stored.kind == u"Product"
               ? actOnStored<ProductDocument>(program, stored.id, &ProductDocumentViewController::confirmDoc)
               : actOnStored<MoneyDocument>(program, stored.id, &MoneyDocumentViewController::confirmDoc);
}

Answer deleteStored(Program& program, OperationReader& reader)
{
    const Stored stored = readStored(reader);
    if (const QString error = reader.error(); !error.isEmpty())
        return Answer::invalid(error);
    const Answer answer =
        stored.kind == u"Product"
            ? actOnStored<ProductDocument>(program, stored.id, &ProductDocumentViewController::deleteDoc)
            : actOnStored<MoneyDocument>(program, stored.id, &MoneyDocumentViewController::deleteDoc);
    return answer.isDone() ? Answer::done() : answer;
}

} // namespace zelvor
