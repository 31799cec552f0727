#include "print/print_invoice.h"

#include "core/currency_struct.h"
#include "core/localized.h"
#include "documents/product_document_view_controller.h"

#include <QtCore/QLocale>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr double left = 10;         // of the texts at the sheet's left
constexpr double labelShift = 80;   // of the head's labels, to the left of their values
constexpr double tableLeft = 1.5;   // and as much at its right
constexpr double tableLine = 15;    // height of the head and of a line of a row
constexpr double cellInset = 2;     // of a text that stands at a side of its column
constexpr double sumLine = 12;      // from sum to sum
constexpr double sumLabelsEnd = 90; // from the sheet's right
constexpr double bankLine = 8;      // from line to line of the bank details
constexpr double firstSum = 30;     // below the point where the totals begin
constexpr double totalsBegin = 10;  // above the end of the table
constexpr double paymentGap = 40;   // from the last sum to the line of thanks
constexpr double bankRise = 36;     // of the bank details into that gap
constexpr double leastGap = 2;      // between texts, when room is short

using Column = PrintInvoice::Column;

constexpr std::array<Column, 10> tenColumns{{{11.5, 20},
                                             {91.5, 140},
                                             {176.5, 30},
                                             {214, 45},
                                             {256.5, 40},
                                             {296.5, 40},
                                             {341.5, 50},
                                             {394, 55},
                                             {444, 45},
                                             {494, 55}}};
constexpr std::array<Column, 7> sevenColumns{
    {{11.5, 20}, {146.5, 250}, {286.5, 30}, {329, 55}, {379, 45}, {429, 55}, {489, 65}}};

std::span<const Column> columnsFor(std::size_t titles)
{
    if (titles == tenColumns.size())
        return tenColumns;
    return sevenColumns;
}

CellAlignment alignmentOf(const QString& identifier)
{
    if (identifier == "name"_L1)
        return CellAlignment::Left;
    if (identifier == "number"_L1 || identifier == "measurement"_L1 || identifier == "amount"_L1)
        return CellAlignment::Center;
    return CellAlignment::Right;
}

// The x of a text of that width in its column.
double cellLeft(const Column& column, CellAlignment alignment, double width)
{
    if (alignment == CellAlignment::Left)
        return column.centre - column.width / 2 + cellInset;
    if (alignment == CellAlignment::Right)
        return column.centre + column.width / 2 - cellInset - width;
    return column.centre - width / 2;
}

bool isSale(const ProductDocument& document)
{
    const DocType type = document.docType();
    return type == DocType::SellProduct || type == DocType::SellIntangibles;
}

// What the document will hold when it is confirmed; the draft itself stays as it is.
std::shared_ptr<ProductDocument> filledDraft(const ProductDocumentViewController& form)
{
    constexpr RoundingHandler handler = ProductDocument::decimalHandler;
    auto draft = std::make_shared<ProductDocument>(*form.document);
    const Decimal tax = form.vatAmount.value().rounded(handler);
    draft->withVAT = form.vatCheck.isOn();
    draft->withGST = form.gstCheck.isOn();
    draft->innerVATSum = draft->withVAT ? tax : Decimal();
    draft->innerGSTSum = draft->withGST ? tax : Decimal();
    draft->innerShipment = form.shipment.value().rounded(handler);
    draft->innerDocSum = form.balanceDue.value().rounded(handler);
    draft->payToDate = draft->date + form.deferment.integer() * secondsPerDay;
    return draft;
}

QString rateText(const Decimal& percent)
{
    return percent.toText().replace(u'.', QLocale().decimalPoint()) + u'%';
}

std::vector<PrintInvoice::Title> shownTitles(const ProductDocumentView& view)
{
    std::vector<PrintInvoice::Title> titles{{localized("#"), u"number"_s}};
    for (const ViewColumn& column : view.columns()) {
        if (!column.hidden)
            titles.push_back({column.title, column.identifier});
    }
    return titles;
}

} // namespace

PrintInvoice::PrintInvoice(AppDelegate& owner) : PrintView(owner, portrait, localized("INVOICE")) {}

void PrintInvoice::setDocument()
{
    setData();
    if (fitsSheet())
        return;
    if (!warning.isEmpty())
        warning += u'\n';
    warning += localized("The invoice is longer than its sheet: what stands below the edge is not printed.");
}

void PrintInvoice::drawRect(Canvas& canvas)
{
    canvas.fill({{0, 0}, frame()}, whiteColor);
    printLogo(canvas);
    const QPointF point = titlePoint();
    canvas.text(point, title, titleFont, titleColor);
    drawCompanyData(canvas);
    drawInvoiceTitles(canvas, point);
    drawTable(canvas);
}

