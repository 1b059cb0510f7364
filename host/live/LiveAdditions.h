// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveNode.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace scopix
{

class HostServices;

/// New nodes in a running program: the program makes them, and once it has, a step of the history puts them
/// where they belong, which it takes out and in as any other node. An act that needs several of them is done
/// with all of them or not at all. Part of LiveScene.
class LiveAdditions
{
public:
    LiveAdditions(LiveScene& scene, HostServices& services);

    void askTypes(LiveNode& parent, const MirroredNode::AnswerTypes& answer);
    void start(const MirroredAct& act);

private:
    using NodeRef = SoRef<LiveNode>;
    struct Run {
        MirroredAct act;
        std::vector<NodeRef> unfolded{}; // before it begins
        std::vector<NodeRef> made{};     // by the places of the additions; null: not made
        std::size_t left = 0;
    };
    using RunPointer = std::shared_ptr<Run>;
    struct Place {
        NodeRef parent;
        NodeRef made;
        int index; // among all children that the program has there now
    };
    using Places = std::vector<Place>; // of higher and higher indexes

    void unfold(const RunPointer& run, std::size_t i);
    void askAll(const RunPointer& run);
    void ask(const RunPointer& run, std::size_t i);
    void answered(const RunPointer& run, std::size_t i, const live::StructureResult& result);
    void made(const RunPointer& run, std::size_t i, const live::NodeInfo& info);
    void endOne(const RunPointer& run);
    void finish(Run& run);
    Places takeOut(const Run& run);
    static structure::Act thinkOut(const Run& run);
    static structure::Act addAll(const Run& run);
    void perform(structure::Act act, const Places& places);
    void giveUp(const Places& places);
    std::string programType(SoType type) const;

    LiveScene& m_scene;
    HostServices& m_services;
    std::vector<std::pair<SoType, std::string>> m_offered; // as the program calls them
};

} // namespace scopix
