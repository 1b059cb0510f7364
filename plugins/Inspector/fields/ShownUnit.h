// SPDX-License-Identifier: MIT
#pragma once

#include "fields/PanelSettings.h"

#include <scopix/editing/expression/SpxExpression.h>

#include <QString>

namespace inspector
{

/// The unit that the user wants numbers of a quantity shown in. GUI thread only.
struct ShownUnit {
    double size = 1; // in what fields hold: metres, radians
    QString sign;    // behind the number, and understood in formulas; empty where numbers stand alone
    QString name;    // "centimetres"; empty for that of the field
    int digits = 6;  // of a number in another unit than that of the field, which is exact to no more

    bool isThatOfTheField() const { return sign.isEmpty(); }
    QString textOf(double shown) const;

    static ShownUnit of(SpxQuantity quantity);
    static ShownUnit of(LengthUnit unit);
};

} // namespace inspector
