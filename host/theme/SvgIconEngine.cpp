// SPDX-License-Identifier: MIT
#include "theme/SvgIconEngine.h"

#include "theme/SvgIcon.h"
#include "theme/Theme.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace scopix
{

namespace
{

struct IconColor {
    const char* onLight; // as the files have it
    const char* onDark;
};

constexpr IconColor IconColors[] = {
    {"#5b6673", "#a9b3be"}, // neutral
    {"#2f74c0", "#5ea5ea"}, // groups, and what an action is about
    {"#b8651b", "#e39a4f"}, // transformations
    {"#b03f78", "#de7fae"}, // appearance
    {"#b58900", "#e0b43c"}, // lights, files
    {"#6f52bd", "#a78fe6"}, // cameras
    {"#2b8552", "#5cc48a"}, // shapes
};

QByteArray colorFor(const IconColor& color, const QPalette& palette, QIcon::Mode mode)
{
    if (mode == QIcon::Selected)
        return palette.color(QPalette::HighlightedText).name().toLatin1();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::WindowText).name().toLatin1();
    return isDark(palette) ? color.onDark : color.onLight;
}

QByteArray colored(QByteArray svg, const QPalette& palette, QIcon::Mode mode)
{
    for (const IconColor& color : IconColors)
        svg.replace(color.onLight, colorFor(color, palette, mode));
    return svg;
}

QPixmap render(const QByteArray& svg, const QSize& pixels)
{
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer renderer(svg);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter);
    return pixmap;
}

} // namespace

SvgIconEngine::SvgIconEngine(QByteArray svg, const QWidget* surface)
    : m_svg(std::move(svg))
    , m_surface(surface)
{
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/)
{
    painter->drawPixmap(rect, rendered(rect.size() * painter->device()->devicePixelRatioF(), mode));
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/)
{
    if (QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
        return rendered(size, mode); // QIcon has multiplied the size by the density
    QPixmap pixmap = rendered(size * qApp->devicePixelRatio(), mode);
    pixmap.setDevicePixelRatio(qApp->devicePixelRatio());
    return pixmap;
}

QIconEngine* SvgIconEngine::clone() const
{
    return new SvgIconEngine(*this);
}

QPixmap SvgIconEngine::rendered(const QSize& pixels, QIcon::Mode mode) const
{
    const QByteArray svg = colored(m_svg, paletteOf(m_surface), mode);
    const QString key =
        QStringLiteral("%1x%2 %3").arg(pixels.width()).arg(pixels.height()).arg(QString::fromLatin1(svg));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = render(svg, pixels);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace scopix
