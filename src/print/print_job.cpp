#include "print/print_job.h"

#include <QtCore/QBuffer>
#include <QtCore/QHashFunctions>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr QMarginsF margins(36, 45, 36, 45); // points
constexpr double scale = 1;
constexpr double pointsPerInch = 72;

// The PDF engine numbers the fonts in the order of a hash, which is another one in every run.
class OrderedHashes {
public:
    OrderedHashes() { QHashSeed::setDeterministicGlobalSeed(); }
    ~OrderedHashes() { QHashSeed::resetRandomGlobalSeed(); }
    OrderedHashes(const OrderedHashes&) = delete;
    OrderedHashes& operator=(const OrderedHashes&) = delete;
};

float heightOfPage(const QPageLayout& layout)
{
    const double paper = layout.fullRect(QPageLayout::Point).height();
    return PrintView::calculatePrintHeight(paper, margins.top(), margins.bottom(), scale);
}

// One page of the form. The painter's origin is the paper's corner.
void drawPage(PrintView& form, QPainter& painter, int page, float pageHeight, double unitsPerPoint)
{
    // A sheet ends at its bottom, also in the middle of a page: what a form draws below is cut off.
    const QRectF slice = form.rectForPage(page, pageHeight) & QRectF({0, 0}, form.frame());
    if (slice.isEmpty())
        return;
    painter.save();
    painter.scale(unitsPerPoint, unitsPerPoint);
    painter.translate(margins.left(), margins.top());
    painter.setClipRect(QRectF({0, 0}, slice.size()));
    {
        Canvas canvas(painter, slice, form.faces());
        form.drawRect(canvas);
    }
    painter.restore();
}

} // namespace

QPageLayout pageLayout(const PrintView& form)
{
    return {QPageSize(QPageSize::A4), form.isLandscape() ? QPageLayout::Landscape : QPageLayout::Portrait,
            margins, QPageLayout::Point};
}

bool printOn(PrintView& form, QPagedPaintDevice& device)
{
    // The margins are left here: those that a printer insists on would move the sheet.
    QPageLayout layout = device.pageLayout();
    layout.setMode(QPageLayout::FullPageMode);
    device.setPageLayout(layout);
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const float pageHeight = heightOfPage(device.pageLayout());
    const double unitsPerPoint = device.logicalDpiX() / pointsPerInch;
    const int pages = form.knowsPageRange(pageHeight);
    for (int page = 1; page <= pages; ++page) {
        if (page > 1 && !device.newPage())
            return false;
        drawPage(form, painter, page, pageHeight, unitsPerPoint);
    }
    return painter.end();
}

bool writePdf(PrintView& form, QIODevice& device)
{
    const OrderedHashes ordered;
    // Through memory, for the writer does not hear of a device that takes less.
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageLayout(pageLayout(form));
        writer.setResolution(static_cast<int>(pointsPerInch));
        writer.setTitle(form.title);
        writer.setCreator(u"Zelvor"_s);
        if (!printOn(form, writer))
            return false;
    }
    return device.write(bytes) == bytes.size();
}

std::vector<QImage> pictures(PrintView& form, double dotsPerInch)
{
    const QPageLayout layout = pageLayout(form);
    const double unitsPerPoint = dotsPerInch / pointsPerInch;
    const QSize size = (layout.fullRect(QPageLayout::Point).size() * unitsPerPoint).toSize();
    const float pageHeight = heightOfPage(layout);
    std::vector<QImage> result;
    for (int page = 1; page <= form.knowsPageRange(pageHeight); ++page) {
        QImage& image = result.emplace_back(size, QImage::Format_RGB32);
        image.setDotsPerMeterX(static_cast<int>(std::lround(dotsPerInch / 0.0254)));
        image.setDotsPerMeterY(image.dotsPerMeterX());
        image.fill(Qt::white);
        QPainter painter;
        if (!painter.begin(&image))
            return {};
        drawPage(form, painter, page, pageHeight, unitsPerPoint);
    }
    return result;
}

} // namespace zelvor
