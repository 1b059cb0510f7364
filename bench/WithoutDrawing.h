// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/gl.h>

enum class Drawing { Done, LeftOut };

namespace bench
{

/// Whether calls that do not go through epoxy should return at once, too.
inline bool areDrawCallsLeftOut = false;

/// Lets OpenGL's draw calls return at once, so that the time of a frame is that of all the work up to them:
/// looking for what is in sight, setting state, filling buffers, making the calls. Without a graphics card
/// the processor fills the pictures, which hides that work.
///
/// While it lives, where it was asked for.
class WithoutDrawing
{
public:
    explicit WithoutDrawing(Drawing drawing)
        : m_before(epoxy_glDrawElementsInstanced)
    {
        if (drawing == Drawing::Done)
            return;
        epoxy_glDrawElementsInstanced = [](GLenum, GLsizei, GLenum, const void*, GLsizei) {};
        areDrawCallsLeftOut = true;
    }
    WithoutDrawing(const WithoutDrawing&) = delete;
    WithoutDrawing& operator=(const WithoutDrawing&) = delete;
    ~WithoutDrawing()
    {
        epoxy_glDrawElementsInstanced = m_before;
        areDrawCallsLeftOut = false;
    }

private:
    PFNGLDRAWELEMENTSINSTANCEDPROC m_before;
};

} // namespace bench
