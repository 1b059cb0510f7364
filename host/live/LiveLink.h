// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/client/Client.h>

#include <QString>

#include <functional>

namespace scopix
{

/// The way to a running program, as live::Client has it: questions do not wait, and answers come from the
/// event loop in the order of the questions. GUI thread only.
class LiveLink
{
public:
    template <class T>
    using Answer = std::function<void(T)>;

    LiveLink() = default;
    LiveLink(const LiveLink&) = delete;
    LiveLink& operator=(const LiveLink&) = delete;
    virtual ~LiveLink() = default;

    /// What the program says by itself goes to this one; null: to nobody.
    virtual void setListener(live::ClientListener* listener) = 0;
    /// Ends the attachment, after which nothing more comes.
    virtual void disconnect() = 0;

    /// For which the program has answered nothing although a question waits.
    virtual double secondsWaiting() const = 0;

    virtual const live::Program& program() const = 0;
    virtual const live::Abilities& abilities() const = 0;
    virtual const std::vector<live::CounterInfo>& counters() const = 0;

    virtual void roots(Answer<std::vector<live::NodeInfo>> answer) = 0;
    virtual void node(live::NodeId node, Answer<std::optional<live::NodeInfo>> answer) = 0;
    virtual void children(live::NodeId node, std::uint32_t first, std::uint32_t count,
                          Answer<std::vector<live::NodeInfo>> answer) = 0;
    virtual void properties(live::NodeId node, Answer<std::vector<live::PropertyInfo>> answer) = 0;
    virtual void value(live::NodeId node, const std::string& property,
                       Answer<std::optional<live::Value>> answer) = 0;
    virtual void write(live::NodeId node, const std::string& property, const live::Value& value,
                       Answer<live::WriteResult> answer) = 0;

    virtual void addableTypes(live::NodeId parent, Answer<std::vector<std::string>> answer) = 0;
    virtual void add(live::NodeId parent, std::uint32_t index, const std::string& type,
                     Answer<live::StructureResult> answer) = 0;
    virtual void remove(live::NodeId parent, std::uint32_t index, Answer<live::StructureResult> answer) = 0;
    virtual void insert(live::NodeId parent, std::uint32_t index, live::NodeId node,
                        Answer<live::StructureResult> answer) = 0;
    virtual void copy(live::NodeId parent, std::uint32_t index, live::NodeId node,
                      Answer<live::StructureResult> answer) = 0;
    virtual void forget(live::NodeId node) = 0;

    virtual void watch(live::NodeId node, bool values) = 0;
    virtual void unwatch(live::NodeId node) = 0;

    virtual void pick(double x, double y, Answer<live::PickResult> answer) = 0;
    virtual void box(live::NodeId node, Answer<std::optional<live::Value>> answer) = 0;
    virtual void camera(Answer<std::optional<live::Camera>> answer) = 0;
    virtual void lookFrom(const live::Camera& camera, Answer<bool> answer) = 0;
    virtual void find(const std::string& query, std::uint32_t limit,
                      Answer<std::vector<std::vector<live::NodeId>>> answer) = 0;
    virtual void showPictures(std::uint32_t width, std::uint32_t height) = 0;
    virtual void mark(live::NodeId node) = 0;
    virtual void showCounters(bool shown) = 0;
    virtual void showNotices(bool shown) = 0;
    virtual void showFrames(bool shown) = 0;
};

} // namespace scopix
