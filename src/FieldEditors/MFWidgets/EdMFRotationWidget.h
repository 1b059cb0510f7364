// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFComponentsWidget.h"

#include <xsg/fields/SoMFRotation.h>

#include <algorithm>

struct MFRotationTraits {
    using Field = SoMFRotation;
    using Component = float;
    static constexpr const char* Name = "MFRotation";
    static constexpr auto Cell = EdMFieldTable::CELL_FLOAT;
    static QStringList captions() { return {"x", "y", "z", "radians"}; }
    /// The stored numbers of the rotation, although the last caption speaks of radians (decisions.md:
    /// rotation-captions).
    static Component get(const SbRotation& rotation, int column) { return rotation.getValue()[column]; }
    static SbRotation with(SbRotation rotation, int column, Component value)
    {
        float four[4];
        std::copy_n(rotation.getValue(), 4, four);
        four[column] = value;
        rotation.setValue(four);
        return rotation;
    }
};

/// Edits lists of rotations, one per row.
class EdMFRotationWidget : public EdMFComponentsWidget<MFRotationTraits>
{
    Q_OBJECT

public:
    explicit EdMFRotationWidget(const char* name = nullptr);
};
