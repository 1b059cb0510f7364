// SPDX-License-Identifier: MIT
#include <xsg/render/GlThread.h>

#include <xsg/render/GlMessages.h>

#include <epoxy/egl.h>

namespace
{

class EglContext
{
public:
    explicit EglContext(SbSentence& error)
    {
        m_display = findDisplay();
        if (m_display == EGL_NO_DISPLAY)
            error = SbSentence(
                "No display for drawing off the screen: EGL offers none, not even a surfaceless one.");
        else if (!create())
            error = SbSentence("OpenGL 3.3 could not be started for drawing off the screen (EGL error %1).",
                               eglGetError());
    }
    EglContext(const EglContext&) = delete;
    EglContext& operator=(const EglContext&) = delete;
    ~EglContext()
    {
        if (m_display == EGL_NO_DISPLAY)
            return;
        // The display is the process's, so others may use it: it is not terminated.
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        if (m_surface != EGL_NO_SURFACE)
            eglDestroySurface(m_display, m_surface);
        if (m_context != EGL_NO_CONTEXT)
            eglDestroyContext(m_display, m_context);
        eglReleaseThread();
    }

private:
    static EGLDisplay initialized(EGLDisplay display)
    {
        return display != EGL_NO_DISPLAY && eglInitialize(display, nullptr, nullptr) ? display
                                                                                     : EGL_NO_DISPLAY;
    }

    static EGLDisplay findDisplay()
    {
        EGLDisplay display = EGL_NO_DISPLAY;
        if (epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless"))
            display = initialized(
                eglGetPlatformDisplayEXT(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr));
        return display != EGL_NO_DISPLAY ? display : initialized(eglGetDisplay(EGL_DEFAULT_DISPLAY));
    }

    bool create()
    {
        static constexpr EGLint configWanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE,
                                                  EGL_OPENGL_BIT, EGL_NONE};
        static constexpr EGLint surfaceWanted[] = {EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE};
        EGLConfig config = nullptr;
        EGLint found = 0;
        if (!eglBindAPI(EGL_OPENGL_API) || !eglChooseConfig(m_display, configWanted, &config, 1, &found) ||
            found == 0)
            return false;
        if (xsg::GlMessages::areWanted())
            m_context = createContext(config, EGL_TRUE);
        if (m_context == EGL_NO_CONTEXT)
            m_context = createContext(config, EGL_FALSE);
        if (m_context == EGL_NO_CONTEXT)
            return false;
        if (eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, m_context))
            return true;
        m_surface = eglCreatePbufferSurface(m_display, config, surfaceWanted);
        return m_surface != EGL_NO_SURFACE && eglMakeCurrent(m_display, m_surface, m_surface, m_context);
    }

    EGLContext createContext(EGLConfig config, EGLint forDebugging)
    {
        const EGLint wanted[] = {EGL_CONTEXT_MAJOR_VERSION,
                                 3,
                                 EGL_CONTEXT_MINOR_VERSION,
                                 3,
                                 EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                 EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                 forDebugging ? EGL_CONTEXT_OPENGL_DEBUG : EGL_NONE,
                                 forDebugging,
                                 EGL_NONE};
        return eglCreateContext(m_display, config, EGL_NO_CONTEXT, wanted);
    }

    EGLDisplay m_display = EGL_NO_DISPLAY;
    EGLContext m_context = EGL_NO_CONTEXT;
    EGLSurface m_surface = EGL_NO_SURFACE;
};

} // namespace

xsg::GlThread::GlThread()
    : m_thread([this] { loop(); })
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_ready; });
}

xsg::GlThread::~GlThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_quit = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void xsg::GlThread::run(std::function<void()> work)
{
    if (!m_error.empty())
        return;
    std::unique_lock<std::mutex> lock(m_mutex);
    m_work = std::move(work);
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return !m_work; });
}

void xsg::GlThread::loop()
{
    SbSentence error;
    const EglContext context(error);
    std::unique_lock<std::mutex> lock(m_mutex);
    m_error = error;
    m_ready = true;
    m_changed.notify_all();
    while (true) {
        m_changed.wait(lock, [this] { return m_quit || m_work; });
        if (!m_work)
            return;
        m_work();
        m_work = nullptr;
        m_changed.notify_all();
    }
}
