#include "print/print_invoice.h"

#include "catalogs/measurement.h"
#include "documents/product_document_view_controller.h"
#include "print/pages.h"
#include "print/print_job.h"
#include "support/books.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr double near = 0.06;      // points; a PDF keeps three digits
constexpr double nearHeight = 0.2; // of a font's box, which a reader takes from the embedded font

// A confirmed sale of two products, printed without a logo unless a test asks for one.
struct InvoiceForm : testing::Test {
    Books books;
    std::shared_ptr<ProductDocument> document = std::make_shared<ProductDocument>();
    std::shared_ptr<Contragent> customer = books.contragent(u"Customer"_s);
    std::unique_ptr<PrintInvoice> invoice;

    InvoiceForm()
    {
        document->id = 1;
        document->insertDocType(DocType::SellProduct);
        document->confirmed = true;
        document->docNumber = 4711;
        document->date = 1'700'000'000;
        document->payToDate = 1'700'000'000 + 10 * secondsPerDay;
        settings([](Params& params) {
            params.printCompanyLogo = false;
            params.companyName = u"Company"_s;
            params.companyAddress = u"Street"_s;
            params.companyCity = u"Town"_s;
            params.companyPhone = u"12345"_s;
            params.companyMail = u"a@b.example"_s;
            params.companyDomain = u"b.example"_s;
        });
    }

    void settings(const std::function<void(Params&)>& change) { books.changeParams(change); }
    ProductDocumentRow& addRow(const QString& name, double amount, double price, double rate = 0)
    {
        auto product = books.product(name, price);
        Measurement unit;
        unit.name = u"piece"_s;
        product->measurement = std::make_shared<Measurement>(unit);
        auto row = std::make_shared<ProductDocumentRow>();
        row->insertProduct(product);
        row->setAmount(amount);
        row->setVatRate(rate);
        row->setGstRate(rate);
        document->documentRows.push_back(row);
        return *row;
    }
    void sums(double total, double vat = 0, double gst = 0, double shipment = 0)
    {
        document->setDocSum(total);
        document->setVatSum(vat);
        document->setGstSum(gst);
        document->setShipment(shipment);
    }
    PrintedPages print()
    {
        document->insertContragent(customer);
        invoice = makeInvoice(books.appDelegate, document);
        EXPECT_TRUE(invoice);
        return PrintedPages(*invoice);
    }

    double height(const QFont& font) const { return invoice->textSize({}, font).height(); }
    double width(const QString& text, const QFont& font) const
    {
        return invoice->textSize(text, font).width();
    }
    // Where the title stands without a logo.
    QPointF titlePoint() const
    {
        const QSizeF size = invoice->textSize(u"INVOICE"_s, invoice->titleFont);
        return {523 - size.width() - 20, 752 - size.height() - 10};
    }
    // The table's top with three short title lines and the customer's name.
    double tableTop() const { return titlePoint().y() - 20 - 3 * (height(invoice->titlesFont) + 2) - 20; }
    // The lower edge of the first line in a row that begins there.
    double firstLine(double rowTop) const { return rowTop - 2 - height(invoice->colDataFont); }
    void expectAt(const PrintedWord& word, double left, double bottom) const
    {
        EXPECT_NEAR(word.left, left, near) << word.text.toStdString();
        EXPECT_NEAR(word.bottom, bottom, nearHeight) << word.text.toStdString();
    }
    // The part of a text that a figure's last group is: the others stand left of it.
    double lineOf(const PrintedPages& pages, const QString& text) const { return pages.word(text).bottom; }
};

using Words = std::vector<PrintedWord>;

// The words of one line, from the left.
QStringList wordsAt(const Words& words, double bottom)
{
    std::vector<PrintedWord> line;
    std::ranges::copy_if(words, std::back_inserter(line), [&](const PrintedWord& word) {
        return word.page == 1 && std::abs(word.bottom - bottom) < 0.3;
    });
    std::ranges::sort(line, {}, &PrintedWord::left);
    QStringList texts;
    for (const PrintedWord& word : line)
        texts.append(word.text);
    return texts;
}

} // namespace

