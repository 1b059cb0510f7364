// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPartTraversal.h>
#include <xsg/nodes/base/SoGeometry.h>

#include <array>
#include <unordered_map>

namespace xsg
{
class DepthGrid;
class LargeGroupCache;
} // namespace xsg

/// Finds what is seen within a rectangle of a picture, also in part: what something else hides is left out.
/// Draws the rectangle into memory, by its own means: OpenGL would need a context that is current. What is
/// smaller than a pixel may be missed.
class XSG_API SoAreaPickAction : private SoPartTraversal
{
public:
    SoAreaPickAction();
    ~SoAreaPickAction() override;

    /// In parts of the picture: (0, 0) is its lower left corner, (1, 1) its upper right.
    struct Area {
        float left = 0;
        float bottom = 0;
        float right = 1;
        float top = 1;
    };
    /// From the root to each shape that is seen, in the order of the scene. `viewProjection` takes the
    /// coordinates that the root stands in to the picture; `width` and `height` are the area's, in pixels.
    std::vector<SoPath> pick(SoNode* root, const SbMatrix& viewProjection, const Area& area, int width,
                             int height);
    /// The pixels of the area, row by row from the bottom, where this part would be seen if nothing hid it:
    /// not 0.
    std::vector<std::uint32_t> cover(const SoPath& part, const SbMatrix& viewProjection, const Area& area,
                                     int width, int height);
    /// What lies on the other side of this plane than its normal is cut away; null for none.
    void setClipPlane(const SbPlane* plane);
    using SoTraversal::setHiding;
    /// Where the eye is, for what chooses by distance.
    void setEye(const SbVec3f& eye) { m_eye = eye; }

private:
    using Plane = std::array<double, 4>;
    void draw(const SoPath& part, const SbMatrix& viewProjection, const Area& area, int width, int height);
    bool wantsGroup(SoGroup* group) override;
    void visitPartShape(SoShape* shape) override;
    void drawShape(SoShape* shape, const SbMatrix& toWorld);
    bool mayBeSeen(const SbBox3f& box);
    bool mayBeSeen(const SbBox3f& box, const SbMatrix& toWorld) const;
    void findPlanes();
    void addPlane(const SbPlane& plane, const SbMatrix& toWorld);
    const SoGeometry& geometryOf(SoShape* shape);

    SbMatrix m_toArea; // from the world to the area as the whole of what is seen
    SbVec3f m_eye;
    SbPlane m_clipPlane;
    bool m_hasClipPlane = false;
    std::vector<Plane> m_planes; // in the area's coordinates, of the state that they were found for
    SoShared<SbPlane> m_planesOf;
    std::unique_ptr<xsg::DepthGrid> m_grid;
    std::vector<SoPath> m_paths; // of what has come to be seen; number i + 1 in the grid
    std::unordered_map<SoGeometryKey, SoGeometry, SoGeometryKeyHash> m_geometry;
};
