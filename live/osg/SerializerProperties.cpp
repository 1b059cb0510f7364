// SPDX-License-Identifier: MIT
#include "SerializerProperties.h"

#include "SerializerStreams.h"

#include <osg/BufferObject>
#include <osgDB/Serializer>

#include <algorithm>
#include <map>
#include <set>

namespace scopix::live
{

namespace
{

using Serializer = osgDB::BaseSerializer;

/// How the bytes of a serializer become a value.
struct Shape {
    ValueKind kind = ValueKind::None;
    bool list = false;        // a short vector for which there is no kind
    std::size_t elements = 1; // of that list
    std::size_t bytes = 0; // of each number that the serializer writes, where it is another than the kind's
    bool isSigned = true;
};

Shape direct(ValueKind kind)
{
    return {kind, false, 1, 0, true};
}

Shape shortVector(std::size_t elements, std::size_t bytes, bool isSigned)
{
    return {ValueKind::Int32, true, elements, bytes, isSigned};
}

const std::map<Serializer::Type, Shape>& shapes()
{
    static const std::map<Serializer::Type, Shape> all{
        {Serializer::RW_BOOL, direct(ValueKind::Bool)},
        {Serializer::RW_CHAR, {ValueKind::Int32, false, 1, 1, true}},
        {Serializer::RW_UCHAR, {ValueKind::Int32, false, 1, 1, false}},
        {Serializer::RW_SHORT, direct(ValueKind::Short)},
        {Serializer::RW_USHORT, direct(ValueKind::UShort)},
        {Serializer::RW_INT, direct(ValueKind::Int32)},
        {Serializer::RW_UINT, direct(ValueKind::UInt32)},
        {Serializer::RW_FLOAT, direct(ValueKind::Float)},
        {Serializer::RW_DOUBLE, direct(ValueKind::Double)},
        {Serializer::RW_VEC2F, direct(ValueKind::Vec2f)},
        {Serializer::RW_VEC2D, direct(ValueKind::Vec2d)},
        {Serializer::RW_VEC3F, direct(ValueKind::Vec3f)},
        {Serializer::RW_VEC3D, direct(ValueKind::Vec3d)},
        {Serializer::RW_VEC4F, direct(ValueKind::Vec4f)},
        {Serializer::RW_VEC4D, direct(ValueKind::Vec4d)},
        {Serializer::RW_QUAT, direct(ValueKind::Rotation)},
        {Serializer::RW_PLANE, direct(ValueKind::Plane)},
        {Serializer::RW_MATRIXD, direct(ValueKind::Matrix)},
        {Serializer::RW_MATRIX, direct(ValueKind::Matrix)},
        {Serializer::RW_GLENUM, direct(ValueKind::Int32)},
        {Serializer::RW_STRING, direct(ValueKind::String)},
        {Serializer::RW_ENUM, direct(ValueKind::Int32)},
        {Serializer::RW_VEC2S, direct(ValueKind::Vec2s)},
        {Serializer::RW_VEC3S, direct(ValueKind::Vec3s)},
        {Serializer::RW_VEC4UB, direct(ValueKind::Vec4ub)},
        {Serializer::RW_BOUNDINGBOXD, direct(ValueKind::Box)},
        {Serializer::RW_BOUNDINGSPHERED, direct(ValueKind::Vec4d)},
        {Serializer::RW_BOUNDINGSPHEREF, direct(ValueKind::Vec4f)},
        {Serializer::RW_VEC2B, shortVector(2, 1, true)},
        {Serializer::RW_VEC3B, shortVector(3, 1, true)},
        {Serializer::RW_VEC4B, shortVector(4, 1, true)},
        {Serializer::RW_VEC2UB, shortVector(2, 1, false)},
        {Serializer::RW_VEC3UB, shortVector(3, 1, false)},
        {Serializer::RW_VEC2US, shortVector(2, 2, false)},
        {Serializer::RW_VEC3US, shortVector(3, 2, false)},
        {Serializer::RW_VEC4US, shortVector(4, 2, false)},
        {Serializer::RW_VEC4S, shortVector(4, 2, true)},
        {Serializer::RW_VEC2I, shortVector(2, 4, true)},
        {Serializer::RW_VEC3I, shortVector(3, 4, true)},
        {Serializer::RW_VEC4I, shortVector(4, 4, true)},
    };
    return all;
}

bool isColorName(const std::string& name)
{
    static const char* const words[] = {"Color", "Ambient", "Diffuse", "Specular", "Emission"};
    return std::any_of(std::begin(words), std::end(words),
                       [&](const char* word) { return name.find(word) != std::string::npos; });
}

std::vector<NamedNumber> namesOf(osgDB::BaseSerializer& serializer)
{
    std::vector<NamedNumber> names;
    if (const osgDB::IntLookup* lookup = serializer.getIntLookup())
        for (const auto& [number, name] : lookup->getValueToString())
            names.push_back({name, number});
    return names;
}

std::int32_t widened(const std::uint8_t* bytes, const Shape& shape)
{
    if (shape.bytes == 1)
        return shape.isSigned ? std::int32_t(std::int8_t(*bytes)) : std::int32_t(*bytes);
    if (shape.bytes == 2) {
        std::uint16_t number = 0;
        std::memcpy(&number, bytes, 2);
        return shape.isSigned ? std::int32_t(std::int16_t(number)) : std::int32_t(number);
    }
    std::int32_t number = 0;
    std::memcpy(&number, bytes, 4);
    return number;
}

std::vector<std::uint8_t> widened(const std::vector<std::uint8_t>& bytes, const Shape& shape)
{
    std::vector<std::uint8_t> wide(bytes.size() / shape.bytes * 4);
    for (std::size_t i = 0; i * 4 < wide.size(); ++i) {
        const std::int32_t number = widened(bytes.data() + i * shape.bytes, shape);
        std::memcpy(wide.data() + i * 4, &number, 4);
    }
    return wide;
}

std::vector<std::uint8_t> narrowed(const std::vector<std::uint8_t>& bytes, const Shape& shape)
{
    std::vector<std::uint8_t> narrow;
    for (std::size_t i = 0; i + 4 <= bytes.size(); i += 4) // the machine is little-endian
        narrow.insert(narrow.end(), bytes.begin() + std::ptrdiff_t(i),
                      bytes.begin() + std::ptrdiff_t(i + shape.bytes));
    return narrow;
}

const std::vector<std::uint8_t>* writtenBytes(osgDB::BaseSerializer& serializer, const osg::Object& object)
{
    static auto* const writer = new ByteWriter; // reachable until the end, whatever ends first
    return writer->write(serializer, object);
}

class NumberProperty : public OsgProperty
{
public:
    NumberProperty(PropertyInfo info, osgDB::BaseSerializer& serializer, const Shape& shape)
        : OsgProperty(std::move(info))
        , m_serializer(&serializer)
        , m_shape(shape)
    {
    }

