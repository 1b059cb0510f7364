// SPDX-License-Identifier: MIT
#include <xsg/nodes/groups/SoGroup.h>

#include <xsg/core/Context.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <new>
#include <unordered_set>

template class SoTyped<SoGroup, SoNode>;

std::uint64_t SoGroup::getStructureCount()
{
    return xsg::Context::get().structureChanges;
}

SoNode* SoGroup::getChild(int index) const
{
    return index < 0 || index >= getNumChildren() ? nullptr : m_children[static_cast<std::size_t>(index)];
}

int SoGroup::findChild(const SoNode* child) const
{
    const auto found = std::find(m_children.begin(), m_children.end(), child);
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

bool SoGroup::wouldLoop(const SoNode* child) const
{
    // Upwards, since a group has few ancestors and may have many descendants.
    if (child == this)
        return true;
    const auto* group = dynamic_cast<const SoGroup*>(child);
    if (!group || group->m_children.empty())
        return false;
    std::vector<const SoNode*> pending{this};
    std::unordered_set<const SoNode*> seen;
    while (!pending.empty()) {
        const SoNode* node = pending.back();
        pending.pop_back();
        if (node == child)
            return true;
        if (seen.insert(node).second)
            pending.insert(pending.end(), node->m_parents.begin(), node->m_parents.end());
    }
    return false;
}

bool SoGroup::insertChild(SoNode* child, int index)
{
    if (!child || wouldLoop(child))
        return false;
    const int place = std::clamp(index, 0, getNumChildren());
    if (m_children.size() == m_children.capacity())
        m_children.reserve(2 * m_children.size() + 1); // what can fail comes first
    adopt(child);
    m_children.insert(m_children.begin() + place, child);
    childrenChanged(static_cast<std::size_t>(place), 0, 1);
    return true;
}

void SoGroup::removeChild(int index)
{
    SoNode* child = getChild(index);
    if (!child)
        return;
    m_children.erase(m_children.begin() + index);
    childrenChanged(static_cast<std::size_t>(index), 1, 0);
    release(child);
}

void SoGroup::removeAllChildren()
{
    std::vector<SoNode*> children;
    children.swap(m_children);
    if (children.empty())
        return;
    childrenChanged(0, children.size(), 0);
    disownAll(children);
    std::for_each(children.rbegin(), children.rend(), [](const SoNode* child) { child->unref(); });
}

bool SoGroup::replaceChild(int index, SoNode* child)
{
    SoNode* old = getChild(index);
    if (!old || !child || wouldLoop(child))
        return false;
    adopt(child);
    m_children[static_cast<std::size_t>(index)] = child;
    childrenChanged(static_cast<std::size_t>(index), 1, 1);
    release(old);
    return true;
}

void SoGroup::adopt(SoNode* child)
{
    child->m_parents.push_back(this);
    child->ref();
}

void SoGroup::release(SoNode* child)
{
    auto& parents = child->m_parents;
    parents.erase(std::find(parents.begin(), parents.end(), this));
    child->unref();
}

// When a whole scene is destroyed, this group is mostly the last of a child's parents; where it is not, all
// of the child's entries for this group are removed in one pass.
void SoGroup::disownAll(const std::vector<SoNode*>& children)
{
    std::unordered_set<const SoNode*> swept;
    const auto isFirst = [&](const SoNode* child) {
        try {
            return swept.insert(child).second;
        } catch (const std::bad_alloc&) {
            return true; // sweeping twice is slower and nothing else
        }
    };
    std::for_each(children.rbegin(), children.rend(), [&](SoNode* child) {
        auto& parents = child->m_parents;
        if (!parents.empty() && parents.back() == this)
            parents.pop_back();
        else if (isFirst(child))
            parents.erase(std::remove(parents.begin(), parents.end(), this), parents.end());
    });
}

void SoGroup::childrenChanged(std::size_t place, std::size_t removed, std::size_t inserted)
{
    ++xsg::Context::get().structureChanges;
    if (m_extension)
        m_extension->noteChildren({getChangeCount() + 1, static_cast<std::uint32_t>(place),
                                   static_cast<std::uint32_t>(removed),
                                   static_cast<std::uint32_t>(inserted)});
    SoNotification change;
    change.serial = nextSerial();
    notify(change);
}

void SoGroup::reportChange(const SoNode* child, std::uint64_t serial)
{
    // Two children may bring the same change; it counts once.
    if (m_extension)
        m_extension->noteChange(child, getChangeCount() + (m_lastSerial == serial ? 0 : 1));
}

SoGroup::~SoGroup()
{
    disownAll(m_children);
    // Children are destroyed after their group (see SoFieldContainer::destroy()), the last one first.
    for (const SoNode* child : m_children)
        child->unref();
}
