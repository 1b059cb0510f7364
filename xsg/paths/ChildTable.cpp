// SPDX-License-Identifier: MIT
#include <xsg/paths/ChildTable.h>

#include <xsg/paths/NodeLabel.h>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace xsg
{

namespace
{

const ChildTable::Slot* slotAt(const std::vector<ChildTable::Slot>& slots, int index)
{
    const bool isInside = index >= 0 && static_cast<std::size_t>(index) < slots.size();
    return isInside ? &slots[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace

ChildTable::ChildTable(SoGroup* group)
    : m_group(group)
{
    for (SoNode* child : group->getChildren()) {
        Named& named = m_byLabel[labelOf(*child).getString()];
        named.first.push_back(m_order.insert(m_order.end(), Place{child}));
        named.now.push_back(named.first.back());
    }
}

int ChildTable::getFirstCount(const std::string& label) const
{
    const auto known = m_byLabel.find(label);
    return known == m_byLabel.end() ? 0 : static_cast<int>(known->second.first.size());
}

const ChildTable::Slot* ChildTable::findFirst(const SoScenePath::Step& step) const
{
    const auto known = m_byLabel.find(step.label);
    return known == m_byLabel.end() ? nullptr : slotAt(known->second.first, step.index);
}

void ChildTable::closeGaps(Named& named)
{
    const auto hasGone = [](Slot slot) { return !slot->node; };
    if (std::exchange(named.hasGaps, false))
        named.now.erase(std::remove_if(named.now.begin(), named.now.end(), hasGone), named.now.end());
}

const ChildTable::Slot* ChildTable::slotOf(const SoScenePath::Step& step)
{
    const auto known = m_byLabel.find(step.label);
    if (known == m_byLabel.end())
        return nullptr;
    closeGaps(known->second);
    return slotAt(known->second.now, step.index);
}

SoNode* ChildTable::find(const SoScenePath::Step& step)
{
    const Slot* slot = slotOf(step);
    if (const std::string otherwise = slot ? std::string() : latin1Of(step.label); !otherwise.empty())
        slot = slotOf({otherwise, step.index});
    return slot ? (*slot)->node.get() : nullptr;
}

ChildTable::Slot ChildTable::placeAfter(const SoScenePath::Step* after)
{
    if (!after)
        return m_order.begin();
    const Slot* slot = slotOf(*after);
    return slot ? std::next(*slot) : m_order.end();
}

void ChildTable::insert(const SoScenePath::Step& step, const SoScenePath::Step* after,
                        const SoRef<SoNode>& node)
{
    const Slot slot = m_order.insert(placeAfter(after), Place{node});
    slotOf(step); // closes gaps
    std::vector<Slot>& slots = m_byLabel[step.label].now;
    const auto index = std::min(static_cast<std::size_t>(std::max(step.index, 0)), slots.size());
    slots.insert(slots.begin() + static_cast<std::ptrdiff_t>(index), slot);
    m_isChanged = true;
}

void ChildTable::replace(const SoScenePath::Step& step, const SoRef<SoNode>& node)
{
    if (const Slot* slot = slotOf(step)) {
        (*slot)->node = node;
        m_isChanged = true;
    }
}

bool ChildTable::moveAfter(const SoScenePath::Step& step, const SoScenePath::Step* after)
{
    const Slot* slot = slotOf(step);
    Slot place = placeAfter(after);
    while (place != m_order.end() && !place->node)
        ++place;
    if (!slot || place == *slot)
        return false;
    m_order.splice(place, m_order, *slot);
    m_isChanged = true;
    return true;
}

bool ChildTable::remove(const std::string& label, Slot slot)
{
    if (!slot->node)
        return false;
    slot->node = SoRef<SoNode>();
    m_byLabel[label].hasGaps = true;
    m_isChanged = true;
    return true;
}

void ChildTable::restore(const std::string& label, Slot slot, const SoRef<SoNode>& node)
{
    if (slot->node)
        return;
    slotOf({label, 0}); // closes gaps
    slot->node = node;
    m_byLabel[label].now.push_back(slot);
}

void ChildTable::commitRemovals(const std::function<void(int start, int removed)>& announce)
{
    for (auto& [label, named] : m_byLabel) {
        closeGaps(named);
        named.first.clear();
    }
    m_order.remove_if([](const Place& place) { return !place.node; });
    const std::vector<SoNode*> old = m_group->getChildren();
    const auto same = [](const SoNode* a, const Place& b) { return a == b.node.get(); };
    const auto front = std::mismatch(old.begin(), old.end(), m_order.begin(), m_order.end(), same);
    m_sameFront = static_cast<std::size_t>(front.first - old.begin());
    m_sameBack = 0;
    auto back = m_order.rbegin();
    while (m_sameFront + m_sameBack < std::min(old.size(), m_order.size()) &&
           old[old.size() - 1 - m_sameBack] == back->node.get()) {
        ++m_sameBack;
        ++back;
    }
    announce(static_cast<int>(m_sameFront), static_cast<int>(old.size() - m_sameFront - m_sameBack));
    if (m_sameFront + m_sameBack == 0)
        return m_group->removeAllChildren();
    for (std::size_t i = old.size() - m_sameBack; i > m_sameFront; --i)
        m_group->removeChild(static_cast<int>(i - 1));
}

std::vector<SoRef<SoNode>> ChildTable::commitInsertions()
{
    std::vector<SoRef<SoNode>> refused;
    auto at = std::next(m_order.begin(), static_cast<std::ptrdiff_t>(m_sameFront));
    const std::size_t inserted = m_order.size() - m_sameFront - m_sameBack;
    auto position = static_cast<int>(m_sameFront);
    for (std::size_t i = 0; i < inserted; ++i, ++at) {
        if (m_group->insertChild(at->node.get(), position))
            ++position;
        else
            refused.push_back(at->node);
    }
    return refused;
}

ChildTable& SceneLookup::tableOf(SoGroup* group)
{
    return m_tables.try_emplace(group, group).first->second;
}

SoNode* SceneLookup::findBelow(SoNode* node, const Steps& steps, std::size_t& at)
{
    for (; node && at < steps.size(); ++at) {
        SoGroup* group = node->asGroup();
        node = group ? tableOf(group).find(steps[at]) : nullptr;
        if (!node)
            return nullptr;
    }
    return node;
}

SbSentence SceneLookup::reasonAgainst(const Steps& steps, std::size_t at) const
{
    std::string step;
    SoScenePath::writeStep(step, steps[at]);
    if (at > 0)
        return SbSentence("there is no %1 below %2", step, steps[at - 1].label);
    if (steps[0].label == labelOf(*m_root).getString())
        return SbSentence("there is no %1 below the root, which itself is \"/\"", step);
    return SbSentence("there is no %1 below the root", step);
}

// Each node is looked at in its first place.
SoNode* SceneLookup::search(const SoScenePath& path, SbSentence& problem)
{
    const SoScenePath::Step& first = path.getSteps().front();
    const std::string otherwise = latin1Of(first.label);
    const auto isCalled = [&](const SoNode& node) {
        const char* label = labelOf(node).getString();
        return first.label == label || (!otherwise.empty() && otherwise == label);
    };
    std::unordered_set<SoNode*> found;
    std::unordered_set<SoNode*> seen;
    std::vector<SoNode*> open{m_root.get()};
    const auto look = [&](SoNode* node) {
        std::size_t at = 1;
        if (SoNode* end = node ? findBelow(node, path.getSteps(), at) : nullptr)
            found.insert(end);
    };
    if (first.index == 0 && isCalled(*m_root))
        look(m_root.get());
    while (!open.empty()) {
        SoNode* node = open.back();
        open.pop_back();
        SoGroup* group = node->asGroup();
        if (!group || (node->getParents().size() > 1 && !seen.insert(node).second))
            continue;
        int index = 0;
        for (SoNode* child : group->getChildren()) {
            if (isCalled(*child) && (index++ == first.index || first.index == 0))
                look(child);
            if (child->asGroup())
                open.push_back(child);
        }
    }
    if (found.size() == 1)
        return *found.begin();
    problem =
        found.empty()
            ? SbSentence("there is no such node")
            : SbSentence("%1 nodes are meant; a path that starts with \"/\" names one of them", found.size());
    return nullptr;
}

SoNode* SceneLookup::find(const SoScenePath& path, SbSentence& problem)
{
    if (!path.isAbsolute())
        return search(path, problem);
    std::size_t at = 0;
    SoNode* node = findBelow(m_root.get(), path.getSteps(), at);
    if (!node && at < path.getSteps().size())
        problem = reasonAgainst(path.getSteps(), at);
    return node;
}

SoField* SceneLookup::findField(const SoScenePath& path, SbSentence& problem)
{
    SoNode* node = find(path, problem);
    SoField* field = node ? node->getField(SbName(SbString(path.getField()))) : nullptr;
    if (node && !field)
        problem = SbSentence("a %1 has no field \"%2\"", typeNameOf(*node).getString(), path.getField());
    return field;
}

} // namespace xsg
