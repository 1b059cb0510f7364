// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>

namespace xsg
{

/// What OpenGL has to say, as SoGLError: by its debug output where the context was made for debugging, else
/// by asking for errors once a frame.
class GlMessages
{
public:
    /// Whether new contexts should be made for debugging: the preference XSG_GL_DEBUG, on at first in debug
    /// builds.
    static bool areWanted();

    /// Before a frame, with its context current.
    void listen();
    /// After the frame: `source` is what drew it.
    void collect(const char* source);

private:
    bool m_isTold = false; // the context tells by itself
};

} // namespace xsg
