// SPDX-License-Identifier: MIT
#include "changes/SceneCopy.h"

#include "support/LongWork.h"

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/groups/SoGroup.h>

namespace scopix
{

SceneCopy::SceneCopy(SoNode* root, const std::vector<SoNode*>& removed)
{
    const SoRef<SoGroup> holder(new SoGroup);
    holder->addChild(root);
    for (SoNode* node : removed)
        holder->addChild(node);
    std::string error;
    const auto goOn = [](double) { LongWork::goOn(); };
    m_holder = SoSceneFile::readText(SoSceneFile::writeText(holder.get(), goOn), "copy", error, goOn);
    if (!m_holder)
        return;
    std::vector<std::pair<SoNode*, SoNode*>> pending{{holder.get(), m_holder.get()}};
    while (!pending.empty()) {
        const auto [node, copy] = pending.back();
        pending.pop_back();
        if (!m_copies.emplace(node, copy).second)
            continue;
        const SoGroup* group = node->asGroup();
        for (int i = 0; group && i < group->getNumChildren(); ++i)
            pending.emplace_back(group->getChild(i), copy->asGroup()->getChild(i));
    }
}

SoNode* SceneCopy::getRoot() const
{
    return m_holder ? m_holder->asGroup()->getChild(0) : nullptr;
}

SoNode* SceneCopy::copyOf(const SoNode* node) const
{
    const auto found = m_copies.find(node);
    return found == m_copies.end() ? nullptr : found->second.get();
}

void SceneCopy::setChildren(const SoNode& group, const std::vector<SoNode*>& children)
{
    SoNode* copy = copyOf(&group);
    if (!copy)
        return;
    copy->asGroup()->removeAllChildren();
    for (const SoNode* child : children)
        copy->asGroup()->addChild(copyOf(child));
}

SoField* SceneCopy::copyOf(const SoField& field) const
{
    const auto* node = dynamic_cast<const SoNode*>(field.getContainer());
    const SoNode* copy = node ? copyOf(node) : nullptr;
    return copy ? copy->getField(field.getName()) : nullptr;
}

bool SceneCopy::setSource(const SoField& field, const SoField* source)
{
    SoField* copy = copyOf(field);
    SoField* from = source ? copyOf(*source) : nullptr;
    if (copy)
        copy->disconnect();
    return copy && from && copy->connectFrom(from);
}

void SceneCopy::setField(const SoField& field, const SoField& value)
{
    SoField* to = copyOf(field);
    if (!to)
        return;
    if (const auto* single = dynamic_cast<const SoSFNode*>(&value)) {
        static_cast<SoSFNode&>(*to).setValue(SoRef<SoNode>(copyOf(single->getNode())));
    } else if (const auto* list = dynamic_cast<const SoMFNode*>(&value)) {
        std::vector<SoRef<SoNode>> nodes;
        for (int i = 0; i < list->getNum(); ++i)
            nodes.emplace_back(copyOf((*list)[i].get()));
        static_cast<SoMFNode&>(*to).setValues(std::move(nodes));
    } else {
        to->copyFrom(value);
    }
    to->setDefault(value.isDefault());
    to->setIgnored(value.isIgnored());
}

} // namespace scopix
