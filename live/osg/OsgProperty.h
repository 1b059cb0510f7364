// SPDX-License-Identifier: MIT
#pragma once

#include "OsgObjects.h"

#include <scopix/live/values/LivePacking.h>
#include <scopix/live/values/LiveSentence.h>

#include <osg/Matrixd>
#include <osg/Vec2d>
#include <osg/Vec2f>
#include <osg/Vec3d>
#include <osg/Vec3f>
#include <osg/Vec4d>
#include <osg/Vec4f>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace scopix::live
{

/// One property of a class of the program's scene graph: what it is, and how it is read and written.
///
/// Lives as long as its table and is shared by all objects of the class. Called in the program's thread with
/// an object of that class.
class OsgProperty
{
public:
    explicit OsgProperty(PropertyInfo info)
        : m_info(std::move(info))
    {
    }
    virtual ~OsgProperty() = default;

    const std::string& name() const { return m_info.name; }
    ValueKind kind() const { return m_info.kind; }
    PropertyInfo& prototype() { return m_info; }
    const PropertyInfo& prototype() const { return m_info; }
    virtual PropertyInfo info(const osg::Object& object) const;

    virtual std::optional<Value> read(osg::Object& object, OsgObjects& objects) const = 0;
    /// A sentence that says why not; empty where it was written.
    virtual std::string write(osg::Object& object, const Value& value, OsgObjects& objects) const;
    /// Appends what is compared to notice that the value has changed, at a small cost however long it is,
    /// since this is done each frame; nothing of what is too dear for that.
    virtual void stamp(osg::Object& object, OsgObjects& objects, std::vector<std::uint8_t>& bytes) const;

protected:
    /// The sentence of a value that this property cannot take, as those of another type; empty where it can.
    std::string misfit(const PropertyInfo& info, const Value& value) const;

private:
    std::string readOnly() const;

    PropertyInfo m_info;
};

/// A property that two functions read and write; without the second it is read-only.
class CallProperty : public OsgProperty
{
public:
    using Reader = std::function<std::optional<Value>(osg::Object&, OsgObjects&)>;
    using Writer = std::function<std::string(osg::Object&, const Value&, OsgObjects&)>;

    CallProperty(PropertyInfo info, Reader reader, Writer writer);

    std::optional<Value> read(osg::Object& object, OsgObjects& objects) const override;
    std::string write(osg::Object& object, const Value& value, OsgObjects& objects) const override;

private:
    Reader m_reader;
    Writer m_writer;
};

/// How the value of a C++ type is packed: its kind, and the plain type that has the layout of that kind.
template <class T>
struct PackedAs;

template <ValueKind Kind, class T, class Plain = T>
struct PackedDirectly {
    static constexpr ValueKind kind = Kind;
    using Stored = Plain;
};

template <>
struct PackedAs<bool> : PackedDirectly<ValueKind::Bool, bool, std::uint8_t> {
};
template <>
struct PackedAs<int> : PackedDirectly<ValueKind::Int32, int> {
};
template <>
struct PackedAs<unsigned> : PackedDirectly<ValueKind::UInt32, unsigned> {
};
template <>
struct PackedAs<float> : PackedDirectly<ValueKind::Float, float> {
};
template <>
struct PackedAs<double> : PackedDirectly<ValueKind::Double, double> {
};
template <>
struct PackedAs<osg::Vec2f> : PackedDirectly<ValueKind::Vec2f, osg::Vec2f> {
};
template <>
struct PackedAs<osg::Vec3f> : PackedDirectly<ValueKind::Vec3f, osg::Vec3f> {
};
template <>
struct PackedAs<osg::Vec4f> : PackedDirectly<ValueKind::Vec4f, osg::Vec4f> {
};
template <>
struct PackedAs<osg::Vec3d> : PackedDirectly<ValueKind::Vec3d, osg::Vec3d> {
};
template <>
struct PackedAs<osg::Vec4d> : PackedDirectly<ValueKind::Vec4d, osg::Vec4d> {
};
template <>
struct PackedAs<osg::Matrixd> : PackedDirectly<ValueKind::Matrix, osg::Matrixd> {
};

template <class T>
Value packedAs(const T& value, ValueKind kind = PackedAs<T>::kind)
{
    using Stored = typename PackedAs<T>::Stored;
    const auto stored = Stored(value);
    const auto* start = reinterpret_cast<const std::uint8_t*>(&stored);
    return {kind, false, {start, start + sizeof(Stored)}};
}

template <class T>
std::optional<T> unpackedAs(const Value& value)
{
    using Stored = typename PackedAs<T>::Stored;
    if (value.bytes.size() != sizeof(Stored))
        return std::nullopt;
    Stored stored;
    std::memcpy(static_cast<void*>(&stored), value.bytes.data(), sizeof(Stored));
    return T(stored);
}

/// Appends the bytes of a value to those of a stamp.
template <class T>
void appendBytes(std::vector<std::uint8_t>& bytes, const T* start, std::size_t count)
{
    const auto* first = reinterpret_cast<const std::uint8_t*>(start);
    bytes.insert(bytes.end(), first, first + count * sizeof(T));
}

Value packedId(NodeId id);
Value packedIds(const std::vector<NodeId>& ids);

} // namespace scopix::live
