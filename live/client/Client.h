// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <scopix/live/adapter/Adapter.h>
#include <scopix/live/values/LiveSentence.h>

namespace scopix::live
{

/// A program that can be attached to.
struct Program {
    std::string socketPath;
    std::string name;
    std::string sceneGraph;
    std::int64_t pid = 0;
    std::uint32_t protocolVersion = 0;
};

/// Every program of this user that listens; sockets that nobody listens at any more are left out and cleared
/// away. Those that do not answer for so long, because they are stopped, are left out.
SCOPIX_LIVE_API std::vector<Program>
listPrograms(std::chrono::milliseconds patience = std::chrono::milliseconds(500));

/// What the server says by itself.
class SCOPIX_LIVE_API ClientListener
{
public:
    virtual ~ClientListener();
    virtual void rootsChanged() {}
    virtual void childrenChanged(NodeId) {}
    virtual void nodeEnded(NodeId) {}
    /// Changed by the program or by another inspector; never by a `write` of this client, whose answer has
    /// the value.
    virtual void valueChanged(NodeId, const std::string&, const Value&) {}
    virtual void pictureCame(const Picture&) {}
    virtual void countersCame(const std::vector<double>&) {}
    virtual void noticeCame(const Notice&) {}
    virtual void framesCame(const FrameTable&) {}
    /// The connection is over, by the other side or by an error. Nothing comes after it.
    virtual void ended(const Sentence& /*reason*/) {}
};

/// One attachment to one program. All functions are for one thread; none of them waits, except `connect` (at
/// most a second).
///
/// Answers come out of `process`, in the order of the questions, or not at all once `ended` was called. After
/// the end every question gets an empty answer at once. Not copyable.
class SCOPIX_LIVE_API Client
{
public:
    template <typename T>
    using Answer = std::function<void(T)>;

    explicit Client(ClientListener& listener);
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Empty where it is attached, otherwise a sentence that says why not (version, another user, nobody
    /// there).
    Sentence connect(const std::string& socketPath);
    bool isConnected() const noexcept;
    /// Ends it in good order; `ended` is not called.
    void disconnect();

    /// To be watched for reading (and writing where `wantsWrite`); `process` reads and writes what can be
    /// without waiting.
    int fileDescriptor() const noexcept;
    bool wantsWrite() const noexcept;
    void process();

    /// Seconds for which the program has answered nothing although a question waits, 0 where none does: one
    /// that draws no frames, or is stopped, answers nothing.
    double secondsWaiting() const noexcept;

    const Program& program() const noexcept;
    const Abilities& abilities() const noexcept;
    const std::vector<CounterInfo>& counters() const noexcept;

    void roots(Answer<std::vector<NodeInfo>> answer);
    void node(NodeId node, Answer<std::optional<NodeInfo>> answer);
    /// At most `mostChildren` come at once: ask again from where they end.
    static constexpr std::uint32_t mostChildren = 65536;
    void children(NodeId node, std::uint32_t first, std::uint32_t count,
                  Answer<std::vector<NodeInfo>> answer);
    void pathsTo(NodeId node, std::uint32_t limit, Answer<std::vector<std::vector<NodeId>>> answer);
    void properties(NodeId node, Answer<std::vector<PropertyInfo>> answer);
    void value(NodeId node, const std::string& property, Answer<std::optional<Value>> answer);
    /// The answer comes before any `valueChanged` that this write causes elsewhere; its own value is not told
    /// again.
    void write(NodeId node, const std::string& property, const Value& value, Answer<WriteResult> answer);

    void addableTypes(NodeId parent, Answer<std::vector<std::string>> answer);
    void add(NodeId parent, std::uint32_t index, const std::string& type, Answer<StructureResult> answer);
    void remove(NodeId parent, std::uint32_t index, Answer<StructureResult> answer);
    void insert(NodeId parent, std::uint32_t index, NodeId node, Answer<StructureResult> answer);
    void copy(NodeId parent, std::uint32_t index, NodeId node, Answer<StructureResult> answer);
    /// The program need not keep a removed node any longer. It forgets all that this client removed when that
    /// detaches.
    void forget(NodeId node);

    /// From now on `valueChanged` and `childrenChanged` tell of this node (until `unwatch`).
    void watch(NodeId node, bool values);
    void unwatch(NodeId node);

    void pick(double x, double y, Answer<PickResult> answer);
    void box(NodeId node, Answer<std::optional<Value>> answer);
    /// Pictures come at most 15 times a second, in shared memory, until it is called with 0, 0.
    void showPictures(std::uint32_t width, std::uint32_t height);
    void mark(NodeId node);
    void lookFrom(const Camera& camera, Answer<bool> answer);
    void camera(Answer<std::optional<Camera>> answer);
    void find(const std::string& query, std::uint32_t limit, Answer<std::vector<std::vector<NodeId>>> answer);
    void showCounters(bool shown);
    void showNotices(bool shown);
    void showFrames(bool shown);

private:
    class Private;
    std::shared_ptr<Private> m_private; // also held by whoever calls it back
};

} // namespace scopix::live
