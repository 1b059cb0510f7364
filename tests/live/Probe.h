// SPDX-License-Identifier: MIT
// What the tests of running programs share: a folder of sockets of their own, a client that is run to its
// answers, and programs in processes of their own.
#pragma once

#include "support/ChildProcess.h"

#include <scopix/live/client/Client.h>
#include <scopix/live/values/LivePacking.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

/// A runtime directory that only this test has; sockets are in its folder `scopix-live`.
class OwnRuntimeFolder
{
public:
    OwnRuntimeFolder();
    ~OwnRuntimeFolder();
    OwnRuntimeFolder(const OwnRuntimeFolder&) = delete;
    OwnRuntimeFolder& operator=(const OwnRuntimeFolder&) = delete;

    const std::string& path() const { return m_path; }
    std::string sockets() const { return m_path + "/scopix-live"; }

private:
    std::string m_path;
    std::string m_former;
    bool m_hadFormer;
};

/// The programs whose sockets are in the runtime directory of this test; others may run on this machine.
std::vector<scopix::live::Program> ownPrograms();

/// Whether an inspector can say this in the user's language.
bool isKnown(const std::string& words);

/// A client that keeps what it is told. `step` is called while it waits, as for a program in the same thread.
class Probe : public scopix::live::ClientListener
{
public:
    using Step = std::function<void()>;

    explicit Probe(Step step = {})
        : m_step(std::move(step))
        , client(*this)
    {
    }

    /// Runs until the condition holds; false where it does not within a long time, or the connection ends.
    bool runUntil(const std::function<bool()>& condition);

    /// Asks, and runs until the answer is there; an empty one where it never is.
    template <class Answer, class... Parameters, class... Arguments>
    Answer ask(void (scopix::live::Client::*question)(Parameters...), Arguments&&... arguments)
    {
        Answer result{};
        bool came = false;
        (client.*question)(std::forward<Arguments>(arguments)..., [&](Answer answer) {
            result = std::move(answer);
            came = true;
        });
        runUntil([&] { return came; });
        return result;
    }
    std::vector<scopix::live::NodeInfo> roots();
    std::vector<scopix::live::NodeInfo> children(scopix::live::NodeId node);
    std::vector<scopix::live::PropertyInfo> properties(scopix::live::NodeId node);
    std::optional<scopix::live::Value> value(scopix::live::NodeId node, const std::string& property);
    scopix::live::WriteResult write(scopix::live::NodeId node, const std::string& property,
                                    const scopix::live::Value& value);

    void rootsChanged() override { ++rootChanges; }
    void childrenChanged(scopix::live::NodeId node) override { childChanges.push_back(node); }
    void nodeEnded(scopix::live::NodeId node) override { endedNodes.push_back(node); }
    void valueChanged(scopix::live::NodeId node, const std::string& property,
                      const scopix::live::Value& value) override
    {
        values[{node, property}] = value;
        ++valueCount;
    }
    void pictureCame(const scopix::live::Picture& picture) override { pictures.push_back(picture); }
    void countersCame(const std::vector<double>& numbers) override { counters.push_back(numbers); }
    void noticeCame(const scopix::live::Notice& notice) override { notices.push_back(notice); }
    void framesCame(const scopix::live::FrameTable& table) override { frames.push_back(table); }
    void ended(const scopix::live::Sentence& reason) override { end = reason; }

private:
    Step m_step;

public:
    scopix::live::Client client;
    int rootChanges = 0;
    int valueCount = 0;
    std::vector<scopix::live::NodeId> childChanges;
    std::vector<scopix::live::NodeId> endedNodes;
    std::map<std::pair<scopix::live::NodeId, std::string>, scopix::live::Value> values;
    std::vector<scopix::live::Picture> pictures;
    std::vector<std::vector<double>> counters;
    std::vector<scopix::live::Notice> notices;
    std::vector<scopix::live::FrameTable> frames;
    std::string end;
};

/// A program in a process of its own, which writes the path of its socket as its first line. It is killed at
/// the end.
class OtherProgram : public ChildProcess
{
public:
    explicit OtherProgram(const std::vector<std::string>& command)
        : ChildProcess(command)
        , m_firstLine(readLine())
    {
    }

    /// What it wrote first: the path of its socket.
    const std::string& socket() const { return m_firstLine; }

private:
    std::string m_firstLine;
};
