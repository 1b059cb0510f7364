// SPDX-License-Identifier: MIT
#include "live/LiveAdditions.h"

#include "live/LiveScene.h"
#include "live/LiveSentences.h"
#include "services/HostServices.h"
#include "structure/Places.h"
#include "structure/StructurePlan.h"
#include "text/NodeText.h"

#include <scopix/SpxEditedFields.h>

#include <QTimer>

#include <algorithm>
#include <map>

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
void LiveAdditions::start(const MirroredAct& act)
{
    m_scene.getEdits().flush();
    auto run = std::make_shared<Run>(Run{act});
    for (const MirroredAddition& each : act.additions)
        run->unfolded.emplace_back(&parentOf(each));
    for (const auto& node : act.unfolded)
        run->unfolded.emplace_back(static_cast<LiveNode*>(node.get()));
    run->made.resize(act.additions.size());
    run->left = act.additions.size();
    unfold(run, 0);
}

void LiveAdditions::unfold(const RunPointer& run, std::size_t i)
{
    if (i < run->unfolded.size())
        return m_scene.getWays().whenUnfolded(*run->unfolded[i], [this, run, i] { unfold(run, i + 1); });
    if (run->left == 0)
        return m_scene.whenInFront([this, run] { finish(*run); });
    m_scene.getChildEdits().whenSettled([this, run] { askAll(run); });
}

void LiveAdditions::askAll(const RunPointer& run)
{
    m_scene.getChildEdits().hold();
    for (std::size_t i = 0; i < run->act.additions.size(); ++i) {
        MirroredAddition& each = run->act.additions[i];
        if (each.index < 0)
            each.index = parentOf(each).getNumChildren();
        ask(run, i);
    }
}

void LiveAdditions::ask(const RunPointer& run, std::size_t i)
{
    const MirroredAddition& addition = run->act.additions[i];
    const LiveNode& parent = parentOf(addition);
    const auto place = static_cast<std::uint32_t>(std::max(addition.index - parent.countObjects(), 0));
    const auto answer = [this, run, i](const live::StructureResult& result) { answered(run, i, result); };
    if (const auto* copied = static_cast<const LiveNode*>(addition.copied.get()))
        m_scene.getLink().copy(parent.getId(), place, copied->getId(), answer);
    else
        m_scene.getLink().add(parent.getId(), place, programType(addition.type), answer);
}

void LiveAdditions::answered(const RunPointer& run, std::size_t i, const live::StructureResult& result)
{
    if (!result.done) {
        if (m_scene.getState() != LiveScene::State::Ended)
            emit m_scene.told(LiveScene::tr("“%1” added nothing to “%2”: %3")
                                  .arg(m_scene.getName(), nodeText(parentOf(run->act.additions[i])),
                                       toText(result.refusal)));
        return endOne(run);
    }
    m_scene.getLink().node(result.node, [this, run, i](const std::optional<live::NodeInfo>& info) {
        if (info && info->id != 0)
            made(run, i, *info);
        else
            endOne(run);
    });
}

// What takes in other nodes is known to be empty then.
void LiveAdditions::made(const RunPointer& run, std::size_t i, const live::NodeInfo& info)
{
    const NodeRef node = m_scene.nodeFor(info);
    run->made[i] = node;
    if (run->act.think && !run->act.additions[i].copied && info.canHaveChildren)
        m_scene.getWays().whenUnfolded(*node, [this, run] { endOne(run); });
    else
        endOne(run);
}

void LiveAdditions::endOne(const RunPointer& run)
{
    const auto isMade = [](const NodeRef& node) { return node.get() != nullptr; };
    if (--run->left > 0)
        return;
    if (std::none_of(run->made.begin(), run->made.end(), isMade))
        return m_scene.getChildEdits().release();
    m_scene.whenInFront([this, run] {
        finish(*run);
        m_scene.getChildEdits().release();
    });
}

void LiveAdditions::finish(Run& run)
{
    if (m_scene.getState() == LiveScene::State::Ended)
        return;
    const Places places = takeOut(run);
    structure::Act act = thinkOut(run);
    if (!act.refusal.isEmpty())
        emit m_scene.told(act.refusal);
    if (act.command)
        perform(std::move(act), places);
    else
        giveUp(places);
}