    PropertyInfo info(const osg::Object& object) const override
    {
        PropertyInfo info = OsgProperty::info(object);
        for (const std::int32_t number : m_unnamed)
            info.names.push_back({std::to_string(number), number});
        return info;
    }

    std::optional<Value> read(osg::Object& object, OsgObjects&) const override
    {
        const std::vector<std::uint8_t>* bytes = writtenBytes(*m_serializer, object);
        if (!bytes)
            return std::nullopt;
        if (m_shape.kind == ValueKind::String)
            return packedText({bytes->begin(), bytes->end()});
        if (m_shape.bytes)
            return Value{m_shape.kind, m_shape.list, widened(*bytes, m_shape)};
        Value value{kind(), m_shape.list, *bytes};
        noteUnnamed(value);
        return value;
    }

    std::string write(osg::Object& object, const Value& value, OsgObjects&) const override
    {
        const std::string wrong = misfit(info(object), value);
        if (!wrong.empty())
            return wrong;
        std::optional<std::vector<std::uint8_t>> bytes = serialized(value);
        if (!bytes)
            return Sentence("“%1” takes %2 numbers, each within its range.",
                            {name(), std::to_string(m_shape.elements)});
        return read(object, std::move(*bytes));
    }

    void stamp(osg::Object& object, OsgObjects&, std::vector<std::uint8_t>& bytes) const override
    {
        if (const std::vector<std::uint8_t>* written = writtenBytes(*m_serializer, object))
            appendBytes(bytes, written->data(), written->size());
    }

private:
    /// A choice without a name is one nevertheless, where an object has it: it can be set again.
    void noteUnnamed(const Value& value) const
    {
        const std::vector<NamedNumber>& names = prototype().names;
        const auto number = unpacked<std::int32_t>(value);
        if (prototype().meaning != Meaning::Enumeration || names.empty() || !number)
            return;
        const auto isIt = [&](const NamedNumber& named) { return named.number == *number; };
        if (std::none_of(names.begin(), names.end(), isIt))
            m_unnamed.insert(*number);
    }

    std::optional<std::vector<std::uint8_t>> serialized(const Value& value) const
    {
        if (m_shape.kind == ValueKind::String) {
            const auto texts = unpackedTexts(value);
            if (!texts || texts->size() != 1)
                return std::nullopt;
            return std::vector<std::uint8_t>(texts->front().begin(), texts->front().end());
        }
        if (!m_shape.bytes)
            return value.bytes;
        std::vector<std::uint8_t> narrow = narrowed(value.bytes, m_shape);
        if (value.count() != m_shape.elements || widened(narrow, m_shape) != value.bytes)
            return std::nullopt;
        return narrow;
    }