TEST_F(InvoiceForm, isMadeOfSalesOnly)
{
    for (const DocType type : {DocType::SellProduct, DocType::SellIntangibles}) {
        document->insertDocType(type);
        EXPECT_TRUE(makeInvoice(books.appDelegate, document)) << rawValue(type);
    }
    for (const DocType type : {DocType::BuyProduct, DocType::Return, DocType::MoveProduct,
                               DocType::AddProduct, DocType::DeleteProduct}) {
        document->insertDocType(type);
        EXPECT_FALSE(makeInvoice(books.appDelegate, document)) << rawValue(type);
    }
}

TEST_F(InvoiceForm, hasTheTitleAtTheUpperRight)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    expectAt(pages.word(u"INVOICE"_s), titlePoint().x(), titlePoint().y());
    EXPECT_EQ(pages.info(u"Title"_s), u"INVOICE"_s);
    EXPECT_EQ(pages.info(u"Page size"_s), u"595 x 842 pts (A4)"_s);
    EXPECT_EQ(pages.pages(), 2); // a sheet of exactly one page
}

TEST_F(InvoiceForm, withALogoTheTitleStandsOnItsLowerEdgeAndTheCompanyBelowIt)
{
    QImage image(100, 60, QImage::Format_RGB32);
    image.fill(Qt::gray);
    ASSERT_TRUE(image.save(books.file(u"logo.png"_s)));
    settings([&](Params& params) {
        params.printCompanyLogo = true;
        params.pathToLogo = books.file(u"logo.png"_s);
    });
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    expectAt(pages.word(u"INVOICE"_s), titlePoint().x(), 752 - 60 + 1);
    expectAt(pages.word(u"Company"_s), 10, 752 - 62 - height(invoice->columnTitleFont) - 4);
}

TEST_F(InvoiceForm, belowALogoTheTableLeavesRoomForTheCompanysLastLine)
{
    settings([](Params& params) {
        params.printCompanyLogo = true;
        params.useVATNo = true;
        params.vatNumber = u"XX140"_s;
    });
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintedPages pages = print();
    const double bandTop = invoice->tableStartPoint->y();
    EXPECT_NEAR(pages.word(u"XX140"_s).bottom, bandTop + 2, nearHeight);
    EXPECT_LT(bandTop, lineOf(pages, u"BILL"_s) - 20 - 2);

    // A customer with more lines pushes it down by itself.
    customer->address = u"Lane"_s;
    customer->city = u"Village"_s;
    customer->phone = u"777"_s;
    pages = print();
    EXPECT_NEAR(invoice->tableStartPoint->y(), lineOf(pages, u"777"_s) - 20, nearHeight);
    EXPECT_GT(pages.word(u"XX140"_s).bottom, invoice->tableStartPoint->y() + 2);
}

TEST_F(InvoiceForm, longLinesOfTheCompanyEndBeforeTheHeadAndTheBanksOnTheSheet)
{
    settings([](Params& params) {
        params.companyName = u"Larkmoor Manufacturers and Wholesalers of Bicycles and of their Parts Ltd"_s;
        params.companyAddress = u"Unit 14, Canal Business Park, 221 Wharf Lane, Larkmoor LM2 4QT, County"_s;
        params.printBankDetails = true;
        params.bankAccountName = u"Wholesale "_s.repeated(20) + u"Holder"_s;
    });
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const double labels = titlePoint().x() - 80;
    EXPECT_LT(pages.word(u"Ltd"_s).right, labels);
    EXPECT_LT(pages.word(u"County"_s).right, labels);
    EXPECT_LT(pages.word(u"Holder"_s).right, 523);
}

TEST_F(InvoiceForm, theCompanysLinesStandBelowEachOtherAtTheLeft)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    double y = 752 - height(invoice->columnTitleFont) - 4;
    expectAt(pages.word(u"Company"_s), 10, y);
    for (const char16_t* word : {u"Street", u"Town", u"phone:", u"mail:", u"web:"}) {
        y -= height(invoice->dataFont) + 2;
        expectAt(pages.word(QString::fromUtf16(word)), 10, y);
    }
    EXPECT_EQ(pages.count(u"VAT"_s), 0);
    EXPECT_NEAR(invoice->adding, 752 - y, 1e-9);
}

