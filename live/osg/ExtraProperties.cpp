// SPDX-License-Identifier: MIT
#include "ExtraProperties.h"

#include <osg/Billboard>
#include <osg/Geometry>
#include <osg/Image>
#include <osg/LOD>
#include <osg/Material>
#include <osg/Program>
#include <osg/Sequence>
#include <osg/Shader>
#include <osg/StateSet>
#include <osg/Switch>
#include <osg/Texture>
#include <osg/Uniform>
#include <osg/UserDataContainer>
#include <osgText/TextBase>

#include <algorithm>

namespace scopix::live
{

namespace
{

/// Adds properties of one class, where the object is of it.
template <class C>
class Extras
{
public:
    Extras(OsgProperties& properties, const osg::Object& object)
        : m_properties(properties)
        , m_isOne(dynamic_cast<const C*>(&object) != nullptr)
    {
    }

    /// A property with a value of its own type.
    template <class Get, class Set>
    Extras& value(PropertyInfo info, Get get, Set set)
    {
        using T = std::decay_t<decltype(get(std::declval<C&>()))>;
        if (info.kind == ValueKind::None)
            info.kind = PackedAs<T>::kind;
        const ValueKind kind = info.kind;
        return call(
            std::move(info), [get, kind](C& object, OsgObjects&) { return packedAs<T>(get(object), kind); },
            [set](C& object, const Value& value, OsgObjects&) {
                set(object, *unpackedAs<T>(value));
                return std::string();
            });
    }

    Extras& text(PropertyInfo info, std::function<std::string(C&)> get,
                 std::function<void(C&, const std::string&)> set)
    {
        info.kind = ValueKind::String;
        return call(
            std::move(info), [get](C& object, OsgObjects&) { return packedText(get(object)); },
            [set](C& object, const Value& value, OsgObjects&) -> std::string {
                const auto texts = unpackedTexts(value);
                if (!texts || texts->size() != 1)
                    return "The text is damaged.";
                set(object, texts->front());
                return {};
            });
    }

    Extras& choice(PropertyInfo info, std::vector<NamedNumber> names, std::function<int(C&)> get,
                   std::function<void(C&, int)> set)
    {
        info.meaning = Meaning::Enumeration;
        info.names = std::move(names);
        return value(std::move(info), get, set);
    }

    /// A list that is shown as objects; it cannot be set.
    Extras& objects(const std::string& name, std::function<void(C&, std::vector<osg::Object*>&)> get)
    {
        PropertyInfo info;
        info.name = name;
        info.kind = ValueKind::Object;
        info.list = true;
        return call(
            std::move(info),
            [get](C& object, OsgObjects& objects) {
                std::vector<osg::Object*> all;
                get(object, all);
                std::vector<NodeId> ids;
                for (osg::Object* one : all)
                    ids.push_back(objects.id(one, objects.id(&object)));
                return packedIds(ids);
            },
            nullptr);
    }

    /// A list with as many elements as the object wants: `set` says with a sentence why not.
    template <class T>
    Extras& list(const std::string& name, std::function<std::vector<T>(C&)> get,
                 std::function<std::string(C&, const std::vector<T>&)> set)
    {
        PropertyInfo info;
        info.name = name;
        info.kind = PackedAs<T>::kind;
        info.list = true;
        return call(
            std::move(info),
            [get](C& object, OsgObjects&) {
                Value value{PackedAs<T>::kind, true, {}};
                for (const T& one : get(object)) {
                    const Value element = packedAs<T>(one);
                    value.bytes.insert(value.bytes.end(), element.bytes.begin(), element.bytes.end());
                }
                return value;
            },
            [set](C& object, const Value& value, OsgObjects&) {
                std::vector<T> all;
                constexpr std::size_t size = sizeof(typename PackedAs<T>::Stored);
                for (std::size_t i = 0; i + size <= value.bytes.size(); i += size)
                    all.push_back(*unpackedAs<T>(
                        {value.kind, false, {value.bytes.data() + i, value.bytes.data() + i + size}}));
                return set(object, all);
            });
    }

