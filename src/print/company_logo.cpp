#include "print/company_logo.h"

#include "core/localized.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QResource>
#include <QtGui/QImageReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// Outside any namespace, as the macro asks for it.
static void initializeResources()
{
    Q_INIT_RESOURCE(print);
}

namespace zelvor {

namespace {

constexpr double widest = 200;           // points
constexpr double pixelsPerPoint = 4;     // as many as good paper shows
constexpr qint64 longestFile = 32 << 20; // bytes
constexpr double mostPixels = 32e6;

CompanyLogo without(const QString& reason, const QString& path)
{
    return {{}, {}, reason.arg(QDir::toNativeSeparators(path))};
}

CompanyLogo unreadable(const QString& path)
{
    return without(
        localized("The company logo %1 cannot be read as a picture, so the form was printed without it."),
        path);
}

// Whether the picture has no pixels of its own.
bool isVector(const QImageReader& reader)
{
    return reader.format().startsWith("svg");
}

// Has the reader make no more pixels than are printed, and of a drawing as many.
void boundPixels(QImageReader& reader, const QSize& stored, const QSizeF& drawn)
{
    const QSizeF most = drawn * pixelsPerPoint;
    if (isVector(reader) || stored.width() > most.width())
        reader.setScaledSize(most.toSize().expandedTo({1, 1}));
}

} // namespace

QSizeF CompanyLogo::drawnSize(const QSizeF& pixels)
{
    QSizeF size = pixels;
    if (size.width() > widest) {
        const double ratio = size.width() / widest;
        size.setHeight(size.height() / ratio);
        size.setWidth(size.width() / ratio);
    }
    return size;
}

CompanyLogo CompanyLogo::fromPath(const QString& path)
{
    initializeResources();
    const QString named = path.isEmpty() ? u":/zelvor/print/logo.png"_s : path;
    const QFileInfo file(named);
    if (!file.exists())
        return without(localized("The company logo %1 was not found, so the form was printed without it."),
                       path);
    if (!file.isFile() || file.size() > longestFile)
        return unreadable(path);
    QImageReader reader(named);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    if (stored.isEmpty() || double(stored.width()) * stored.height() > mostPixels)
        return unreadable(path);
    // A photograph may lie on its side.
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSizeF drawn = drawnSize(turned ? stored.transposed() : stored);
    boundPixels(reader, stored, turned ? drawn.transposed() : drawn);
    CompanyLogo logo{reader.read(), drawn, {}};
    return logo.image.isNull() ? unreadable(path) : logo;
}

} // namespace zelvor
