// SPDX-License-Identifier: MIT
#include "viewport/SnapFinder.h"

#include "viewport/SceneView.h"

#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr double Reach = 8;         // pixels
constexpr float DepthSlack = 2e-3F; // of the distance, by which what is seen may lie behind a surface
constexpr double Flat = 1e-4;       // how far normals of one plane may differ
constexpr std::size_t MostTried = 6;

SbVec3f toFloat(const SbVec3d& v)
{
    return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

SbVec3d toDouble(const SbVec3f& v)
{
    return {static_cast<double>(v[0]), static_cast<double>(v[1]), static_cast<double>(v[2])};
}

struct Candidate {
    double distance; // on the screen
    Snap snap;
    SbVec3d normal; // of the triangle that an edge belongs to; 0 for a line
    bool isInner = false;
};

/// Vertices and edges of one shape that are close to a place on the screen.
class Nearby : private SoPartTraversal
{
public:
    Nearby(const ViewSight& sight, const QPointF& place)
        : m_sight(sight)
        , m_place(place)
    {
    }
    void look(const SoPath& toShape)
    {
        follow(toShape);
        traverse(toShape.getHead());
        const auto isInner = [](const Candidate& edge) { return edge.isInner; };
        m_edges.erase(std::remove_if(m_edges.begin(), m_edges.end(), isInner), m_edges.end());
        for (auto* each : {&m_vertices, &m_edges})
            std::sort(each->begin(), each->end(),
                      [](const Candidate& a, const Candidate& b) { return a.distance < b.distance; });
    }
    const std::vector<Candidate>& getVertices() const { return m_vertices; }
    const std::vector<Candidate>& getEdges() const { return m_edges; }

private:
    void visitPartShape(SoShape* shape) override
    {
        SoGeometry geometry;
        shape->generate(state(), geometry);
        if (geometry.isScreenSpace)
            return;
        state().forEachInstance(
            [&](const SbMatrix& matrix) { lookAt(geometry, shape->getPlacement(), matrix); });
    }
    void lookAt(const SoGeometry& geometry, const SbMatrix& placement, const SbMatrix& matrix)
    {
        const SbMatrix whole = placement * matrix;
        std::vector<std::optional<QPointF>> places;
        for (const SbVec3f& point : geometry.points)
            places.push_back(m_sight.toScreen(whole.multPoint(point)));
        const auto exact = [&](std::uint32_t i) {
            return SoMeasureAction::toWorld(geometry.points[i], placement, matrix);
        };
        const auto corners = static_cast<std::size_t>(3 - static_cast<int>(geometry.kind));
        for (std::size_t i = 0; i + corners <= geometry.index.size(); i += corners) {
            const std::uint32_t* index = geometry.index.data() + i;
            for (std::size_t c = 0; c < corners; ++c) {
                const auto& at = places[index[c]];
                if (at && lengthOf(*at - m_place) <= Reach)
                    addVertex(exact(index[c]), lengthOf(*at - m_place));
            }
            const std::size_t edges = corners == 3 ? 3 : corners - 1;
            for (std::size_t c = 0; c < edges; ++c) {
                const std::uint32_t from = index[c];
                const std::uint32_t to = index[(c + 1) % corners];
                if (!places[from] || !places[to] || !isNear(*places[from], *places[to]))
                    continue;
                const SbVec3d normal =
                    corners == 3 ? normalOf(exact(index[0]), exact(index[1]), exact(index[2])) : SbVec3d();
                addEdge(exact(from), exact(to), normal);
            }
        }
    }
    static double lengthOf(const QPointF& by) { return std::hypot(by.x(), by.y()); }
    static SbVec3d normalOf(const SbVec3d& a, const SbVec3d& b, const SbVec3d& c)
    {
        const SbVec3d u = b - a;
        const SbVec3d v = c - a;
        return SbVec3d(u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0])
            .normalized();
    }
    // Where on the way from one to the other is the nearest place, from 0 to 1.
    double nearestOn(const QPointF& from, const QPointF& to) const
    {
        const QPointF by = to - from;
        const double square = QPointF::dotProduct(by, by);
        return square > 0 ? std::clamp(QPointF::dotProduct(m_place - from, by) / square, 0.0, 1.0) : 0;
    }
    bool isNear(const QPointF& from, const QPointF& to) const
    {
        return lengthOf(from + (to - from) * nearestOn(from, to) - m_place) <= Reach;
    }
    void addVertex(const SbVec3d& point, double distance)
    {
        const auto isSame = [&](const Candidate& other) { return other.snap.point == point; };
        if (std::any_of(m_vertices.begin(), m_vertices.end(), isSame))
            return;
        Candidate& vertex = m_vertices.emplace_back();
        vertex.distance = distance;
        vertex.snap.kind = Snap::Kind::Vertex;
        vertex.snap.point = point;
    }
    void addEdge(const SbVec3d& from, const SbVec3d& to, const SbVec3d& normal)
    {
        for (Candidate& other : m_edges) {
            const Snap& edge = other.snap;
            if (!((edge.from == from && edge.to == to) || (edge.from == to && edge.to == from)))
                continue;
            const bool isFlat = normal.length() > 0 && std::abs(normal.dot(other.normal)) > 1 - Flat;
            other.isInner = other.isInner || isFlat;
            return;
        }
        Candidate& edge = m_edges.emplace_back();
        edge.normal = normal;
        edge.snap.kind = Snap::Kind::Edge;
        edge.snap.from = from;
        edge.snap.to = to;
        placeOnEdge(edge);
    }
    // The point of the edge that the ray through the pointer passes closest.
    void placeOnEdge(Candidate& edge) const
    {
        const SbRay ray = m_sight.getRay(m_place);
        const SbVec3d u = edge.snap.to - edge.snap.from;
        const SbVec3d v = toDouble(ray.direction);
        const SbVec3d w = edge.snap.from - toDouble(ray.origin);
        const double b = u.dot(v);
        const double c = v.dot(v);
        const double determinant = u.dot(u) * c - b * b;
        const double t =
            determinant > 0 ? std::clamp((b * v.dot(w) - c * u.dot(w)) / determinant, 0.0, 1.0) : 0;
        edge.snap.point = edge.snap.from + u * t;
        const auto at = m_sight.toScreen(toFloat(edge.snap.point));
        edge.distance = at ? lengthOf(*at - m_place) : Reach;
    }

    const ViewSight& m_sight;
    QPointF m_place;
    std::vector<Candidate> m_vertices;
    std::vector<Candidate> m_edges;
};

