// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>
#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/base/SoGeometry.h>
#include <xsg/values/SbRay.h>

#include <optional>
#include <unordered_map>

struct SoPickedPoint {
    SoPath path;        // from the root to the shape
    SbVec3f point;      // in the coordinates the root stands in
    SbVec3f normal;     // of length 1, towards the ray's origin; for lines and points against the ray
    float distance = 0; // along the ray
};

namespace xsg
{
class GroupCache;
class LargeGroupCache;
} // namespace xsg

/// Finds what a ray meets first. Keep one action for many picks: it remembers geometry between them.
class XSG_API SoRayPickAction : private SoTraversal
{
public:
    SoRayPickAction();
    ~SoRayPickAction() override;

    /// `ray` in the coordinates the root stands in; its direction need not be of length 1.
    std::optional<SoPickedPoint> pick(SoNode* root, const SbRay& ray);
    /// Everything that the ray meets, from front to back: each shape once, where it is met first.
    std::vector<SoPickedPoint> pickAll(SoNode* root, const SbRay& ray);
    /// What lies on the other side of this plane than its normal is cut away; null for none.
    void setClipPlane(const SbPlane* plane);
    /// How many nodes the last pick looked at.
    using SoTraversal::getNumVisited;
    /// What of the scene the ray passes through, from the next pick on; it must outlive them.
    using SoTraversal::setHiding;

private:
    struct Hit;
    void walk(SoNode* root, const SbRay& ray);
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void pickShape(SoShape* shape, const SbMatrix& toWorld);
    void take(SoShape* shape, const Hit& hit, const SbMatrix& toLocal);
    bool isClipped(const SbVec3f& point);
    bool mayMeet(const SbBox3f& box, const SbMatrix& toWorld);
    bool mayMeetAny(const SbBox3f& box);
    std::vector<std::uint32_t> findChildren(xsg::LargeGroupCache& cache);
    const std::optional<SbRay>& localRay(const SbMatrix& toWorld);
    const SoGeometry& geometryOf(SoShape* shape);

    SbRay m_ray;
    SbMatrix m_localMatrix;
    std::optional<SbRay> m_localRay;  // nothing where space is squeezed flat
    xsg::GroupCache* m_box = nullptr; // of the separator that is about to be entered, where it is known
    std::optional<SoPickedPoint> m_nearest;
    std::vector<SoPickedPoint>* m_all = nullptr; // where everything is wanted
    std::optional<SbPlane> m_clipPlane;
    struct Kept;
    std::unordered_map<SoGeometryKey, Kept, SoGeometryKeyHash> m_geometry;
    int m_pickNumber = 0;
};