    template <class Get, class Set>
    Extras& call(PropertyInfo info, Get get, Set set)
    {
        if (!m_isOne)
            return *this;
        CallProperty::Reader reader = [get](osg::Object& object,
                                            OsgObjects& objects) -> std::optional<Value> {
            return get(dynamic_cast<C&>(object), objects);
        };
        CallProperty::Writer writer;
        if constexpr (!std::is_same_v<Set, std::nullptr_t>)
            writer = [set](osg::Object& object, const Value& value, OsgObjects& objects) {
                return std::string(set(dynamic_cast<C&>(object), value, objects));
            };
        m_properties.push_back(std::make_unique<CallProperty>(std::move(info), reader, writer));
        return *this;
    }

private:
    OsgProperties& m_properties;
    bool m_isOne;
};

PropertyInfo named(const std::string& name, const std::string& documentation = {},
                   ValueKind kind = ValueKind::None)
{
    PropertyInfo info;
    info.name = name;
    info.documentation = documentation;
    info.kind = kind;
    return info;
}

PropertyInfo ranged(PropertyInfo info, double least, double greatest)
{
    info.least = least;
    info.greatest = greatest;
    return info;
}

std::string wrongCount(std::size_t wanted)
{
    return "This list has " + std::to_string(wanted) + (wanted == 1 ? " element" : " elements") +
           ", one for each child, and no others can be set.";
}

// --- Materials: colours of the front faces; where those of the back faces are the same, both are written.
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

// --- State sets

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

// --- Textures and pictures

void addTexture(OsgProperties& properties, const osg::Object& object)
{
    using T = osg::Texture;
    const std::vector<NamedNumber> wraps{{"CLAMP", T::CLAMP},
                                         {"CLAMP_TO_EDGE", T::CLAMP_TO_EDGE},
                                         {"CLAMP_TO_BORDER", T::CLAMP_TO_BORDER},
                                         {"REPEAT", T::REPEAT},
                                         {"MIRROR", T::MIRROR}};
    const std::vector<NamedNumber> filters{{"NEAREST", T::NEAREST},
                                           {"LINEAR", T::LINEAR},
                                           {"NEAREST_MIPMAP_NEAREST", T::NEAREST_MIPMAP_NEAREST},
                                           {"LINEAR_MIPMAP_NEAREST", T::LINEAR_MIPMAP_NEAREST},
                                           {"NEAREST_MIPMAP_LINEAR", T::NEAREST_MIPMAP_LINEAR},
                                           {"LINEAR_MIPMAP_LINEAR", T::LINEAR_MIPMAP_LINEAR}};
    const std::pair<const char*, T::WrapParameter> directions[] = {
        {"WRAP_S", T::WRAP_S}, {"WRAP_T", T::WRAP_T}, {"WRAP_R", T::WRAP_R}};
    Extras<T> extras(properties, object);
    for (const auto& [name, which] : directions) {
        const T::WrapParameter direction = which;
        extras.choice(
            named(name, "What lies beside the picture in this direction."), wraps,
            [direction](T& t) { return int(t.getWrap(direction)); },
            [direction](T& t, int wrap) { t.setWrap(direction, T::WrapMode(wrap)); });
    }
    extras
        .choice(
            named("MIN_FILTER", "How the picture is read where it is drawn smaller."), filters,
            [](T& t) { return int(t.getFilter(T::MIN_FILTER)); },
            [](T& t, int filter) { t.setFilter(T::MIN_FILTER, T::FilterMode(filter)); })
        .choice(
            named("MAG_FILTER", "How the picture is read where it is drawn larger."),
            {filters[0], filters[1]}, [](T& t) { return int(t.getFilter(T::MAG_FILTER)); },
            [](T& t, int filter) { t.setFilter(T::MAG_FILTER, T::FilterMode(filter)); });
}

/// Bytes a pixel of a picture that an inspector can show and change; 0 of any other.
unsigned plainComponents(const osg::Image& image)
{
    const bool plain = image.getDataType() == GL_UNSIGNED_BYTE && image.r() == 1 && image.data() &&
                       (image.getRowLength() == 0 || image.getRowLength() == image.s());
    const unsigned components = osg::Image::computeNumComponents(image.getPixelFormat());
    const bool known = image.getPixelFormat() != GL_BGR && image.getPixelFormat() != GL_BGRA;
    return plain && known && components >= 1 && components <= 4 && !image.isCompressed() ? components : 0;
}

std::optional<Value> pixelsOf(const osg::Image& image)
{
    const unsigned components = plainComponents(image);
    if (components == 0)
        return std::nullopt;
    const std::size_t row = std::size_t(image.s()) * components;
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < image.t(); ++y)
        pixels.insert(pixels.end(), image.data(0, y), image.data(0, y) + row);
    return packedImage(unsigned(image.s()), unsigned(image.t()), components, pixels.data());
}

std::string writePixels(osg::Image& image, const Value& value)
{
    const std::optional<Value> present = pixelsOf(image);
    if (!present || present->bytes.size() != value.bytes.size() ||
        !std::equal(present->bytes.begin(), present->bytes.begin() + 12, value.bytes.begin()))
        return "The pixels of this picture take another one of " + std::to_string(image.s()) + " × " +
               std::to_string(image.t()) + " pixels only, with as many components.";
    const std::size_t row = std::size_t(image.s()) * plainComponents(image);
    for (int y = 0; y < image.t(); ++y)
        std::copy_n(value.bytes.data() + 12 + std::size_t(y) * row, row, image.data(0, y));
    image.dirty();
    return {};
}

void addImage(OsgProperties& properties, const osg::Object& object)
{
    using I = osg::Image;
    Extras<I>(properties, object)
        .call(
            named("Pixels", "The picture itself, bottom row first.", ValueKind::Image),
            [](I& image, OsgObjects&) { return pixelsOf(image); },
            [](I& image, const Value& value, OsgObjects&) { return writePixels(image, value); })
        .call(
            named("Width", "In pixels.", ValueKind::Int32),
            [](I& image, OsgObjects&) { return packedAs(image.s()); }, nullptr)
        .call(
            named("Height", "In pixels.", ValueKind::Int32),
            [](I& image, OsgObjects&) { return packedAs(image.t()); }, nullptr);
}

// --- Groups that keep something for each child

std::vector<float> rangesOf(const osg::LOD& lod, bool greatest)
{
    std::vector<float> ranges;
    for (unsigned i = 0; i < lod.getNumRanges(); ++i)
        ranges.push_back(greatest ? lod.getMaxRange(i) : lod.getMinRange(i));
    return ranges;
}

std::string setRanges(osg::LOD& lod, const std::vector<float>& ranges, bool greatest)
{
    if (ranges.size() != lod.getNumRanges())
        return wrongCount(lod.getNumRanges());
    for (unsigned i = 0; i < ranges.size(); ++i)
        lod.setRange(i, greatest ? lod.getMinRange(i) : ranges[i], greatest ? ranges[i] : lod.getMaxRange(i));
    return {};
}

void addGroups(OsgProperties& properties, const osg::Object& object)
{
    using osg::LOD;
    using osg::Sequence;
    using osg::Switch;
    Extras<Switch>(properties, object)
        .list<bool>(
            "Shown children", [](Switch& s) { return s.getValueList(); },
            [](Switch& s, const std::vector<bool>& shown) -> std::string {
                if (shown.size() != s.getNumChildren())
                    return wrongCount(s.getNumChildren());
                for (unsigned i = 0; i < shown.size(); ++i)
                    s.setValue(i, shown[i]);
                return {};
            });
    Extras<LOD>(properties, object)
        .list<float>(
            "Least ranges", [](LOD& lod) { return rangesOf(lod, false); },
            [](LOD& lod, const std::vector<float>& ranges) { return setRanges(lod, ranges, false); })
        .list<float>(
            "Greatest ranges", [](LOD& lod) { return rangesOf(lod, true); },
            [](LOD& lod, const std::vector<float>& ranges) { return setRanges(lod, ranges, true); });
    Extras<Sequence>(properties, object)
        .list<double>(
            "Times", [](Sequence& s) { return s.getTimeList(); },
            [](Sequence& s, const std::vector<double>& times) -> std::string {
                if (times.size() != s.getTimeList().size())
                    return wrongCount(s.getTimeList().size());
                for (unsigned i = 0; i < times.size(); ++i)
                    s.setTime(i, times[i]);
                return {};
            });
}

// --- Geometry

template <class List>
void appendAll(List& list, std::vector<osg::Object*>& all)
{
    for (auto& one : list)
        all.push_back(one.get());
}

void addGeometry(OsgProperties& properties, const osg::Object& object)
{
    using G = osg::Geometry;
    Extras<G>(properties, object)
        .objects("PrimitiveSetList", [](G& g, auto& all) { appendAll(g.getPrimitiveSetList(), all); })
        .objects("TexCoordArrayList", [](G& g, auto& all) { appendAll(g.getTexCoordArrayList(), all); })
        .objects("VertexAttribArrayList",
                 [](G& g, auto& all) { appendAll(g.getVertexAttribArrayList(), all); });
}

// --- Texts and shaders

std::string utf8(const osgText::String& text)
{
    return text.createUTF8EncodedString();
}

void addTexts(OsgProperties& properties, const osg::Object& object)
{
    using T = osgText::TextBase;
    Extras<T>(properties, object)
        .text(
            named("Text"), [](T& t) { return utf8(t.getText()); },
            [](T& t, const std::string& text) { t.setText(text, osgText::String::ENCODING_UTF8); })
        .value(
            named("CharacterSize", "The height of the characters."),
            [](T& t) { return t.getCharacterHeight(); },
            [](T& t, float height) { t.setCharacterSize(height, t.getCharacterAspectRatio()); });
    Extras<osg::Shader>(properties, object)
        .text(
            named("ShaderSource", "The source in GLSL, which is compiled again once it is set."),
            [](osg::Shader& s) { return s.getShaderSource(); },
            [](osg::Shader& s, const std::string& source) { s.setShaderSource(source); });
    Extras<osg::Program>(properties, object).objects("Shaders", [](osg::Program& p, auto& all) {
        for (unsigned i = 0; i < p.getNumShaders(); ++i)
            all.push_back(p.getShader(i));
    });
}

// --- Uniforms, whose kind is that of their GLSL type

struct UniformKind {
    ValueKind kind;
    unsigned floats; // of one element; 0: whole numbers
};

std::optional<UniformKind> kindOf(const osg::Uniform& uniform)
{
    using U = osg::Uniform;
    switch (uniform.getType()) {
    case U::FLOAT:
        return UniformKind{ValueKind::Float, 1};
    case U::FLOAT_VEC2:
        return UniformKind{ValueKind::Vec2f, 2};
    case U::FLOAT_VEC3:
        return UniformKind{ValueKind::Vec3f, 3};
    case U::FLOAT_VEC4:
        return UniformKind{ValueKind::Vec4f, 4};
    case U::INT:
        return UniformKind{ValueKind::Int32, 0};
    case U::BOOL:
        return UniformKind{ValueKind::Int32, 0};
    default:
        return std::nullopt;
    }
}

std::size_t bytesOf(osg::Uniform& uniform, void*& start)
{
    osg::Array* array = uniform.getFloatArray();
    if (!array)
        array = uniform.getIntArray();
    start = array ? const_cast<void*>(array->getDataPointer()) : nullptr;
    return array ? array->getTotalDataSize() : 0;
}

class UniformProperty : public OsgProperty
{
public:
    UniformProperty()
        : OsgProperty(named("Value", "What shaders get; its type is that of the uniform."))
    {
    }

