// SPDX-License-Identifier: MIT
#include <xsg/render/WalkRecord.h>

#include <xsg/nodes/groups/SoGroup.h>

#include <algorithm>

void xsg::WalkRecord::clear()
{
    m_entries.clear();
    m_children.clear();
}

void xsg::WalkRecord::fitMemory()
{
    if (m_entries.capacity() > getSize() + getSize() / 8)
        m_entries.shrink_to_fit();
}

void xsg::WalkRecord::add(const SoNode* node, std::size_t itemCount)
{
    m_entries.push_back({node->getNodeId(), node->getChangeCount(), node->getChangeCount(),
                         static_cast<std::uint32_t>(itemCount), 0, false});
}

std::uint32_t xsg::WalkRecord::openGroup(const SoGroup* group, std::size_t itemCount)
{
    m_entries.push_back({group->getNodeId(), group->getFieldChangeCount(), group->getChangeCount(),
                         static_cast<std::uint32_t>(itemCount), 0, group->isStateScope()});
    return static_cast<std::uint32_t>(getSize() - 1);
}

bool xsg::WalkRecord::addChildren(std::uint32_t place, const SoGroup& group)
{
    Children children;
    for (std::uint32_t i = place + 1; i < getSize(); i = std::max(m_entries[i].end, i + 1)) {
        if (!m_entries[i].isStateScope)
            children.reaching.push_back(static_cast<std::uint32_t>(children.entries.size()));
        children.entries.push_back(i);
    }
    if (static_cast<int>(children.entries.size()) != group.getNumChildren())
        return false;
    m_children[place] = std::move(children);
    return true;
}

const xsg::WalkRecord::Children* xsg::WalkRecord::findChildren(std::uint32_t place) const
{
    const auto found = m_children.find(place);
    return found == m_children.end() ? nullptr : &found->second;
}

std::uint32_t xsg::WalkRecord::firstItemAfter(std::size_t place, std::size_t itemCount) const
{
    return place + 1 < getSize() ? m_entries[place + 1].firstItem : static_cast<std::uint32_t>(itemCount);
}
