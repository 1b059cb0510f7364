// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/shapes/SoSolid.h>

/// A cone around the y axis, its tip up.
class XSG_API SoCone : public SoTyped<SoCone, SoSolid>
{
public:
    static constexpr const char* ClassName = "Cone";
    enum Part { Sides = 1, Bottom = 2, All = 3 };

    SoSFBitMask parts{this, "parts", getPartNames(), All}; // what of it is drawn
    SoSFFloat bottomRadius{this, "bottomRadius", 1.0F};
    SoSFFloat height{this, "height", 2.0F};

    static SoEnumTablePtr getPartNames();
    SbVec3f getExtent() const override;
    SoGeometryKey getGeometryKey(const SoState& state) const override;
    void generate(const SoState& state, SoGeometry& geometry) const override;
};

extern template class SoTyped<SoCone, SoSolid>;