QPointF PrintInvoice::titlePoint() const
{
    const QSizeF size = textSize(title, titleFont);
    const double y =
        logo.isNull() ? frame().height() - size.height() - 10 : frame().height() - logoSize.height() + 1;
    return {frame().width() - size.width() - 20, y};
}

// Every line stands there, also when the settings do not know it yet.
auto PrintInvoice::companyLines() const -> std::vector<CompanyLine>
{
    const double depth = delta + textSize(params->companyName, columnTitleFont).height() + 4;
    std::vector<CompanyLine> lines{{params->companyName, columnTitleFont, depth}};
    const auto add = [&](const QString& text) {
        lines.push_back({text, dataFont, lines.back().depth + textSize(text, dataFont).height() + 2});
    };
    add(params->companyAddress);
    add(params->companyCity);
    add(localized("phone:") + u' ' + params->companyPhone);
    add(localized("mail:") + u' ' + params->companyMail);
    add(localized("web:") + u' ' + params->companyDomain);
    if (params->useVATNo)
        add(localized("VAT No.") + u' ' + params->vatNumber);
    return lines;
}

void PrintInvoice::drawCompanyData(Canvas& canvas)
{
    const double room = titlePoint().x() - labelShift - left - leastGap;
    for (const CompanyLine& line : companyLines()) {
        adding = line.depth;
        canvas.text({left, frame().height() - adding}, line.text, fitted(line.text, line.font, room).font,
                    blackColor);
    }
}

// A customer's long name or address takes several lines, for it would leave the sheet.
QStringList PrintInvoice::titleValueLines(const QString& value) const
{
    const double room = frame().width() - titlePoint().x();
    if (textSize(value, invoiceDataFont).width() <= room)
        return {value};
    // The lines are measured in another size of the same font.
    return splitRow(value, room * colDataFont.pixelSize() / invoiceDataFont.pixelSize());
}

auto PrintInvoice::titleLines() const -> std::vector<TitleLine>
{
    const double labelHeight = textSize({}, titlesFont).height();
    const double valueHeight = textSize({}, invoiceDataFont).height();
    const qint64 due = document->payToDate != 0 ? document->payToDate : document->date;
    std::vector<TitleLine> lines{{localized("INVOICE #"), QString::number(document->docNumber), 20}};
    const auto add = [&](QString label, const QString& value) {
        for (const QString& line : titleValueLines(value)) {
            const double height = label.isEmpty() ? valueHeight : labelHeight;
            lines.push_back({std::exchange(label, {}), line, lines.back().depth + height + 2});
        }
    };
    add(localized("DATE:"), dateText(document->date));
    add(localized("DUE BY:"), dateText(due));
    add(localized("BILL TO:"), contragent->name);
    for (const QString& line : {contragent->address, contragent->city, contragent->phone}) {
        if (!line.isEmpty())
            add({}, line);
    }
    if (params->useVAT && !contragent->vatNumber.isEmpty())
        add(localized("VAT No."), contragent->vatNumber);
    return lines;
}

// Below the customer. With a logo above it the company reaches further down when the customer has few lines:
// its VAT number must not disappear under the band.
double PrintInvoice::tableTop() const
{
    const double belowCustomer = titlePoint().y() - titleLines().back().depth - 20;
    return std::min(belowCustomer, frame().height() - companyLines().back().depth - leastGap);
}

void PrintInvoice::drawInvoiceTitles(Canvas& canvas, const QPointF& point)
{
    const double room = frame().width() - point.x();
    for (const TitleLine& line : titleLines()) {
        canvas.text(point - QPointF(labelShift, line.depth), line.label, titlesFont, titlesColor);
        canvas.text(point - QPointF(0, line.depth), line.value,
                    fitted(line.value, invoiceDataFont, room).font, blackColor);
    }
    tableStartPoint = QPointF(tableLeft, tableTop());
}

void PrintInvoice::drawTable(Canvas& canvas)
{
    const double top = tableStartPoint->y();
    const double right = frame().width() - tableLeft;
    const std::span<const Column> used = columnsFor(titles.size());
    columns.assign(used.begin(), used.end());
    drawTableHead(canvas, top);
    Canvas::Path path;
    path.lineWidth = 0.2;
    path.add({tableLeft, top}, {right, top});
    double rowTop = top - tableLine;
    path.add({tableLeft, rowTop}, {right, rowTop});
    int number = 0;
    for (const auto& row : document->documentRows) {
        drawRow(canvas, *row, ++number, rowTop);
        rowTop -= rowHeightOf(*row);
        path.add({tableLeft, rowTop}, {right, rowTop});
    }
    double edge = tableLeft;
    path.add({edge, top}, {edge, rowTop});
    for (const Column& column : columns) {
        edge += column.width;
        path.add({edge, top}, {edge, rowTop});
    }
    canvas.stroke(path, tableBorderColor);
    drawTotals(canvas, rowTop + totalsBegin);
}

