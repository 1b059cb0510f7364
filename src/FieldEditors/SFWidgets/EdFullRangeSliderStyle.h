// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

/// Draws sliders whose range is wider than an int can count. Qt's own styles divide by zero, or put the
/// handle in a wrong place, where maximum - minimum exceeds the largest int; this one asks them with halved
/// numbers instead.
class EdFullRangeSliderStyle : public QProxyStyle
{
public:
    /// Once for a slider; the style becomes its child and lives as long.
    static void install(QWidget* slider);

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     const QPoint& position, const QWidget* widget) const override;
};
