// SPDX-License-Identifier: MIT
#include "live/LiveValues.h"

#include "text/NodeText.h"

#include <xsg/fields/SoMFBitMask.h>
#include <xsg/fields/SoMFBool.h>
#include <xsg/fields/SoMFBox3f.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFDouble.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFMatrix.h>
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
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFMatrix.h>
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

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace scopix
{

namespace
{

using live::Meaning;
using live::PropertyInfo;
using live::Value;
using live::ValueKind;
using Bytes = std::vector<std::uint8_t>;

// --- Numbers of one type as numbers of another one: what does not fit becomes the nearest.

template <class To, class From>
To nearest(From from)
{
    if constexpr (std::is_same_v<To, From>) {
        return from;
    } else if constexpr (std::is_same_v<To, bool>) {
        return from != From();
    } else if constexpr (std::is_floating_point_v<To>) {
        const auto wide = static_cast<double>(from);
        const double most = std::numeric_limits<To>::max();
        if (std::isfinite(wide) && std::abs(wide) > most)
            return std::copysign(std::numeric_limits<To>::infinity(), static_cast<To>(wide > 0 ? 1 : -1));
        return static_cast<To>(wide);
    } else {
        const auto wide = static_cast<double>(from);
        const double least = std::numeric_limits<To>::lowest();
        const double most = std::numeric_limits<To>::max();
        return std::isnan(wide) ? To{}
               : wide <= least  ? std::numeric_limits<To>::lowest()
               : wide >= most   ? std::numeric_limits<To>::max()
                                : static_cast<To>(std::llround(wide));
    }
}

// --- The components of values

template <class T>
struct Parts {
    using Scalar = std::decay_t<decltype(std::declval<const T&>()[0])>;
    static Scalar get(const T& value, int i) { return value[i]; }
    static void set(T& value, int i, Scalar part) { value[i] = part; }
};

template <class T>
struct SingleNumber {
    using Scalar = T;
    static T get(const T& value, int /*i*/) { return value; }
    static void set(T& value, int /*i*/, T part) { value = part; }
};
template <>
struct Parts<bool> : SingleNumber<bool> {
};
template <>
struct Parts<SbBool> : SingleNumber<SbBool> {
};
template <>
struct Parts<std::int32_t> : SingleNumber<std::int32_t> {
};
template <>
struct Parts<std::uint32_t> : SingleNumber<std::uint32_t> {
};
template <>
struct Parts<short> : SingleNumber<short> {
};
template <>
struct Parts<unsigned short> : SingleNumber<unsigned short> {
};
template <>
struct Parts<float> : SingleNumber<float> {
};
template <>
struct Parts<double> : SingleNumber<double> {
};
template <>
struct Parts<SbTime> {
    using Scalar = double;
    static double get(const SbTime& value, int /*i*/) { return value.getValue(); }
    static void set(SbTime& value, int /*i*/, double part) { value = part; }
};
template <>
struct Parts<SbMatrix> {
    using Scalar = float;
    static float get(const SbMatrix& value, int i) { return value.getValue()[i]; }
    static void set(SbMatrix& value, int i, float part) { value[i / 4][i % 4] = part; }
};
template <>
struct Parts<SbRotation> {
    using Scalar = float;
    static float get(const SbRotation& value, int i) { return value.getValue()[i]; }
    static void set(SbRotation& value, int i, float part)
    {
        float four[4];
        std::copy_n(value.getValue(), 4, four);
        four[i] = part;
        value.setValue(four);
    }
};
template <>
struct Parts<SbPlane> {
    using Scalar = float;
    static float get(const SbPlane& value, int i)
    {
        return i < 3 ? value.getNormal()[i] : value.getDistanceFromOrigin();
    }
    static void set(SbPlane& value, int i, float part)
    {
        SbVec3f normal = value.getNormal();
        if (i < 3)
            normal[i] = part;
        value = SbPlane(normal, i < 3 ? value.getDistanceFromOrigin() : part);
    }
};
template <>
struct Parts<SbBox3f> {
    using Scalar = float;
    static float get(const SbBox3f& value, int i) { return (i < 3 ? value.getMin() : value.getMax())[i % 3]; }
    static void set(SbBox3f& value, int i, float part)
    {
        SbVec3f corners[] = {value.getMin(), value.getMax()};
        corners[i / 3][i % 3] = part;
        value = SbBox3f(corners[0], corners[1]);
    }
};

// --- Values that are numbers in a row. `Shown` of the `Count` numbers have a place in the field.

template <class Single, class List, class Stored, int Count, int Shown = Count>
struct Numbers {
    static constexpr std::size_t Size = sizeof(Stored) * Count;

    static Stored stored(const std::uint8_t* bytes, int i)
    {
        Stored number;
        std::memcpy(&number, bytes + sizeof(Stored) * static_cast<std::size_t>(i), sizeof(Stored));
        return number;
    }
    template <class T>
    static T read(const std::uint8_t* bytes)
    {
        T value{};
        for (int i = 0; i < Shown; ++i)
            Parts<T>::set(value, i, nearest<typename Parts<T>::Scalar>(stored(bytes, i)));
        return value;
    }
    // `present`: what the program has there, or null.
    template <class T>
    static void write(const T& value, const std::uint8_t* present, std::uint8_t* bytes)
    {
        for (int i = 0; i < Count; ++i) {
            Stored number = present ? stored(present, i) : Stored(1);
            if (i < Shown) {
                const auto part = Parts<T>::get(value, i);
                const auto before = nearest<typename Parts<T>::Scalar>(number);
                if (!present || std::memcmp(&part, &before, sizeof part) != 0)
                    number = nearest<Stored>(part);
            }
            std::memcpy(bytes + sizeof(Stored) * static_cast<std::size_t>(i), &number, sizeof number);
        }
    }

    static std::unique_ptr<SoField> make(SoFieldContainer* owner, const char* name, bool isList)
    {
        if (isList)
            return std::make_unique<List>(owner, name);
        return std::make_unique<Single>(owner, name);
    }
    static bool show(const Value& value, SoField& field)
    {
        if (value.bytes.size() % Size != 0)
            return false;
        if (auto* list = dynamic_cast<List*>(&field); list && value.list) {
            std::vector<typename List::Value> values;
            values.reserve(value.bytes.size() / Size);
            for (std::size_t at = 0; at < value.bytes.size(); at += Size)
                values.push_back(read<typename List::Value>(value.bytes.data() + at));
            list->setValues(std::move(values));
            return true;
        }
        auto* single = dynamic_cast<Single*>(&field);
        if (!single || value.list || value.bytes.size() != Size)
            return false;
        single->setValue(read<typename Single::Value>(value.bytes.data()));
        return true;
    }
    static bool take(const SoField& field, const Value& present, Bytes& bytes)
    {
        const bool fits = present.bytes.size() % Size == 0;
        const auto before = [&](std::size_t at) {
            return fits && at < present.bytes.size() ? present.bytes.data() + at : nullptr;
        };
        if (const auto* list = dynamic_cast<const List*>(&field)) {
            bytes.resize(static_cast<std::size_t>(list->getNum()) * Size);
            for (std::size_t at = 0; at < bytes.size(); at += Size)
                write((*list)[static_cast<int>(at / Size)], before(at), bytes.data() + at);
            return true;
        }
        const auto* single = dynamic_cast<const Single*>(&field);
        if (!single)
            return false;
        bytes.resize(Size);
        write(single->getValue(), before(0), bytes.data());
        return true;
    }
};

// --- Numbers with names

template <class Stored>
struct Named {
    static bool show(const Value& value, SoField& field)
    {
        if (value.list || value.bytes.size() != sizeof(Stored))
            return false;
        Stored number;
        std::memcpy(&number, value.bytes.data(), sizeof number);
        static_cast<SoSFEnum&>(field).setValue(static_cast<int>(number));
        return true;
    }
    static bool take(const SoField& field, Bytes& bytes)
    {
        const auto number = static_cast<Stored>(static_cast<const SoSFEnum&>(field).getValue());
        bytes.resize(sizeof number);
        std::memcpy(bytes.data(), &number, sizeof number);
        return true;
    }
};

SoEnumTablePtr tableOf(const PropertyInfo& info)
{
    std::vector<int> values;
    std::vector<SbName> names;
    for (const live::NamedNumber& each : info.names) {
        values.push_back(static_cast<int>(each.number));
        names.push_back(liveName(each.name));
    }
    return SoEnumTable::copyOf(static_cast<int>(values.size()), values.data(), names.data());
}

bool isNamed(const PropertyInfo& info)
{
    const bool hasNames = info.meaning == Meaning::Enumeration || info.meaning == Meaning::Mask;
    return hasNames && !info.list && !info.names.empty() &&
           (info.kind == ValueKind::Int32 || info.kind == ValueKind::UInt32);
}

// --- Texts, and what is shown as one

bool takeLength(const Bytes& bytes, std::size_t& at, std::uint32_t& length)
{
    if (bytes.size() - at < sizeof length)
        return false;
    std::memcpy(&length, bytes.data() + at, sizeof length);
    at += sizeof length;
    return length <= bytes.size() - at;
}

// A byte 0 would end the text for whoever reads it.
std::string shownText(const std::uint8_t* begin, std::size_t length)
{
    std::string text(reinterpret_cast<const char*>(begin), length);
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
}

bool readTexts(const Value& value, std::vector<SbString>& texts)
{
    std::size_t at = 0;
    while (at < value.bytes.size()) {
        std::uint32_t length = 0;
        if (!takeLength(value.bytes, at, length))
            return false;
        texts.emplace_back(shownText(value.bytes.data() + at, length));
        at += length;
    }
    return true;
}

bool readWholeNumbers(const Value& value, std::vector<SbString>& texts)
{
    if (value.bytes.size() % sizeof(std::int64_t) != 0)
        return false;
    for (std::size_t at = 0; at < value.bytes.size(); at += sizeof(std::int64_t)) {
        std::int64_t number = 0;
        std::memcpy(&number, value.bytes.data() + at, sizeof number);
        texts.emplace_back(std::to_string(number));
    }
    return true;
}

bool showTexts(const Value& value, SoField& field)
{
    std::vector<SbString> texts;
    const bool isNumber = value.kind == ValueKind::Int64;
    if (!(isNumber ? readWholeNumbers(value, texts) : readTexts(value, texts)))
        return false;
    if (auto* list = dynamic_cast<SoMFString*>(&field); list && value.list) {
        list->setValues(std::move(texts));
        return true;
    }
    auto* single = dynamic_cast<SoSFString*>(&field);
    if (!single || value.list || texts.size() != 1)
        return false;
    single->setValue(texts.front());
    return true;
}

bool appendText(const SbString& text, bool isNumber, Bytes& bytes)
{
    const std::string_view view(text.getString(), static_cast<std::size_t>(text.getLength()));
    std::int64_t number = 0;
    const auto length = static_cast<std::uint32_t>(view.size());
    if (isNumber) {
        const auto end = std::from_chars(view.data(), view.data() + view.size(), number);
        if (end.ec != std::errc() || end.ptr != view.data() + view.size())
            return false;
    }
    const auto* head = isNumber ? reinterpret_cast<const std::uint8_t*>(&number)
                                : reinterpret_cast<const std::uint8_t*>(&length);
    bytes.insert(bytes.end(), head, head + (isNumber ? sizeof number : sizeof length));
    if (!isNumber)
        bytes.insert(bytes.end(), view.begin(), view.end());
    return true;
}

bool takeTexts(const SoField& field, ValueKind kind, Bytes& bytes)
{
    const bool isNumber = kind == ValueKind::Int64;
    if (const auto* single = dynamic_cast<const SoSFString*>(&field))
        return appendText(single->getValue(), isNumber, bytes);
    const auto* list = dynamic_cast<const SoMFString*>(&field);
    for (int i = 0; list && i < list->getNum(); ++i) {
        if (!appendText((*list)[i], isNumber, bytes))
            return false;
    }
    return list != nullptr;
}

// --- Pictures

bool showImage(const Value& value, SoField& field)
{
    std::uint32_t head[3];
    auto* image = dynamic_cast<SoSFImage*>(&field);
    if (!image || value.list || value.bytes.size() < sizeof head)
        return false;
    std::memcpy(head, value.bytes.data(), sizeof head);
    constexpr std::uint32_t Most = 1U << 15;
    const auto size = std::uint64_t(head[0]) * head[1] * head[2];
    if (head[0] > Most || head[1] > Most || head[2] > 4 || size != value.bytes.size() - sizeof head)
        return false;
    image->setValue(static_cast<int>(head[0]), static_cast<int>(head[1]), static_cast<int>(head[2]),
                    size > 0 ? value.bytes.data() + sizeof head : nullptr);
    return true;
}

bool takeImage(const SoField& field, Bytes& bytes)
{
    const auto* image = dynamic_cast<const SoSFImage*>(&field);
    if (!image)
        return false;
    int width = 0;
    int height = 0;
    int components = 0;
    const unsigned char* pixels = image->getValue(width, height, components);
    const std::uint32_t head[] = {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height),
                                  static_cast<std::uint32_t>(components)};
    const auto size = pixels ? std::size_t(head[0]) * head[1] * head[2] : 0;
    bytes.resize(sizeof head + size);
    std::memcpy(bytes.data(), head, sizeof head);
    if (size > 0)
        std::memcpy(bytes.data() + sizeof head, pixels, size);
    return true;
}

// --- Which kind is shown as what

struct KindRow {
    ValueKind kind;
    std::unique_ptr<SoField> (*make)(SoFieldContainer*, const char*, bool);
    bool (*show)(const Value&, SoField&);
    bool (*take)(const SoField&, const Value&, Bytes&);
};

template <class Kind>
constexpr KindRow row(ValueKind kind)
{
    return {kind, &Kind::make, &Kind::show, &Kind::take};
}

const KindRow* rowOf(ValueKind kind)
{
    static constexpr KindRow rows[] = {
        row<Numbers<SoSFBool, SoMFBool, std::uint8_t, 1>>(ValueKind::Bool),
        row<Numbers<SoSFInt32, SoMFInt32, std::int32_t, 1>>(ValueKind::Int32),
        row<Numbers<SoSFUInt32, SoMFUInt32, std::uint32_t, 1>>(ValueKind::UInt32),
        row<Numbers<SoSFFloat, SoMFFloat, float, 1>>(ValueKind::Float),
        row<Numbers<SoSFDouble, SoMFDouble, double, 1>>(ValueKind::Double),
        row<Numbers<SoSFVec2f, SoMFVec2f, float, 2>>(ValueKind::Vec2f),
        row<Numbers<SoSFVec3f, SoMFVec3f, float, 3>>(ValueKind::Vec3f),
        row<Numbers<SoSFVec4f, SoMFVec4f, float, 4>>(ValueKind::Vec4f),
        row<Numbers<SoSFVec2d, SoMFVec2d, double, 2>>(ValueKind::Vec2d),
        row<Numbers<SoSFVec3d, SoMFVec3d, double, 3>>(ValueKind::Vec3d),
        row<Numbers<SoSFVec4d, SoMFVec4d, double, 4>>(ValueKind::Vec4d),
        row<Numbers<SoSFRotation, SoMFRotation, double, 4>>(ValueKind::Rotation),
        row<Numbers<SoSFMatrix, SoMFMatrix, double, 16>>(ValueKind::Matrix),
        row<Numbers<SoSFColor, SoMFColor, float, 4, 3>>(ValueKind::Color),
        row<Numbers<SoSFTime, SoMFTime, double, 1>>(ValueKind::Time),
        row<Numbers<SoSFPlane, SoMFPlane, double, 4>>(ValueKind::Plane),
        row<Numbers<SoSFBox3f, SoMFBox3f, double, 6>>(ValueKind::Box),
        row<Numbers<SoSFVec2s, SoMFVec2s, short, 2>>(ValueKind::Vec2s),
        row<Numbers<SoSFVec3s, SoMFVec3s, short, 3>>(ValueKind::Vec3s),
        row<Numbers<SoSFShort, SoMFShort, short, 1>>(ValueKind::Short),
        row<Numbers<SoSFUShort, SoMFUShort, unsigned short, 1>>(ValueKind::UShort),
        row<Numbers<SoSFVec4f, SoMFVec4f, std::uint8_t, 4>>(ValueKind::Vec4ub),
        row<Numbers<SoSFVec2i32, SoMFVec2i32, std::int32_t, 2>>(ValueKind::Vec2i),
    };
    const auto* found = std::find_if(std::begin(rows), std::end(rows),
                                     [kind](const KindRow& each) { return each.kind == kind; });
    return found == std::end(rows) ? nullptr : found;
}

bool isTextual(ValueKind kind)
{
    return kind == ValueKind::String || kind == ValueKind::Text || kind == ValueKind::Int64;
}

bool takeBytes(const SoField& field, const Value& present, Bytes& bytes)
{
    if (isTextual(present.kind))
        return takeTexts(field, present.kind, bytes);
    if (present.kind == ValueKind::Image)
        return takeImage(field, bytes);
    if (dynamic_cast<const SoSFEnum*>(&field))
        return present.kind == ValueKind::UInt32 ? Named<std::uint32_t>::take(field, bytes)
                                                 : Named<std::int32_t>::take(field, bytes);
    const KindRow* row = rowOf(present.kind);
    return row && row->take(field, present, bytes);
}

} // namespace

