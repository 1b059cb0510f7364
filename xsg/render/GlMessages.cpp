// SPDX-License-Identifier: MIT
#include <xsg/render/GlMessages.h>

#include <xsg/core/SoPreferences.h>
#include <xsg/errors/SoGLError.h>

#include <cstring>

namespace
{

// The same error in each of a thousand draw calls, frame by frame, would bury everything else.
constexpr int MostPerFrame = 8;
thread_local int postedInFrame = 0;

constexpr GLenum FirstCode = GL_INVALID_ENUM;
constexpr GLenum LastCode = GL_INVALID_FRAMEBUFFER_OPERATION;

// Drivers number their messages as they like; most name the code in the text.
GLenum codeOf(GLuint id, const std::string& text)
{
    for (GLenum code = FirstCode; code <= LastCode; ++code) {
        if (id == code || text.find(SoGLError::getCodeName(code).getString()) != std::string::npos)
            return code;
    }
    return id;
}

void GLAPIENTRY postMessage(GLenum /*source*/, GLenum /*type*/, GLuint id, GLenum /*severity*/,
                            GLsizei length, const GLchar* message, const void* /*user*/)
{
    if (++postedInFrame > MostPerFrame)
        return;
    const std::string text(message, length < 0 ? std::strlen(message) : static_cast<std::size_t>(length));
    SoGLError::post(codeOf(id, text), text.c_str());
}

bool isDebugContext()
{
    GLint flags = 0;
    glGetIntegerv(GL_CONTEXT_FLAGS, &flags);
    return (static_cast<GLuint>(flags) & GL_CONTEXT_FLAG_DEBUG_BIT) != 0 &&
           (epoxy_gl_version() >= 43 || epoxy_has_gl_extension("GL_KHR_debug"));
}

// False where the application has a callback of its own, which stays.
bool install()
{
    void* listener = nullptr;
    glGetPointerv(GL_DEBUG_CALLBACK_FUNCTION, &listener);
    if (listener)
        return listener == reinterpret_cast<void*>(postMessage);
    glEnable(GL_DEBUG_OUTPUT);
    glEnable(GL_DEBUG_OUTPUT_SYNCHRONOUS); // on this thread, inside the call that causes it
    // Hints on speed and the like are not errors.
    glDebugMessageControl(GL_DONT_CARE, GL_DONT_CARE, GL_DONT_CARE, 0, nullptr, GL_FALSE);
    for (const GLenum type : {GLenum{GL_DEBUG_TYPE_ERROR}, GLenum{GL_DEBUG_TYPE_UNDEFINED_BEHAVIOR}})
        glDebugMessageControl(GL_DONT_CARE, type, GL_DONT_CARE, 0, nullptr, GL_TRUE);
    glDebugMessageCallback(postMessage, nullptr);
    return true;
}

} // namespace

bool xsg::GlMessages::areWanted()
{
#ifdef NDEBUG
    constexpr bool isDebugBuild = false;
#else
    constexpr bool isDebugBuild = true;
#endif
    return SoPreferences::getBool("XSG_GL_DEBUG", isDebugBuild);
}

void xsg::GlMessages::listen()
{
    postedInFrame = 0;
    m_isListening = isDebugContext() && install();
}

void xsg::GlMessages::collect(const char* source)
{
    if (m_isListening)
        return;
    // One error is posted a frame; more would mostly repeat it.
    const GLenum first = glGetError();
    for (int i = 0; i < 16 && glGetError() != GL_NO_ERROR; ++i) {
    }
    if (first != GL_NO_ERROR)
        SoGLError::post(first, source);
}
