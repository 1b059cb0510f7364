// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveChanges.h"
#include "live/LiveLink.h"
#include "live/LiveNode.h"

#include <QTimer>

#include <deque>
#include <vector>

namespace scopix
{

class HostServices;

/// Takes what is written to the fields of a LiveScene's nodes to the program, once a turn of the event loop,
/// and shows what the program made of it. A write that the program refuses or takes otherwise belongs to the
/// step of the history that wrote. A field has one write on its way at a time, and all of them together so
/// few that the user can go on looking at the program meanwhile; those that wait may still change. Part of
/// LiveScene.
class LiveEdits
{
public:
    static constexpr std::size_t MostAsked = 128; // that the program has not answered yet

    LiveEdits(LiveScene& scene, HostServices& services);

    void fieldWritten(LiveNode& node, SoField& field);
    /// Sends what waits for the event loop, edits of children too; `all`: also what waits for answers.
    void flush(bool all = false);
    /// Nothing is sent any more.
    void stop();

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

    LiveScene& m_scene;
    HostServices& m_services;
    LiveChanges m_changes;
    std::deque<Written> m_written;
    QTimer m_soon;
    std::size_t m_numAsked = 0; // and not answered yet
    bool m_isOver = false;
};

} // namespace scopix