TEST_F(InvoiceForm, linesOfTheCompanyThatAreEmptyKeepTheirPlace)
{
    settings([](Params& params) {
        params.companyAddress.clear();
        params.companyPhone.clear();
        params.useVATNo = true;
    });
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const double first = 752 - height(invoice->columnTitleFont) - 4;
    const double step = height(invoice->dataFont) + 2;
    EXPECT_NEAR(lineOf(pages, u"Town"_s), first - 2 * step, nearHeight);
    EXPECT_NEAR(lineOf(pages, u"phone:"_s), first - 3 * step, nearHeight);
    EXPECT_NEAR(lineOf(pages, u"No."_s), first - 6 * step, nearHeight); // VAT No., without a number
}

TEST_F(InvoiceForm, theHeadNamesNumberDatesAndCustomer)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const QPointF point = titlePoint();
    const double step = height(invoice->titlesFont) + 2;
    const char16_t* labels[] = {u"DATE:", u"DUE", u"BILL"};
    const char16_t* values[] = {u"11/14/23", u"11/24/23", u"Customer"};
    expectAt(pages.word(u"4711"_s), point.x(), point.y() - 20);
    EXPECT_EQ(wordsAt(pages.words(), point.y() - 20).mid(0, 2), QStringList({u"INVOICE"_s, u"#"_s}));
    for (int i = 0; i < 3; ++i) {
        expectAt(pages.word(QString::fromUtf16(labels[i])), point.x() - 80, point.y() - 20 - (i + 1) * step);
        expectAt(pages.word(QString::fromUtf16(values[i])), point.x(), point.y() - 20 - (i + 1) * step);
    }
    EXPECT_NEAR(invoice->tableStartPoint->y(), tableTop(), 1e-9);
    EXPECT_EQ(invoice->tableStartPoint->x(), 1.5);
}

TEST_F(InvoiceForm, withoutADueDateTheDocumentsOwnDateIsDue)
{
    document->payToDate = 0;
    ZELVOR_NEEDS_PDF_TOOLS();
    EXPECT_EQ(print().count(u"11/14/23"_s), 2);
}

TEST_F(InvoiceForm, theDatesAreThoseOfTheBooksZone)
{
    // 14 November, 22:13 in UTC is the 15th in Moscow.
    books.appDelegate.calendar = Calendar(QTimeZone("Europe/Moscow"));
    ZELVOR_NEEDS_PDF_TOOLS();
    EXPECT_EQ(print().count(u"11/15/23"_s), 1);
}

TEST_F(InvoiceForm, theCustomersLinesAreThereWhenTheyAreFilled)
{
    customer->address = u"Lane"_s;
    customer->phone = u"777"_s;
    customer->vatNumber = u"DE99"_s;
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintedPages pages = print();
    const QPointF point = titlePoint();
    const double step = height(invoice->titlesFont) + 2;
    const double valueStep = height(invoice->invoiceDataFont) + 2;
    expectAt(pages.word(u"Lane"_s), point.x(), point.y() - 20 - 3 * step - valueStep);
    expectAt(pages.word(u"777"_s), point.x(), point.y() - 20 - 3 * step - 2 * valueStep);
    EXPECT_EQ(pages.count(u"DE99"_s), 0); // only with VAT in use
    EXPECT_NEAR(invoice->tableStartPoint->y(), tableTop() - 2 * valueStep, 1e-9);
    settings([](Params& params) { params.useVAT = true; });
    pages = print();
    expectAt(pages.word(u"DE99"_s), point.x(), point.y() - 20 - 4 * step - 2 * valueStep);
    EXPECT_NEAR(invoice->tableStartPoint->y(), tableTop() - 2 * valueStep - step, 1e-9);
}

