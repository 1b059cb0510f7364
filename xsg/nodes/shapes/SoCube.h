// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/shapes/SoSolid.h>

/// A box around the origin.
class XSG_API SoCube : public SoTyped<SoCube, SoSolid>
{
public:
    static constexpr const char* ClassName = "Cube";

    SoSFFloat width{this, "width", 2.0F};   // along x
    SoSFFloat height{this, "height", 2.0F}; // along y
    SoSFFloat depth{this, "depth", 2.0F};   // along z

    SbVec3f getExtent() const override;
    SoGeometryKey getGeometryKey(const SoState& state) const override;
    void generate(const SoState& state, SoGeometry& geometry) const override;
};

extern template class SoTyped<SoCube, SoSolid>;
