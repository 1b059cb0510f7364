// SPDX-License-Identifier: MIT
#include <xsg/render/Shader.h>

#include <xsg/render/ShaderText.h>

#include <algorithm>

namespace
{

std::string logOf(GLuint object, bool isProgram)
{
    char text[1024] = "";
    if (isProgram)
        glGetProgramInfoLog(object, sizeof text, nullptr, text);
    else
        glGetShaderInfoLog(object, sizeof text, nullptr, text);
    return text;
}

bool compile(GLuint program, GLenum kind, const std::string& defines, const char* text, std::string& error)
{
    const GLuint shader = glCreateShader(kind);
    const char* const parts[] = {xsg::VersionText, defines.c_str(), text};
    glShaderSource(shader, 3, parts, nullptr);
    glCompileShader(shader);
    GLint good = 0;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &good);
    if (good)
        glAttachShader(program, shader);
    else
        error = "OpenGL refused a drawing program: " + logOf(shader, false);
    glDeleteShader(shader); // the program keeps it as long as it needs it
    return good != 0;
}

} // namespace

bool xsg::buildProgram(GlProgram& program, const std::string& defines, const char* vertexText,
                       const char* fragmentText, std::string& error)
{
    const GLuint name = program.get();
    if (!compile(name, GL_VERTEX_SHADER, defines, vertexText, error) ||
        !compile(name, GL_FRAGMENT_SHADER, defines, fragmentText, error))
        return false;
    glLinkProgram(name);
    GLint linked = 0;
    glGetProgramiv(name, GL_LINK_STATUS, &linked);
    if (!linked)
        error = "OpenGL could not link a drawing program: " + logOf(name, true);
    return linked != 0;
}

bool xsg::Shader::prepare(std::string& error)
{
    return prepareLook(Look::Full, error) && prepareKind(PlaceOnly, error);
}

bool xsg::Shader::prepareLook(Look look, std::string& error)
{
    return prepareKind(static_cast<int>(look), error);
}

bool xsg::Shader::prepareKind(int kind, std::string& error)
{
    Program* pair = m_programs + 2 * kind;
    if (pair[0].program)
        return true;
    if (build(pair[0], false, kind, error) && build(pair[1], true, kind, error))
        return true;
    release();
    return false;
}

bool xsg::Shader::build(Program& program, bool isClipped, int kind, std::string& error)
{
    static constexpr const char* fragmentTexts[KindCount] = {
        FragmentShaderText, FlatFragmentText, NormalsFragmentText, TextureFragmentText, NoFragmentText};
    const std::string defines =
        std::string(isClipped ? ClippedText : "") + (kind == PlaceOnly ? PlaceOnlyText : "");
    if (!buildProgram(program.program, defines, VertexShaderText, fragmentTexts[kind], error))
        return false;
    const GLuint name = program.program.get();
    const auto location = [&](const char* uniform) { return glGetUniformLocation(name, uniform); };
    program.at = {location("viewProjection"), location("eye"),
                  location("viewport"),       location("lightCount"),
                  location("lightColor"),     location("lightLocation"),
                  location("lightDirection"), location("lightAttenuation"),
                  location("ambientLight"),   location("clipCount"),
                  location("clipPlanes"),     location("textureModel"),
                  location("textureMatrix"),  location("fogKind"),
                  location("fogColor"),       location("screenSpace"),
                  location("flatColor")};
    return true;
}

void xsg::Shader::release()
{
    for (Program& each : m_programs)
        each.program.release();
}

void xsg::Shader::use()
{
    glUseProgram(m_now->program.get());
}

bool xsg::Shader::setClipped(bool on)
{
    return change(on || m_hasViewPlane, m_isPlaceOnly, m_look);
}

void xsg::Shader::setPlaceOnly(bool on)
{
    change(m_isClipped, on, m_look);
}

void xsg::Shader::setLook(Look look)
{
    change(m_isClipped, m_isPlaceOnly, look);
}

bool xsg::Shader::change(bool isClipped, bool isPlaceOnly, Look look)
{
    if (isClipped == m_isClipped && isPlaceOnly == m_isPlaceOnly && look == m_look)
        return false;
    m_isClipped = isClipped;
    m_isPlaceOnly = isPlaceOnly;
    m_look = look;
    m_now = &m_programs[(isClipped ? 1 : 0) + 2 * (isPlaceOnly ? PlaceOnly : static_cast<int>(look))];
    use();
    sendCommon();
    return true;
}