TEST_F(InvoiceForm, withoutATaxItsSevenColumnsStandAtTheirCentres)
{
    addRow(u"Bell"_s, 3, 12.5).product.edit().setPackAmount(2);
    sums(37.5);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const Words words = pages.words();
    const double head = tableTop() - 2 - height(invoice->colTitleFont);
    EXPECT_EQ(wordsAt(words, head),
              QStringList({u"#"_s, u"Name"_s, u"Unit"_s, u"Amount"_s, u"Packs"_s, u"Price"_s, u"Total"_s}));
    const double centres[] = {11.5, 146.5, 286.5, 329, 379, 429, 489};
    for (std::size_t i = 1; i < 7; ++i) {
        const PrintedWord word = pages.word(invoice->titles[i].title);
        EXPECT_NEAR((word.left + word.right) / 2, centres[i], near) << i;
    }
    const double line = firstLine(tableTop() - 15);
    EXPECT_EQ(wordsAt(words, line),
              QStringList({u"1"_s, u"Bell"_s, u"piece"_s, u"3.00"_s, u"1.50"_s, u"12.50"_s, u"37.50"_s}));
    const auto centre = [](const PrintedWord& word) { return (word.left + word.right) / 2; };
    EXPECT_NEAR(centre(pages.word(u"1"_s)), 11.5, near);
    EXPECT_NEAR(pages.word(u"Bell"_s).left, 146.5 - 125 + 2, near);
    EXPECT_NEAR(centre(pages.word(u"piece"_s)), 286.5, near);
    EXPECT_NEAR(centre(pages.word(u"3.00"_s)), 329, near);
    EXPECT_NEAR(pages.word(u"1.50"_s).right, 379 + 22.5 - 2, near);
    EXPECT_NEAR(pages.word(u"12.50"_s).right, 429 + 27.5 - 2, near);
    EXPECT_NEAR(pages.word(u"37.50"_s).right, 489 + 32.5 - 2, near);
}

TEST_F(InvoiceForm, withVATItsTenColumnsStandAtTheirCentres)
{
    document->withVAT = true;
    addRow(u"Bell"_s, 1, 120, 20);
    sums(120, 20);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const Words words = pages.words();
    EXPECT_EQ(wordsAt(words, tableTop() - 2 - height(invoice->smallColumnTitleFont)),
              QStringList({u"#"_s, u"Name"_s, u"Unit"_s, u"Amount"_s, u"Packs"_s, u"Price"_s, u"VAT"_s,
                           u"%"_s, u"VAT"_s, u"Net"_s, u"Total"_s, u"Total"_s}));
    const double line = firstLine(tableTop() - 15);
    EXPECT_EQ(wordsAt(words, line),
              QStringList({u"1"_s, u"Bell"_s, u"piece"_s, u"1.00"_s, u"0.00"_s, u"120.00"_s, u"20%"_s,
                           u"20.00"_s, u"100.00"_s, u"120.00"_s}));
    EXPECT_NEAR(pages.word(u"Bell"_s).left, 91.5 - 70 + 2, near);
    EXPECT_NEAR(pages.word(u"0.00"_s).right, 256.5 + 20 - 2, near);
    EXPECT_NEAR(pages.word(u"20%"_s).right, 341.5 + 25 - 2, near);
    EXPECT_NEAR(pages.word(u"20.00"_s).right, 394 + 27.5 - 2, near);
    EXPECT_NEAR(pages.word(u"100.00"_s).right, 444 + 22.5 - 2, near);
    // The first 120.00 of the page is the price.
    EXPECT_NEAR(pages.word(u"120.00"_s).right, 296.5 + 20 - 2, near);
}

TEST_F(InvoiceForm, gstComesOnTopOfThePrice)
{
    document->withGST = true;
    addRow(u"Bell"_s, 1, 33.33, 7.5);
    sums(35.83, 0, 2.5);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const Words words = pages.words();
    EXPECT_EQ(wordsAt(words, firstLine(tableTop() - 15)),
              QStringList({u"1"_s, u"Bell"_s, u"piece"_s, u"1.00"_s, u"0.00"_s, u"33.33"_s, u"7.5%"_s,
                           u"2.50"_s, u"33.33"_s, u"35.83"_s}));
    EXPECT_EQ(pages.count(u"TAX"_s), 3); // two columns and the sum
    EXPECT_EQ(pages.count(u"VAT"_s), 0);
}

TEST_F(InvoiceForm, withBothTaxesVATLeadsButForTheTotalOfARow)
{
    document->withVAT = document->withGST = true;
    addRow(u"Bell"_s, 1, 120, 20);
    sums(120, 20, 24);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    EXPECT_EQ(wordsAt(pages.words(), firstLine(tableTop() - 15)),
              QStringList({u"1"_s, u"Bell"_s, u"piece"_s, u"1.00"_s, u"0.00"_s, u"120.00"_s, u"20%"_s,
                           u"20.00"_s, u"100.00"_s, u"144.00"_s}));
}

