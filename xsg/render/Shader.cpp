// SPDX-License-Identifier: MIT
#include <xsg/render/Shader.h>

#include <xsg/render/EnvironmentTable.h>
#include <xsg/render/ShaderText.h>
#include <xsg/render/SurfaceText.h>

#include <algorithm>
#include <tuple>

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

bool compile(GLuint program, GLenum kind, const std::string& defines, const char* text, SbSentence& error)
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
        error = SbSentence("OpenGL refused a drawing program: %1", logOf(shader, false));
    glDeleteShader(shader); // the program keeps it as long as it needs it
    return good != 0;
}

std::string definesFor(xsg::SurfaceFeatures features)
{
    constexpr std::pair<xsg::SurfaceFeatures, const char*> Names[] = {
        {xsg::PhysicalSurface, "PHYSICAL"},
        {xsg::MaskedSurface, "MASKED"},
        {xsg::BlendedSurface, "BLENDED"},
        {xsg::CoatedSurface, "COATED"},
        {xsg::SecondCoordinates, "SECOND_COORDINATES"},
        {xsg::EnvironmentLit, "ENVIRONMENT"},
        {xsg::NormalPictures, "NORMAL_PICTURES"}};
    std::string defines;
    for (const auto& [feature, name] : Names) {
        if ((features & feature) != 0)
            defines += std::string("#define ") + name + "\n";
    }
    for (int use = 0; use < SoMaterialTexture::UseCount; ++use) {
        if ((features & xsg::pictureFeature(use)) != 0)
            defines += "#define PICTURE_" + std::to_string(use) + "\n";
    }
    return defines;
}

constexpr int EnvironmentUnit = SoMaterialTexture::UseCount;

} // namespace

bool xsg::buildProgram(GlProgram& program, const std::string& defines, const char* vertexText,
                       const char* fragmentText, SbSentence& error)
{
    const GLuint name = program.get();
    if (!compile(name, GL_VERTEX_SHADER, defines, vertexText, error) ||
        !compile(name, GL_FRAGMENT_SHADER, defines, fragmentText, error))
        return false;
    glLinkProgram(name);
    GLint linked = 0;
    glGetProgramiv(name, GL_LINK_STATUS, &linked);
    if (!linked)
        error = SbSentence("OpenGL could not link a drawing program: %1", logOf(name, true));
    return linked != 0;
}

bool xsg::Shader::prepare(SbSentence& error)
{
    return prepareLook(Look::Full, error) && prepareKind(PlaceOnly, error);
}

bool xsg::Shader::prepareLook(Look look, SbSentence& error)
{
    return prepareKind(static_cast<int>(look), error);
}

bool xsg::Shader::prepareKind(int kind, SbSentence& error)
{
    Program* pair = m_programs + 2 * kind;
    if (pair[0].program)
        return true;
    if (build(pair[0], false, kind, error) && build(pair[1], true, kind, error))
        return true;
    release();
    return false;
}

bool xsg::Shader::build(Program& program, bool isClipped, int kind, SbSentence& error)
{
    const std::string lit = std::string(LightText) + FragmentShaderText;
    const char* const fragmentTexts[KindCount] = {lit.c_str(), FlatFragmentText, NormalsFragmentText,
                                                  TextureFragmentText, NoFragmentText};
    const std::string defines =
        std::string(isClipped ? ClippedText : "") + (kind == PlaceOnly ? PlaceOnlyText : "");
    if (!buildProgram(program.program, defines, VertexShaderText, fragmentTexts[kind], error))
        return false;
    findLocations(program);
    return true;
}

bool xsg::Shader::buildSurface(Program& program, const std::string& defines, SbSentence& error)
{
    const std::string text = std::string(LightText) + SurfaceFragmentText;
    if (!buildProgram(program.program, defines, VertexShaderText, text.c_str(), error)) {
        program.program.release();
        return false;
    }
    findLocations(program);
    glUseProgram(program.program.get());
    constexpr GLint Units[SoMaterialTexture::UseCount] = {0, 1, 2, 3, 4, 5, 6, 7};
    glUniform1iv(program.at.pictures, SoMaterialTexture::UseCount, Units);
    glUniform1i(program.at.environmentTable, EnvironmentUnit);
    return true;
}

void xsg::Shader::findLocations(Program& program)
{
    const GLuint name = program.program.get();
    const auto location = [&](const char* uniform) { return glGetUniformLocation(name, uniform); };
    program.at = {location("viewProjection"),  location("eye"),
                  location("viewport"),        location("lightCount"),
                  location("lightColor"),      location("lightLocation"),
                  location("lightDirection"),  location("lightAttenuation"),
                  location("ambientLight"),    location("clipCount"),
                  location("clipPlanes"),      location("textureModel"),
                  location("textureMatrix"),   location("fogKind"),
                  location("fogColor"),        location("screenSpace"),
                  location("flatColor"),       location("pictures"),
                  location("pictureMatrix"),   location("pictureCoordinates"),
                  location("surroundings"),    location("up"),
                  location("environmentTable")};
}