    std::string read(osg::Object& object, std::vector<std::uint8_t> bytes) const
    {
        // A mask is preceded by whether it is there, where the version of the file is an old one or none.
        if (!m_serializer->supportsSet())
            bytes.insert(bytes.begin(), 1);
        osg::ref_ptr<ByteInput> input = new ByteInput(std::move(bytes));
        osgDB::InputStream stream(nullptr);
        stream.setInputIterator(input);
        if (!m_serializer->read(stream, object) || !input->isComplete())
            return Sentence("OpenSceneGraph did not take the value of “%1”.", {name()});
        return {};
    }

    osg::ref_ptr<osgDB::BaseSerializer> m_serializer;
    Shape m_shape;
    mutable std::set<std::int32_t> m_unnamed;
};

/// Another object, or none.
class ObjectProperty : public OsgProperty
{
public:
    ObjectProperty(PropertyInfo info, osgDB::BaseSerializer& serializer)
        : OsgProperty(std::move(info))
        , m_serializer(&serializer)
    {
    }

    std::optional<Value> read(osg::Object& object, OsgObjects& objects) const override
    {
        return packedId(objects.id(held(object), objects.id(&object)));
    }

    std::string write(osg::Object& object, const Value& value, OsgObjects& objects) const override
    {
        const std::string wrong = misfit(info(object), value);
        if (!wrong.empty())
            return wrong;
        const NodeId id = unpacked<NodeId>(value).value_or(0);
        osg::ref_ptr<osg::Object> next = objects.find(id);
        if (id && !next)
            return Sentence("“%1” cannot be set, since that object has ended.", {name()});
        osg::ref_ptr<osg::Object> previous = held(object);
        objects.keep(previous);
        set(object, next);
        if (held(object) == next.get())
            return {};
        set(object, previous);
        return Sentence("“%1” takes no object of type “%2”.", {name(), next->getCompoundClassName()});
    }

    void stamp(osg::Object& object, OsgObjects& objects, std::vector<std::uint8_t>& bytes) const override
    {
        const NodeId id = objects.id(held(object));
        appendBytes(bytes, &id, 1);
    }

private:
    osg::Object* held(osg::Object& object) const
    {
        osg::Object* held = nullptr;
        m_serializer->get(object, &held);
        return held;
    }

    void set(osg::Object& object, osg::ref_ptr<osg::Object> next) const
    {
        osg::Object* pointer = next.get();
        m_serializer->set(object, &pointer);
    }

    osg::ref_ptr<osgDB::BaseSerializer> m_serializer;
};

/// A picture is an object with properties of its own; its serializer does not look at types.
class ImageProperty : public ObjectProperty
{
public:
    using ObjectProperty::ObjectProperty;

    std::string write(osg::Object& object, const Value& value, OsgObjects& objects) const override
    {
        const NodeId id = unpacked<NodeId>(value).value_or(0);
        if (id && !objects.findAs<osg::Image>(id))
            return Sentence("“%1” takes nothing but pictures.", {name()});
        return ObjectProperty::write(object, value, objects);
    }
};

/// The elements of a list, which lie one behind the other.
class VectorProperty : public OsgProperty
{
public:
    VectorProperty(PropertyInfo info, osgDB::VectorBaseSerializer& serializer)
        : OsgProperty(std::move(info))
        , m_serializer(&serializer)
    {
    }

    PropertyInfo info(const osg::Object& object) const override
    {
        PropertyInfo info = OsgProperty::info(object);
        info.elementCount = m_serializer->size(object);
        return info;
    }

    std::optional<Value> read(osg::Object& object, OsgObjects&) const override
    {
        Value value{OsgProperty::info(object).kind, true, {}};
        const std::size_t size = m_serializer->size(object) * std::size_t(m_serializer->getElementSize());
        value.bytes.resize(size);
        if (size)
            std::memcpy(value.bytes.data(), m_serializer->getElement(object, 0), size);
        return value;
    }

    std::string write(osg::Object& object, const Value& value, OsgObjects&) const override
    {
        const std::string wrong = misfit(OsgProperty::info(object), value);
        if (!wrong.empty())
            return wrong;
        m_serializer->resize(object, unsigned(value.bytes.size() / m_serializer->getElementSize()));
        if (!value.bytes.empty())
            std::memcpy(m_serializer->getElement(object, 0), value.bytes.data(), value.bytes.size());
        return {};
    }

    /// Who changes a long list has to say so, or it would not be drawn; of a short one all is compared.
    void stamp(osg::Object& object, OsgObjects&, std::vector<std::uint8_t>& bytes) const override
    {
        const auto* data = dynamic_cast<const osg::BufferData*>(&object);
        const unsigned count = m_serializer->size(object);
        if (data && count > shortList) {
            const std::uint32_t stamp[] = {count, data->getModifiedCount()};
            appendBytes(bytes, stamp, 2);
        } else if (count > 0) {
            appendBytes(bytes, static_cast<const std::uint8_t*>(m_serializer->getElement(object, 0)),
                        std::size_t(count) * m_serializer->getElementSize());
        }
    }

private:
    static constexpr unsigned shortList = 64;