TEST_F(InvoiceForm, titlesOfAnyCountButTenUseTheSevenPositions)
{
    document->insertContragent(customer);
    addRow(u"Bell"_s, 1, 120, 20);
    sums(120);
    invoice = makeInvoice(books.appDelegate, document);
    ZELVOR_NEEDS_PDF_TOOLS();
    using Titles = std::vector<PrintInvoice::Title>;
    const Titles nine{{u"T1"_s, u"number"_s}, {u"T2"_s, u"name"_s},   {u"T3"_s, u"measurement"_s},
                      {u"T4"_s, u"amount"_s}, {u"T5"_s, u"packs"_s},  {u"T6"_s, u"price"_s},
                      {u"T7"_s, u"vat"_s},    {u"T8"_s, u"number"_s}, {u"T9"_s, u"total"_s}};
    for (const std::size_t count : {std::size_t(2), std::size_t(9)}) {
        invoice->titles.assign(nine.begin(), nine.begin() + static_cast<std::ptrdiff_t>(count));
        const PrintedPages pages(*invoice);
        const PrintedWord name = pages.word(u"T2"_s);
        EXPECT_NEAR((name.left + name.right) / 2, 146.5, near) << count;
        EXPECT_EQ(invoice->columns.size(), 7U);
        EXPECT_EQ(pages.count(u"T8"_s), 0); // there is no place for an eighth
    }
    invoice->titles = Titles(10, {u"T"_s, u"number"_s});
    PrintedPages ten(*invoice);
    EXPECT_EQ(invoice->columns.size(), 10U);
    EXPECT_EQ(invoice->columns[1].centre, 91.5);
}

TEST_F(InvoiceForm, aLongNameMakesItsRowHigherAndTheOtherCellsKeepToTheTop)
{
    addRow(u"Alpha "_s.repeated(12) + u"omega"_s, 2, 10);
    addRow(u"Bell"_s, 3, 7);
    sums(41);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const QStringList lines = invoice->splitRow(document->documentRows[0]->product->name, 250);
    ASSERT_GE(lines.size(), 2);
    const double top = tableTop() - 15;
    EXPECT_NEAR(lineOf(pages, u"2.00"_s), firstLine(top), nearHeight);
    EXPECT_NEAR(lineOf(pages, u"omega"_s), firstLine(top) - 15.0 * (double(lines.size()) - 1), nearHeight);
    EXPECT_NEAR(lineOf(pages, u"Bell"_s), firstLine(top - 15.0 * double(lines.size())), nearHeight);
}

TEST_F(InvoiceForm, theSumsStandBelowTheTable)
{
    document->withVAT = true;
    addRow(u"Bell"_s, 1, 120, 20);
    sums(1132.5, 20, 0, 12.5);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const Words words = pages.words();
    const double begin = tableTop() - 15 - 15 + 10;
    EXPECT_EQ(wordsAt(words, begin - 30).mid(0, 1), QStringList{u"SUBTOTAL"_s});
    const PrintedWord subtotal = pages.word(u"SUBTOTAL"_s);
    expectAt(subtotal, 523 - 90 - width(u"SUBTOTAL €"_s, invoice->titlesFont), begin - 30);
    expectAt(pages.word(u"SHIPPING"_s), 523 - 90 - width(u"SHIPPING €"_s, invoice->titlesFont), begin - 54);
    expectAt(pages.word(u"TOTAL"_s), 523 - 90 - width(u"TOTAL €"_s, invoice->titlesFont), begin - 66);
    EXPECT_NEAR(pages.word(u"12.50"_s).right, 523 - 4, near);
    EXPECT_NEAR(lineOf(pages, u"12.50"_s), begin - 54, nearHeight);
    EXPECT_NEAR(lineOf(pages, u"132.50"_s), begin - 66, nearHeight); // 1 132.50
    // 1132.50 - 12.50 - 20
    EXPECT_TRUE(std::ranges::any_of(words, [&](const PrintedWord& word) {
        return word.text == u"100.00" && std::abs(word.bottom - (begin - 30)) < nearHeight;
    }));
    EXPECT_TRUE(std::ranges::any_of(words, [&](const PrintedWord& word) {
        return word.text == u"VAT" && std::abs(word.bottom - (begin - 42)) < nearHeight;
    }));
    expectAt(pages.word(u"THANK"_s), 10, begin - 66 - 40);
}

