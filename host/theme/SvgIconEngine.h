// SPDX-License-Identifier: MIT
#pragma once

#include <QIconEngine>
#include <QPointer>
#include <QWidget>

namespace scopix
{

/// Renders an SVG text as an icon, at the size and pixel density asked for. The colours of the theme in it
/// are replaced by those that suit the palette of the widget on which it is shown; colours written as
/// rgb(...) stay. Pictures are kept in QPixmapCache. GUI thread only.
class SvgIconEngine : public QIconEngine
{
public:
    SvgIconEngine(QByteArray svg, const QWidget* surface);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    /// Where Qt does not ask for the pixels of the screen by itself, the picture has those of the densest
    /// one.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    QPixmap rendered(const QSize& pixels, QIcon::Mode mode) const;

    QByteArray m_svg;
    QPointer<const QWidget> m_surface;
};

} // namespace scopix
