// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "OsgProgram.h"

#include <chrono>
#include <cstring>
#include <filesystem>
#include <functional>
#include <thread>

#include <unistd.h>

using namespace scopix::live;

namespace
{

/// The scene that osgviewer shows.
class SceneFile
{
public:
    SceneFile()
        : m_path(::testing::TempDir() + "/scopix-" + std::to_string(getpid()) + ".osgt")
    {
        const std::string command = std::string(SCOPIX_OSG_PROGRAM) + " --write " + m_path;
        EXPECT_EQ(std::system(command.c_str()), 0);
    }
    ~SceneFile() { std::filesystem::remove(m_path); }
    SceneFile(const SceneFile&) = delete;
    SceneFile& operator=(const SceneFile&) = delete;

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

const std::string& sceneFile()
{
    static const SceneFile file;
    return file.path();
}

/// The first line is written before the program is there, so that nobody waits for it. What it says later
/// goes nowhere: nobody reads it, and the program would wait for somebody who does.
std::string shellCommand(const std::string& command, const std::string& environment, bool preload)
{
    return "echo; exec env " + environment + (preload ? " LD_PRELOAD=" SCOPIX_OSG_PRELOAD " " : " ") +
           command + " >/dev/null";
}

} // namespace

OsgProgram::OsgProgram(const std::string& command, const std::string& environment, bool preload)
    : m_process({"/bin/sh", "-c", shellCommand(command, environment, preload)})
{
}

std::unique_ptr<OsgProgram> OsgProgram::viewer(const std::string& environment)
{
    return std::make_unique<OsgProgram>(SCOPIX_OSGVIEWER " --window 0 0 320 240 --run-max-frame-rate 200 " +
                                            sceneFile(),
                                        "OSG_OPTIMIZER=OFF " + environment);
}

std::unique_ptr<OsgProgram> OsgProgram::own(const std::string& options, bool preload)
{
    return std::make_unique<OsgProgram>(SCOPIX_OSG_PROGRAM " " + options, "OSG_RUN_MAX_FRAME_RATE=200",
                                        preload);
}

std::string OsgProgram::waitForSocket()
{
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (m_process.isRunning() && std::chrono::steady_clock::now() < patience) {
        for (const Program& program : ownPrograms())
            if (program.pid == m_process.pid())
                return program.socketPath;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return {};
}

NodeId nodeNamed(Probe& probe, const std::string& name)
{
    std::set<NodeId> known;
    const std::function<NodeId(const NodeInfo&)> below = [&](const NodeInfo& node) -> NodeId {
        if (node.name == name)
            return node.id;
        if (node.childCount > 0 && known.insert(node.id).second)
            for (const NodeInfo& child : probe.children(node.id))
                if (const NodeId found = below(child))
                    return found;
        return 0;
    };
    for (const NodeInfo& root : probe.roots())
        if (const NodeId found = below(root))
            return found;
    return 0;
}

NodeId objectIn(Probe& probe, NodeId node, const std::string& property, std::size_t index)
{
    const std::vector<NodeId> objects = unpackedList<NodeId>(probe.value(node, property).value_or(Value()));
    return index < objects.size() ? objects[index] : 0;
}

namespace
{

/// Made by the program while it draws, or of something else.
bool isMadeAnew(const std::string& property, bool isShapeDrawable)
{
    const bool isArray = property.find("Array") != std::string::npos || property == "PrimitiveSetList";
    const bool isSizeOfPicture = property == "TextureWidth" || property == "TextureHeight";
    return property == "BufferObject" || isSizeOfPicture || (isShapeDrawable && isArray);
}

} // namespace

Snapshot snapshotOf(Probe& probe, NodeId root)
{
    Snapshot snapshot;
    std::set<NodeId> known;
    const std::function<void(NodeId)> add = [&](NodeId id) {
        if (id == 0 || !known.insert(id).second)
            return;
        const bool isMade = probe.ask<std::optional<NodeInfo>>(&Client::node, id).value_or(NodeInfo()).type ==
                            "osg::ShapeDrawable";
        for (const PropertyInfo& property : probe.properties(id)) {
            if (isMadeAnew(property.name, isMade))
                continue;
            const std::optional<Value> value = probe.value(id, property.name);
            snapshot[{id, property.name}] = value.value_or(Value());
            if (value && value->kind == ValueKind::Object)
                for (NodeId object : unpackedList<NodeId>(*value))
                    add(object);
        }
        for (const NodeInfo& child : probe.children(id))
            add(child.id);
    };
    add(root);
    return snapshot;
}

namespace
{

template <class T>
void shift(Value& value, T by)
{
    if (value.bytes.size() < sizeof(T))
        return;
    T number;
    std::memcpy(&number, value.bytes.data(), sizeof(T));
    number = T(number + by);
    std::memcpy(value.bytes.data(), &number, sizeof(T));
}

} // namespace

Value changed(const PropertyInfo& info, const Value& value, unsigned seed)
{
    Value other = value;
    const int step = int(seed % 3) + 1;
    switch (info.kind) {
    case ValueKind::Bool:
        if (!other.bytes.empty())
            other.bytes[0] = !other.bytes[0];
        break;
    case ValueKind::Int32:
        if (info.meaning == Meaning::Enumeration && !info.names.empty() && !info.list)
            other = packed(ValueKind::Int32, std::int32_t(info.names[seed % info.names.size()].number));
        else
            shift<std::int32_t>(other, step);
        break;
    case ValueKind::UInt32:
        shift<std::uint32_t>(other, unsigned(step));
        break;
    case ValueKind::Float:
    case ValueKind::Vec2f:
    case ValueKind::Vec3f:
    case ValueKind::Vec4f:
    case ValueKind::Color:
        shift<float>(other, float(step) / 8);
        break;
    case ValueKind::Double:
    case ValueKind::Vec2d:
    case ValueKind::Vec3d:
    case ValueKind::Vec4d:
    case ValueKind::Rotation:
    case ValueKind::Plane:
    case ValueKind::Matrix:
        shift<double>(other, double(step) / 8);
        break;
    case ValueKind::Short:
        shift<std::int16_t>(other, std::int16_t(step));
        break;
    case ValueKind::UShort:
        shift<std::uint16_t>(other, std::uint16_t(step));
        break;
    case ValueKind::String:
        other = packedText("text " + std::to_string(seed));
        break;
    case ValueKind::Image:
        if (other.bytes.size() > 12)
            other.bytes.back() = std::uint8_t(other.bytes.back() + step);
        break;
    case ValueKind::Object:
        if (!info.list)
            other = packed(ValueKind::Object, NodeId(0));
        break;
    default:
        break;
    }
    return other;
}