TEST_F(InvoiceForm, withoutATaxTheTotalFollowsTheSubtotalInTheNextLine)
{
    addRow(u"Bell"_s, 1, 120);
    sums(120);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const double begin = tableTop() - 15 - 15 + 10;
    EXPECT_NEAR(lineOf(pages, u"SUBTOTAL"_s), begin - 30, nearHeight);
    EXPECT_NEAR(lineOf(pages, u"TOTAL"_s), begin - 42, nearHeight);
    EXPECT_EQ(pages.count(u"SHIPPING"_s), 0);
    EXPECT_EQ(pages.count(u"VAT"_s), 0);
    EXPECT_EQ(pages.count(u"TAX"_s), 0);
    EXPECT_NEAR(lineOf(pages, u"THANK"_s), begin - 42 - 40, nearHeight);
}

TEST_F(InvoiceForm, withoutATaxShippingTakesTheLineOfTheTax)
{
    addRow(u"Bell"_s, 1, 120);
    sums(125, 0, 0, 5);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const double begin = tableTop() - 15 - 15 + 10;
    EXPECT_NEAR(lineOf(pages, u"SHIPPING"_s), begin - 42, nearHeight);
    EXPECT_NEAR(lineOf(pages, u"TOTAL"_s), begin - 54, nearHeight);
}

TEST_F(InvoiceForm, aShipmentBelowNothingHasNoLine)
{
    addRow(u"Bell"_s, 1, 120);
    sums(115, 0, 0, -5);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    EXPECT_EQ(pages.count(u"SHIPPING"_s), 0);
    EXPECT_NEAR(lineOf(pages, u"TOTAL"_s), tableTop() - 15 - 15 + 10 - 42, nearHeight);
}

TEST_F(InvoiceForm, thePaymentLinesStandLeftOfTheSums)
{
    addRow(u"Bell"_s, 1, 120);
    sums(120);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const Words words = pages.words();
    const double begin = tableTop() - 15 - 15 + 10;
    expectAt(pages.word(u"Make"_s), 10, begin - 82 + 62);
    expectAt(pages.word(u"If"_s), 10, begin - 82 + 54);
    EXPECT_EQ(wordsAt(words, begin - 82 + 62).join(u' '), u"Make all checks payable to Company."_s);
    EXPECT_TRUE(wordsAt(words, begin - 82 + 54)
                    .join(u' ')
                    .startsWith(u"If you have any questions concerning this invoice, phone: 12345, "
                                "e-mail: a@b.example."_s));
}

TEST_F(InvoiceForm, theBankDetailsThatAreFilledStandInLinesOfTheirOwn)
{
    addRow(u"Bell"_s, 1, 120);
    sums(120);
    settings([](Params& params) {
        params.printBankDetails = true;
        params.bankAccountName = u"Holder"_s;
        params.bankIBAN = u"DE123"_s;
        params.bankSWIFT = u"SWIFTY"_s;
    });
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const double heading = tableTop() - 15 - 15 + 10 - (42 + 40 - 36);
    expectAt(pages.word(u"Direct"_s), 10, heading);
    expectAt(pages.word(u"Account"_s), 10, heading - 8);
    expectAt(pages.word(u"Holder"_s), 60, heading - 8);
    expectAt(pages.word(u"IBAN:"_s), 10, heading - 16);
    expectAt(pages.word(u"DE123"_s), 60, heading - 16);
    expectAt(pages.word(u"SWIFTY"_s), 60, heading - 24);
    EXPECT_EQ(pages.count(u"Bank:"_s), 0);
    expectAt(pages.word(u"THANK"_s), 10, heading - 8 - 24 - 28);
}

