// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace xsg
{

/// A picture in memory of which thing is seen at each pixel: numbers with their depths. Corners come in
/// homogeneous coordinates, in which -w to w is in sight along each axis.
class DepthGrid
{
public:
    using Corner = std::array<double, 4>;

    DepthGrid(int width, int height);
    /// The number that is drawn from now on; 0 stands for nothing.
    void begin(std::uint32_t number) { m_number = number; }
    /// Whether a pixel has taken the present number since begin().
    bool drawTriangle(const Corner& a, const Corner& b, const Corner& c);
    bool drawLine(const Corner& a, const Corner& b);
    bool drawPoint(const Corner& at);
    /// The part of a convex polygon that is on the positive side of the plane.
    static void clip(std::vector<Corner>& polygon, const std::array<double, 4>& plane);

    const std::vector<std::uint32_t>& getNumbers() const { return m_numbers; }
    std::vector<std::uint32_t> takeNumbers() { return std::move(m_numbers); }

private:
    /// Pixels across and up, and depth.
    using Place = std::array<double, 3>;
    Place placeOf(const Corner& corner) const;
    bool fill(const Place& a, const Place& b, const Place& c);
    bool offer(int x, int y, double depth);

    int m_width;
    int m_height;
    std::uint32_t m_number = 0;
    std::vector<std::uint32_t> m_numbers;
    std::vector<float> m_depths;
};

} // namespace xsg
