// SPDX-License-Identifier: MIT
#include "live/LiveAdditions.h"

#include "live/LiveScene.h"
#include "services/HostServices.h"
#include "structure/Places.h"
#include "structure/StructurePlan.h"
#include "support/Printable.h"
#include "text/NodeText.h"

#include <QTimer>

#include <algorithm>

namespace scopix
{

namespace
{

LiveNode& parentOf(const MirroredAddition& addition)
{
    return static_cast<LiveNode&>(*addition.parent.getTail());
}

} // namespace

LiveAdditions::LiveAdditions(LiveScene& scene, HostServices& services)
    : m_scene(scene)
    , m_services(services)
{
}

// The answer may open a dialog, which must not run while messages are taken.
void LiveAdditions::askTypes(LiveNode& parent, const MirroredNode::AnswerTypes& answer)
{
    const NodeRef kept(&parent);
    m_scene.getLink().addableTypes(parent.getId(), [this, kept, answer](const std::vector<std::string>& all) {
        m_offered.clear();
        std::vector<SoType> types;
        for (const std::string& name : all) {
            types.push_back(LiveNode::typeFor(name));
            m_offered.emplace_back(types.back(), name);
        }
        if (types.empty())
            emit m_scene.told(LiveScene::tr("Nothing can be added to “%1”: “%2” offers no types for it.")
                                  .arg(nodeText(*kept), m_scene.getName()));
        else
            QTimer::singleShot(0, &m_scene, [this, answer, types] {
                if (m_scene.isInFront())
                    answer(types);
            });
    });
}

std::string LiveAdditions::programType(SoType type) const
{
    const auto found = std::find_if(m_offered.begin(), m_offered.end(),
                                    [type](const auto& each) { return each.first == type; });
    return found == m_offered.end() ? std::string() : found->second;
}

// Places are the program's only once what was edited before is there too.
void LiveAdditions::start(const std::vector<MirroredAddition>& additions, const QString& stepName)
{
    m_scene.getEdits().flush();
    auto run = std::make_shared<Run>(Run{additions, stepName});
    run->left = additions.size();
    unfold(run, 0);
}

void LiveAdditions::unfold(const RunPointer& run, std::size_t i)
{
    if (i < run->additions.size())
        return m_scene.whenUnfolded(parentOf(run->additions[i]), [this, run, i] { unfold(run, i + 1); });
    for (MirroredAddition& each : run->additions) {
        if (each.index < 0)
            each.index = parentOf(each).getNumChildren();
        ask(run, each);
    }
}

void LiveAdditions::ask(const RunPointer& run, const MirroredAddition& addition)
{
    const LiveNode& parent = parentOf(addition);
    const auto objects = static_cast<int>(parent.m_objects.size());
    const auto place = static_cast<std::uint32_t>(std::max(addition.index - objects, 0));
    const auto answer = [this, run, addition](const live::StructureResult& result) {
        answered(run, addition, result);
    };
    if (const auto* copied = static_cast<const LiveNode*>(addition.copied.get()))
        m_scene.getLink().copy(parent.getId(), place, copied->getId(), answer);
    else
        m_scene.getLink().add(parent.getId(), place, programType(addition.type), answer);
}

void LiveAdditions::answered(const RunPointer& run, const MirroredAddition& addition,
                             const live::StructureResult& result)
{
    if (!result.done) {
        emit m_scene.told(LiveScene::tr("“%1” added nothing to “%2”: %3")
                              .arg(m_scene.getName(), nodeText(parentOf(addition)),
                                   printable(QString::fromStdString(result.refusal))));
        return endOne(run);
    }
    m_scene.getLink().node(result.node, [this, run, addition](const std::optional<live::NodeInfo>& info) {
        if (info && info->id != 0)
            run->made.push_back({addition, *info});
        endOne(run);
    });
}

void LiveAdditions::endOne(const RunPointer& run)
{
    if (--run->left == 0 && !run->made.empty())
        m_scene.whenInFront([this, run] { finish(*run); });
}

// The program may have told of the new children already: they are taken out first, so that the step brings
// them.
void LiveAdditions::finish(Run& run)
{
    std::vector<NodeRef> nodes;
    for (const Made& each : run.made) {
        nodes.push_back(m_scene.nodeFor(each.info));
        LiveNode& parent = parentOf(each.addition);
        const int place = parent.findChild(nodes.back().get());
        if (place >= 0)
            m_scene.apply([&] { parent.removeChild(place); });
    }
    StructurePlan plan;
    Paths paths;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        LiveNode& parent = parentOf(run.made[i].addition);
        const int count = static_cast<int>(plan.childrenOf(parent).size());
        plan.insert(parent, std::min(run.made[i].addition.index, count), nodes[i].get());
        paths += extended(run.made[i].addition.parent, nodes[i].get());
    }
    m_scene.takeBack([&] {
        static_cast<SpxSceneServices&>(m_services).executeCommand(plan.takeCommand().release(), run.name);
    });
    for (const Made& each : run.made) {
        parentOf(each.addition).m_areChildrenEdited = true;
        LiveEdits::noteChildren(parentOf(each.addition));
    }
    emit m_scene.inserted(paths);
}

} // namespace scopix
