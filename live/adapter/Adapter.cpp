// SPDX-License-Identifier: MIT
#include "Adapter.h"

#include <scopix/live/values/LiveSentence.h>

namespace scopix::live
{

// What an adapter cannot do, it need not mention.

WriteResult Adapter::write(NodeId, const std::string& property, const Value&)
{
    return {false,
            {},
            Sentence("“%1” cannot be set: this program offers its scene for reading only.", {property})};
}

std::vector<std::string> Adapter::addableTypes(NodeId)
{
    return {};
}

StructureResult Adapter::add(NodeId, std::uint32_t, const std::string& type)
{
    return {false, 0,
            Sentence("“%1” cannot be added: this program lets nobody change its structure.", {type})};
}

StructureResult Adapter::remove(NodeId, std::uint32_t)
{
    return {false, 0, Sentence("The node cannot be removed: this program lets nobody change its structure.")};
}

StructureResult Adapter::insert(NodeId, std::uint32_t, NodeId)
{
    return {false, 0,
            Sentence("The node cannot be inserted: this program lets nobody change its structure.")};
}

StructureResult Adapter::copy(NodeId, std::uint32_t, NodeId)
{
    return {false, 0, Sentence("The node cannot be copied: this program does not offer that.")};
}

void Adapter::forget(NodeId) {}

PickResult Adapter::pick(double, double)
{
    return {};
}

std::optional<Value> Adapter::box(NodeId)
{
    return std::nullopt;
}

void Adapter::askPicture(std::uint32_t, std::uint32_t) {}

std::optional<Picture> Adapter::takePicture()
{
    return std::nullopt;
}

void Adapter::mark(NodeId) {}

bool Adapter::lookFrom(const Camera&)
{
    return false;
}

std::optional<Camera> Adapter::camera()
{
    return std::nullopt;
}

std::vector<std::vector<NodeId>> Adapter::find(const std::string&, std::uint32_t)
{
    return {};
}

std::vector<CounterInfo> Adapter::counters()
{
    return {};
}

std::vector<double> Adapter::counterValues()
{
    return {};
}

FrameTable Adapter::takeFrames()
{
    return {};
}

std::vector<Notice> Adapter::takeNotices()
{
    return {};
}

void Adapter::attached(bool) {}

} // namespace scopix::live
