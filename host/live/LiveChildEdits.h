// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveLink.h"
#include "live/LiveNode.h"

#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace scopix
{

class HostServices;

/// Takes edits of the children of a LiveScene's nodes to the program: once a turn of the event loop, and one
/// after the other. Those that come before the answer wait, so that nothing builds on what the program
/// refuses: of that, what it has done is reversed in the program, and the step of the history is undone with
/// all that came after it. Part of LiveScene.
class LiveChildEdits
{
public:
    LiveChildEdits(LiveScene& scene, HostServices& services);

    void childrenWritten(LiveNode& node);
    /// Edits of the children have not been sent yet.
    bool areWritten(LiveNode& node) const;
    /// Sends what may be sent; `all`: also what waits for answers.
    void flush(bool all = false);
    /// As soon as the program has answered all edits, and nothing else holds them: at once where that is so.
    void whenSettled(const std::function<void()>& act);
    /// Whoever changes the program's children in another way keeps edits waiting meanwhile.
    void hold() { m_isHeld = true; }
    void release();
    /// The step of the history that is about to be made edits children, which are written later.
    void noteStep();
    /// Nothing is sent any more.
    void stop();

    /// The program has these children.
    static void noteChildren(LiveNode& node, const std::vector<SoNode*>& children);
    /// The program has made this child, among its own, for the edit that is sent next: if that is refused, so
    /// that all of it is taken back, the child goes too.
    void noteMade(LiveNode& parent, int index);

private:
    using NodeRef = SoRef<LiveNode>;
    struct Child {
        NodeRef group;
        int index;               // among the program's own children
        live::NodeId node = 0;   // of what came
        bool isInserted = false; // or else removed
    };
    struct HistoryPlace {
        quint64 number; // of the stack of undo steps
        int index;      // in it
    };

    /// An edit on its way: the program does it all, or what it did of it is taken back.
    struct Batch {
        HistoryPlace before; // its first step
        int after;           // its last one
        std::vector<NodeRef> groups;
        std::vector<Child> done;
        std::size_t left = 0; // without an answer
        QString refusal{};
    };
    using BatchPointer = std::shared_ptr<Batch>;

    bool isSettled() const;
    void settle();
    void send(const BatchPointer& batch);
    bool compare(const NodeRef& node, std::vector<Child>& removed, std::vector<Child>& inserted);
    void sendChild(const BatchPointer& batch, const Child& child);
    void change(const Child& child, const LiveLink::Answer<live::StructureResult>& answer);
    void answered(const BatchPointer& batch, Child child, const live::StructureResult& result);
    void end(const BatchPointer& batch);
    void takeBack(const BatchPointer& batch);
    void undo(const Batch& batch);

    LiveScene& m_scene;
    HostServices& m_services;
    std::vector<NodeRef> m_groups;       // whose children were written
    std::vector<Child> m_made;           // by the program, for what is sent next
    std::optional<HistoryPlace> m_first; // before what is sent next
    BatchPointer m_sent;                 // and not answered yet
    std::deque<std::function<void()>> m_waiting;
    QTimer m_soon;
    bool m_isHeld = false;
    bool m_isOver = false;
};

} // namespace scopix
