#pragma once

#include "core/decimal.h"
#include "print/canvas.h"
#include "store/app_delegate.h"

#include <QtCore/QStringList>

#include <memory>

namespace zelvor {

// The base of every print form: a form is drawn with absolute coordinates on a virtual sheet, which is cut
// into pages from the top downward. The frame has the fonts and colours, the settings, the logo, the pages
// and the wrapping of long texts. Lengths are points (1/72 inch); the origin is the lower left corner.
class PrintView {
public:
    // Frames of a sheet: A4 within the margins.
    static constexpr QSizeF portrait{523, 752};
    static constexpr QSizeF landscape{752, 523};

    PrintView(AppDelegate& appDelegate, const QSizeF& frame, QString title);
    virtual ~PrintView() = default;
    PrintView(const PrintView&) = delete;
    PrintView& operator=(const PrintView&) = delete;

    AppDelegate& appDelegate;
    const QString title;

    const QFont dataFont = printFont(10);
    const QFont invoiceDataFont = printFont(9);
    const QFont titleFont = printFont(28, true);
    const QFont columnTitleFont = printFont(10, true);
    const QFont colDataFont = printFont(8);
    const QFont colTitleFont = printFont(9, true, true);
    const Color tableBorderColor{0.2, 0.2, 0.2, 1};
    const Color titleColor = inOrderColor;
    const double rowHeight = 14;

    QImage logo; // null without one; it may hold more pixels than the points of logoSize it is drawn in
    QSizeF logoSize;
    double delta = 0; // the height that the logo takes from the top of the sheet
    std::shared_ptr<Params> params;
    // What the user is to be told: a logo that is missing or cannot be read. Empty when all is well.
    QString warning;

    const QSizeF& frame() const { return m_frame; }
    void setFrame(const QSizeF& frame) { m_frame = frame; }
    // The orientation of the sheet as it was made, however tall it grew since.
    bool isLandscape() const { return m_landscape; }

    // Reads the settings and the logo; before anything is drawn or printed.
    virtual void setData();
    // Draws what of the sheet lies in the canvas' slice.
    virtual void drawRect(Canvas& canvas) = 0;
    void printLogo(Canvas& canvas) const;

    // The pages for paper of that height between its margins, at that scale; computed in single precision.
    static float calculatePrintHeight(double paperHeight, double topMargin, double bottomMargin,
                                      double scale);
    int knowsPageRange(float pageHeight) const;           // the number of pages
    QRectF rectForPage(int page, float pageHeight) const; // page counts from 1
    // The lines of a text in `colDataFont`: a word that is wider than the width stands alone, uncut. A line
    // that would repeat the one before it at the end of the text is left out.
    QStringList splitRow(const QString& text, double width) const;

    // The box of a line of text, points; quick, since the form keeps what it learned of its fonts.
    QSizeF textSize(const QString& text, const QFont& font) const { return m_faces->textSize(text, font); }
    FontFaces& faces() const { return *m_faces; }
    struct FittedText {
        QFont font;
        QSizeF size; // of the text in that font
    };
    // The font itself, or as much smaller as a text needs that would leave its place; not below 4 points.
    FittedText fitted(const QString& text, const QFont& font, double width) const;

    // A figure: two digits, groups parted by a blank, the locale's decimal separator.
    static QString numberText(const Decimal& value);
    // The locale's short date of a moment, without the time.
    QString dateText(qint64 moment) const;

private:
    QSizeF m_frame;
    bool m_landscape;
    std::unique_ptr<FontFaces> m_faces;
};

} // namespace zelvor
