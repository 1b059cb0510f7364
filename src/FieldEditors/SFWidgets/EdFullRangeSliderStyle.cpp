// SPDX-License-Identifier: MIT
#include "EdFullRangeSliderStyle.h"

#include <QStyleOption>
#include <QWidget>

#include <limits>

namespace
{

QStyleOptionSlider halved(QStyleOptionSlider option)
{
    if (qint64(option.maximum) - option.minimum > std::numeric_limits<int>::max()) {
        option.minimum /= 2;
        option.maximum /= 2;
        option.sliderPosition /= 2;
        option.sliderValue /= 2;
    }
    return option;
}

// Calls `ask` with an option that every style can count with.
template <class Ask>
auto askHalved(QStyle::ComplexControl control, const QStyleOptionComplex* option, Ask ask)
{
    if (control == QStyle::CC_Slider) {
        if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
            const QStyleOptionSlider half = halved(*slider);
            return ask(&half);
        }
    }
    return ask(option);
}

} // namespace

void EdFullRangeSliderStyle::install(QWidget* slider)
{
    if (dynamic_cast<EdFullRangeSliderStyle*>(slider->style()))
        return;
    auto* style = new EdFullRangeSliderStyle;
    style->setParent(slider);
    slider->setStyle(style);
}

QRect EdFullRangeSliderStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                             SubControl subControl, const QWidget* widget) const
{
    return askHalved(control, option, [&](const QStyleOptionComplex* o) {
        return QProxyStyle::subControlRect(control, o, subControl, widget);
    });
}

void EdFullRangeSliderStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                                QPainter* painter, const QWidget* widget) const
{
    askHalved(control, option, [&](const QStyleOptionComplex* o) {
        QProxyStyle::drawComplexControl(control, o, painter, widget);
    });
}

QStyle::SubControl EdFullRangeSliderStyle::hitTestComplexControl(ComplexControl control,
                                                                 const QStyleOptionComplex* option,
                                                                 const QPoint& position,
                                                                 const QWidget* widget) const
{
    return askHalved(control, option, [&](const QStyleOptionComplex* o) {
        return QProxyStyle::hitTestComplexControl(control, o, position, widget);
    });
}