    osg::ref_ptr<osgDB::VectorBaseSerializer> m_serializer;
};

/// What has no type that an inspector knows; it is only shown.
class TextProperty : public OsgProperty
{
public:
    TextProperty(PropertyInfo info, osgDB::BaseSerializer& serializer)
        : OsgProperty(std::move(info))
        , m_serializer(&serializer)
    {
    }

    std::optional<Value> read(osg::Object& object, OsgObjects&) const override
    {
        osg::ref_ptr<TextOutput> text = new TextOutput;
        osgDB::OutputStream stream(nullptr);
        stream.setWriteImageHint(osgDB::OutputStream::WRITE_USE_EXTERNAL); // or it might write files
        stream.setOutputIterator(text);
        try {
            m_serializer->write(stream, object);
        } catch (const TextOutput::Full&) {
        }
        return packedText(withoutName(text->text()), ValueKind::Text);
    }

    void stamp(osg::Object&, OsgObjects&, std::vector<std::uint8_t>&) const override {}

private:
    std::string withoutName(const std::string& text) const
    {
        return text.compare(0, name().size() + 1, name() + ' ') == 0 ? text.substr(name().size() + 1) : text;
    }

    osg::ref_ptr<osgDB::BaseSerializer> m_serializer;
};

bool liesFlat(const Shape& shape)
{
    return !shape.list && shape.bytes == 0 && shape.kind != ValueKind::String &&
           shape.kind != ValueKind::Bool;
}

std::unique_ptr<OsgProperty> makeVectorProperty(PropertyInfo info, osgDB::BaseSerializer& serializer)
{
    auto* vector = dynamic_cast<osgDB::VectorBaseSerializer*>(&serializer);
    const auto shape = vector ? shapes().find(vector->getElementType()) : shapes().end();
    if (shape == shapes().end() || !liesFlat(shape->second) ||
        vector->getElementSize() != elementSize(shape->second.kind))
        return std::make_unique<TextProperty>(std::move(info), serializer);
    info.kind = shape->second.kind;
    info.list = true;
    info.writable = true;
    return std::make_unique<VectorProperty>(std::move(info), *vector);
}

/// What a mask or a choice is; the type of a serializer does not tell.
void setMeaning(PropertyInfo& info, osgDB::BaseSerializer& serializer, osgDB::BaseSerializer::Type type)
{
    const bool isMask = info.name.find("Mask") != std::string::npos && info.kind != ValueKind::Bool;
    if (type == osgDB::BaseSerializer::RW_ENUM)
        info.meaning = Meaning::Enumeration;
    else if (isMask || (type == osgDB::BaseSerializer::RW_INT && !serializer.supportsSet()))
        info.meaning = Meaning::Mask;
    info.names = namesOf(serializer);
    if (info.kind == ValueKind::Vec4f && isColorName(info.name))
        info.kind = ValueKind::Color;
}

std::unique_ptr<OsgProperty> makeNumberProperty(PropertyInfo info, osgDB::BaseSerializer& serializer,
                                                osgDB::BaseSerializer::Type type, const Shape& shape)
{
    info.kind = shape.kind;
    info.list = shape.list;
    info.elementCount = shape.elements;
    // Serializers of masks do not say so, but they can be set.
    info.writable =
        serializer.supportsSet() || serializer.getUsage() == osgDB::BaseSerializer::READ_WRITE_PROPERTY;
    setMeaning(info, serializer, type);
    return std::make_unique<NumberProperty>(std::move(info), serializer, shape);
}

} // namespace

std::unique_ptr<OsgProperty> makeSerializerProperty(osgDB::BaseSerializer& serializer,
                                                    osgDB::BaseSerializer::Type type)
{
    PropertyInfo info;
    info.name = serializer.getName();
    info.kind = ValueKind::Text;
    const auto shape = shapes().find(type);
    if (shape != shapes().end())
        return makeNumberProperty(std::move(info), serializer, type, shape->second);
    if (type == Serializer::RW_VECTOR)
        return makeVectorProperty(std::move(info), serializer);
    if (type != Serializer::RW_OBJECT && type != Serializer::RW_IMAGE)
        return std::make_unique<TextProperty>(std::move(info), serializer);
    info.kind = ValueKind::Object;
    info.writable = serializer.supportsSet();
    if (type == Serializer::RW_IMAGE)
        return std::make_unique<ImageProperty>(std::move(info), serializer);
    return std::make_unique<ObjectProperty>(std::move(info), serializer);
}

} // namespace scopix::live
