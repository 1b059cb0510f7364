// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/egl.h>
#include <epoxy/gl.h>

namespace bench
{

/// An OpenGL context without a window or a display, current on the thread that makes it, for libraries that
/// bring none of their own. Not the one that the scene-graph library draws with off the screen: that is a
/// core context, on a thread of its own and without a surface; what OpenSceneGraph draws with here is older
/// than that.
class EglContext
{
public:
    EglContext()
    {
        static constexpr EGLint configWanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE,
                                                  EGL_OPENGL_BIT,   EGL_DEPTH_SIZE,  24,
                                                  EGL_NONE};
        static constexpr EGLint surfaceWanted[] = {EGL_WIDTH, Size, EGL_HEIGHT, Size, EGL_NONE};
        m_display = eglGetPlatformDisplayEXT(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
        EGLConfig config = nullptr;
        EGLint found = 0;
        if (!eglInitialize(m_display, nullptr, nullptr) || !eglBindAPI(EGL_OPENGL_API) ||
            !eglChooseConfig(m_display, configWanted, &config, 1, &found) || found == 0)
            return;
        m_context = eglCreateContext(m_display, config, EGL_NO_CONTEXT, nullptr);
        m_surface = eglCreatePbufferSurface(m_display, config, surfaceWanted);
        m_isGood = eglMakeCurrent(m_display, m_surface, m_surface, m_context);
    }
    EglContext(const EglContext&) = delete;
    EglContext& operator=(const EglContext&) = delete;
    ~EglContext()
    {
        if (m_display == EGL_NO_DISPLAY)
            return;
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        if (m_surface != EGL_NO_SURFACE)
            eglDestroySurface(m_display, m_surface);
        if (m_context != EGL_NO_CONTEXT)
            eglDestroyContext(m_display, m_context);
    }
    explicit operator bool() const { return m_isGood; }

    static constexpr int Size = 64; // of its surface, in pixels

private:
    EGLDisplay m_display = EGL_NO_DISPLAY;
    EGLContext m_context = EGL_NO_CONTEXT;
    EGLSurface m_surface = EGL_NO_SURFACE;
    bool m_isGood = false;
};

} // namespace bench