    PropertyInfo info(const osg::Object& object) const override
    {
        PropertyInfo info = OsgProperty::info(object);
        const auto& uniform = dynamic_cast<const osg::Uniform&>(object);
        const auto kind = kindOf(uniform);
        info.kind = kind ? kind->kind : ValueKind::Text;
        info.list = uniform.getNumElements() > 1;
        info.elementCount = uniform.getNumElements();
        info.writable = kind.has_value();
        return info;
    }

    std::optional<Value> read(osg::Object& object, OsgObjects&) const override
    {
        auto& uniform = dynamic_cast<osg::Uniform&>(object);
        const PropertyInfo what = info(object);
        void* start = nullptr;
        const std::size_t size = bytesOf(uniform, start);
        if (!what.writable || !start)
            return packedText(osg::Uniform::getTypename(uniform.getType()), ValueKind::Text);
        const auto* bytes = static_cast<const std::uint8_t*>(start);
        return Value{what.kind, what.list, {bytes, bytes + size}};
    }

    std::string write(osg::Object& object, const Value& value, OsgObjects&) const override
    {
        auto& uniform = dynamic_cast<osg::Uniform&>(object);
        const std::string wrong = misfit(info(object), value);
        if (!wrong.empty())
            return wrong;
        void* start = nullptr;
        if (bytesOf(uniform, start) != value.bytes.size() || !start)
            return "This uniform has " + std::to_string(uniform.getNumElements()) +
                   " elements, and no others can be set.";
        std::memcpy(start, value.bytes.data(), value.bytes.size());
        uniform.dirty();
        return {};
    }
};

void addData(OsgProperties& properties, const osg::Object& object)
{
    if (dynamic_cast<const osg::Uniform*>(&object))
        properties.push_back(std::make_unique<UniformProperty>());
    using U = osg::UserDataContainer;
    Extras<U>(properties, object).objects("Objects", [](U& data, auto& all) {
        for (unsigned i = 0; i < data.getNumUserObjects(); ++i)
            all.push_back(data.getUserObject(i));
    });
}

} // namespace

OsgProperties makeExtraProperties(const osg::Object& object)
{
    OsgProperties properties;
    addMaterial(properties, object);
    addStateSet(properties, object);
    addTexture(properties, object);
    addImage(properties, object);
    addGroups(properties, object);
    addGeometry(properties, object);
    addTexts(properties, object);
    addData(properties, object);
    return properties;
}

} // namespace scopix::live