void xsg::Shader::release()
{
    for (Program& each : m_programs)
        each.program.release();
    for (auto& [choice, each] : m_surfaces)
        each.program.release();
    m_surfaces.clear();
    m_environmentTable.release();
    m_choice = {};
    m_now = &m_programs[0];
}

void xsg::Shader::use()
{
    glUseProgram(m_now->program.get());
}

bool xsg::Shader::Choice::operator==(const Choice& other) const
{
    const auto all = [](const Choice& c) {
        return std::make_tuple(c.isClipped, c.isPlaceOnly, c.look, c.features, c.toneMapping);
    };
    return all(*this) == all(other);
}

bool xsg::Shader::setSurface(bool isClipped, SurfaceFeatures features)
{
    Choice choice = m_choice;
    choice.isClipped = isClipped || m_hasViewPlane;
    choice.features = features;
    choice.toneMapping = m_toneMapping;
    return change(choice);
}

void xsg::Shader::setPlaceOnly(bool on)
{
    Choice choice = m_choice;
    choice.isPlaceOnly = on;
    change(choice);
}

void xsg::Shader::setLook(Look look)
{
    Choice choice = m_choice;
    choice.look = look;
    change(choice);
}

bool xsg::Shader::change(const Choice& choice)
{
    if (choice == m_choice)
        return false;
    m_choice = choice;
    Program* const program = find(choice);
    if (program == m_now)
        return false;
    m_now = program;
    use();
    sendCommon();
    return true;
}

xsg::Shader::Program* xsg::Shader::find(const Choice& choice)
{
    Program* const surface = choice.isSurface() ? findSurface(choice) : nullptr;
    if (surface)
        return surface;
    const int kind = choice.isPlaceOnly ? int{PlaceOnly} : static_cast<int>(choice.look);
    return &m_programs[(choice.isClipped ? 1 : 0) + 2 * kind];
}

xsg::Shader::Program* xsg::Shader::findSurface(const Choice& choice)
{
    const auto toneMapping = static_cast<unsigned>(choice.toneMapping);
    const unsigned key = choice.features << 3U | toneMapping << 1U | (choice.isClipped ? 1U : 0U);
    const auto [place, isNew] = m_surfaces.try_emplace(key);
    Program& program = place->second;
    if (isNew)
        buildSurface(program,
                     (choice.isClipped ? ClippedText : "") + definesFor(choice.features) +
                         "#define TONE_MAPPING " + std::to_string(toneMapping) + "\n",
                     m_error);
    return program.program ? &program : nullptr;
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

void xsg::Shader::setLights(const std::vector<SoLightSource>& lights, const SbColor& ambient, float strength)
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
        color[i] = light.color * strength;
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
    if (model >= 0 || m_choice.look == Look::TextureCoordinates)
        glUniformMatrix4fv(m_now->at.textureMatrix, 1, GL_FALSE, matrix.getValue());
}

void xsg::Shader::setEnvironment(const SoEnvironment& environment)
{
    const SbVec3f colors[] = {environment.sky, environment.horizon, environment.ground};
    glUniform3fv(m_now->at.surroundings, 3, colors[0].getValue());
    glUniform3fv(m_now->at.up, 1, environment.up.getValue());
    glActiveTexture(GL_TEXTURE0 + EnvironmentUnit);
    useEnvironmentTable();
    glActiveTexture(GL_TEXTURE0);
}

void xsg::Shader::useEnvironmentTable()
{
    const bool isNew = !m_environmentTable;
    glBindTexture(GL_TEXTURE_2D, m_environmentTable.get());
    if (!isNew)
        return;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB16F, EnvironmentTable::Columns, EnvironmentTable::Rows, 0, GL_RGB,
                 GL_FLOAT, getEnvironmentTable().parts.data());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

void xsg::Shader::setPictures(const std::vector<SurfacePicture>& pictures)
{
    constexpr int Count = SoMaterialTexture::UseCount;
    float matrices[Count][6] = {};
    GLint coordinates[Count] = {};
    for (const SurfacePicture& picture : pictures) {
        glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(picture.use));
        glBindTexture(GL_TEXTURE_2D, picture.texture->texture.get());
        std::copy_n(picture.matrix, 6, matrices[picture.use]);
        coordinates[picture.use] = picture.coordinates;
    }
    glActiveTexture(GL_TEXTURE0);
    // As a whole, since a program may have only the first of them.
    glUniformMatrix3x2fv(m_now->at.pictureMatrix, Count, GL_FALSE, matrices[0]);
    glUniform1iv(m_now->at.pictureCoordinates, Count, coordinates);
}

void xsg::Shader::unbindTextures()
{
    for (int unit = EnvironmentUnit; unit >= 0; --unit) { // ends at the first, as others expect it
        glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
        glBindTexture(GL_TEXTURE_2D, 0);
    }
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
