// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoGeometry.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/base/SoState.h>

class SoDrawingCallback;

/// Something to see: a leaf that has geometry.
class XSG_API SoShape : public SoTyped<SoShape, SoNode>
{
public:
    static constexpr const char* ClassName = "Shape";

    /// Fills `geometry`, which comes empty.
    virtual void generate(const SoState& state, SoGeometry& geometry) const = 0;
    /// Equal keys promise equal geometry.
    virtual SoGeometryKey getGeometryKey(const SoState& state) const = 0;
    /// From the coordinates of the geometry to those of the shape; solids of all sizes share one geometry.
    virtual SbMatrix getPlacement() const { return {}; }
    /// In the shape's coordinates.
    virtual SbBox3f getBox(const SoState& state) const = 0;

    SoShape* asShape() override { return this; }
    virtual const SoDrawingCallback* asDrawingCallback() const { return nullptr; }
};

extern template class SoTyped<SoShape, SoNode>;
