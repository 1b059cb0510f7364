// SPDX-License-Identifier: MIT
// What the host offers beyond the services that every host has.
#include "services/HostServices.h"

#include "services/NodeDefaults.h"

#include <scopix/SpxCommand.h>

namespace scopix
{

SoNode* HostServices::getSceneRoot() const
{
    return m_source ? m_source->sceneRoot() : nullptr;
}

// The place that the source knows may be of another node, where one was selected that stands nowhere.
SoPath HostServices::getSelectedPath() const
{
    const SoPath path = m_source ? m_source->selectedPath() : SoPath();
    return path.getTail() == m_selection.node() ? path : SoPath();
}

QList<SoFieldContainer*> HostServices::getSelectedNodes() const
{
    return m_selection.node() ? QList<SoFieldContainer*>{m_selection.node()} : QList<SoFieldContainer*>();
}

void HostServices::selectPath(const SoPath& path)
{
    if (m_source)
        m_source->selectPath(path);
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
