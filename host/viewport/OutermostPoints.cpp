// SPDX-License-Identifier: MIT
#include "viewport/OutermostPoints.h"

#include "viewport/TargetedTraversal.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr std::size_t ManyPending = 512;
constexpr std::int64_t MostCorners = 4000000; // that are looked at one by one
constexpr int MostPlaces = 1 << 14;           // of groups and shapes: some 50 ms on a slow machine

/// The convex hull of points, seen along one of the eye's axes across: 0 or 1; depth is the other direction.
class FlatHull
{
public:
    explicit FlatHull(int axis)
        : m_axis(axis)
    {
    }
    void add(const SbVec3f& point)
    {
        if (contains(point))
            return;
        m_points.push_back(point);
        if (m_points.size() >= m_hullSize + ManyPending)
            close();
    }
    // False for what lies on its border, and where it is not known yet. Looks for the part of the fan around
    // the first point that has it.
    bool contains(const SbVec3f& point) const
    {
        if (m_hullSize < 3 || !isLeftOf(0, 1, point) || !isLeftOf(m_hullSize - 1, 0, point))
            return false;
        std::size_t low = 1;
        for (std::size_t high = m_hullSize - 1; high - low > 1;) {
            const std::size_t middle = (low + high) / 2;
            (isLeftOf(0, middle, point) ? low : high) = middle;
        }
        return isLeftOf(low, low + 1, point);
    }
    // Andrew's monotone chain.
    void close()
    {
        m_hullSize = m_points.size();
        if (m_hullSize < 2)
            return;
        std::sort(m_points.begin(), m_points.end(), [this](const SbVec3f& a, const SbVec3f& b) {
            return a[m_axis] != b[m_axis] ? a[m_axis] < b[m_axis] : a[2] < b[2];
        });
        std::vector<SbVec3f> hull;
        for (const bool isLower : {true, false}) {
            const std::size_t start = hull.size();
            const auto take = [&](const SbVec3f& point) {
                while (hull.size() >= start + 2 && !(area(hull[hull.size() - 2], hull.back(), point) > 0))
                    hull.pop_back();
                hull.push_back(point);
            };
            if (isLower)
                std::for_each(m_points.begin(), m_points.end(), take);
            else
                std::for_each(m_points.rbegin(), m_points.rend(), take);
            hull.pop_back(); // begins the other half
        }
        m_points = std::move(hull);
        m_hullSize = m_points.size();
    }
    const std::vector<SbVec3f>& getPoints() const { return m_points; }

private:
    bool isLeftOf(std::size_t from, std::size_t to, const SbVec3f& point) const
    {
        return area(m_points[from], m_points[to], point) > 0;
    }
    // In doubles: the differences of floats are exact there, nearly.
    double area(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c) const
    {
        const auto at = [this](const SbVec3f& p, int i) {
            return static_cast<double>(p[i == 0 ? m_axis : 2]);
        };
        return (at(b, 0) - at(a, 0)) * (at(c, 1) - at(a, 1)) - (at(b, 1) - at(a, 1)) * (at(c, 0) - at(a, 0));
    }

    int m_axis;
    std::vector<SbVec3f> m_points; // first the hull, against the clock, then what has not been looked at
    std::size_t m_hullSize = 0;
};

