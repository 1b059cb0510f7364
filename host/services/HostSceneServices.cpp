// SPDX-License-Identifier: MIT
// What the host offers beyond the services that every host has.
#include "services/HostServices.h"

#include "services/NodeDefaults.h"

#include <scopix/SpxCommand.h>

#include <algorithm>

namespace scopix
{

namespace
{

std::vector<SoNode*> nodesOf(const SoPath& path)
{
    std::vector<SoNode*> nodes;
    for (int i = 0; i < path.getLength(); ++i)
        nodes.push_back(path.getNode(i));
    return nodes;
}

} // namespace

SoNode* HostServices::getSceneRoot() const
{
    return m_source ? m_source->sceneRoot() : nullptr;
}

// Nodes may have moved since they were selected.
bool HostServices::isInScene(const std::vector<SoNode*>& way) const
{
    const auto isBelow = [](const SoNode* parent, const SoNode* child) {
        const auto& parents = child->getParents();
        return std::find(parents.begin(), parents.end(), parent) != parents.end();
    };
    return !way.empty() && (!m_source || way.front() == getSceneRoot()) &&
           std::adjacent_find(way.begin(), way.end(), [&](SoNode* parent, SoNode* child) {
               return !isBelow(parent, child);
           }) == way.end();
}

// The place that the source knows may be of another node, where one was selected that stands nowhere.
SoPath HostServices::pathOf(const Selection::Place& place) const
{
    SoPath path;
    if (isInScene(place.way))
        std::for_each(place.way.begin(), place.way.end(), [&](SoNode* node) { path.append(node); });
    else if (m_source && place.node == m_selection.node())
        path = m_source->selectedPath();
    if (path.getTail() == place.node)
        return path;
    return m_source ? m_source->pathTo(dynamic_cast<const SoNode*>(place.node)) : SoPath();
}

SoPath HostServices::getSelectedPath() const
{
    return m_selection.node() ? pathOf(m_selection.places().back()) : SoPath();
}

QList<SoPath> HostServices::getSelectedPaths() const
{
    QList<SoPath> paths;
    for (const Selection::Place& place : m_selection.places()) {
        const SoPath path = pathOf(place);
        if (!path.isEmpty())
            paths.append(path);
    }
    return paths;
}

QList<SoFieldContainer*> HostServices::getSelectedNodes() const
{
    QList<SoFieldContainer*> nodes;
    for (const Selection::Place& place : m_selection.places())
        nodes.append(place.node);
    return nodes;
}

void HostServices::selectNodes(const QList<SoFieldContainer*>& nodes)
{
    changeSelection([&] { m_selection.select(std::vector<SoFieldContainer*>(nodes.begin(), nodes.end())); });
}

void HostServices::selectPath(const SoPath& path)
{
    selectPaths({path});
}

void HostServices::selectPaths(const QList<SoPath>& paths)
{
    std::vector<SoPath> inScene;
    for (const SoPath& path : paths) {
        if (isInScene(nodesOf(path)))
            inScene.push_back(path);
    }
    changeSelection([&] { m_selection.select(inScene); });
}

bool HostServices::canHaveUserDefault(const SoField& field) const
{
    return scopix::canHaveUserDefault(field);
}

bool HostServices::hasUserDefault(const SoField& field) const
{
    return scopix::hasUserDefault(field);
}

QString HostServices::setUserDefault(const SoField& field)
{
    return scopix::setUserDefault(field);
}

QString HostServices::clearUserDefault(const SoField& field)
{
    return scopix::clearUserDefault(field);
}

void HostServices::applyUserDefaults(SoFieldContainer& node) const
{
    scopix::applyUserDefaults(node);
}

void HostServices::executeCommand(SpxCommand* command, const QString& stepName)
{
    if (!command)
        return;
    UndoHistory::CommandContext context = currentContext();
    context.text = stepName;
    m_history.execute(std::unique_ptr<SpxCommand>(command), context);
}

} // namespace scopix
