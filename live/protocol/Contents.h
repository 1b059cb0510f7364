// SPDX-License-Identifier: MIT
// What the structures that travel consist of, for Writer and Reader alike. The order is part of the protocol.
#pragma once

#include "Archive.h"

#include <scopix/live/adapter/Adapter.h>

#include <array>

namespace scopix::live
{

constexpr std::uint8_t greatestOf(ValueKind)
{
    return static_cast<std::uint8_t>(ValueKind::Vec2i);
}

constexpr std::uint8_t greatestOf(Meaning)
{
    return static_cast<std::uint8_t>(Meaning::FileName);
}

constexpr std::uint8_t greatestOf(NoticeLevel)
{
    return static_cast<std::uint8_t>(NoticeLevel::Error);
}

template <class Archive>
void describe(Archive& a, Value& v)
{
    a(v.kind, v.list, v.bytes);
    a.require(isWellFormed(v));
}

template <class Archive>
void describe(Archive& a, NodeInfo& v)
{
    a(v.id, v.type, v.name, v.childCount, v.parentCount, v.canHaveChildren);
}

template <class Archive>
void describe(Archive& a, NamedNumber& v)
{
    a(v.name, v.number);
}

template <class Archive>
void describe(Archive& a, PropertyInfo& v)
{
    a(v.name, v.kind, v.list, v.writable, v.meaning, v.least, v.greatest, v.names, v.documentation, v.unit,
      v.elementCount);
}

template <class Archive>
void describe(Archive& a, WriteResult& v)
{
    a(v.taken, v.value, v.refusal);
}

template <class Archive>
void describe(Archive& a, StructureResult& v)
{
    a(v.done, v.node, v.refusal);
}

template <class Archive>
void describe(Archive& a, PickResult& v)
{
    a(v.hit, v.path, v.point);
}

template <class Archive>
void describe(Archive& a, Camera& v)
{
    a(v.position, v.rotation, v.verticalAngle, v.height);
}

template <class Archive>
void describe(Archive& a, CounterInfo& v)
{
    a(v.id, v.name, v.unit, v.documentation);
}

template <class Archive>
void describe(Archive& a, FrameTable& v)
{
    a(v.columns, v.values);
    a.require(v.columns.empty() ? v.values.empty() : v.values.size() % v.columns.size() == 0);
}

template <class Archive>
void describe(Archive& a, Notice& v)
{
    a(v.level, v.text);
}

template <class Archive>
void describe(Archive& a, Abilities& v)
{
    a(v.write, v.structure, v.pick, v.picture, v.mark, v.camera, v.find);
}

/// How each side introduces itself, whatever its version: this never changes.
struct Greeting {
    std::array<char, 8> magic{};
    std::uint32_t version = 0;
    std::int64_t pid = 0;
    std::string name;
    std::string sceneGraph;

    bool isOurs() const noexcept;
    static Greeting ofThisProcess(const std::string& name, const std::string& sceneGraph);
};

template <class Archive>
void describe(Archive& a, Greeting& v)
{
    for (char& letter : v.magic)
        a(letter);
    a(v.version, v.pid, v.name, v.sceneGraph);
}

/// What a program says after its greeting, in this version.
struct Introduction {
    Greeting greeting;
    Abilities abilities;
    std::vector<CounterInfo> counters;
};

template <class Archive>
void describe(Archive& a, Introduction& v)
{
    a(v.greeting, v.abilities, v.counters);
}

} // namespace scopix::live
