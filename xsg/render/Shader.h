// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoState.h>
#include <xsg/render/GlFunctions.h>
#include <xsg/render/SoRenderer.h>
#include <xsg/render/Surface.h>
#include <xsg/values/SbSentence.h>

#include <map>

namespace xsg
{

/// The numbers of the vertex attributes.
enum Attribute : GLuint {
    PointAttribute = 0,
    NormalAttribute = 1,
    TextureAttribute = 2,
    ColorAttribute = 3,
    InstanceAttribute = 4, // eight of four floats: see InstanceData
    TangentAttribute = 12,
    SecondTextureAttribute = 13,
};

/// What differs from copy to copy of a geometry that is drawn. In brackets what it is of a physically based
/// surface.
struct InstanceData {
    float matrix[16];
    float diffuse[4];  // and opacity (base colour, opacity)
    float ambient[4];  // and shininess (metallic, roughness, strength of occlusion, cut-off of opacity)
    float specular[4]; // (clear coat, its roughness, scale of normals, scale of the coat's)
    float emissive[4];
};

/// Builds a program of these texts, each after the version and `defines`. False with a sentence where OpenGL
/// refuses.
bool buildProgram(GlProgram& program, const std::string& defines, const char* vertexText,
                  const char* fragmentText, SbSentence& error);

/// The programs that draw scenes, and their settings.
class Shader
{
public:
    static constexpr int MaxLights = 8;
    static constexpr int MaxScenePlanes = 6;
    static constexpr int MaxClipPlanes = MaxScenePlanes + 1; // and the view's own

    /// What is drawn of surfaces: their look, one colour, where they face, or how textures lie on them.
    enum class Look { Full, Flat, Normals, TextureCoordinates };

    /// Builds the programs at first use; false with a sentence where OpenGL refuses.
    bool prepare(SbSentence& error);
    /// The same for one look; all but the full one are not built before they are asked for.
    bool prepareLook(Look look, SbSentence& error);
    void release();

    void use();
    /// Draws with clipping planes from now on, or without them, and surfaces of this kind. True where that
    /// switches to another program, for which lights, planes, textures and fog have to be set again. Where
    /// OpenGL refuses the surface's program, it is drawn as another material's, and takeError() says so.
    bool setSurface(bool isClipped, SurfaceFeatures features);
    SbSentence takeError() { return std::exchange(m_error, {}); }
    /// How bright light becomes colours, from the next setSurface() on.
    void setToneMapping(SoRenderer::ToneMapping toneMapping) { m_toneMapping = toneMapping; }
    /// Draws only where things are, without their looks: for a picture of depths. Settings are kept for the
    /// other program.
    void setPlaceOnly(bool on);
    /// A look that was prepared. Settings have to be set again, as after setSurface().
    void setLook(Look look);
    /// The colour, with opacity, of the flat look.
    void setFlatColor(const SbVec4f& color);
    /// Cuts everything by this plane too, in world coordinates, from the next setSurface() on; null for none.
    void setViewPlane(const SbPlane* plane);
    void setView(const SbMatrix& viewProjection, const SbVec4f& eye, int width, int height);
    void setLights(const std::vector<SoLightSource>& lights, const SbColor& ambient, float strength = 1);
    void setEnvironment(const SoEnvironment& environment);
    void setPictures(const std::vector<SurfacePicture>& pictures);
    static void unbindTextures();
    void setClipPlanes(const std::vector<SbPlane>& planes);
    void setTexture(int model, const SbMatrix& matrix); // model: -1 for none
    /// kind: -1 for none, else as SoFog::Kind.
    void setFog(int kind, const SbColor& color, float range);
    /// Points are then pixels beside the projected origin of the model.
    void setScreenSpace(bool on);

private:
    struct Program {
        GlProgram program;
        struct Locations {
            GLint viewProjection, eye, viewport, lightCount, lightColor, lightLocation, lightDirection,
                lightAttenuation, ambientLight, clipCount, clipPlanes, textureModel, textureMatrix, fogKind,
                fogColor, screenSpace, flatColor, pictures, pictureMatrix, pictureCoordinates, surroundings,
                up, environmentTable;
        } at{};
    };
    enum Kind { PlaceOnly = 4, KindCount = 5 }; // the others are looks
    static bool build(Program& program, bool isClipped, int kind, SbSentence& error);
    static bool buildSurface(Program& program, const std::string& defines, SbSentence& error);
    static void findLocations(Program& program);
    bool prepareKind(int kind, SbSentence& error);
    /// What decides which program is used.
    struct Choice {
        bool isClipped = false;
        bool isPlaceOnly = false;
        Look look = Look::Full;
        SurfaceFeatures features = 0;
        SoRenderer::ToneMapping toneMapping = SoRenderer::ToneMapping::Neutral; // of surfaces
        bool operator==(const Choice& other) const;
        bool isSurface() const { return features != 0 && look == Look::Full && !isPlaceOnly; }
    };
    bool change(const Choice& choice);
    Program* find(const Choice& choice);
    Program* findSurface(const Choice& choice);
    void useEnvironmentTable();
    void sendCommon();

    Program m_programs[2 * KindCount]; // of each kind the plain one and the clipped one
    /// By features, clipping and tone mapping, made at first use; without a name where OpenGL has refused.
    std::map<unsigned, Program> m_surfaces;
    GlTexture m_environmentTable;
    SoRenderer::ToneMapping m_toneMapping = SoRenderer::ToneMapping::Neutral;
    SbSentence m_error;
    Choice m_choice;
    bool m_hasViewPlane = false;
    SbPlane m_viewPlane;
    Program* m_now = &m_programs[0];
    /// What stays when the program changes.
    struct Common {
        SbMatrix viewProjection;
        SbVec4f eye;
        SbVec2f viewport;
        bool isScreenSpace = false;
        SbVec4f flatColor;
    } m_common;
};

} // namespace xsg
