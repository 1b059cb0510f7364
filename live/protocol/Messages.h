// SPDX-License-Identifier: MIT
// The messages of the protocol: their numbers, what each one carries, and how they are packed.
#pragma once

#include "Contents.h"

namespace scopix::live
{

constexpr std::uint32_t ProtocolVersion = 2;

/// No message is longer, in bytes without its head.
constexpr std::size_t LongestMessage = std::size_t(64) << 20;
/// And none before the greeting was accepted; that of a program lists its counters too.
constexpr std::size_t LongestGreeting = std::size_t(64) << 10;
constexpr std::size_t LongestIntroduction = std::size_t(1) << 20;

/// A message begins with the length of its contents (4 bytes), its type (2), two bytes that are 0, and its id
/// (4).
constexpr std::size_t HeadSize = 12;

/// The numbers never change; new ones are added at the end of their group, with a new version.
enum class MessageType : std::uint16_t {
    Hello = 1,
    Goodbye = 2, // with a sentence; nothing follows

    // Questions of the inspector, which the program answers under the same number
    Roots = 16,
    Node = 17,
    Children = 18,
    PathsTo = 19,
    Properties = 20,
    GetValue = 21,
    Write = 22,
    AddableTypes = 23,
    Add = 24,
    Remove = 25,
    Insert = 26,
    Pick = 27,
    Box = 28,
    LookFrom = 29,
    GetCamera = 30,
    Find = 31,
    Copy = 32,

    // Requests of the inspector, without an answer
    Forget = 64,
    Watch = 65,
    Unwatch = 66,
    ShowPictures = 67,
    PictureTaken = 68,
    Mark = 69,
    ShowCounters = 70,
    ShowNotices = 71,
    ShowFrames = 72,

    // What the program says by itself
    RootsChanged = 128,
    ChildrenChanged = 129,
    NodeEnded = 130,
    ValueChanged = 131,
    PictureCame = 132, // its pixels are in the memory that comes with it
    CountersCame = 133,
    NoticeCame = 134,
    FramesCame = 135,
};

/// A message as it travels. `id` is the number of a question, which its answer repeats; 0 for all that is
/// neither.
struct Message {
    std::uint16_t type = 0;
    std::uint32_t id = 0;
    Bytes contents;