TEST_F(InvoiceForm, theHeadBandAndTheLinesOfTheTableStandInTheirPlaces)
{
    addRow(u"Bell"_s, 1, 120);
    print();
    const double scale = 4;
    const QImage page = pictures(*invoice, 72 * scale).front();
    const auto shade = [&](double x, double y) {
        return page.pixelColor(static_cast<int>((36 + x) * scale), static_cast<int>((842 - 45 - y) * scale));
    };
    const double top = tableTop();
    const QColor band = QColor::fromRgbF(0.121F, 0.212F, 0.607F);
    for (const double x : {2.0, 200.0, 521.0}) {
        EXPECT_EQ(shade(x, top - 1).rgb(), band.rgb()) << x;
        EXPECT_EQ(shade(x, top - 14).rgb(), band.rgb()) << x;
    }
    EXPECT_EQ(shade(0.5, top - 7), Qt::white);
    EXPECT_EQ(shade(522.5, top - 7), Qt::white);
    const auto darkest = [&](double x, double y, bool alongX) {
        int light = 255;
        for (double step = -0.75; step <= 0.75; step += 0.25)
            light = std::min(light, (alongX ? shade(x + step, y) : shade(x, y + step)).lightness());
        return light;
    };
    for (const double edge : {1.5, 21.5, 271.5, 301.5, 356.5, 401.5, 456.5, 521.5})
        EXPECT_LT(darkest(edge, top - 28.5, true), 200) << edge;
    EXPECT_LT(darkest(100, top - 30, false), 200);
    EXPECT_EQ(darkest(140, top - 34, true), 255);
}

TEST_F(InvoiceForm, rowsBelowTheSheetAreCutAndTheUserIsTold)
{
    for (int i = 1; i <= 60; ++i)
        addRow(u"Product"_s + QString::number(i), 1, 1);
    sums(60);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    EXPECT_EQ(pages.pages(), 2);
    for (const PrintedWord& word : pages.words())
        EXPECT_EQ(word.page, 1) << word.text.toStdString();
    EXPECT_EQ(pages.count(u"Product30"_s), 1);
    EXPECT_EQ(pages.count(u"Product60"_s), 0);
    EXPECT_EQ(pages.count(u"TOTAL"_s), 0);
    EXPECT_TRUE(invoice->warning.contains(u"longer than its sheet"_s)) << invoice->warning.toStdString();
}

TEST_F(InvoiceForm, aSheetThatHoldsEverythingWarnsOfNothing)
{
    int rows = 0;
    do {
        addRow(u"P"_s + QString::number(++rows), 1, 1);
        document->insertContragent(customer);
        invoice = makeInvoice(books.appDelegate, document);
    } while (invoice->warning.isEmpty() && rows < 60);
    // The last that fits shows its line of thanks whole.
    document->documentRows.pop_back();
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    EXPECT_EQ(invoice->warning, QString());
    EXPECT_GE(lineOf(pages, u"THANK"_s), -nearHeight);
    EXPECT_LT(lineOf(pages, u"THANK"_s), 15);
    EXPECT_GT(rows, 30);
}

TEST_F(InvoiceForm, aDraftHasTheSumsThatItsFormShowsAndStaysAsItIs)
{
    document->confirmed = false;
    document->docNumber = 0;
    document->withVAT = true;
    addRow(u"Bell"_s, 2, 60, 20);
    document->setShipment(5);
    const PrintedPages pages = print();
    EXPECT_EQ(invoice->document->innerDocSum, Decimal(125));
    EXPECT_EQ(invoice->document->innerVATSum, Decimal(20));
    EXPECT_EQ(invoice->document->subtotal(), Decimal(100));
    EXPECT_EQ(document->innerDocSum, Decimal(0));
    EXPECT_EQ(document->innerVATSum, Decimal(0));
    ZELVOR_NEEDS_PDF_TOOLS();
    EXPECT_EQ(pages.count(u"125.00"_s), 1);
}

TEST_F(InvoiceForm, ofAnOpenFormShowsWhatIsTypedIntoIt)
{
    settings([](Params& params) { params.useVAT = true; });
    document->id = 0;
    document->confirmed = false;
    document->insertContragent(customer);
    ProductDocumentViewController form(books.appDelegate, document);
    form.prepareData();
    EXPECT_EQ(makeInvoice(form)->titles.size(), 10U);
    form.vatCheck.setOn(false);
    form.mainView.taxesChecked();
    form.deferment.setValue(Decimal(3));
    const auto plain = makeInvoice(form);
    EXPECT_EQ(plain->titles.size(), 7U);
    EXPECT_EQ(plain->document->payToDate, document->date + 3 * secondsPerDay);
}

