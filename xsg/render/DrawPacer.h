// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>

#include <algorithm>
#include <cstdint>

namespace xsg
{

/// Part of a draw call.
struct DrawPart {
    GLsizei firstIndex;
    GLsizei indexCount;
    GLsizei firstCopy;
    GLsizei copies;
};

/// Keeps the backlog of a software rasterizer short. It stores each triangle, with all that is interpolated
/// over it, until it fills the pixels; drawing far ahead of that, it takes gigabytes for a large scene. Large
/// calls are cut into parts, and the next part waits until the one before the last is done. Graphics hardware
/// is left alone.
class DrawPacer
{
public:
    /// Indices that are drawn before the first wait. A quarter of a million triangles took some hundred
    /// megabytes where this was measured; a wait for as many as these took some thirty milliseconds.
    static constexpr std::int64_t MostIndices = 3 * (std::int64_t{1} << 14);

    /// Before a frame: looks whether the context draws in software.
    void begin();
    /// After a frame.
    void end();
    /// Calls `take` with the parts that a call is cut into. `corners`: of a primitive; it divides
    /// `indexCount`.
    template <class Take>
    void cut(GLsizei indexCount, GLsizei copies, GLsizei corners, const Take& take) const
    {
        if (!m_isSoftware || std::int64_t{indexCount} * copies <= MostIndices)
            return take(DrawPart{0, indexCount, 0, copies});
        const auto most = static_cast<GLsizei>(MostIndices / corners * corners);
        const GLsizei together = std::max<GLsizei>(1, most / std::max<GLsizei>(1, indexCount));
        for (GLsizei copy = 0; copy < copies; copy += together) {
            const GLsizei count = std::min(together, copies - copy);
            for (GLsizei index = 0; index < indexCount; index += most)
                take(DrawPart{index, std::min(most, indexCount - index), copy, count});
        }
    }

    /// After each part.
    void drawn(std::int64_t indices);

private:
    void wait();

    bool m_isSoftware = false;
    std::int64_t m_backlog = 0; // indices since the last fence
    GLsync m_before = nullptr;
};

} // namespace xsg
