// SPDX-License-Identifier: MIT
#include <xsg/render/WalkRecord.h>

#include <xsg/nodes/groups/SoGroup.h>

#include <algorithm>

void xsg::WalkRecord::clear()
{
    m_first = None;
    m_entries.clear();
    m_free.clear();
    m_children.clear();
    for (auto& watched : m_watched)
        watched.second.clear();
}

void xsg::WalkRecord::fitMemory()
{
    if (m_entries.capacity() > m_entries.size() + m_entries.size() / 8)
        m_entries.shrink_to_fit();
}

std::uint32_t& xsg::WalkRecord::linkAfter(std::uint32_t parent, std::uint32_t previous)
{
    if (previous != None)
        return m_entries[previous].next;
    return parent == None ? m_first : m_entries[parent].first;
}

std::uint32_t xsg::WalkRecord::getNext(std::uint32_t parent, std::uint32_t previous) const
{
    if (previous != None)
        return m_entries[previous].next;
    return parent == None ? m_first : m_entries[parent].first;
}

std::uint32_t xsg::WalkRecord::link(const Entry& entry, std::uint32_t parent, std::uint32_t previous)
{
    std::uint32_t place = static_cast<std::uint32_t>(m_entries.size());
    if (m_free.empty()) {
        m_entries.push_back(entry);
    } else {
        place = m_free.back();
        m_free.pop_back();
        m_entries[place] = entry;
    }
    std::uint32_t& before = linkAfter(parent, previous);
    m_entries[place].next = before;
    before = place;
    noteWatched(place);
    return place;
}

std::uint32_t xsg::WalkRecord::unlinkNext(std::uint32_t parent, std::uint32_t previous)
{
    std::uint32_t& before = linkAfter(parent, previous);
    const std::uint32_t place = before;
    before = m_entries[place].next;
    return place;
}

void xsg::WalkRecord::forget(std::uint32_t place)
{
    const auto watched = m_watched.find(m_entries[place].nodeId);
    if (watched != m_watched.end())
        watched->second.erase(std::find(watched->second.begin(), watched->second.end(), place));
    if (m_entries[place].isGroup)
        m_children.erase(place);
    m_entries[place] = {};
    m_free.push_back(place);
}

std::uint32_t xsg::WalkRecord::add(const SoNode* node, std::uint32_t parent, std::uint32_t previous)
{
    Entry entry;
    entry.nodeId = node->getNodeId();
    entry.changeCount = entry.wholeCount = node->getChangeCount();
    return link(entry, parent, previous);
}

std::uint32_t xsg::WalkRecord::addGroup(const SoGroup* group, std::uint32_t parent, std::uint32_t previous)
{
    Entry entry;
    entry.nodeId = group->getNodeId();
    entry.changeCount = group->getFieldChangeCount();
    entry.wholeCount = group->getChangeCount();
    entry.isGroup = true;
    entry.isIsolated = group->isStateScope();
    return link(entry, parent, previous);
}

void xsg::WalkRecord::indexChildren(std::uint32_t place, const SoGroup& group)
{
    Children children;
    for (std::uint32_t i = m_entries[place].first; i != None; i = m_entries[i].next)
        children.entries.push_back(i);
    if (static_cast<int>(children.entries.size()) != group.getNumChildren())
        return;
    collectReaching(children);
    m_children[place] = std::move(children);
}

void xsg::WalkRecord::collectReaching(Children& children) const
{
    children.reaching.clear();
    for (std::uint32_t i = 0; i < children.entries.size(); ++i) {
        if (children.entries[i] != None && !m_entries[children.entries[i]].isIsolated)
            children.reaching.push_back(i);
    }
}

xsg::WalkRecord::Children* xsg::WalkRecord::findChildren(std::uint32_t place)
{
    const auto found = m_children.find(place);
    return found == m_children.end() ? nullptr : &found->second;
}

void xsg::WalkRecord::watch(const std::vector<std::uint64_t>& nodeIds)
{
    m_watched.clear();
    for (const std::uint64_t nodeId : nodeIds)
        m_watched[nodeId];
    for (std::uint32_t i = 0; !nodeIds.empty() && i < m_entries.size(); ++i)
        noteWatched(i);
}

void xsg::WalkRecord::noteWatched(std::uint32_t place)
{
    if (m_watched.empty())
        return;
    const auto watched = m_watched.find(m_entries[place].nodeId);
    if (watched != m_watched.end())
        watched->second.push_back(place);
}