void xsg::Shader::sendCommon()
{
    const Program::Locations& at = m_now->at;
    glUniformMatrix4fv(at.viewProjection, 1, GL_FALSE, m_common.viewProjection.getValue());
    glUniform4fv(at.eye, 1, m_common.eye.getValue());
    glUniform2fv(at.viewport, 1, m_common.viewport.getValue());
    glUniform1i(at.screenSpace, m_common.isScreenSpace ? 1 : 0);
    glUniform4fv(at.flatColor, 1, m_common.flatColor.getValue());
}

void xsg::Shader::setFlatColor(const SbVec4f& color)
{
    m_common.flatColor = color;
    sendCommon();
}

void xsg::Shader::setViewPlane(const SbPlane* plane)
{
    m_hasViewPlane = plane != nullptr;
    m_viewPlane = plane ? *plane : SbPlane();
}

void xsg::Shader::setView(const SbMatrix& viewProjection, const SbVec4f& eye, int width, int height)
{
    m_common.viewProjection = viewProjection;
    m_common.eye = eye;
    m_common.viewport = SbVec2f(static_cast<float>(width), static_cast<float>(height));
    sendCommon();
}

void xsg::Shader::setLights(const std::vector<SoLightSource>& lights, const SbColor& ambient)
{
    const int count = std::min(static_cast<int>(lights.size()), MaxLights);
    SbVec3f color[MaxLights];
    SbVec4f location[MaxLights];
    SbVec4f direction[MaxLights];
    SbVec4f attenuation[MaxLights];
    const auto four = [](const SbVec3f& v, float w) { return SbVec4f(v[0], v[1], v[2], w); };
    for (int i = 0; i < count; ++i) {
        const SoLightSource& light = lights[static_cast<std::size_t>(i)];
        const bool spot = light.kind == SoLightSource::Kind::Spot;
        color[i] = light.color;
        location[i] = four(light.location, light.kind == SoLightSource::Kind::Directional ? 0.0F : 1.0F);
        direction[i] = four(light.direction, spot ? light.cutOffCosine : -2.0F);
        attenuation[i] = four(light.attenuation, spot ? light.dropOff : 0.0F);
    }
    glUniform1i(m_now->at.lightCount, count);
    glUniform3fv(m_now->at.ambientLight, 1, ambient.getValue());
    if (count == 0)
        return;
    glUniform3fv(m_now->at.lightColor, count, color[0].getValue());
    glUniform4fv(m_now->at.lightLocation, count, location[0].getValue());
    glUniform4fv(m_now->at.lightDirection, count, direction[0].getValue());
    glUniform4fv(m_now->at.lightAttenuation, count, attenuation[0].getValue());
}

void xsg::Shader::setClipPlanes(const std::vector<SbPlane>& planes)
{
    int count = std::min(static_cast<int>(planes.size()), MaxScenePlanes);
    SbVec4f values[MaxClipPlanes];
    const auto numbers = [](const SbPlane& plane) {
        const SbVec3f& n = plane.getNormal();
        return SbVec4f(n[0], n[1], n[2], plane.getDistanceFromOrigin());
    };
    for (int i = 0; i < count; ++i)
        values[i] = numbers(planes[static_cast<std::size_t>(i)]);
    if (m_hasViewPlane)
        values[count++] = numbers(m_viewPlane);
    glUniform1i(m_now->at.clipCount, count);
    if (count > 0)
        glUniform4fv(m_now->at.clipPlanes, count, values[0].getValue());
    for (int i = 0; i < MaxClipPlanes; ++i) {
        const auto plane = static_cast<GLenum>(GL_CLIP_DISTANCE0 + i);
        if (i < count)
            glEnable(plane);
        else
            glDisable(plane);
    }
}

void xsg::Shader::setTexture(int model, const SbMatrix& matrix)
{
    glUniform1i(m_now->at.textureModel, model);
    if (model >= 0 || m_look == Look::TextureCoordinates)
        glUniformMatrix4fv(m_now->at.textureMatrix, 1, GL_FALSE, matrix.getValue());
}

void xsg::Shader::setFog(int kind, const SbColor& color, float range)
{
    glUniform1i(m_now->at.fogKind, kind);
    glUniform4f(m_now->at.fogColor, color[0], color[1], color[2], range);
}

void xsg::Shader::setScreenSpace(bool on)
{
    m_common.isScreenSpace = on;
    glUniform1i(m_now->at.screenSpace, on ? 1 : 0);
}
