// SPDX-License-Identifier: MIT
#include "FieldValues.h"

#include <scopix/live/values/LivePacking.h>

#include <xsg/fields/SoMFBitMask.h>
#include <xsg/fields/SoMFBool.h>
#include <xsg/fields/SoMFBox3f.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFDouble.h>
#include <xsg/fields/SoMFEnum.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFMatrix.h>
#include <xsg/fields/SoMFName.h>
#include <xsg/fields/SoMFPlane.h>
#include <xsg/fields/SoMFRotation.h>
#include <xsg/fields/SoMFShort.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoMFTime.h>
#include <xsg/fields/SoMFUInt32.h>
#include <xsg/fields/SoMFUShort.h>
#include <xsg/fields/SoMFVec2d.h>
#include <xsg/fields/SoMFVec2f.h>
#include <xsg/fields/SoMFVec2i32.h>
#include <xsg/fields/SoMFVec2s.h>
#include <xsg/fields/SoMFVec3d.h>
#include <xsg/fields/SoMFVec3f.h>
#include <xsg/fields/SoMFVec3s.h>
#include <xsg/fields/SoMFVec4d.h>
#include <xsg/fields/SoMFVec4f.h>
#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFBox3f.h>
#include <xsg/fields/SoSFBox3s.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFPlane.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFShort.h>
#include <xsg/fields/SoSFString.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/fields/SoSFUInt32.h>
#include <xsg/fields/SoSFUShort.h>
#include <xsg/fields/SoSFVec2d.h>
#include <xsg/fields/SoSFVec2f.h>
#include <xsg/fields/SoSFVec2i32.h>
#include <xsg/fields/SoSFVec2s.h>
#include <xsg/fields/SoSFVec3d.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/fields/SoSFVec3s.h>
#include <xsg/fields/SoSFVec4d.h>
#include <xsg/fields/SoSFVec4f.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/values/Utf.h>

#include <algorithm>
#include <array>
#include <unordered_map>

