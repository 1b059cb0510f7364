// SPDX-License-Identifier: MIT
#include "Extras.h"

#include <osg/Material>
#include <osg/StateSet>

namespace scopix::live
{

namespace
{

// Materials: colours of the front faces; where those of the back faces are the same, both are written.
// The flag that says so is no good guide: it is gone once a back face was written, also when that is taken
// back.

using MaterialGet = const osg::Vec4& (osg::Material::*)(osg::Material::Face) const;
using MaterialSet = void (osg::Material::*)(osg::Material::Face, const osg::Vec4&);

void addMaterialColor(OsgProperties& properties, const osg::Object& object, const std::string& name,
                      MaterialGet get, MaterialSet set)
{
    for (const bool back : {false, true}) {
        const osg::Material::Face face = back ? osg::Material::BACK : osg::Material::FRONT;
        Extras<osg::Material>(properties, object)
            .value(
                named(back ? "Back" + name : name,
                      back ? "The colour of back faces."
                           : "The colour of front faces, or of both where they have one.",
                      ValueKind::Color),
                [get, face](osg::Material& m) { return osg::Vec4f((m.*get)(face)); },
                [get, set, back](osg::Material& m, const osg::Vec4f& color) {
                    const bool both =
                        !back && (m.*get)(osg::Material::FRONT) == (m.*get)(osg::Material::BACK);
                    (m.*set)(both   ? osg::Material::FRONT_AND_BACK
                             : back ? osg::Material::BACK
                                    : osg::Material::FRONT,
                             color);
                });
    }
}

struct GlMode {
    const char* name;
    GLenum mode;
};

const GlMode glModes[] = {
    {"GL_ALPHA_TEST", GL_ALPHA_TEST},
    {"GL_BLEND", GL_BLEND},
    {"GL_CLIP_PLANE0", GL_CLIP_PLANE0},
    {"GL_COLOR_MATERIAL", GL_COLOR_MATERIAL},
    {"GL_CULL_FACE", GL_CULL_FACE},
    {"GL_DEPTH_TEST", GL_DEPTH_TEST},
    {"GL_FOG", GL_FOG},
    {"GL_LIGHT0", GL_LIGHT0},
    {"GL_LIGHT1", GL_LIGHT0 + 1},
    {"GL_LIGHTING", GL_LIGHTING},
    {"GL_LINE_SMOOTH", GL_LINE_SMOOTH},
    {"GL_LINE_STIPPLE", GL_LINE_STIPPLE},
    {"GL_NORMALIZE", GL_NORMALIZE},
    {"GL_POLYGON_OFFSET_FILL", GL_POLYGON_OFFSET_FILL},
    {"GL_RESCALE_NORMAL", GL_RESCALE_NORMAL},
    {"GL_STENCIL_TEST", GL_STENCIL_TEST},
};

std::vector<NamedNumber> modeValues()
{
    using A = osg::StateAttribute;
    return {{"INHERIT", A::INHERIT},
            {"OFF", A::OFF},
            {"ON", A::ON},
            {"OFF, OVERRIDE", A::OFF | A::OVERRIDE},
            {"ON, OVERRIDE", A::ON | A::OVERRIDE},
            {"OFF, PROTECTED", A::OFF | A::PROTECTED},
            {"ON, PROTECTED", A::ON | A::PROTECTED},
            {"OFF, OVERRIDE, PROTECTED", A::OFF | A::OVERRIDE | A::PROTECTED},
            {"ON, OVERRIDE, PROTECTED", A::ON | A::OVERRIDE | A::PROTECTED}};
}

int modeIn(const osg::StateSet::ModeList& modes, GLenum mode)
{
    const auto entry = modes.find(mode);
    return entry == modes.end() ? int(osg::StateAttribute::INHERIT) : int(entry->second);
}

void addModes(OsgProperties& properties, const osg::Object& object)
{
    using S = osg::StateSet;
    Extras<S> extras(properties, object);
    for (const auto& [name, glMode] : glModes) {
        const GLenum mode = glMode;
        extras.choice(
            named(name, "Whether this is on below here; INHERIT leaves it as it is above."), modeValues(),
            [mode](S& s) { return modeIn(s.getModeList(), mode); },
            [mode](S& s, int value) { s.setMode(mode, unsigned(value)); });
    }
    for (const unsigned unit : {0u, 1u, 2u, 3u})
        extras.choice(
            named("GL_TEXTURE_2D of unit " + std::to_string(unit),
                  "Whether this texture unit is used below here."),
            modeValues(),
            [unit](S& s) {
                const S::TextureModeList& units = s.getTextureModeList();
                return unit < units.size() ? modeIn(units[unit], GL_TEXTURE_2D)
                                           : int(osg::StateAttribute::INHERIT);
            },
            [unit](S& s, int value) {
                s.setTextureMode(unit, GL_TEXTURE_2D, unsigned(value));
                S::TextureModeList& units = s.getTextureModeList();
                while (!units.empty() && units.back().empty())
                    units.pop_back();
            });
}

void appendAttributes(const osg::StateSet::AttributeList& list, std::vector<osg::Object*>& all)
{
    for (const auto& entry : list)
        all.push_back(entry.second.first.get());
}

} // namespace

void addMaterial(OsgProperties& properties, const osg::Object& object)
{
    using M = osg::Material;
    addMaterialColor(properties, object, "Ambient", &M::getAmbient, &M::setAmbient);
    addMaterialColor(properties, object, "Diffuse", &M::getDiffuse, &M::setDiffuse);
    addMaterialColor(properties, object, "Specular", &M::getSpecular, &M::setSpecular);
    addMaterialColor(properties, object, "Emission", &M::getEmission, &M::setEmission);
    Extras<M>(properties, object)
        .value(
            ranged(named("Shininess", "The exponent of the highlight of front faces."), 0, 128),
            [](M& m) { return m.getShininess(M::FRONT); },
            [](M& m, float s) {
                m.setShininess(m.getShininessFrontAndBack() ? M::FRONT_AND_BACK : M::FRONT, s);
            });
}

void addStateSet(OsgProperties& properties, const osg::Object& object)
{
    using S = osg::StateSet;
    addModes(properties, object);
    Extras<S>(properties, object)
        .objects("Attributes", [](S& s, auto& all) { appendAttributes(s.getAttributeList(), all); })
        .objects("Texture attributes",
                 [](S& s, auto& all) {
                     for (const S::AttributeList& unit : s.getTextureAttributeList())
                         appendAttributes(unit, all);
                 })
        .objects("Uniforms", [](S& s, auto& all) {
            for (const auto& entry : s.getUniformList())
                all.push_back(entry.second.first.get());
        });
}

} // namespace scopix::live
