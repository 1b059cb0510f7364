// SPDX-License-Identifier: MIT
#include "window/SelectionMemo.h"

#include "services/HostServices.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/core/SoField.h>

#include <algorithm>

namespace scopix
{

namespace
{

int indexOf(const SoNode* child, SoNode* parent)
{
    const SoGroup* group = parent ? parent->asGroup() : nullptr;
    if (!group)
        return 0;
    const auto& children = group->getChildren();
    return static_cast<int>(std::find(children.begin(), children.end(), child) - children.begin());
}

SoNode* childAt(SoNode* parent, int index)
{
    SoGroup* group = parent ? parent->asGroup() : nullptr;
    return group && index < static_cast<int>(group->getChildren().size())
               ? group->getChildren()[static_cast<std::size_t>(index)]
               : nullptr;
}

} // namespace

SelectionMemo::SelectionMemo(const HostServices& services, SoNode* root)
{
    const auto* node = dynamic_cast<const SoNode*>(services.selectedNode());
    if (!node)
        return;
    SoSearchAction search;
    search.setNode(node);
    search.apply(root);
    if (search.getPaths().empty())
        return;
    const SoPath& path = search.getPaths().front();
    for (int i = 0; i < path.getLength(); ++i)
        m_steps.push_back({indexOf(path.getNode(i), path.getNode(i - 1)), path.getNode(i)->getTypeId()});
    m_name = node->getName();
    if (const SoField* field = services.selectedField())
        m_field = field->getName();
}

SoNode* SelectionMemo::findByName(SoNode* root) const
{
    SoSearchAction search;
    search.setName(m_name);
    search.setType(m_steps.back().type, false);
    return m_name.getLength() > 0 ? search.find(root) : nullptr;
}

SoNode* SelectionMemo::find(SoNode* root) const
{
    if (SoNode* named = findByName(root))
        return named;
    SoNode* node = root;
    for (std::size_t i = 0; i < m_steps.size() && node; ++i) {
        node = i == 0 ? root : childAt(node, m_steps[i].index);
        if (node && node->getTypeId() != m_steps[i].type)
            node = nullptr;
    }
    return node;
}

void SelectionMemo::restore(HostServices& services, SoNode* root) const
{
    SoNode* node = m_steps.empty() ? nullptr : find(root);
    if (!node)
        return;
    services.select(static_cast<SoFieldContainer*>(node));
    if (SoField* field = node->getField(m_field))
        services.select(field);
}

} // namespace scopix