TEST_F(InvoiceForm, aLongNameOfACustomerTakesSeveralLinesAndMovesTheNextOnesDown)
{
    customer->name = u"Nobody & Daughters, Wholesale of Bicycles and Parts"_s;
    customer->address = u"Donaudampfschifffahrtsgesellschaftskapitänsmützenweg"_s;
    customer->city = u"Village"_s;
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const double first = lineOf(pages, u"BILL"_s);
    const double step = height(invoice->invoiceDataFont) + 2;
    expectAt(pages.word(u"Nobody"_s), titlePoint().x(), first);
    EXPECT_NEAR(lineOf(pages, u"Parts"_s), first - step, nearHeight);
    const PrintedWord address = pages.word(customer->address); // one word, so it is drawn smaller
    EXPECT_LE(address.right, 523);
    EXPECT_NEAR(address.bottom, first - 2 * step, 0.6);
    expectAt(pages.word(u"Village"_s), titlePoint().x(), first - 3 * step);
    EXPECT_NEAR(invoice->tableStartPoint->y(), first - 3 * step - 20, nearHeight);
}

TEST_F(InvoiceForm, whatIsTooWideIsDrawnSmallerAndReadsWhole)
{
    document->withVAT = true;
    addRow(u"Donaudampfschifffahrtsgesellschaftskapitän"_s, 1'234'567, 1234.5, 20);
    sums(1);
    settings([](Params& params) { params.companyMail = u"accounts.department@company.example"_s; });
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    EXPECT_LE(pages.word(u"Donaudampfschifffahrtsgesellschaftskapitän"_s).right, 21.5 + 140);
    EXPECT_GE(pages.word(u"567.00"_s).right, 200); // 1 234 567.00 within its 45 points
    EXPECT_LE(pages.word(u"567.00"_s).right, 214 + 22.5);
    // "If you have any questions ...", up to the label of the second sum.
    EXPECT_LT(pages.word(u"accounts.department@company.example."_s).right, pages.word(u"SUBTOTAL"_s).left);
}

TEST_F(InvoiceForm, namesInCyrillicCanBeSelected)
{
    customer->name = u"ООО «Ромашка»"_s;
    settings([](Params& params) { params.companyName = u"ИП Щукин"_s; });
    addRow(u"Звонок велосипедный"_s, 1, 120);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    EXPECT_EQ(pages.count(u"«Ромашка»"_s), 1);
    EXPECT_EQ(pages.count(u"велосипедный"_s), 1);
    for (const PrintedFont& font : pages.fonts())
        EXPECT_TRUE(font.embedded && font.unicode) << font.name.toStdString();
}

TEST_F(InvoiceForm, thePictureShowsTheWordsWhereThePdfHasThem)
{
    addRow(u"Bell"_s, 1, 120);
    sums(120);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages pages = print();
    const double scale = 2;
    const QImage page = pictures(*invoice, 72 * scale).front();
    for (const PrintedWord& word : pages.words()) {
        const QRect box(static_cast<int>((36 + word.left) * scale),
                        static_cast<int>((842 - 45 - word.top) * scale),
                        static_cast<int>((word.right - word.left) * scale) + 1,
                        static_cast<int>((word.top - word.bottom) * scale) + 1);
        const QRgb ground = page.pixel(box.topLeft());
        int inked = 0;
        for (int y = box.top(); y < box.bottom(); ++y) {
            for (int x = box.left(); x < box.right(); ++x)
                inked += page.pixel(x, y) != ground;
        }
        EXPECT_GT(inked, 8) << word.text.toStdString();
    }
}

TEST_F(InvoiceForm, aDocumentWithoutACustomerPrints)
{
    invoice = makeInvoice(books.appDelegate, document);
    ASSERT_TRUE(invoice);
    EXPECT_FALSE(PrintedPages(*invoice).pdf().isEmpty());
}

} // namespace zelvor
