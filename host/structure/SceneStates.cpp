// SPDX-License-Identifier: MIT
#include "structure/SceneStates.h"

#include "structure/MirroredNode.h"
#include "structure/Places.h"
#include "text/NodeText.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/core/SoField.h>
#include <xsg/nodes/lights/SoAmbientLight.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/lights/SoLight.h>

#include <algorithm>

namespace scopix
{

namespace
{

// Each node below the root once.
template <class IsWanted>
std::vector<SoNode*> findAll(SoNode* root, IsWanted isWanted)
{
    std::vector<SoNode*> found;
    std::vector<SoNode*> pending;
    std::unordered_set<const SoNode*> seen;
    if (root)
        pending.push_back(root);
    while (!pending.empty()) {
        SoNode* node = pending.back();
        pending.pop_back();
        if (!seen.insert(node).second)
            continue;
        if (isWanted(node))
            found.push_back(node);
        if (const SoGroup* group = node->asGroup())
            pending.insert(pending.end(), group->getChildren().begin(), group->getChildren().end());
    }
    return found;
}

} // namespace

bool SceneStates::canBeHidden(SoNode& node)
{
    const SoType type = node.getTypeId();
    return node.asGroup() || node.asShape() || type.isDerivedFrom(SoLight::getClassTypeId()) ||
           type.isDerivedFrom(SoAmbientLight::getClassTypeId()) ||
           type.isDerivedFrom(SoEnvironmentLight::getClassTypeId());
}

void SceneStates::setHidden(const std::vector<SoNode*>& nodes, bool hidden)
{
    for (SoNode* node : nodes) {
        if (!canBeHidden(*node))
            continue;
        m_hiding.setHidden(node, hidden);
        updateTouch(node);
    }
    emit changed();
}

std::vector<SoNode*> SceneStates::findHidden(SoNode* root) const
{
    return m_hiding.hidesAny() ? findAll(root, [this](const SoNode* node) { return isHidden(node); })
                               : std::vector<SoNode*>();
}

std::vector<SoNode*> SceneStates::findIsolated(SoNode* root) const
{
    return m_hiding.isIsolating()
               ? findAll(root, [this](const SoNode* node) { return m_hiding.isIsolated(node); })
               : std::vector<SoNode*>();
}

// A locked transformation still moves what follows it.
void SceneStates::updateTouch(const SoNode* node)
{
    if (canBeHidden(*const_cast<SoNode*>(node)))
        m_untouchable.setHidden(node, isHidden(node) || isLocked(node));
}

void SceneStates::isolate(const std::vector<const SoNode*>& nodes)
{
    m_hiding.isolate(nodes);
    m_untouchable.isolate(nodes);
    emit changed();
}

void SceneStates::showAll()
{
    m_untouchable.showAllBut(m_locked);
    m_hiding.clear();
    emit changed();
}

void SceneStates::setLocked(const std::vector<SoNode*>& nodes, bool locked)
{
    for (const SoNode* node : nodes) {
        if (locked)
            m_locked.insert(node->getNodeId());
        else
            m_locked.erase(node->getNodeId());
        updateTouch(node);
    }
    emit changed();
}

const SoNode* SceneStates::lockOf(const SoNode* node) const
{
    return m_locked.empty() ? nullptr
                            : findAbove(node, [this](const SoNode* each) { return isLocked(each); });
}

const SoNode* SceneStates::lockOn(const SoPath& path) const
{
    for (int i = 0; i < path.getLength() && !m_locked.empty(); ++i) {
        if (isLocked(path.getNode(i)))
            return path.getNode(i);
    }
    return nullptr;
}

QString SceneStates::refusalOf(const SoFieldContainer& container) const
{
    const MirroredNode* mirrored = MirroredNode::of(&container);
    const QString refusal = mirrored ? mirrored->refusal() : QString();
    if (!refusal.isEmpty() || m_locked.empty())
        return refusal;
    return lockRefusalOf(container);
}

QString SceneStates::lockRefusalOf(const SoFieldContainer& container) const
{
    const auto* node = dynamic_cast<const SoNode*>(&container);
    const SoNode* lock = node ? lockOf(node) : nullptr;
    if (!lock)
        return {};
    return lock == node
               ? tr("“%1” is locked, and cannot be edited before it is unlocked.").arg(nodeText(*node))
               : tr("“%1” stands in “%2”, which is locked, and cannot be edited before that is unlocked.")
                     .arg(nodeText(*node), nodeText(*lock));
}

// What edits no field edits children and names.
QString SceneStates::structureRefusalOf(const SpxEditedFields& told)
{
    QString refusal;
    for (const SoFieldContainer* container : told.editedContainers()) {
        const MirroredNode* mirrored = told.editedFields().empty() ? MirroredNode::of(container) : nullptr;
        if (mirrored && refusal.isEmpty())
            refusal = mirrored->structureRefusal();
    }
    return refusal;
}

QString SceneStates::refusalOf(const SpxCommand& command) const
{
    const auto* told = dynamic_cast<const SpxEditedFields*>(&command);
    std::vector<SoFieldContainer*> all = told ? told->editedContainers() : std::vector<SoFieldContainer*>();
    if (told) {
        for (const SoField* field : told->editedFields())
            all.push_back(field->getContainer());
    }
    for (const SoFieldContainer* container : all) {
        const QString refusal = container ? refusalOf(*container) : QString();
        if (!refusal.isEmpty())
            return refusal;
    }
    return told ? structureRefusalOf(*told) : QString();
}

void SceneStates::clear()
{
    m_locked.clear();
    showAll();
}

void SceneStates::swap(SceneStates& other)
{
    std::swap(m_hiding, other.m_hiding);
    std::swap(m_untouchable, other.m_untouchable);
    std::swap(m_locked, other.m_locked);
    emit changed();
}

} // namespace scopix
