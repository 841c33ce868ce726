#include "icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <utility>

// In no namespace, since the macro declares a global function.
static void initResources()
{
    Q_INIT_RESOURCE(inspector);
}

namespace corvane {

namespace {

/** A drawing whose `currentColor` is the palette's colour for text. */
class DrawingEngine : public QIconEngine
{
public:
    explicit DrawingEngine(QByteArray drawing)
        : drawing(std::move(drawing))
    {
    }

    void paint(QPainter *painter, const QRect &area, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role
            = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        QByteArray colored = drawing;
        colored.replace("currentColor",
                        QGuiApplication::palette().color(group, role).name().toLatin1());
        QSvgRenderer renderer(colored);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(painter, area);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine *clone() const override { return new DrawingEngine(drawing); }

private:
    QByteArray drawing;
};

QIcon makeOwnIcon(const QString &name)
{
    initResources();
    QFile file(QStringLiteral(":/corvane/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? QIcon(new DrawingEngine(file.readAll())) : QIcon();
}

} // namespace

QIcon makeIcon(const QString &name)
{
    return QIcon::hasThemeIcon(name) ? QIcon::fromTheme(name) : makeOwnIcon(name);
}

QIcon makeProgramIcon()
{
    return makeOwnIcon(QStringLiteral("corvane-inspector"));
}

} // namespace corvane
