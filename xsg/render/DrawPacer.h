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
    /// megabytes where this was measured.
    static constexpr std::int64_t MostIndices = 3 * (std::int64_t{1} << 15);

    /// Before a frame: looks whether the context draws in software.
    void begin();
    /// After a frame.
    void end();
    /// Calls `drawPart` with the parts of a call. `corners`: of a primitive; it divides `indexCount`.
    template <class Draw>
    void draw(GLsizei indexCount, GLsizei copies, GLsizei corners, const Draw& drawPart)
    {
        if (!m_isSoftware || std::int64_t{indexCount} * copies <= MostIndices) {
            drawPart(DrawPart{0, indexCount, 0, copies});
            drawn(std::int64_t{indexCount} * copies);
            return;
        }
        const auto most = static_cast<GLsizei>(MostIndices / corners * corners);
        const GLsizei together = std::max<GLsizei>(1, most / std::max<GLsizei>(1, indexCount));
        for (GLsizei copy = 0; copy < copies; copy += together) {
            const GLsizei count = std::min(together, copies - copy);
            for (GLsizei index = 0; index < indexCount; index += most) {
                const GLsizei part = std::min(most, indexCount - index);
                drawPart(DrawPart{index, part, copy, count});
                drawn(std::int64_t{part} * count);
            }
        }
    }

private:
    void drawn(std::int64_t indices);
    void wait();

    bool m_isSoftware = false;
    std::int64_t m_backlog = 0; // indices since the last fence
    GLsync m_before = nullptr;
};

} // namespace xsg
