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

/// New nodes in a running program: the program makes them, and once it has, their insertion is a step of the
/// history, which it takes out and in as any other node. Part of LiveScene.
class LiveAdditions
{
public:
    LiveAdditions(LiveScene& scene, HostServices& services);

    void askTypes(LiveNode& parent, const MirroredNode::AnswerTypes& answer);
    void start(const std::vector<MirroredAddition>& additions, const QString& stepName);

private:
    using NodeRef = SoRef<LiveNode>;
    struct Made {
        MirroredAddition addition;
        live::NodeInfo info;
    };
    struct Run {
        std::vector<MirroredAddition> additions;
        QString name;
        std::vector<Made> made{};
        std::size_t left = 0;
    };
    using RunPointer = std::shared_ptr<Run>;

    void unfold(const RunPointer& run, std::size_t i);
    void ask(const RunPointer& run, const MirroredAddition& addition);
    void answered(const RunPointer& run, const MirroredAddition& addition,
                  const live::StructureResult& result);
    void endOne(const RunPointer& run);
    void finish(Run& run);
    std::string programType(SoType type) const;

    LiveScene& m_scene;
    HostServices& m_services;
    std::vector<std::pair<SoType, std::string>> m_offered; // as the program calls them
};

} // namespace scopix
