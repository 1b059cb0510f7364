// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <scopix/live/values/LiveValue.h>

namespace scopix::live
{

/// A node, or another object with properties, of the program. 0 is none. An adapter never gives the number of
/// an object that has ended to another one.
using NodeId = std::uint64_t;

/// What a number of a property stands for.
enum class Meaning : std::uint8_t { Plain = 0, Enumeration = 1, Mask = 2, Angle = 3, FileName = 4 };

/// What a node is, without its values.
struct NodeInfo {
    NodeId id = 0;
    std::string type; // as the program calls it, e.g. "osg::MatrixTransform"
    std::string name; // empty: it has none
    std::uint32_t childCount = 0;
    std::uint32_t parentCount = 0; // more than one: it is shared
    bool canHaveChildren = false;
};

/// A number that has a name, of an enumeration or a mask.
struct NamedNumber {
    std::string name;
    std::int64_t number = 0;
};

/// What a property is, without its value. Its name is unique in its node.
struct PropertyInfo {
    std::string name;
    ValueKind kind = ValueKind::None;
    bool list = false;
    bool writable = false;
    Meaning meaning = Meaning::Plain;
    std::optional<double> least{};
    std::optional<double> greatest{};
    std::vector<NamedNumber> names{};
    std::string documentation{};    // plain text, may be empty
    std::string unit{};             // e.g. "m", empty: none
    std::uint64_t elementCount = 1; // of a list, when it was asked
};

/// What came of a write: the value as the program took it (clamped or rounded, say), or why it did not.
struct WriteResult {
    bool taken = false;
    Value value;         // as the program has it now
    std::string refusal; // one sentence where it was not taken
};

/// What came of a change of the structure.
struct StructureResult {
    bool done = false;
    NodeId node = 0;     // the one that was added or moved
    std::string refusal; // one sentence where it was not done
};

/// What differs in the program since it was asked last; of watched nodes only.
struct AdapterChanges {
    struct Property {
        NodeId node = 0;
        std::string name;
    };
    std::vector<Property> properties;
    std::vector<NodeId> children; // nodes whose children differ
    std::vector<NodeId> ended;    // nodes that are no more
    bool roots = false;
};

struct PickResult {
    bool hit = false;
    std::vector<NodeId> path; // from a root to the shape
    double point[3] = {0, 0, 0};
};

/// A picture as the program shows it: 4 bytes a pixel (red, green, blue, alpha), top row first.
struct Picture {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> pixels;
};

struct Camera {
    double position[3] = {0, 0, 1};
    double rotation[4] = {0, 0, 0, 1}; // a camera that is not turned looks along -z, y is up
    double verticalAngle = 0;          // radians; 0: orthographic
    double height = 0;                 // of an orthographic view
};

struct CounterInfo {
    std::uint32_t id = 0;
    std::string name; // e.g. "Cull time"
    std::string unit; // e.g. "ms"
    std::string documentation;
};

/// What frames of the program cost, a row for each, oldest first. Columns are called as those of recordings
/// are: Begin, Whole, Update, Traverse, Cull, Upload, Draw and Gpu are times in nanoseconds (Begin of
/// CLOCK_MONOTONIC), Memory is in bytes, DrawCalls, Triangles and what else there is are counts.
struct FrameTable {
    /// What a frame does not tell.
    static constexpr std::int64_t Missing = std::numeric_limits<std::int64_t>::min();