// The program may have told of the new children already: they are taken out here, so that the step brings
// them.
LiveAdditions::Places LiveAdditions::takeOut(const Run& run)
{
    std::map<LiveNode*, std::vector<SoNode*>> has; // the children in the program
    Places places;
    for (std::size_t i = 0; i < run.made.size(); ++i) {
        LiveNode& parent = parentOf(run.act.additions[i]);
        SoNode* node = run.made[i].get();
        auto& children = has.try_emplace(&parent, parent.m_told).first->second;
        const auto place = std::min(children.size(), static_cast<std::size_t>(run.act.additions[i].index));
        if (node && std::find(children.begin(), children.end(), node) == children.end())
            children.insert(children.begin() + static_cast<std::ptrdiff_t>(place), node);
        if (node)
            places.push_back({NodeRef(&parent), run.made[i], 0});
    }
    for (Place& each : places) {
        const auto& children = has.at(each.parent.get());
        const auto found = std::find(children.begin(), children.end(), each.made.get());
        each.index = static_cast<int>(found - children.begin());
        const int place = each.parent->findChild(each.made.get());
        if (place >= 0)
            m_scene.apply([&] { each.parent->removeChild(place); });
    }
    for (const auto& [parent, children] : has)
        LiveChildEdits::noteChildren(*parent, children);
    const auto isBefore = [](const Place& a, const Place& b) { return a.index < b.index; };
    std::stable_sort(places.begin(), places.end(), isBefore);
    return places;
}

structure::Act LiveAdditions::thinkOut(const Run& run)
{
    if (!run.act.think)
        return addAll(run);
    if (std::count(run.made.begin(), run.made.end(), NodeRef()) > 0)
        return {}; // which has been told
    std::size_t next = 0;
    return run.act.think([&] { return SoRef<SoNode>(run.made.at(next++).get()); });
}

structure::Act LiveAdditions::addAll(const Run& run)
{
    structure::Act act;
    StructurePlan plan;
    for (std::size_t i = 0; i < run.made.size(); ++i) {
        LiveNode& parent = parentOf(run.act.additions[i]);
        const int count = static_cast<int>(plan.childrenOf(parent).size());
        if (!run.made[i])
            continue;
        plan.insert(parent, std::min(run.act.additions[i].index, count), run.made[i].get());
        act.selection += extended(run.act.additions[i].parent, run.made[i].get());
    }
    act.command = plan.takeCommand();
    act.name = run.act.name;
    return act;
}

// What the program has done of it is not told to it again; all else is.
void LiveAdditions::perform(structure::Act act, const Places& places)
{
    const auto* told = dynamic_cast<const SpxEditedFields*>(act.command.get());
    std::vector<NodeRef> edited;
    for (SoFieldContainer* each : told->editedContainers()) {
        if (auto* node = dynamic_cast<LiveNode*>(each))
            edited.emplace_back(node);
    }
    m_scene.getChildEdits().noteStep();
    m_scene.takeBack(
        [&] { static_cast<SpxSceneServices&>(m_services).executeCommand(act.command.release(), act.name); });
    for (const Place& each : places) {
        each.parent->m_areChildrenEdited = true;
        m_scene.getChildEdits().noteMade(*each.parent, each.index - each.parent->countObjects());
    }
    for (const NodeRef& each : edited)
        m_scene.childrenWritten(*each);
    emit m_scene.inserted(act.selection);
    m_scene.getEdits().flush();
}

void LiveAdditions::giveUp(const Places& places)
{
    for (auto at = places.rbegin(); at != places.rend(); ++at) {
        const auto place = static_cast<std::uint32_t>(at->index - at->parent->countObjects());
        m_scene.getLink().remove(at->parent->getId(), place, [this](const live::StructureResult& result) {
            if (result.done)
                m_scene.noteKept(result.node);
        });
        std::vector<SoNode*> children = at->parent->m_told;
        children.erase(children.begin() + at->index);
        LiveChildEdits::noteChildren(*at->parent, children);
    }
}

} // namespace scopix