void PrintInvoice::drawTableHead(Canvas& canvas, double top) const
{
    const QFont& wanted = titles.size() == tenColumns.size() ? smallColumnTitleFont : colTitleFont;
    canvas.fill({tableLeft, top - tableLine, frame().width() - 2 * tableLeft, tableLine}, titleColor);
    for (std::size_t i = 0; i < std::min(titles.size(), columns.size()); ++i) {
        const FittedText shown = fitted(titles[i].title, wanted, columns[i].width - 2);
        canvas.text({columns[i].centre - shown.size.width() / 2, top - 2 - shown.size.height()},
                    titles[i].title, shown.font, whiteColor);
    }
}

QStringList PrintInvoice::nameLines(const ProductDocumentRow& row) const
{
    const std::span<const Column> used = columnsFor(titles.size());
    for (std::size_t i = 0; i < std::min(titles.size(), used.size()); ++i) {
        if (titles[i].identifier == "name"_L1)
            return splitRow(row.product->name, used[i].width);
    }
    return {QString()};
}

double PrintInvoice::rowHeightOf(const ProductDocumentRow& row) const
{
    return tableLine * static_cast<double>(nameLines(row).size());
}

void PrintInvoice::drawRow(Canvas& canvas, const ProductDocumentRow& row, int number, double top) const
{
    const double firstLine = top - 2 - textSize({}, colDataFont).height();
    for (std::size_t i = 0; i < std::min(titles.size(), columns.size()); ++i) {
        const QString& identifier = titles[i].identifier;
        const bool isName = identifier == "name"_L1;
        double y = firstLine;
        for (const QString& line : isName ? nameLines(row) : QStringList{cellText(row, number, identifier)}) {
            const FittedText shown = fitted(line, colDataFont, columns[i].width - cellInset);
            const double x = cellLeft(columns[i], alignmentOf(identifier), shown.size.width());
            canvas.text({x, y}, line, shown.font, blackColor);
            y -= tableLine;
        }
    }
}

// VAT leads in the columns, but for the total, where GST comes on top whatever else is on.
QString PrintInvoice::cellText(const ProductDocumentRow& row, int number, const QString& identifier) const
{
    const bool vat = document->withVAT;
    const bool gst = document->withGST;
    if (identifier == "number"_L1)
        return QString::number(number);
    if (identifier == "amount"_L1)
        return numberText(row.innerAmount);
    if (identifier == "packs"_L1)
        return numberText(row.packs());
    if (identifier == "price"_L1)
        return numberText(row.innerPriceCost);
    if (identifier == "vatPercent"_L1)
        return vat ? rateText(row.innerVATRate) : gst ? rateText(row.innerGSTRate) : QString();
    if (identifier == "vat"_L1)
        return vat ? numberText(row.vatValue()) : gst ? numberText(row.gstValue()) : QString();
    if (identifier == "totalNet"_L1)
        return numberText(vat ? row.beforeVatValue() : row.innerPriceCostSum);
    if (identifier == "total"_L1)
        return numberText(gst ? row.plusGST() : row.innerPriceCostSum);
    return row.valueForIdentifier(identifier).toString();
}

// Both optional lines close up when they are left out.
auto PrintInvoice::sumLines() const -> Lines
{
    const auto currency = currencyFromInt(params->defaultCurrency);
    const auto label = [&](const QString& word) {
        return currency ? word + u' ' + currencySign(*currency) : word;
    };
    Lines lines{{label(localized("SUBTOTAL")), numberText(document->subtotal())}};
    if (document->withVAT)
        lines.emplace_back(label(localized("VAT")), numberText(document->innerVATSum));
    else if (document->withGST)
        lines.emplace_back(label(localized("TAX")), numberText(document->innerGSTSum));
    if (document->innerShipment.isPositive())
        lines.emplace_back(label(localized("SHIPPING")), numberText(document->innerShipment));
    lines.emplace_back(label(localized("TOTAL")), numberText(document->innerDocSum));
    return lines;
}