    std::vector<std::string> columns;
    std::vector<std::int64_t> values; // row by row
};

enum class NoticeLevel : std::uint8_t { Debug = 0, Info = 1, Warning = 2, Error = 3 };

struct Notice {
    NoticeLevel level = NoticeLevel::Info;
    std::string text;
};

/// What an adapter can do beside reading nodes and properties; asked once.
struct Abilities {
    bool write = false;
    bool structure = false;
    bool pick = false;
    bool picture = false;
    bool mark = false;
    bool camera = false;
    bool find = false;
};

/// Gives an inspector the scene of a program: the one thing to write for a scene graph of your own.
///
/// The server asks `sceneGraphName`, `abilities` and `counters` once, in its constructor. It calls every
/// other function in the thread that calls `Server::betweenFrames`, from there and from its destructor, and
/// only while an inspector is attached. An adapter keeps what it names alive or notices its end: a NodeId of
/// something that has ended gets an empty answer, never a crash. Exceptions are caught by the server and told
/// to the inspector as a refusal. Owned by the program; outlives its server.
class SCOPIX_LIVE_API Adapter
{
public:
    virtual ~Adapter() = default;

    /// Name of the scene graph and its version, e.g. "OpenSceneGraph 3.6.5".
    virtual std::string sceneGraphName() const = 0;
    virtual Abilities abilities() const = 0;

    virtual std::vector<NodeInfo> roots() = 0;
    virtual std::optional<NodeInfo> node(NodeId node) = 0;
    /// `count` children from the `first` on; fewer where there are not that many.
    virtual std::vector<NodeInfo> children(NodeId node, std::uint32_t first, std::uint32_t count) = 0;
    /// Paths from a root to this node, at most `limit`.
    virtual std::vector<std::vector<NodeId>> pathsTo(NodeId node, std::uint32_t limit) = 0;
    virtual std::vector<PropertyInfo> properties(NodeId node) = 0;
    virtual std::optional<Value> value(NodeId node, const std::string& property) = 0;
    virtual WriteResult write(NodeId node, const std::string& property, const Value& value);

    /// Types that a child of this node may have when it is added.
    virtual std::vector<std::string> addableTypes(NodeId parent);
    virtual StructureResult add(NodeId parent, std::uint32_t index, const std::string& type);
    /// Removes a child and keeps it alive, so that it can be inserted again, until `forget`.
    virtual StructureResult remove(NodeId parent, std::uint32_t index);
    virtual StructureResult insert(NodeId parent, std::uint32_t index, NodeId node);
    /// A copy of the node, and of all that is below it, as another child of the parent.
    virtual StructureResult copy(NodeId parent, std::uint32_t index, NodeId node);
    virtual void forget(NodeId node);

    /// From now on `takeChanges` tells of this one too; a later call for the same node replaces the earlier
    /// one. `values`: the properties as well as the children.
    virtual void watch(NodeId node, bool values) = 0;
    virtual void unwatch(NodeId node) = 0;
    virtual AdapterChanges takeChanges() = 0;

    /// At a place of the program's view: 0, 0 is its upper left corner and 1, 1 the lower right one.
    virtual PickResult pick(double x, double y);
    /// The box of a node in the world, 6 numbers; none where it has no extent.
    virtual std::optional<Value> box(NodeId node);
    /// Asks for a picture of the next frame, at most that wide and high; it is handed over by `takePicture`.
    virtual void askPicture(std::uint32_t width, std::uint32_t height);
    virtual std::optional<Picture> takePicture();
    /// Marks what is selected in the program's own view; 0 takes the mark away.
    virtual void mark(NodeId node);
    virtual bool lookFrom(const Camera& camera);
    virtual std::optional<Camera> camera();

    /// Nodes whose type, name or text value contains the words, at most `limit`; each as a path from a root.
    virtual std::vector<std::vector<NodeId>> find(const std::string& query, std::uint32_t limit);

    virtual std::vector<CounterInfo> counters();
    /// In the order of `counters`.
    virtual std::vector<double> counterValues();
    /// The frames that were finished since it was asked last, while an inspector looks at them; an adapter
    /// may begin to record them when it is asked first.
    virtual FrameTable takeFrames();
    virtual std::vector<Notice> takeNotices();

    /// The first inspector came, or the last one went: an adapter may begin or end to record what costs.
    virtual void attached(bool isAttached);
};

} // namespace scopix::live
