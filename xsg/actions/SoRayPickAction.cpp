// SPDX-License-Identifier: MIT
#include <xsg/actions/SoRayPickAction.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/actions/RayTests.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/counters/LibraryCounters.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>

namespace
{

// How far beside a line or a point a ray may pass, as part of the distance from its origin.
constexpr float Tolerance = 0.005F;

} // namespace

struct SoRayPickAction::Hit {
    float distance = std::numeric_limits<float>::max(); // along the local ray, which need not be of length 1
    SbVec3f normal;
    std::size_t part = 0;
};

struct SoRayPickAction::Kept {
    SoGeometry geometry;
    int usedAt = 0;
};

SoRayPickAction::SoRayPickAction() = default;
SoRayPickAction::~SoRayPickAction() = default;

std::optional<SoPickedPoint> SoRayPickAction::pick(SoNode* root, const SbRay& ray)
{
    walk(root, ray);
    return std::exchange(m_nearest, std::nullopt);
}

std::vector<SoPickedPoint> SoRayPickAction::pickAll(SoNode* root, const SbRay& ray)
{
    std::vector<SoPickedPoint> all;
    m_all = &all;
    walk(root, ray);
    m_all = nullptr;
    std::stable_sort(all.begin(), all.end(),
                     [](const SoPickedPoint& a, const SoPickedPoint& b) { return a.distance < b.distance; });
    return all;
}

void SoRayPickAction::setClipPlane(const SbPlane* plane)
{
    m_clipPlane = plane ? std::optional<SbPlane>(*plane) : std::nullopt;
}

void SoRayPickAction::walk(SoNode* root, const SbRay& ray)
{
    xsg::feeds.picks.add();
    m_nearest.reset();
    if (!root || !(ray.direction.length() > 0))
        return;
    m_ray = {ray.origin, ray.direction.normalized()};
    m_localMatrix = SbMatrix();
    m_localRay = m_ray;
    ++m_pickNumber;
    // Fills the boxes that let the walk skip what the ray does not meet.
    SoBoundingBoxAction().getBox(root);
    resetState();
    state().eye = m_ray.origin;
    traverse(root);
    for (auto it = m_geometry.begin(); it != m_geometry.end();)
        it = it->second.usedAt + 16 < m_pickNumber ? m_geometry.erase(it) : std::next(it);
}

bool SoRayPickAction::wantsGroup(SoGroup* group)
{
    xsg::GroupCache* cache = group->asSeparator() ? xsg::GroupCache::find(*group) : nullptr;
    m_box = cache && cache->hasBox(*group, xsg::BoxInputs::of(state())) ? cache : nullptr;
    return !m_box || mayMeetAny(m_box->getBox());
}

void SoRayPickAction::enterGroup(SoGroup* group)
{
    xsg::LargeGroupCache* large = m_box ? m_box->asLarge() : nullptr;
    if (large && !group->isViewDependent())
        visitOnly(findChildren(*large));
}

// The children of a large separator that the ray may meet, and those that the others depend on.
std::vector<std::uint32_t> SoRayPickAction::findChildren(xsg::LargeGroupCache& cache)
{
    const xsg::LargeGroupCache::ChildBoxes& known = cache.childBoxes();
    std::vector<std::uint32_t> places;
    using Found = xsg::BoundingBoxTree::Found;
    const auto classify = [&](const SbBox3f& box) { return mayMeetAny(box) ? Found::Some : Found::Nothing; };
    known.tree.find(classify, [&](std::size_t first, std::size_t end, bool /*isEverything*/) {
        for (std::size_t i = first; i < end; ++i) {
            if (mayMeetAny(known.boxes[i]))
                places.push_back(static_cast<std::uint32_t>(i));
        }
    });
    xsg::mergePlaces(places, known.others);
    return places;
}

bool SoRayPickAction::mayMeetAny(const SbBox3f& box)
{
    bool meets = false;
    state().forEachInstance([&](const SbMatrix& matrix) { meets = meets || mayMeet(box, matrix); });
    return meets;
}

bool SoRayPickAction::mayMeet(const SbBox3f& box, const SbMatrix& toWorld)
{
    if (box.isEmpty())
        return false;
    // A ray may pass beside lines and points, so the box grows by the tolerance at its distance.
    const auto& ray = localRay(toWorld);
    if (!ray)
        return false;
    const float reach = ((box.getCenter() - ray->origin).length() + box.getSize().length()) * Tolerance;
    const SbVec3f slack(reach, reach, reach);
    return xsg::meetsBox(*ray, SbBox3f(box.getMin() - slack, box.getMax() + slack));
}

