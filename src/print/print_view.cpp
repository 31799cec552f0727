#include "print/print_view.h"

#include "core/formats.h"
#include "print/company_logo.h"

#include <QtCore/QLocale>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

PrintView::PrintView(AppDelegate& owner, const QSizeF& frame, QString titleText)
    : appDelegate(owner), title(std::move(titleText)), params(std::make_shared<Params>()), m_frame(frame),
      m_landscape(frame.width() > frame.height()), m_faces(std::make_unique<FontFaces>())
{}

void PrintView::setData()
{
    params = appDelegate.params();
    if (!params)
        params = std::make_shared<Params>();
    CompanyLogo read;
    if (params->printCompanyLogo)
        read = CompanyLogo::fromPath(params->pathToLogo);
    logo = read.image;
    logoSize = read.size;
    warning = read.warning;
    delta = logo.isNull() ? 0 : logoSize.height() + 2;
}

void PrintView::printLogo(Canvas& canvas) const
{
    if (!logo.isNull())
        canvas.image({QPointF(1, m_frame.height() - logoSize.height() + 1), logoSize}, logo);
}

float PrintView::calculatePrintHeight(double paperHeight, double topMargin, double bottomMargin, double scale)
{
    return static_cast<float>(paperHeight - topMargin - bottomMargin) / static_cast<float>(scale);
}

int PrintView::knowsPageRange(float pageHeight) const
{
    return static_cast<int>(m_frame.height() / static_cast<double>(pageHeight)) + 1;
}

QRectF PrintView::rectForPage(int page, float pageHeight) const
{
    const double height = static_cast<double>(pageHeight);
    return {0, m_frame.height() - page * height, m_frame.width(), height};
}

QStringList PrintView::splitRow(const QString& text, double width) const
{
    QStringList result;
    QString line; // with a blank behind each word
    for (const QString& word : text.split(u' ')) {
        const QString longer = line + word + u' ';
        if (!line.isEmpty() && textSize(longer, colDataFont).width() >= width) {
            result.append(line.chopped(1));
            line = word + u' ';
        } else {
            line = longer;
        }
    }
    line.chop(1);
    if (result.isEmpty() || result.last() != line)
        result.append(line);
    return result;
}

auto PrintView::fitted(const QString& text, const QFont& font, double width) const -> FittedText
{
    constexpr int smallest = 4;
    FittedText result{font, textSize(text, font)};
    while (result.size.width() > width && result.font.pixelSize() > smallest) {
        result.font.setPixelSize(result.font.pixelSize() - 1);
        result.size = textSize(text, result.font);
    }
    return result;
}

QString PrintView::numberText(const Decimal& value)
{
    return exportNumberText(value, QLocale());
}

QString PrintView::dateText(qint64 moment) const
{
    return shortDateText(appDelegate.calendar.dateTime(moment), QLocale());
}

} // namespace zelvor
