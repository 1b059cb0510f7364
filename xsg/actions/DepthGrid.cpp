// SPDX-License-Identifier: MIT
#include <xsg/actions/DepthGrid.h>

#include <algorithm>
#include <cmath>

namespace
{

using Corner = xsg::DepthGrid::Corner;

// What is before the eye: the rest of the volume is cut by the borders of the grid.
constexpr std::array<double, 4> NearPlane{0, 0, 1, 1};
// Lines and points lie on surfaces as a rule, and are seen on them.
constexpr double Nearer = 1e-5;

double distance(const Corner& corner, const std::array<double, 4>& plane)
{
    double sum = 0;
    for (std::size_t i = 0; i < 4; ++i)
        sum += corner[i] * plane[i];
    return sum;
}

// Whether all of them are beyond the same side of what is in sight.
template <class Corners>
bool isOutside(const Corners& corners)
{
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (const double side : {1.0, -1.0}) {
            if (std::all_of(corners.begin(), corners.end(),
                            [&](const Corner& c) { return side * c[axis] > c[3]; }))
                return true;
        }
    }
    return false;
}

} // namespace

xsg::DepthGrid::DepthGrid(int width, int height)
    : m_width(width)
    , m_height(height)
    , m_numbers(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    , m_depths(m_numbers.size(), 2.0F)
{
}

void xsg::DepthGrid::clip(std::vector<Corner>& polygon, const std::array<double, 4>& plane)
{
    std::vector<Corner> kept;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Corner& from = polygon[i];
        const Corner& to = polygon[(i + 1) % polygon.size()];
        const double here = distance(from, plane);
        const double there = distance(to, plane);
        if (here >= 0)
            kept.push_back(from);
        if ((here < 0) == (there < 0))
            continue;
        Corner& edge = kept.emplace_back();
        for (std::size_t axis = 0; axis < 4; ++axis)
            edge[axis] = from[axis] + (to[axis] - from[axis]) * here / (here - there);
    }
    polygon = std::move(kept);
}

xsg::DepthGrid::Place xsg::DepthGrid::placeOf(const Corner& corner) const
{
    const double w = std::max(corner[3], 1e-30);
    return {(corner[0] / w + 1) / 2 * m_width, (corner[1] / w + 1) / 2 * m_height, corner[2] / w};
}

bool xsg::DepthGrid::drawTriangle(const Corner& a, const Corner& b, const Corner& c)
{
    const std::array<Corner, 3> corners{a, b, c};
    if (isOutside(corners))
        return false;
    if (std::all_of(corners.begin(), corners.end(), [](const Corner& p) { return p[2] + p[3] > 0; }))
        return fill(placeOf(a), placeOf(b), placeOf(c));
    std::vector<Corner> polygon(corners.begin(), corners.end());
    clip(polygon, NearPlane);
    bool isSeen = false;
    for (std::size_t i = 2; i < polygon.size(); ++i)
        isSeen |= fill(placeOf(polygon[0]), placeOf(polygon[i - 1]), placeOf(polygon[i]));
    return isSeen;
}

bool xsg::DepthGrid::fill(const Place& a, const Place& b, const Place& c)
{
    const double area = (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0]);
    if (!std::isfinite(area) || area == 0)
        return false;
    const auto range = [&](std::size_t axis, int size) {
        const auto [low, high] = std::minmax({a[axis], b[axis], c[axis]});
        return std::pair(static_cast<int>(std::clamp(std::ceil(low - 0.5), 0.0, double(size))),
                         static_cast<int>(std::clamp(std::floor(high - 0.5), -1.0, double(size - 1))));
    };
    const auto [left, right] = range(0, m_width);
    const auto [bottom, top] = range(1, m_height);
    const auto share = [area](const Place& p, const Place& q, double x, double y) {
        return ((q[0] - p[0]) * (y - p[1]) - (q[1] - p[1]) * (x - p[0])) / area;
    };
    bool isSeen = false;
    for (int y = bottom; y <= top; ++y) {
        for (int x = left; x <= right; ++x) {
            const double ofA = share(b, c, x + 0.5, y + 0.5);
            const double ofB = share(c, a, x + 0.5, y + 0.5);
            const double ofC = 1 - ofA - ofB;
            if (ofA >= 0 && ofB >= 0 && ofC >= 0)
                isSeen |= offer(x, y, ofA * a[2] + ofB * b[2] + ofC * c[2]);
        }
    }
    return isSeen;
}

bool xsg::DepthGrid::drawLine(const Corner& a, const Corner& b)
{
    std::vector<Corner> ends{a, b};
    if (isOutside(ends))
        return false;
    clip(ends, NearPlane);
    if (ends.size() < 2)
        return false;
    const Place from = placeOf(ends[0]);
    const Place to = placeOf(ends[1]);
    const double length = std::max(std::abs(to[0] - from[0]), std::abs(to[1] - from[1]));
    if (!std::isfinite(length))
        return false;
    // Of a line that runs far out of the grid, only the part within.
    double first = 0;
    double last = 1;
    for (const auto& [axis, size] : {std::pair<std::size_t, int>(0, m_width), {1, m_height}}) {
        const double by = to[axis] - from[axis];
        if (by == 0)
            continue;
        const auto [enters, leaves] = std::minmax({-from[axis] / by, (size - from[axis]) / by});
        first = std::max(first, enters);
        last = std::min(last, leaves);
    }
    bool isSeen = false;
    const int steps = first > last ? -1 : static_cast<int>(std::ceil((last - first) * length));
    for (int step = 0; step <= steps; ++step) {
        const double t = first + (last - first) * step / std::max(steps, 1);
        isSeen |= offer(static_cast<int>(from[0] + (to[0] - from[0]) * t),
                        static_cast<int>(from[1] + (to[1] - from[1]) * t),
                        from[2] + (to[2] - from[2]) * t - Nearer);
    }
    return isSeen;
}

bool xsg::DepthGrid::drawPoint(const Corner& at)
{
    if (isOutside(std::array<Corner, 1>{at}))
        return false;
    const Place place = placeOf(at);
    return offer(static_cast<int>(place[0]), static_cast<int>(place[1]), place[2] - Nearer);
}

bool xsg::DepthGrid::offer(int x, int y, double depth)
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height || !(depth <= 1))
        return false;
    const std::size_t place =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    if (depth >= static_cast<double>(m_depths[place]))
        return false;
    m_depths[place] = static_cast<float>(depth);
    m_numbers[place] = m_number;
    return true;
}