namespace scopix::live
{

namespace
{

constexpr std::size_t LongestText = 65536;

// --- One value of a field as one element that travels

template <class T>
const T& toWire(const T& value)
{
    return value;
}
template <class T>
const T& fromWire(const T& element, const T* /*type*/)
{
    return element;
}

using Color = std::array<float, 4>;
using Four = std::array<double, 4>;
using Corners = std::array<double, 6>;
using Sixteen = std::array<double, 16>;

Color toWire(const SbColor& value)
{
    return {value[0], value[1], value[2], 1};
}
SbColor fromWire(const Color& element, const SbColor*)
{
    return {element[0], element[1], element[2]};
}

Four toWire(const SbRotation& value)
{
    const float* four = value.getValue();
    return {four[0], four[1], four[2], four[3]};
}
SbRotation fromWire(const Four& element, const SbRotation*)
{
    float four[4];
    std::transform(element.begin(), element.end(), four,
                   [](double number) { return static_cast<float>(number); });
    return SbRotation(four);
}

Sixteen toWire(const SbMatrix& value)
{
    Sixteen element;
    std::copy_n(value.getValue(), element.size(), element.begin());
    return element;
}
SbMatrix fromWire(const Sixteen& element, const SbMatrix*)
{
    float sixteen[16];
    std::transform(element.begin(), element.end(), sixteen,
                   [](double number) { return static_cast<float>(number); });
    return SbMatrix(sixteen);
}

Four toWire(const SbPlane& value)
{
    const SbVec3f& normal = value.getNormal();
    return {normal[0], normal[1], normal[2], value.getDistanceFromOrigin()};
}
SbPlane fromWire(const Four& element, const SbPlane*)
{
    return {SbVec3f(static_cast<float>(element[0]), static_cast<float>(element[1]),
                    static_cast<float>(element[2])),
            static_cast<float>(element[3])};
}

template <class Box>
Corners cornersOf(const Box& box)
{
    const auto& least = box.getMin();
    const auto& greatest = box.getMax();
    return {double(least[0]),    double(least[1]),    double(least[2]),
            double(greatest[0]), double(greatest[1]), double(greatest[2])};
}
Corners toWire(const SbBox3f& value)
{
    return cornersOf(value);
}
Corners toWire(const SbBox3s& value)
{
    return cornersOf(value);
}
SbBox3f fromWire(const Corners& e, const SbBox3f*)
{
    const auto number = [&e](std::size_t i) { return static_cast<float>(e[i]); };
    return {number(0), number(1), number(2), number(3), number(4), number(5)};
}
// What is no short number becomes the nearest one.
SbBox3s fromWire(const Corners& e, const SbBox3s*)
{
    const auto number = [&e](std::size_t i) {
        return e[i] == e[i] ? static_cast<short>(std::clamp(e[i], -32768.0, 32767.0)) : short(0);
    };
    return {number(0), number(1), number(2), number(3), number(4), number(5)};
}

double toWire(SbTime value)
{
    return value.getValue();
}
SbTime fromWire(double element, const SbTime*)
{
    return SbTime(element);
}

NodeId toWire(const SoRef<SoNode>& value)
{
    return value ? value->getNodeId() : 0;
}

// --- Texts

std::string textOf(const SbString& value)
{
    return value.str();
}
std::string textOf(SbName value)
{
    return utf8Of(value);
}
bool fromText(const std::string& text, SbString& value)
{
    value = SbString(text);
    return true;
}
bool fromText(const std::string& text, SbName& value)
{
    std::string latin1;
    for (std::size_t at = 0; at < text.size();) {
        const std::optional<char32_t> letter = xsg::decodeUtf8(text, at);
        if (!letter || *letter == 0 || *letter > 0xFF)
            return false;
        latin1 += static_cast<char>(*letter);
    }
    value = SbName(latin1.c_str());
    return true;
}

// --- What can be done with each class of fields

struct Codec {
    SoType type;
    ValueKind kind;
    bool list;
    Value (*read)(const SoField& field);
    bool (*write)(SoField& field, const Value& value); // null: not by the inspector
};

template <class Field>
Value readSingle(const SoField& field)
{
    const auto& value = static_cast<const Field&>(field).getValue();
    return packed(ValueKind::None, toWire(value));
}

template <class Field>
bool writeSingle(SoField& field, const Value& value)
{
    using T = typename Field::Value;
    using Wire = std::decay_t<decltype(toWire(std::declval<T>()))>;
    const std::optional<Wire> element = unpacked<Wire>(value);
    if (element)
        static_cast<Field&>(field).setValue(fromWire(*element, static_cast<const T*>(nullptr)));
    return element.has_value();
}

template <class Field>
Value readList(const SoField& field)
{
    const auto& list = static_cast<const Field&>(field);
    const auto* values = list.getValues();
    using Wire = std::decay_t<decltype(toWire(*values))>;
    std::vector<Wire> elements;
    const int count = list.getNum();
    elements.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        elements.push_back(toWire(values[i]));
    return packedList(ValueKind::None, elements.data(), elements.size());
}

template <class Field>
bool writeList(SoField& field, const Value& value)
{
    using T = typename Field::Value;
    using Wire = std::decay_t<decltype(toWire(std::declval<T>()))>;
    std::vector<T> values;
    for (const Wire& element : unpackedList<Wire>(value))
        values.push_back(fromWire(element, static_cast<const T*>(nullptr)));
    static_cast<Field&>(field).setValues(std::move(values));
    return true;
}

template <class Field>
Value readText(const SoField& field)
{
    return packedText(textOf(static_cast<const Field&>(field).getValue()));
}

template <class Field>
bool writeText(SoField& field, const Value& value)
{
    typename Field::Value text;
    const auto texts = unpackedTexts(value);
    if (!texts || texts->size() != 1 || !fromText(texts->front(), text))
        return false;
    static_cast<Field&>(field).setValue(text);
    return true;
}

template <class Field>
Value readTexts(const SoField& field)
{
    const auto& list = static_cast<const Field&>(field);
    std::vector<std::string> texts;
    for (int i = 0; i < list.getNum(); ++i)
        texts.push_back(textOf(list[i]));
    return packedTexts(texts);
}

template <class Field>
bool writeTexts(SoField& field, const Value& value)
{
    const auto texts = unpackedTexts(value);
    if (!texts)
        return false;
    std::vector<typename Field::Value> values(texts->size());
    for (std::size_t i = 0; i < values.size(); ++i)
        if (!fromText((*texts)[i], values[i]))
            return false;
    static_cast<Field&>(field).setValues(std::move(values));
    return true;
}

Value readNumber(const SoField& field)
{
    return packed(ValueKind::Int32, std::int32_t(static_cast<const SoSFEnum&>(field).getValue()));
}

bool writeNumber(SoField& field, const Value& value)
{
    const auto number = unpacked<std::int32_t>(value);
    if (number)
        static_cast<SoSFEnum&>(field).setValue(int(*number));
    return number.has_value();
}

Value readBool(const SoField& field)
{
    return packed(ValueKind::Bool, std::uint8_t(static_cast<const SoSFBool&>(field).getValue() ? 1 : 0));
}

bool writeBool(SoField& field, const Value& value)
{
    static_cast<SoSFBool&>(field).setValue(value.bytes[0] != 0);
    return true;
}

Value readBools(const SoField& field)
{
    Value value = readList<SoMFBool>(field);
    for (std::uint8_t& byte : value.bytes)
        byte = byte != 0 ? 1 : 0;
    return value;
}

// A list of colours is one of vectors.
Value readColors(const SoField& field)
{
    const auto& list = static_cast<const SoMFColor&>(field);
    std::vector<Color> colors;
    for (int i = 0; i < list.getNum(); ++i)
        colors.push_back({list[i][0], list[i][1], list[i][2], 1});
    return packedList(ValueKind::Color, colors.data(), colors.size());
}

bool writeColors(SoField& field, const Value& value)
{
    std::vector<SbVec3f> values;
    for (const Color& color : unpackedList<Color>(value))
        values.emplace_back(color[0], color[1], color[2]);
    static_cast<SoMFColor&>(field).setValues(std::move(values));
    return true;
}

Value readImage(const SoField& field)
{
    int width = 0;
    int height = 0;
    int components = 0;
    const unsigned char* pixels = static_cast<const SoSFImage&>(field).getValue(width, height, components);
    if (!pixels)
        return packedImage(0, 0, 0, nullptr);
    return packedImage(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height),
                       static_cast<std::uint32_t>(components), pixels);
}

bool writeImage(SoField& field, const Value& value)
{
    std::array<std::int32_t, 3> size{};
    std::memcpy(size.data(), value.bytes.data(), sizeof size);
    static_cast<SoSFImage&>(field).setValue(size[0], size[1], size[2], value.bytes.data() + sizeof size);
    return true;
}

template <class Field>
Codec single(ValueKind kind)
{
    return {Field::getClassTypeId(), kind, false, readSingle<Field>, writeSingle<Field>};
}

template <class Field>
Codec listOf(ValueKind kind)
{
    return {Field::getClassTypeId(), kind, true, readList<Field>, writeList<Field>};
}

template <class Field>
Codec text()
{
    return {Field::getClassTypeId(), ValueKind::String, false, readText<Field>, writeText<Field>};
}

template <class Field>
Codec texts()
{
    return {Field::getClassTypeId(), ValueKind::String, true, readTexts<Field>, writeTexts<Field>};
}

// Derived classes before those that they are derived from.
std::vector<Codec> makeCodecs()
{
    using Kind = ValueKind;
    return {
        {SoSFEnum::getClassTypeId(), Kind::Int32, false, readNumber, writeNumber},
        {SoSFBool::getClassTypeId(), Kind::Bool, false, readBool, writeBool},
        {SoMFBool::getClassTypeId(), Kind::Bool, true, readBools, writeList<SoMFBool>},
        {SoSFImage::getClassTypeId(), Kind::Image, false, readImage, writeImage},
        {SoSFNode::getClassTypeId(), Kind::Object, false, readSingle<SoSFNode>, nullptr},
        {SoMFNode::getClassTypeId(), Kind::Object, true, readList<SoMFNode>, nullptr},
        listOf<SoMFEnum>(Kind::Int32),
        single<SoSFInt32>(Kind::Int32),
        listOf<SoMFInt32>(Kind::Int32),
        single<SoSFUInt32>(Kind::UInt32),
        listOf<SoMFUInt32>(Kind::UInt32),
        single<SoSFShort>(Kind::Short),
        listOf<SoMFShort>(Kind::Short),
        single<SoSFUShort>(Kind::UShort),
        listOf<SoMFUShort>(Kind::UShort),
        single<SoSFFloat>(Kind::Float),
        listOf<SoMFFloat>(Kind::Float),
        single<SoSFDouble>(Kind::Double),
        listOf<SoMFDouble>(Kind::Double),
        single<SoSFColor>(Kind::Color),
        {SoMFColor::getClassTypeId(), Kind::Color, true, readColors, writeColors},
        single<SoSFVec2f>(Kind::Vec2f),
        listOf<SoMFVec2f>(Kind::Vec2f),
        single<SoSFVec3f>(Kind::Vec3f),
        listOf<SoMFVec3f>(Kind::Vec3f),
        single<SoSFVec4f>(Kind::Vec4f),
        listOf<SoMFVec4f>(Kind::Vec4f),
        single<SoSFVec2d>(Kind::Vec2d),
        listOf<SoMFVec2d>(Kind::Vec2d),
        single<SoSFVec3d>(Kind::Vec3d),
        listOf<SoMFVec3d>(Kind::Vec3d),
        single<SoSFVec4d>(Kind::Vec4d),
        listOf<SoMFVec4d>(Kind::Vec4d),
        single<SoSFVec2s>(Kind::Vec2s),
        listOf<SoMFVec2s>(Kind::Vec2s),
        single<SoSFVec3s>(Kind::Vec3s),
        listOf<SoMFVec3s>(Kind::Vec3s),
        single<SoSFVec2i32>(Kind::Vec2i),
        listOf<SoMFVec2i32>(Kind::Vec2i),
        single<SoSFRotation>(Kind::Rotation),
        listOf<SoMFRotation>(Kind::Rotation),
        single<SoSFMatrix>(Kind::Matrix),
        listOf<SoMFMatrix>(Kind::Matrix),
        single<SoSFPlane>(Kind::Plane),
        listOf<SoMFPlane>(Kind::Plane),
        single<SoSFBox3f>(Kind::Box),
        listOf<SoMFBox3f>(Kind::Box),
        single<SoSFBox3s>(Kind::Box),
        single<SoSFTime>(Kind::Time),
        listOf<SoMFTime>(Kind::Time),
        text<SoSFString>(),
        texts<SoMFString>(),
        text<SoSFName>(),
        texts<SoMFName>(),
    };
}

const Codec* nearestCodec(SoType type)
{
    static const std::vector<Codec> codecs = makeCodecs();
    for (const Codec& codec : codecs)
        if (type.isDerivedFrom(codec.type))
            return &codec;
    return nullptr;
}

// Values that are shown are read in every frame.
const Codec* codecOf(const SoField& field)
{
    thread_local std::unordered_map<const char*, const Codec*> known;
    const SoType type = field.getTypeId();
    const auto [codec, isNew] = known.try_emplace(type.getName().getString());
    if (isNew)
        codec->second = nearestCodec(type);
    return codec->second;
}

const SoEnumTable* tableOf(const SoField& field)
{
    if (const auto* single = dynamic_cast<const SoSFEnum*>(&field))
        return &single->getTable();
    const auto* list = dynamic_cast<const SoMFEnum*>(&field);
    return list ? &list->getTable() : nullptr;
}

Meaning meaningOf(const SoField& field)
{
    if (field.isOfType(SoSFBitMask::getClassTypeId()) || field.isOfType(SoMFBitMask::getClassTypeId()))
        return Meaning::Mask;
    if (tableOf(field))
        return Meaning::Enumeration;
    return field.isOfType(SoSFFilePathString::getClassTypeId()) ? Meaning::FileName : Meaning::Plain;
}

} // namespace

