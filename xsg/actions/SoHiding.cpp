// SPDX-License-Identifier: MIT
#include <xsg/actions/SoHiding.h>

void SoHiding::setHidden(const SoNode* node, bool on)
{
    const bool isChanged =
        on ? m_hidden.insert(node->getNodeId()).second : m_hidden.erase(node->getNodeId()) > 0;
    m_version += isChanged ? 1 : 0;
}

void SoHiding::isolate(const std::vector<const SoNode*>& nodes)
{
    m_isolated.clear();
    for (const SoNode* node : nodes)
        m_isolated.insert(node->getNodeId());
    ++m_version;
}

void SoHiding::showLike(const SoHiding& other)
{
    m_version += m_hidden == other.m_hidden && m_isolated == other.m_isolated ? 0 : 1;
    m_hidden = other.m_hidden;
    m_isolated = other.m_isolated;
}

void SoHiding::showAllBut(const std::unordered_set<std::uint64_t>& numbers)
{
    m_version += isEmpty() ? 0 : 1;
    m_isolated.clear();
    for (auto at = m_hidden.begin(); at != m_hidden.end();)
        at = numbers.count(*at) > 0 ? std::next(at) : m_hidden.erase(at);
}
