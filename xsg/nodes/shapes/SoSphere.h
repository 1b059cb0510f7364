// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/shapes/SoSolid.h>

/// A ball around the origin.
class XSG_API SoSphere : public SoTyped<SoSphere, SoSolid>
{
public:
    static constexpr const char* ClassName = "Sphere";

    SoSFFloat radius{this, "radius", 1.0F};

    SbVec3f getExtent() const override;
    SoGeometryKey getGeometryKey(const SoState& state) const override;
    void generate(const SoState& state, SoGeometry& geometry) const override;
};

extern template class SoTyped<SoSphere, SoSolid>;