std::string utf8Of(SbName name)
{
    std::string text;
    for (const char* letter = name.getString(); *letter != '\0'; ++letter)
        xsg::appendUtf8(text, static_cast<unsigned char>(*letter));
    return text;
}

PropertyInfo propertyOf(const SoField& field)
{
    PropertyInfo info;
    info.name = utf8Of(field.getName());
    const Codec* codec = codecOf(field);
    info.kind = codec ? codec->kind : ValueKind::Text;
    info.list = codec && codec->list;
    info.writable = codec && codec->write;
    info.meaning = meaningOf(field);
    if (const SoEnumTable* table = tableOf(field))
        for (std::size_t i = 0; i < table->names.size(); ++i)
            info.names.push_back({utf8Of(table->names[i]), table->values[i]});
    if (const auto* list = dynamic_cast<const SoMField*>(&field))
        info.elementCount = static_cast<std::uint64_t>(list->getNum());
    return info;
}

Value valueOf(const SoField& field)
{
    if (const Codec* codec = codecOf(field)) {
        Value value = codec->read(field);
        value.kind = codec->kind;
        return value;
    }
    SbString text;
    field.get(text);
    return packedText(text.str().substr(0, LongestText), ValueKind::Text);
}

Sentence writeTo(SoField& field, const std::string& property, const Value& value)
{
    const Codec* codec = codecOf(field);
    if (!codec || !codec->write)
        return Sentence("“%1” cannot be set: it can only be read.", {property});
    if (codec->kind != value.kind || codec->list != value.list)
        return Sentence("“%1” cannot be set: the value is of another type.", {property});
    return codec->write(field, value)
               ? Sentence()
               : Sentence("“%1” cannot be set: it cannot hold that value.", {property});
}

} // namespace scopix::live
