// SPDX-License-Identifier: MIT
#include "panels/FieldStateIcons.h"

#include "theme/SvgIcon.h"

#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoSFColor.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

QString stateName(const SoField& field)
{
    if (field.isIgnored())
        return QStringLiteral("field-ignored");
    if (field.isConnected())
        return QStringLiteral("field-connected");
    return field.isDefault() ? QStringLiteral("field-default") : QStringLiteral("field-changed");
}

// Components outside of 0 to 1 show the nearest colour that a screen has, those that are no numbers black.
int toByte(float component)
{
    return std::isfinite(component)
               ? static_cast<int>(std::lround(255.0F * std::clamp(component, 0.0F, 1.0F)))
               : 0;
}

QIcon swatch(const SbVec3f& rgb, const QWidget* surface)
{
    return swatchIcon(QColor(toByte(rgb[0]), toByte(rgb[1]), toByte(rgb[2])), surface);
}

} // namespace

QIcon fieldStateIcon(const SoField& field, const QWidget* surface)
{
    return svgIcon(stateName(field), surface);
}

QIcon valueSwatch(const SoField& field, const QWidget* surface)
{
    if (const auto* color = dynamic_cast<const SoSFColor*>(&field))
        return swatch(color->getValue(), surface);
    if (const auto* colors = dynamic_cast<const SoMFColor*>(&field))
        return colors->getNum() == 1 ? swatch((*colors)[0], surface) : QIcon();
    return {};
}

} // namespace scopix
