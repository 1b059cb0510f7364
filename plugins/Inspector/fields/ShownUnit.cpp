// SPDX-License-Identifier: MIT
#include "fields/ShownUnit.h"

#include <QCoreApplication>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr double Degree = 3.141592653589793 / 180;

QString translated(const char* name)
{
    return QCoreApplication::translate("ShownUnit", name);
}

} // namespace

QString ShownUnit::textOf(double shown) const
{
    return QString::number(shown, 'g', digits) + sign;
}

ShownUnit ShownUnit::of(SpxQuantity quantity)
{
    ShownUnit unit;
    if (quantity == SpxQuantity::Angle && PanelSettings::showsDegrees())
        unit = {Degree, QString(QChar(0xB0)), translated("degrees")};
    else if (quantity == SpxQuantity::Length)
        unit = of(PanelSettings::lengthUnit());
    if (const int wanted = PanelSettings::digits())
        unit.digits = std::min(wanted, unit.digits);
    return unit;
}

ShownUnit ShownUnit::of(LengthUnit unit)
{
    switch (unit) {
    case LengthUnit::Centimetres:
        return {0.01, QString::fromLatin1(" cm"), translated("centimetres")};
    case LengthUnit::Millimetres:
        return {0.001, QString::fromLatin1(" mm"), translated("millimetres")};
    case LengthUnit::Inches:
        return {0.0254, QString::fromLatin1(" in"), translated("inches")};
    case LengthUnit::Feet:
        return {0.3048, QString::fromLatin1(" ft"), translated("feet")};
    default:
        return {};
    }
}

} // namespace inspector