SbName liveName(const std::string& text)
{
    QString name = QString::fromStdString(text);
    for (QChar& letter : name) {
        if (!letter.isPrint())
            letter = QLatin1Char(' ');
    }
    return toName(name);
}

std::unique_ptr<SoField> makeLiveField(const PropertyInfo& info, SoFieldContainer* owner)
{
    const char* name = liveName(info.name).getString();
    if (isNamed(info) && info.meaning == Meaning::Mask)
        return std::make_unique<SoSFBitMask>(owner, name, tableOf(info), 0);
    if (isNamed(info))
        return std::make_unique<SoSFEnum>(owner, name, tableOf(info), 0);
    if (isTextual(info.kind) && info.list)
        return std::make_unique<SoMFString>(owner, name);
    if (isTextual(info.kind))
        return std::make_unique<SoSFString>(owner, name);
    if (info.kind == ValueKind::Image && !info.list)
        return std::make_unique<SoSFImage>(owner, name);
    const KindRow* row = rowOf(info.kind);
    return row ? row->make(owner, name, info.list) : nullptr;
}

bool canWriteBack(const PropertyInfo& info)
{
    return info.writable && info.kind != ValueKind::Text;
}

bool showLiveValue(const Value& value, SoField& field)
{
    if (isTextual(value.kind))
        return showTexts(value, field);
    if (value.kind == ValueKind::Image)
        return showImage(value, field);
    if (dynamic_cast<SoSFEnum*>(&field))
        return value.kind == ValueKind::UInt32  ? Named<std::uint32_t>::show(value, field)
               : value.kind == ValueKind::Int32 ? Named<std::int32_t>::show(value, field)
                                                : false;
    const KindRow* row = rowOf(value.kind);
    return row && row->show(value, field);
}

std::optional<Value> liveValueOf(const SoField& field, const Value& present)
{
    Value value;
    value.kind = present.kind;
    value.list = present.list;
    if (!takeBytes(field, present, value.bytes))
        return std::nullopt;
    return value;
}

std::vector<live::NodeId> objectsIn(const Value& value)
{
    std::vector<live::NodeId> objects;
    for (std::size_t at = 0;
         value.kind == ValueKind::Object && at + sizeof(live::NodeId) <= value.bytes.size();
         at += sizeof(live::NodeId)) {
        live::NodeId id = 0;
        std::memcpy(&id, value.bytes.data() + at, sizeof id);
        if (id != 0)
            objects.push_back(id);
    }
    return objects;
}

} // namespace scopix
