// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/shapes/SoSolid.h>

/// A cylinder around the y axis.
class XSG_API SoCylinder : public SoTyped<SoCylinder, SoSolid>
{
public:
    static constexpr const char* ClassName = "Cylinder";
    enum Part { Sides = 1, Top = 2, Bottom = 4, All = 7 };

    SoSFBitMask parts{this, "parts", getPartNames(), All}; // what of it is drawn
    SoSFFloat radius{this, "radius", 1.0F};
    SoSFFloat height{this, "height", 2.0F};

    static SoEnumTablePtr getPartNames();
    SbVec3f getExtent() const override;
    SoGeometryKey getGeometryKey(const SoState& state) const override;
    void generate(const SoState& state, SoGeometry& geometry) const override;
};

extern template class SoTyped<SoCylinder, SoSolid>;
