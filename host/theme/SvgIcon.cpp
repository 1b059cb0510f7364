// SPDX-License-Identifier: MIT
#include "theme/SvgIcon.h"

#include "theme/SvgIconEngine.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>

namespace scopix
{

namespace
{

// Empty where there is no such file.
QByteArray fileNamed(const QString& name)
{
    static QHash<QString, QByteArray> known;
    const auto found = known.constFind(name);
    if (found != known.constEnd())
        return *found;
    QFile file(QStringLiteral(":/scopix/icons/%1.svg").arg(name));
    return *known.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
}

} // namespace

QIcon svgIcon(const QString& name, const QWidget* surface)
{
    const QByteArray svg = fileNamed(name);
    return svg.isEmpty() ? QIcon() : QIcon(new SvgIconEngine(svg, surface));
}

QIcon swatchIcon(const QColor& color, const QWidget* surface)
{
    QByteArray svg = fileNamed(QStringLiteral("color-swatch"));
    const QString fill =
        QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue());
    return QIcon(new SvgIconEngine(svg.replace("rgb(0,0,0)", fill.toLatin1()), surface));
}

QPalette paletteOf(const QWidget* surface)
{
    return surface ? surface->palette() : QGuiApplication::palette();
}

} // namespace scopix
