// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GlFunctions.h>

namespace xsg
{

/// Posts OpenGL's errors as SoGLError: from its debug output in a debug context, and otherwise by looking for
/// errors once a frame.
class GlMessages
{
public:
    /// Whether new contexts should be debug contexts: the preference XSG_GL_DEBUG, on by default in debug
    /// builds.
    static bool areWanted();

    /// Before a frame, with its context current.
    void listen();
    /// After the frame: `source` is what drew it.
    void collect(const char* source);

private:
    bool m_isListening = false; // to the context's debug output
};

} // namespace xsg
