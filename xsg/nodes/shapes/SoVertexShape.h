// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFEnum.h>
#include <xsg/nodes/shapes/SoShape.h>

/// A shape whose corners come from the points, normals and texture coordinates before it.
class XSG_API SoVertexShape : public SoTyped<SoVertexShape, SoShape>
{
public:
    static constexpr const char* ClassName = "VertexShape";
    enum ColorBinding { Overall = 0, PerFace = 1, PerVertex = 2 };

    /// What takes the material's diffuse colours: the whole, each face (line, point), or each point.
    SoSFEnum colorBinding{this, "colorBinding", getColorBindingNames(), Overall};

    /// A triangle, a line or a point of its geometry.
    struct Part {
        int face = -1;           // as the colours per face count
        std::vector<int> points; // the places of its corners in the list of points; empty: there is none
    };
    /// The part of this number for a list of so many points.
    Part findPart(int pointCount, int number) const;

    static SoEnumTablePtr getColorBindingNames();
    SoGeometryKey getGeometryKey(const SoState& state) const override;
    void generate(const SoState& state, SoGeometry& geometry) const override;
    SbBox3f getBox(const SoState& state) const override;

protected:
    /// Corners by their place among the points, three per triangle, two per line, one per point. `faces` is
    /// left empty where each such group is a face, else it names the face of each group.
    struct Corners {
        std::vector<std::uint32_t> index;
        std::vector<std::uint32_t> faces;
    };
    virtual SoGeometry::Kind getKind() const = 0;
    /// `pointCount`: how many points there are. What lies outside of them is left out.
    virtual void collectCorners(std::uint32_t pointCount, Corners& corners) const = 0;

private:
    void addColors(const SoState& state, const Corners& corners, SoGeometry& geometry) const;
};

extern template class SoTyped<SoVertexShape, SoShape>;
