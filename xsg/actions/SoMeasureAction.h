// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPartTraversal.h>
#include <xsg/nodes/base/SoGeometry.h>

#include <unordered_map>

/// Measures the part of a scene that a path leads to, in pieces: the box around it, the area of its surfaces,
/// how much there is of it. In the coordinates that the path's head stands in; computed in double precision
/// from the values that the scene holds. What is invisible counts not, and pixels of texts have no size.
class XSG_API SoMeasureAction : private SoPartTraversal
{
public:
    struct Sum {
        std::int64_t shapes = 0;
        std::int64_t triangles = 0;
        double area = 0;
        SbVec3d min; // of the box, where there are shapes
        SbVec3d max;
        bool hasBox = false;

        void add(const Sum& other);
        SbVec3d getSize() const { return hasBox ? max - min : SbVec3d(); }
    };

    void begin(const SoPath& part);
    /// True when all is measured, or else when the time is up. The scene must stay as it is from begin() on.
    bool advance(std::chrono::steady_clock::time_point until);
    /// Lets the nodes of the path go, and keeps the sum.
    void forget() { follow({}); }
    /// So far.
    const Sum& getSum() const { return m_sum; }

    /// Takes a point of a shape to the world in double precision.
    static SbVec3d toWorld(const SbVec3f& point, const SbMatrix& placement, const SbMatrix& matrix);

private:
    void visitPartShape(SoShape* shape) override;
    void measure(const SoGeometry& geometry, const SbMatrix& placement, const SbMatrix& matrix);
    const SoGeometry& geometryOf(SoShape* shape);

    Sum m_sum;
    std::unordered_map<SoGeometryKey, SoGeometry, SoGeometryKeyHash> m_geometry; // of the last shapes
    std::vector<SbVec3d> m_points;
};
