// SPDX-License-Identifier: MIT
#include "Extras.h"

#include <osg/Uniform>
#include <osg/UserDataContainer>

namespace scopix::live
{

namespace
{

// Of its GLSL type.
std::optional<ValueKind> kindOf(const osg::Uniform& uniform)
{
    using U = osg::Uniform;
    switch (uniform.getType()) {
    case U::FLOAT:
        return ValueKind::Float;
    case U::FLOAT_VEC2:
        return ValueKind::Vec2f;
    case U::FLOAT_VEC3:
        return ValueKind::Vec3f;
    case U::FLOAT_VEC4:
        return ValueKind::Vec4f;
    case U::INT:
        return ValueKind::Int32;
    case U::BOOL:
        return ValueKind::Int32;
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
        info.kind = kind.value_or(ValueKind::Text);
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
            return Sentence("This uniform has %1 elements, and no others can be set.",
                            {std::to_string(uniform.getNumElements())});
        std::memcpy(start, value.bytes.data(), value.bytes.size());
        uniform.dirty();
        return {};
    }
};

} // namespace

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

} // namespace scopix::live
