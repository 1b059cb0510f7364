// SPDX-License-Identifier: MIT
#include "live/LiveChanges.h"

#include "live/LiveNode.h"

#include <xsg/changes/SceneChange.h>
#include <xsg/core/SoField.h>

namespace scopix
{

namespace
{

// Through the first of the places of each node; the root is the last.
std::vector<const SoNode*> wayUp(const SoNode& node)
{
    std::vector<const SoNode*> way{&node};
    while (!way.back()->getParents().empty() && way.size() < 10000)
        way.push_back(way.back()->getParents().front());
    return way;
}

SoPath pathTo(const std::vector<const SoNode*>& wayUp)
{
    SoPath path;
    for (auto node = wayUp.rbegin(); node != wayUp.rend(); ++node)
        path.append(const_cast<SoNode*>(*node));
    return path;
}

std::vector<LiveChanges::Step> stepsOf(const std::vector<const SoNode*>& wayUp)
{
    std::vector<LiveChanges::Step> steps;
    for (std::size_t i = wayUp.size() - 1; i > 0; --i) {
        const auto* group = const_cast<SoNode*>(wayUp[i])->asGroup();
        const auto* child = dynamic_cast<const LiveNode*>(wayUp[i - 1]);
        if (group && child)
            steps.push_back({child->getInfo().type, child->getInfo().name, group->findChild(child)});
    }
    return steps;
}

std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.getString();
}

} // namespace

bool LiveChanges::isChanged(live::NodeId node, const std::string& property) const
{
    return m_places.count({node, property}) > 0;
}

void LiveChanges::note(const LiveNode& node, const LiveProperty& property, const live::Value& before,
                       const live::Value& after)
{
    const auto found = m_places.find({node.getId(), property.info.name});
    const live::Value& first = found == m_places.end() ? before : found->second->before;
    if (first == after) {
        if (found != m_places.end()) {
            m_all.erase(found->second);
            m_places.erase(found);
        }
        return;
    }
    const auto up = wayUp(node);
    Change change{
        node.getId(),           stepsOf(up), property.info.name, first, after, SoScenePath::of(pathTo(up)),
        textOf(*property.field)};
    change.path.setField(property.field->getName().getString());
    if (found != m_places.end())
        *found->second = std::move(change);
    else
        m_places[{node.getId(), property.info.name}] = m_all.insert(m_all.end(), std::move(change));
}

std::string LiveChanges::toText() const
{
    xsg::SceneChanges changes;
    for (const Change& each : m_all) {
        xsg::SceneChange change;
        change.path = each.path;
        change.value = each.text;
        changes.push_back(std::move(change));
    }
    return xsg::PatchText::write(changes);
}

} // namespace scopix
