// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/shapes/SoShape.h>

/// A body around the origin, made in unit size (-1 to 1 along each axis) and stretched to its own.
class XSG_API SoSolid : public SoTyped<SoSolid, SoShape>
{
public:
    static constexpr const char* ClassName = "Solid";

    /// Half the size along each axis.
    virtual SbVec3f getExtent() const = 0;
    SbMatrix getPlacement() const override { return SbMatrix::scale(getExtent()); }
    SbBox3f getBox(const SoState& state) const override;

protected:
    /// How many pieces a full turn is drawn with: 8 to 128, 32 at a complexity of 0.5.
    static int getSegments(const SoState& state);
    /// `variant` distinguishes what the type and the segments do not.
    SoGeometryKey makeKey(int segments, int variant = 0) const;
};

extern template class SoTyped<SoSolid, SoShape>;
