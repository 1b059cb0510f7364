// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveChanges.h"
#include "live/LiveLink.h"
#include "live/LiveNode.h"

#include <QTimer>

#include <deque>
#include <memory>
#include <vector>

namespace scopix
{

class HostServices;

/// Takes what is written to the nodes of a LiveScene to the program, once a turn of the event loop, and shows
/// what the program made of it. A write that the program refuses or takes otherwise belongs to the step of
/// the history that wrote. A field has one write on its way at a time, and all of them together so few that
/// the user can go on looking at the program meanwhile; those that wait may still change. Part of LiveScene.
class LiveEdits
{
public:
    static constexpr std::size_t MostAsked = 128; // that the program has not answered yet

    LiveEdits(LiveScene& scene, HostServices& services);

    void fieldWritten(LiveNode& node, SoField& field);
    void childrenWritten(LiveNode& node);
    /// Sends what waits for the event loop; `all`: also what waits for answers.
    void flush(bool all = false);
    /// Edits of the children wait for the event loop.
    bool areChildrenWritten(LiveNode& node) const;
    /// Edits of the children are with the program before it is asked for them.
    void settleChildren(LiveNode& node);
    /// Nothing is sent any more.
    void stop();

    /// The program has these children.
    static void noteChildren(LiveNode& node, const std::vector<SoNode*>& children);
    /// The program has made this child, among its own, for the edit of children that is sent next: if that is
    /// refused, so that all of it is taken back, the child goes too.
    void noteMade(LiveNode& parent, int index);

    /// A field that shows of a value what this one leaves stands for every bit of it.
    static void keepExact(LiveProperty& property, const live::Value& value);
    /// What the user has changed, and the program has taken.
    const LiveChanges& getChanges() const { return m_changes; }

private:
    using NodeRef = SoRef<LiveNode>;
    struct Written {
        NodeRef node;
        LiveProperty* property;
    };
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

    /// An edit of children on its way: the program does it all, or what it did of it is taken back.
    struct Batch {
        HistoryPlace place;
        std::vector<NodeRef> groups;
        std::vector<Child> done;
        std::size_t left = 0; // without an answer
        QString refusal{};
    };
    using BatchPointer = std::shared_ptr<Batch>;

    void refuse(const NodeRef& node, LiveProperty& property);
    void send(const NodeRef& node, LiveProperty& property);
    void answered(const NodeRef& node, LiveProperty& property, const live::Value& sent,
                  const live::WriteResult& result);
    void showAsTaken(LiveProperty& property, const live::Value& value);
    void putBack(const NodeRef& node, LiveProperty& property, const QString& remark);
    void remark(LiveProperty& property, const QString& sentence);

    static std::vector<std::uint8_t> shownBytes(const LiveProperty& property, const SoField& field);

    void goOn();
    void sendValues(bool all);
    void sendChildren();
    bool compareChildren(const NodeRef& node, std::vector<Child>& removed, std::vector<Child>& inserted);
    void sendChild(const BatchPointer& batch, const Child& child);
    void structureAnswered(const BatchPointer& batch, Child child, const live::StructureResult& result);
    void takeBack(const BatchPointer& batch);
    void change(const Child& child, const LiveLink::Answer<live::StructureResult>& answer);
    void takeChildrenBack(const HistoryPlace& place);

    LiveScene& m_scene;
    HostServices& m_services;
    LiveChanges m_changes;
    std::deque<Written> m_written;
    std::vector<NodeRef> m_groups; // whose children were written
    std::vector<Child> m_made;     // by the program, for what is sent next
    std::weak_ptr<Batch> m_latest;
    QTimer m_soon;
    std::size_t m_numAsked = 0; // and not answered yet
    bool m_isOver = false;
};

} // namespace scopix
