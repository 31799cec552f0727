#pragma once

#include "documents/product_document.h"
#include "print/print_view.h"

#include <optional>
#include <utility>
#include <vector>

namespace zelvor {

class ProductDocumentViewController;

// The invoice of a sale, on one sheet: rows that reach below its bottom are cut, and `warning` says so.
class PrintInvoice final : public PrintView {
public:
    // A shown column of the document's table, headed by its title.
    struct Title {
        QString title;
        QString identifier;
    };
    struct Column {
        double centre;
        double width;
    };

    explicit PrintInvoice(AppDelegate& owner);

    std::shared_ptr<ProductDocument> document; // before setDocument()
    std::shared_ptr<Contragent> contragent;
    std::vector<Title> titles;

    const Color titlesColor{0.4, 0.4, 0.4, 1};
    const QFont titlesFont = printFont(10, true, true);
    const QFont smallFont = printFont(7, false, true);
    const QFont smallColumnTitleFont = printFont(7, true, true);
    const QFont smallBoldFont = printFont(7, true, true);
    double adding = 0;           // what the company's lines take from the top of the sheet
    std::vector<Column> columns; // the positions in use
    std::optional<QPointF> tableStartPoint;

    // Reads the settings; before printing.
    void setDocument();

    void drawRect(Canvas& canvas) override;
    void drawInvoiceTitles(Canvas& canvas, const QPointF& point);
    void drawCompanyData(Canvas& canvas);
    void drawTable(Canvas& canvas);
    void drawTotals(Canvas& canvas, double top);

private:
    struct TitleLine {
        QString label; // may be empty
        QString value;
        double depth; // below the form's title
    };
    using Lines = std::vector<std::pair<QString, QString>>; // label and value
    struct CompanyLine {
        QString text;
        QFont font;
        double depth; // below the top of the sheet
    };
    std::vector<CompanyLine> companyLines() const;
    std::vector<TitleLine> titleLines() const;
    QStringList titleValueLines(const QString& value) const;
    Lines sumLines() const;
    Lines bankLines() const;
    QStringList nameLines(const ProductDocumentRow& row) const;
    QString cellText(const ProductDocumentRow& row, int number, const QString& identifier) const;

    QPointF titlePoint() const;
    double tableTop() const;
    double rowHeightOf(const ProductDocumentRow& row) const;
    double sumsLeft() const;
    double sumsDepth() const;
    double thanksDepth() const;
    bool fitsSheet() const;

    void drawTableHead(Canvas& canvas, double top) const;
    void drawRow(Canvas& canvas, const ProductDocumentRow& row, int number, double top) const;
    void drawPaymentLines(Canvas& canvas, double bottom) const;
    void drawBankLines(Canvas& canvas, double top) const;
};

// The invoice of what the form shows, ready to be printed; a draft has the sums of the form. None when the
// document is no sale.
std::unique_ptr<PrintInvoice> makeInvoice(ProductDocumentViewController& form);
// The same for a stored document, as its form would show it.
std::unique_ptr<PrintInvoice> makeInvoice(AppDelegate& appDelegate,
                                          const std::shared_ptr<ProductDocument>& document);

} // namespace zelvor