class PointFinder : private TargetedTraversal
{
public:
    PointFinder(const SoNode* part, const SbRotation& orientation)
        : TargetedTraversal({part})
        , m_part(part)
        , m_toEye(SbMatrix::rotation(orientation.inverse()))
    {
    }
    std::vector<SbVec3f> find(SoNode* root, const SbRotation& orientation)
    {
        if (root == m_part || (root->asGroup() && leadsThere(root->asGroup())))
            traverse(root);
        std::vector<SbVec3f> points;
        for (FlatHull* hull : {&m_across, &m_up}) {
            hull->close();
            for (const SbVec3f& point : hull->getPoints())
                points.push_back(orientation.multVec(point));
        }
        return points;
    }

private:
    bool wantsGroup(SoGroup* group) override
    {
        if (group == m_part)
            m_partBox = m_boxes.getBox(group);
        else if (m_depth == 0)
            return TargetedTraversal::wantsGroup(group);
        return !isTooLong(group) && (!group->isStateScope() || !isWithin(m_boxes.getBox(group)));
    }
    void enterGroup(SoGroup* group) override
    {
        if (group != m_part)
            return;
        ++m_depth;
        m_partPlaces.clear();
        state().forEachInstance([&](const SbMatrix& matrix) { m_partPlaces.push_back(matrix * m_toEye); });
    }
    void leaveGroup(SoGroup* group) override { m_depth -= group == m_part ? 1 : 0; }
    void visitShape(SoShape* shape) override
    {
        if ((m_depth == 0 && shape != m_part) || (state().drawStyle && !state().drawStyle->isVisible()))
            return;
        const SbBox3f box = shape->getBox(state());
        if (isTooLong(shape) || box.isEmpty() || isWithin(box))
            return;
        SoGeometry geometry;
        if (m_corners < MostCorners)
            shape->generate(state(), geometry);
        const bool isByBox = geometry.points.empty() || geometry.isScreenSpace;
        const SbMatrix placement = shape->getPlacement();
        state().forEachInstance([&](const SbMatrix& matrix) {
            if (isByBox || m_corners >= MostCorners)
                return addBox(box, matrix * m_toEye);
            addUsed(geometry, placement * matrix * m_toEye);
        });
    }

    // Of a part with very many places the box around all of it has to do.
    bool isTooLong(const SoNode* node)
    {
        if (++m_places < MostPlaces || m_partBox.isEmpty())
            return false;
        if (node == m_part)
            state().forEachInstance([&](const SbMatrix& matrix) { addBox(m_partBox, matrix * m_toEye); });
        for (const SbMatrix& toEye : m_partPlaces)
            addBox(m_partBox, toEye);
        m_partPlaces.clear();
        return true;
    }

    template <class Visit>
    static void forEachCorner(const SbBox3f& box, Visit visit)
    {
        for (unsigned corner = 0; corner < 8; ++corner) {
            SbVec3f point;
            for (int i = 0; i < 3; ++i)
                point[i] = (corner >> i) & 1U ? box.getMax()[i] : box.getMin()[i];
            visit(point);
        }
    }
    bool isWithin(const SbBox3f& box)
    {
        if (box.isEmpty())
            return false; // which may only be because it needs the state above
        bool isIn = true;
        state().forEachInstance([&](const SbMatrix& matrix) {
            if (!isIn)
                return;
            const SbMatrix toEye = matrix * m_toEye;
            forEachCorner(box, [&](const SbVec3f& corner) {
                const SbVec3f point = toEye.multPoint(corner);
                isIn = isIn && m_across.contains(point) && m_up.contains(point);
            });
        });
        return isIn;
    }
    // A list of points may be shared by shapes that each use a part of it.
    void addUsed(const SoGeometry& geometry, const SbMatrix& toEye)
    {
        m_corners += static_cast<std::int64_t>(geometry.points.size());
        m_isUsed.assign(geometry.points.size(), false);
        for (const std::uint32_t i : geometry.index) {
            if (!m_isUsed[i])
                add(toEye.multPoint(geometry.points[i]));
            m_isUsed[i] = true;
        }
    }
    void addBox(const SbBox3f& box, const SbMatrix& toEye)
    {
        forEachCorner(box, [&](const SbVec3f& corner) { add(toEye.multPoint(corner)); });
    }
    void add(const SbVec3f& point)
    {
        if (!std::isfinite(point[0]) || !std::isfinite(point[1]) || !std::isfinite(point[2]))
            return;
        m_across.add(point);
        m_up.add(point);
    }

    const SoNode* m_part;
    SbBox3f m_partBox;                  // in the part's coordinates; empty where it needs the state above
    std::vector<SbMatrix> m_partPlaces; // from where the part stands now, to the eye
    SbMatrix m_toEye;                   // turned only
    int m_places = 0;                   // that were looked at
    int m_depth = 0;
    FlatHull m_across{0};
    FlatHull m_up{1};
    SoBoundingBoxAction m_boxes;
    std::int64_t m_corners = 0;
    std::vector<bool> m_isUsed; // points of one geometry
};

} // namespace

std::vector<SbVec3f> findOutermostPoints(SoNode* root, SoNode* part, const SbRotation& orientation)
{
    return root && part ? PointFinder(part, orientation).find(root, orientation) : std::vector<SbVec3f>();
}

} // namespace scopix
