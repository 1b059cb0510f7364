// SPDX-License-Identifier: MIT
#include <xsg/actions/SoPathTraversal.h>

#include <algorithm>

SoPathTraversal::SoPathTraversal(NodeIds path)
    : m_path(std::move(path))
{
}

void SoPathTraversal::follow(NodeIds path)
{
    m_path = std::move(path);
    m_reached = 0;
}

SoPathTraversal::NodeIds SoPathTraversal::idsOf(const SoPath& path)
{
    NodeIds ids;
    for (int i = 0; i < path.getLength(); ++i)
        ids.push_back(path.getNode(i)->getNodeId());
    return ids;
}

bool SoPathTraversal::isOnPath(const SoNode* node) const
{
    const std::size_t depth = getFrames().size();
    return depth == m_reached && depth < m_path.size() && m_path[depth] == node->getNodeId();
}

bool SoPathTraversal::isEnd(const SoNode* node) const
{
    return getFrames().size() + 1 == m_path.size() && m_path.back() == node->getNodeId() &&
           m_reached + 1 >= m_path.size();
}

bool SoPathTraversal::wantsGroup(SoGroup* group)
{
    return isOnPath(group) || !group->isStateScope();
}

void SoPathTraversal::enterGroup(SoGroup* group)
{
    if (isOnPath(group))
        ++m_reached;
}

void SoPathTraversal::leaveGroup(SoGroup* /*group*/)
{
    m_reached = std::min(m_reached, getFrames().size());
}