auto PrintInvoice::bankLines() const -> Lines
{
    Lines lines{{localized("Account Name:"), params->bankAccountName},
                {localized("Account No.:"), params->bankAccountNumber},
                {localized("Bank:"), params->bankName},
                {localized("Address:"), params->bankAddress},
                {localized("IBAN:"), params->bankIBAN},
                {localized("SWIFT:"), params->bankSWIFT}};
    std::erase_if(lines, [](const auto& line) { return line.second.isEmpty(); });
    return lines;
}

// From the point where the totals begin down to the last of the sums.
double PrintInvoice::sumsDepth() const
{
    return firstSum + sumLine * static_cast<double>(sumLines().size() - 1);
}

// The same down to the line of thanks.
double PrintInvoice::thanksDepth() const
{
    const double depth = sumsDepth() + paymentGap;
    if (!params->printBankDetails)
        return depth;
    return depth - bankRise + bankLine * static_cast<double>(bankLines().size() + 1) + 28;
}

void PrintInvoice::drawTotals(Canvas& canvas, double top)
{
    const double right = frame().width();
    double y = top - firstSum;
    for (const auto& [label, value] : sumLines()) {
        const double labelWidth = textSize(label, titlesFont).width();
        const FittedText shown = fitted(value, invoiceDataFont, sumLabelsEnd - 4 - leastGap);
        canvas.text({right - sumLabelsEnd - labelWidth, y}, label, titlesFont, titlesColor);
        canvas.text({right - shown.size.width() - 4, y}, value, shown.font, blackColor);
        y -= sumLine;
    }
    drawPaymentLines(canvas, top - sumsDepth() - paymentGap);
    if (params->printBankDetails)
        drawBankLines(canvas, top - sumsDepth() - paymentGap + bankRise);
    canvas.text({left, top - thanksDepth()}, localized("THANK YOU FOR YOUR BUSINESS!"), colTitleFont,
                titleColor);
}

// Where the labels of the sums begin: the payment lines end before them.
double PrintInvoice::sumsLeft() const
{
    double widest = 0;
    for (const auto& [label, value] : sumLines())
        widest = std::max(widest, textSize(label, titlesFont).width());
    return frame().width() - sumLabelsEnd - widest;
}

void PrintInvoice::drawPaymentLines(Canvas& canvas, double bottom) const
{
    const double room = sumsLeft() - left - 4;
    const auto line = [&](double y, const QString& words, const QString& rest) {
        const QFont bold = fitted(words + rest, smallBoldFont, room).font; // which is the wider one
        QFont plain(smallFont);
        plain.setPixelSize(bold.pixelSize());
        canvas.text({left, y}, words, bold, blackColor);
        canvas.text({left + textSize(words, bold).width(), y}, rest, plain, blackColor);
    };
    line(bottom + 62, localized("Make all checks payable to "), params->companyName + u'.');
    line(bottom + 54, localized("If you have any questions concerning this invoice, phone: "),
         params->companyPhone + localized(", e-mail: ") + params->companyMail + u'.');
}

void PrintInvoice::drawBankLines(Canvas& canvas, double top) const
{
    constexpr double valueLeft = 60;
    canvas.text({left, top}, localized("Direct Bank Transfer"), smallBoldFont, blackColor);
    double y = top;
    for (const auto& [label, value] : bankLines()) {
        y -= bankLine;
        canvas.text({left, y}, label, fitted(label, smallFont, valueLeft - left - leastGap).font, blackColor);
        canvas.text({valueLeft, y}, value, fitted(value, smallFont, frame().width() - valueLeft).font,
                    blackColor);
    }
}

bool PrintInvoice::fitsSheet() const
{
    double rowsHeight = 0;
    for (const auto& row : document->documentRows)
        rowsHeight += rowHeightOf(*row);
    return tableTop() - tableLine - rowsHeight + totalsBegin - thanksDepth() >= 0;
}

std::unique_ptr<PrintInvoice> makeInvoice(ProductDocumentViewController& form)
{
    if (!isSale(*form.document))
        return nullptr;
    auto invoice = std::make_unique<PrintInvoice>(form.appDelegate);
    invoice->document = form.document->confirmed ? form.document : filledDraft(form);
    invoice->contragent = invoice->document->contragent.shared();
    if (!invoice->contragent)
        invoice->contragent = std::make_shared<Contragent>();
    invoice->titles = shownTitles(form.mainView);
    invoice->setDocument();
    return invoice;
}

std::unique_ptr<PrintInvoice> makeInvoice(AppDelegate& appDelegate,
                                          const std::shared_ptr<ProductDocument>& document)
{
    ProductDocumentViewController form(appDelegate, document);
    form.prepareData();
    return makeInvoice(form);
}

} // namespace zelvor