// What is at the place, or as near to it as one snaps.
std::optional<SoPickedPoint> pickNear(SceneView& view, const QPoint& place)
{
    constexpr int By = 5;
    const QPoint around[] = {{0, 0},   {By, 0},   {-By, 0},  {0, By},   {0, -By},
                             {By, By}, {-By, By}, {By, -By}, {-By, -By}};
    for (const QPoint& by : around) {
        if (auto hit = view.pick(place + by))
            return hit;
    }
    return std::nullopt;
}

// Whether the point is in front of the surface that is seen at its place, or on it.
bool isSeen(SceneView& view, const ViewSight& sight, const SbVec3d& point)
{
    const auto at = sight.toScreen(toFloat(point));
    if (!at)
        return false;
    const auto hit = view.pick(QPoint(static_cast<int>(at->x()), static_cast<int>(at->y())));
    if (!hit)
        return true;
    const SbVec3f origin = sight.getRay(*at).origin;
    return (toFloat(point) - origin).length() <= (hit->point - origin).length() * (1 + DepthSlack);
}

std::optional<Snap> firstSeen(SceneView& view, const ViewSight& sight,
                              const std::vector<Candidate>& candidates)
{
    for (std::size_t i = 0; i < std::min(candidates.size(), MostTried); ++i) {
        if (isSeen(view, sight, candidates[i].snap.point))
            return candidates[i].snap;
    }
    return std::nullopt;
}

} // namespace

std::optional<Snap> findSnap(SceneView& view, const QPoint& place)
{
    const auto hit = pickNear(view, place);
    if (!hit)
        return std::nullopt;
    const ViewSight sight = view.getSight();
    Nearby nearby(sight, QPointF(place) + QPointF(0.5, 0.5));
    nearby.look(hit->path);
    if (auto vertex = firstSeen(view, sight, nearby.getVertices()))
        return vertex;
    if (auto edge = firstSeen(view, sight, nearby.getEdges()))
        return edge;
    Snap surface;
    surface.point = toDouble(hit->point);
    return surface;
}

} // namespace scopix
