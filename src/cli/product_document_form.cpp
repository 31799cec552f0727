#include "cli/document_form.h"

#include "documents/product_document_view_controller.h"

#include <QtCore/QHash>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

using Form = ProductDocumentViewController;

constexpr qint64 longestDeferment = 36'500; // days

void enterRowNumber(OperationReader& reader, const QString& key, Form& form, int row,
                    const QString& identifier)
{
    const Decimal number = reader.number(key, Decimal());
    if (reader.has(key) && !form.setRowValue(row, identifier, number))
        reader.fail(u'\'' + key + u"' cannot be kept"_s);
}

// A product that has a row already gets no second one: the amounts add up.
void enterAmount(OperationReader& reader, Form& form, int row, bool isNewRow)
{
    Decimal amount = reader.number(u"amount"_s, Decimal(1));
    if (!isNewRow) {
        const ProductDocumentRow& held = *form.document->documentRows[static_cast<std::size_t>(row)];
        amount = amount.plus(held.innerAmount, ProductDocumentRow::decimalHandler);
    }
    if (!form.setRowValue(row, u"amount"_s, amount))
        reader.fail(u"'amount' cannot be kept"_s);
}

void enterRow(OperationReader& reader, Form& form, QHash<qint64, int>& rowOfProduct)
{
    const qint64 productID = reader.integer(u"product"_s, 0);
    if (productID == 0) {
        reader.fail(u"'product' is missing"_s);
        return;
    }
    const bool isNewRow = !rowOfProduct.contains(productID);
    if (isNewRow)
        rowOfProduct.insert(productID, form.addProductFromID(productID));
    const int row = rowOfProduct.value(productID);
    if (row < 0) {
        reader.fail(u"'product': there is no record with the id "_s + QString::number(productID) +
                    u", or it is out of use"_s);
        return;
    }
    enterAmount(reader, form, row, isNewRow);
    enterRowNumber(reader, u"price"_s, form, row, u"price"_s);
    enterRowNumber(reader, u"vat_rate"_s, form, row, u"vatRate"_s);
    enterRowNumber(reader, u"gst_rate"_s, form, row, u"gstRate"_s);
    const bool includeShipment = reader.boolean(u"include_shipment"_s, false);
    if (reader.has(u"include_shipment"_s))
        form.setRowValue(row, u"includeShipment"_s, includeShipment ? 1 : 0);
}

// The first row with an error ends the filling.
void enterRows(OperationReader& reader, Form& form)
{
    const QJsonArray rows = reader.array(u"rows"_s);
    QHash<qint64, int> rowOfProduct;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString where = u"rows["_s + QString::number(i) + u']';
        if (!rows[i].isObject()) {
            reader.fail(where + u" must be an object"_s);
            return;
        }
        OperationReader row(rows[i].toObject(), where);
        enterRow(row, form, rowOfProduct);
        if (const QString error = row.error(); !error.isEmpty()) {
            reader.fail(error);
            return;
        }
    }
}

void enterHead(OperationReader& reader, Form& form)
{
    ProductDocumentView& view = form.mainView;
    enterLink(reader, u"contragent"_s, form.contragentEnabled(),
              [&](qint64 id) { return form.setContragentFromID(id); });
    enterLink(reader, u"stock_from"_s, form.stockFromEnabled(),
              [&](qint64 id) { return view.setStockFromID(id); });
    enterLink(reader, u"stock_to"_s, form.stockToEnabled(), [&](qint64 id) { return view.setStockToID(id); });
    enterLink(reader, u"manager"_s, true, [&](qint64 id) { return form.setManagerFromID(id); });
    enterWhole(reader, u"deferment"_s, form.deferment, longestDeferment);
    enterNumber(reader, u"shipment"_s, form.shipment);
    enterNumber(reader, u"discount"_s, form.contragentDiscount);
    enterText(reader, u"comment"_s, view.comment);
    // Before the other one goes on, one goes off.
    enterBoolean(reader, u"with_vat"_s, form.vatCheck);
    enterBoolean(reader, u"with_gst"_s, form.gstCheck);
}

} // namespace

Answer newProductDocument(Program& program, OperationReader& reader, DocType type)
{
    AppDelegate& appDelegate = program.appDelegate;
    auto document = std::make_shared<ProductDocument>();
    document->insertDocType(type);
    document->date = reader.moment(u"date"_s, appDelegate.calendar, appDelegate.now() - 1);
    const bool confirms = reader.boolean(u"confirm"_s, false);
    Form form(appDelegate, std::move(document));
    form.prepareData();
    enterHead(reader, form);
    enterRows(reader, form);
    if (const QString error = reader.error(); !error.isEmpty())
        return Answer::invalid(error);
    return answerOf(confirms ? form.confirmDoc() : form.writeDoc(), form, program.dialogs);
}

} // namespace zelvor
