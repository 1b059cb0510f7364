// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFComponentsWidget.h"

#include <xsg/fields/SoMFPlane.h>

struct MFPlaneTraits {
    using Field = SoMFPlane;
    using Component = float;
    static constexpr const char* Name = "MFPlane";
    static constexpr auto Cell = EdMFieldTable::CELL_FLOAT;
    static QStringList captions() { return {"x", "y", "z", "distance"}; }
    static Component get(const SbPlane& plane, int column)
    {
        return column < 3 ? plane.getNormal()[column] : plane.getDistanceFromOrigin();
    }
    static SbPlane with(const SbPlane& plane, int column, Component value)
    {
        SbVec3f normal = plane.getNormal();
        if (column == 3)
            return {normal, value};
        normal[column] = value;
        return {normal, plane.getDistanceFromOrigin()};
    }
};

/// Edits lists of planes, one per row.
class EdMFPlaneWidget : public EdMFComponentsWidget<MFPlaneTraits>
{
    Q_OBJECT

public:
    explicit EdMFPlaneWidget(const char* name = nullptr);
};