const std::optional<SbRay>& SoRayPickAction::localRay(const SbMatrix& toWorld)
{
    // Siblings share their coordinates: the last result can mostly be used again.
    if (toWorld != m_localMatrix) {
        m_localMatrix = toWorld;
        m_localRay.reset();
        if (const auto toLocal = toWorld.inverse())
            m_localRay = {toLocal->multPoint(m_ray.origin), toLocal->multDirection(m_ray.direction)};
    }
    return m_localRay;
}

void SoRayPickAction::visitShape(SoShape* shape)
{
    if (state().drawStyle && !state().drawStyle->isVisible())
        return;
    state().forEachInstance([&](const SbMatrix& matrix) { pickShape(shape, matrix); });
    if (m_all && m_nearest)
        m_all->push_back(*std::exchange(m_nearest, std::nullopt));
}

void SoRayPickAction::pickShape(SoShape* shape, const SbMatrix& matrix)
{
    if (!mayMeet(shape->getBox(state()), matrix))
        return;
    const SbMatrix toWorld = shape->getPlacement() * matrix;
    const auto toLocal = toWorld.inverse();
    if (!toLocal) // a shape squeezed flat has no inside to look from
        return;
    const SbRay ray{toLocal->multPoint(m_ray.origin), toLocal->multDirection(m_ray.direction)};
    const SoGeometry& g = geometryOf(shape);
    const auto corner = [&](std::size_t i) { return g.points[g.index[i]]; };
    const auto offer = [&](const Hit& hit) {
        if (hit.distance >= 0 && !isClipped(m_ray.at(hit.distance)))
            take(shape, hit, toWorld, *toLocal);
    };
    if (g.kind == SoGeometry::Kind::Triangles) {
        for (std::size_t i = 0; i + 2 < g.index.size(); i += 3) {
            Hit hit;
            hit.part = i / 3;
            if (xsg::meetsTriangle(ray, corner(i), corner(i + 1), corner(i + 2), hit.distance, hit.normal))
                offer(hit);
        }
        return;
    }
    // Beside lines and points, nearness is judged in world coordinates.
    const std::size_t step = g.kind == SoGeometry::Kind::Lines ? 2 : 1;
    for (std::size_t i = 0; i + step <= g.index.size(); i += step) {
        Hit hit;
        hit.part = i / step;
        if (xsg::passesSegment(m_ray, toWorld.multPoint(corner(i)), toWorld.multPoint(corner(i + step - 1)),
                               Tolerance, hit.distance))
            offer(hit);
    }
}

void SoRayPickAction::take(SoShape* shape, const Hit& hit, const SbMatrix& toWorld, const SbMatrix& toLocal)
{
    // Directions were not normalised on their way into the shape's coordinates, so distances are still the
    // world's.
    if (m_nearest && m_nearest->distance <= hit.distance)
        return;
    SoPickedPoint& found = m_nearest.emplace();
    found.distance = hit.distance;
    found.point = m_ray.at(hit.distance);
    const SbVec3f normal = toLocal.transposed().multDirection(hit.normal).normalized();
    found.normal = normal == SbVec3f() ? m_ray.direction * -1.0F : normal;
    if (found.normal.dot(m_ray.direction) > 0)
        found.normal = found.normal * -1.0F;
    for (const Frame& frame : getFrames())
        found.path.append(frame.group);
    found.path.append(shape);
    found.part = static_cast<int>(hit.part);
    found.points = SoRef<SoPoints>(const_cast<SoPoints*>(state().points));
    found.toWorld = toWorld;
}

bool SoRayPickAction::isClipped(const SbVec3f& point)
{
    const auto cuts = [&](const SbPlane& plane) {
        return plane.getNormal().dot(point) < plane.getDistanceFromOrigin();
    };
    if (m_clipPlane && cuts(*m_clipPlane))
        return true;
    return state().clipPlanes && std::any_of(state().clipPlanes->begin(), state().clipPlanes->end(), cuts);
}

const SoGeometry& SoRayPickAction::geometryOf(SoShape* shape)
{
    const auto [place, isNew] = m_geometry.try_emplace(shape->getGeometryKey(state()));
    Kept& kept = place->second;
    if (isNew)
        shape->generate(state(), kept.geometry);
    kept.usedAt = m_pickNumber;
    return kept.geometry;
}
