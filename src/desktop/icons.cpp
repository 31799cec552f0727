#include "desktop/icons.h"

#include <QtCore/QFile>
#include <QtGui/QGuiApplication>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtSvg/QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

// Outside every namespace: the macro declares a function of the global one.
static void initResources()
{
    Q_INIT_RESOURCE(desktop);
}

namespace zelvor {

namespace {

constexpr auto placeholderColor = "#444444"_L1; // the colour that the icons are drawn in

// Draws an icon anew in the colour of the palette, so it follows a change from light to dark.
class LineIconEngine final : public QIconEngine {
public:
    explicit LineIconEngine(QString drawing) : m_drawing(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        const QColor color = QGuiApplication::palette().color(group, role);
        QString drawing = m_drawing;
        QSvgRenderer renderer(drawing.replace(placeholderColor, color.name()).toUtf8());
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        painter->setRenderHint(QPainter::Antialiasing);
        renderer.render(painter, QRectF(rect));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new LineIconEngine(m_drawing); }

private:
    QString m_drawing;
};

QString pathOf(const QString& name)
{
    return u":/zelvor/icons/"_s + name + u".svg"_s;
}

} // namespace

void loadDesktopResources()
{
    initResources();
}

QIcon lineIcon(const QString& name)
{
    QFile file(pathOf(name));
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new LineIconEngine(QString::fromUtf8(file.readAll())));
}

QIcon pictureIcon(const QString& name)
{
    return name.isEmpty() || !QFile::exists(pathOf(name)) ? QIcon() : QIcon(pathOf(name));
}

} // namespace zelvor
