// SPDX-License-Identifier: MIT
// OpenGL, and small owners of its objects. Everything here needs the context current in which it was made; a
// context that is destroyed takes the objects that are left with it.
#pragma once

#include <epoxy/gl.h>

#include <string>
#include <utility>

namespace xsg
{

/// Owns one OpenGL object; `Traits` says how to create and delete it.
template <class Traits>
class GlObject
{
public:
    GlObject() = default;
    explicit GlObject(GLuint name)
        : m_name(name)
    {
    }
    GlObject(GlObject&& other) noexcept
        : m_name(std::exchange(other.m_name, 0))
    {
    }
    GlObject& operator=(GlObject&& other) noexcept
    {
        std::swap(m_name, other.m_name);
        return *this;
    }
    /// Deletes nothing: without its context current, OpenGL would delete another context's object.
    ~GlObject() = default;

    GLuint get()
    {
        if (!m_name)
            m_name = Traits::create();
        return m_name;
    }
    explicit operator bool() const { return m_name != 0; }
    void release()
    {
        if (m_name)
            Traits::destroy(std::exchange(m_name, 0));
    }

private:
    GLuint m_name = 0;
};

struct GlBufferTraits {
    static GLuint create()
    {
        GLuint name = 0;
        glGenBuffers(1, &name);
        return name;
    }
    static void destroy(GLuint name) { glDeleteBuffers(1, &name); }
};
struct GlVertexArrayTraits {
    static GLuint create()
    {
        GLuint name = 0;
        glGenVertexArrays(1, &name);
        return name;
    }
    static void destroy(GLuint name) { glDeleteVertexArrays(1, &name); }
};
struct GlTextureTraits {
    static GLuint create()
    {
        GLuint name = 0;
        glGenTextures(1, &name);
        return name;
    }
    static void destroy(GLuint name) { glDeleteTextures(1, &name); }
};
struct GlFramebufferTraits {
    static GLuint create()
    {
        GLuint name = 0;
        glGenFramebuffers(1, &name);
        return name;
    }
    static void destroy(GLuint name) { glDeleteFramebuffers(1, &name); }
};
struct GlProgramTraits {
    static GLuint create() { return glCreateProgram(); }
    static void destroy(GLuint name) { glDeleteProgram(name); }
};

using GlBuffer = GlObject<GlBufferTraits>;
using GlVertexArray = GlObject<GlVertexArrayTraits>;
using GlTexture = GlObject<GlTextureTraits>;
using GlFramebuffer = GlObject<GlFramebufferTraits>;
using GlProgram = GlObject<GlProgramTraits>;

} // namespace xsg
