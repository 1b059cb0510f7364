// SPDX-License-Identifier: MIT
#include "OsgClasses.h"

#include "SerializerProperties.h"

#include <osg/BufferObject>
#include <osg/Camera>
#include <osg/Geode>
#include <osg/Geometry>
#include <osg/LOD>
#include <osg/LightSource>
#include <osg/MatrixTransform>
#include <osg/PositionAttitudeTransform>
#include <osg/Switch>
#include <osg/Texture2D>
#include <osg/Uniform>
#include <osgDB/ObjectWrapper>
#include <osgDB/Registry>

#include <set>

namespace scopix::live
{

namespace
{

template <class C>
bool isOne(const osg::Object& object)
{
    return dynamic_cast<const C*>(&object) != nullptr;
}

struct KnownClass {
    const char* name;
    bool (*matches)(const osg::Object&);
};

/// From the most derived on.
const KnownClass knownClasses[] = {
    {"osg::Camera", isOne<osg::Camera>},
    {"osg::MatrixTransform", isOne<osg::MatrixTransform>},
    {"osg::PositionAttitudeTransform", isOne<osg::PositionAttitudeTransform>},
    {"osg::Switch", isOne<osg::Switch>},
    {"osg::LOD", isOne<osg::LOD>},
    {"osg::LightSource", isOne<osg::LightSource>},
    {"osg::Geode", isOne<osg::Geode>},
    {"osg::Transform", isOne<osg::Transform>},
    {"osg::Group", isOne<osg::Group>},
    {"osg::Geometry", isOne<osg::Geometry>},
    {"osg::Drawable", isOne<osg::Drawable>},
    {"osg::Node", isOne<osg::Node>},
    {"osg::Texture2D", isOne<osg::Texture2D>},
    {"osg::StateAttribute", isOne<osg::StateAttribute>},
    {"osg::StateSet", isOne<osg::StateSet>},
    {"osg::Object", [](const osg::Object&) { return true; }},
};

osgDB::ObjectWrapper* wrapperOf(const osg::Object& object)
{
    osgDB::ObjectWrapperManager* manager = osgDB::Registry::instance()->getObjectWrapperManager();
    if (osgDB::ObjectWrapper* wrapper = manager->findWrapper(object.getCompoundClassName()))
        return wrapper;
    for (const KnownClass& known : knownClasses)
        if (known.matches(object))
            return manager->findWrapper(known.name);
    return nullptr;
}

/// Shown as children or by properties of their own, of use to readers of old files only, or no data.
bool isLeftOut(const osg::Object& object, const std::string& name)
{
    static const std::set<std::string> always{"Children", "Drawables", "UserData", "UDC_UserData",
                                              "UDC_UserObjects"};
    static const std::set<std::string> ofGeometry{"VertexData",         "NormalData",   "ColorData",
                                                  "SecondaryColorData", "FogCoordData", "TexCoordData",
                                                  "VertexAttribData",   "FastPathHint"};
    static const std::set<std::string> ofStateSet{"AttributeList", "TextureAttributeList", "UniformList"};
    return always.count(name) || (isOne<osg::Geometry>(object) && ofGeometry.count(name)) ||
           (isOne<osg::StateSet>(object) && ofStateSet.count(name)) ||
           (isOne<osg::Switch>(object) && name == "ValueList") ||
           (isOne<osg::LOD>(object) && name == "RangeList") || name == "TimeList";
}

/// What describes memory that the program owns: a value that does not fit it would make OpenGL read beyond
/// it.
bool isForReadingOnly(const osg::Object& object, const std::string& name)
{
    static const std::set<std::string> ofImage{"AllocationMode", "DataType",    "InternalTextureFormat",
                                               "Packing",        "PixelFormat", "RowLength"};
    static const std::set<std::string> ofUniform{"Type", "NumElements"};
    static const std::set<std::string> ofCamera{"Viewport", "ColorMask", "RenderTargetImplementation"};
    return (isOne<osg::Image>(object) && ofImage.count(name)) ||
           (isOne<osg::Uniform>(object) && ofUniform.count(name)) ||
           (isOne<osg::Camera>(object) && ofCamera.count(name)) ||
           (isOne<osg::BufferData>(object) && name == "BufferObject") || name == "SupportsDisplayList";
}

void addSerializers(OsgProperties& properties, const osgDB::ObjectWrapper& wrapper, const osg::Object& object,
                    std::set<std::string>& names)
{
    const auto& serializers = wrapper.getSerializerList();
    const auto& types = wrapper.getTypeList();
    for (std::size_t i = 0; i < serializers.size() && i < types.size(); ++i) {
        const std::string& name = serializers[i]->getName();
        if (isLeftOut(object, name) || !names.insert(name).second)
            continue;
        properties.push_back(makeSerializerProperty(*serializers[i], types[i]));
        if (isForReadingOnly(object, name))
            properties.back()->prototype().writable = false;
    }
}

} // namespace

const OsgProperties& OsgClasses::propertiesOf(const osg::Object& object)
{
    return classOf(object).properties;
}

const OsgProperty* OsgClasses::find(const osg::Object& object, const std::string& name)
{
    const Class& known = classOf(object);
    const auto found = known.byName.find(name);
    return found == known.byName.end() ? nullptr : found->second;
}

const OsgClasses::Class& OsgClasses::classOf(const osg::Object& object)
{
    const auto [entry, isNew] = m_classes.try_emplace(std::type_index(typeid(object)));
    Class& made = entry->second;
    if (!isNew)
        return made;
    made.properties = makeExtraProperties(object);
    std::set<std::string> names;
    for (const auto& property : made.properties)
        names.insert(property->name());
    osgDB::ObjectWrapperManager* manager = osgDB::Registry::instance()->getObjectWrapperManager();
    if (osgDB::ObjectWrapper* wrapper = wrapperOf(object)) {
        for (const osgDB::ObjectWrapperAssociate& base : wrapper->getAssociates())
            if (const osgDB::ObjectWrapper* its = manager->findWrapper(base._name))
                addSerializers(made.properties, *its, object, names);
        addSerializers(made.properties, *wrapper, object, names);
    }
    for (const auto& property : made.properties)
        made.byName[property->name()] = property.get();
    return made;
}

} // namespace scopix::live
