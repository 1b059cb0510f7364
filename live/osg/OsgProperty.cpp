// SPDX-License-Identifier: MIT
#include "OsgProperty.h"

#include <algorithm>

namespace scopix::live
{

namespace
{

bool isNamed(const PropertyInfo& info, std::int32_t number)
{
    return std::any_of(info.names.begin(), info.names.end(),
                       [number](const NamedNumber& named) { return named.number == number; });
}

bool hasWholeElements(const PropertyInfo& info, const Value& value)
{
    const std::size_t size = elementSize(info.kind);
    if (size == 0)
        return true;
    return info.list ? value.bytes.size() % size == 0 : value.bytes.size() == size;
}

} // namespace

PropertyInfo OsgProperty::info(const osg::Object&) const
{
    return m_info;
}

std::string OsgProperty::write(osg::Object&, const Value&, OsgObjects&) const
{
    return readOnly();
}

void OsgProperty::stamp(osg::Object& object, OsgObjects& objects, std::vector<std::uint8_t>& bytes) const
{
    const std::optional<Value> value = read(object, objects);
    bytes.push_back(value.has_value());
    if (value)
        appendBytes(bytes, value->bytes.data(), value->bytes.size());
}

std::string OsgProperty::misfit(const PropertyInfo& info, const Value& value) const
{
    if (!info.writable)
        return readOnly();
    if (value.kind != info.kind || value.list != info.list || !hasWholeElements(info, value))
        return Sentence("“%1” takes no value of this type.", {name()});
    if (info.meaning == Meaning::Enumeration && !info.names.empty() && !info.list) {
        const auto number = unpacked<std::int32_t>(value);
        if (!number || !isNamed(info, *number))
            return Sentence("“%1” has no choice with the number %2.",
                            {name(), std::to_string(number.value_or(0))});
    }
    return {};
}

std::string OsgProperty::readOnly() const
{
    return Sentence("“%1” can only be read, since OpenSceneGraph offers no safe way to set it.", {name()});
}

CallProperty::CallProperty(PropertyInfo info, Reader reader, Writer writer)
    : OsgProperty(std::move(info))
    , m_reader(std::move(reader))
    , m_writer(std::move(writer))
{
    prototype().writable = bool(m_writer);
}

std::optional<Value> CallProperty::read(osg::Object& object, OsgObjects& objects) const
{
    return m_reader(object, objects);
}

std::string CallProperty::write(osg::Object& object, const Value& value, OsgObjects& objects) const
{
    const std::string wrong = misfit(info(object), value);
    return wrong.empty() ? m_writer(object, value, objects) : wrong;
}

Value packedId(NodeId id)
{
    return packed(ValueKind::Object, id);
}

Value packedIds(const std::vector<NodeId>& ids)
{
    return packedList(ValueKind::Object, ids.data(), ids.size());
}

} // namespace scopix::live