    bool is(MessageType other) const noexcept { return type == static_cast<std::uint16_t>(other); }
};

using Ids = std::vector<NodeId>;
using Nodes = std::vector<NodeInfo>;

/// What goes with a message, and what comes back.
template <class... Parts>
struct Carries {
    using Parameters = std::tuple<Parts...>;
};
template <class AnswerType, class... Parts>
struct Asks : Carries<Parts...> {
    using Answer = AnswerType;
};

template <MessageType type>
struct Contents;

using Number = std::uint32_t;
using Text = std::string;

// clang-format off
template <> struct Contents<MessageType::Goodbye> : Carries<Text> {};

template <> struct Contents<MessageType::Roots> : Asks<Nodes> {};
template <> struct Contents<MessageType::Node> : Asks<std::optional<NodeInfo>, NodeId> {};
template <> struct Contents<MessageType::Children> : Asks<Nodes, NodeId, Number, Number> {};
template <> struct Contents<MessageType::PathsTo> : Asks<std::vector<Ids>, NodeId, Number> {};
template <> struct Contents<MessageType::Properties> : Asks<std::vector<PropertyInfo>, NodeId> {};
template <> struct Contents<MessageType::GetValue> : Asks<std::optional<Value>, NodeId, Text> {};
template <> struct Contents<MessageType::Write> : Asks<WriteResult, NodeId, Text, Value> {};
template <> struct Contents<MessageType::AddableTypes> : Asks<std::vector<Text>, NodeId> {};
template <> struct Contents<MessageType::Add> : Asks<StructureResult, NodeId, Number, Text> {};
template <> struct Contents<MessageType::Remove> : Asks<StructureResult, NodeId, Number> {};
template <> struct Contents<MessageType::Insert> : Asks<StructureResult, NodeId, Number, NodeId> {};
template <> struct Contents<MessageType::Pick> : Asks<PickResult, double, double> {};
template <> struct Contents<MessageType::Box> : Asks<std::optional<Value>, NodeId> {};
template <> struct Contents<MessageType::LookFrom> : Asks<bool, Camera> {};
template <> struct Contents<MessageType::GetCamera> : Asks<std::optional<Camera>> {};
template <> struct Contents<MessageType::Find> : Asks<std::vector<Ids>, Text, Number> {};
template <> struct Contents<MessageType::Copy> : Asks<StructureResult, NodeId, Number, NodeId> {};

template <> struct Contents<MessageType::Forget> : Carries<NodeId> {};
template <> struct Contents<MessageType::Watch> : Carries<NodeId, bool> {};
template <> struct Contents<MessageType::Unwatch> : Carries<NodeId> {};
template <> struct Contents<MessageType::ShowPictures> : Carries<Number, Number> {};
template <> struct Contents<MessageType::PictureTaken> : Carries<> {};
template <> struct Contents<MessageType::Mark> : Carries<NodeId> {};
template <> struct Contents<MessageType::ShowCounters> : Carries<bool> {};
template <> struct Contents<MessageType::ShowNotices> : Carries<bool> {};
template <> struct Contents<MessageType::ShowFrames> : Carries<bool> {};

template <> struct Contents<MessageType::RootsChanged> : Carries<> {};
template <> struct Contents<MessageType::ChildrenChanged> : Carries<NodeId> {};
template <> struct Contents<MessageType::NodeEnded> : Carries<NodeId> {};
template <> struct Contents<MessageType::ValueChanged> : Carries<NodeId, Text, Value> {};
template <> struct Contents<MessageType::PictureCame> : Carries<Number, Number> {};
template <> struct Contents<MessageType::CountersCame> : Carries<std::vector<double>> {};
template <> struct Contents<MessageType::NoticeCame> : Carries<Notice> {};
template <> struct Contents<MessageType::FramesCame> : Carries<FrameTable> {};
// clang-format on

template <MessageType type>
using Parameters = typename Contents<type>::Parameters;
template <MessageType type>
using AnswerOf = typename Contents<type>::Answer;

template <MessageType type>
using TypeConstant = std::integral_constant<MessageType, type>;

template <MessageType... types>
struct MessageList {
};

/// Calls `visitor` with a TypeConstant of each type of a list.
template <MessageType... types, class Visitor>
void forEachOf(MessageList<types...>, Visitor&& visitor)
{
    (visitor(TypeConstant<types>()), ...);
}

using Questions =
    MessageList<MessageType::Roots, MessageType::Node, MessageType::Children, MessageType::PathsTo,
                MessageType::Properties, MessageType::GetValue, MessageType::Write, MessageType::AddableTypes,
                MessageType::Add, MessageType::Remove, MessageType::Insert, MessageType::Pick,
                MessageType::Box, MessageType::LookFrom, MessageType::GetCamera, MessageType::Find,
                MessageType::Copy>;
using Requests = MessageList<MessageType::Forget, MessageType::Watch, MessageType::Unwatch,
                             MessageType::ShowPictures, MessageType::PictureTaken, MessageType::Mark,
                             MessageType::ShowCounters, MessageType::ShowNotices, MessageType::ShowFrames>;
using Events = MessageList<MessageType::RootsChanged, MessageType::ChildrenChanged, MessageType::NodeEnded,
                           MessageType::ValueChanged, MessageType::PictureCame, MessageType::CountersCame,
                           MessageType::NoticeCame, MessageType::FramesCame, MessageType::Goodbye>;

/// What a message says, none where it is damaged. Values in it are well-formed.
template <class T>
std::optional<T> contentsOf(const Message& message)
{
    Reader reader(message.contents);
    T contents{};
    reader(contents);
    if (!reader.isComplete())
        return std::nullopt;
    return contents;
}

/// A message as bytes, with its head.
template <class... Parts>
Bytes packedMessage(MessageType type, std::uint32_t id, const Parts&... parts)
{
    Writer writer;
    writer(std::uint32_t(0), type, std::uint16_t(0), id, parts...);
    const auto size = static_cast<std::uint32_t>(writer.bytes().size() - HeadSize);
    std::memcpy(writer.bytes().data(), &size, sizeof size);
    return std::move(writer.bytes());
}

} // namespace scopix::live
