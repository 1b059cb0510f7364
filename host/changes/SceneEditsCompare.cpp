// SPDX-License-Identifier: MIT
// How SceneEdits finds out what differs.
#include "changes/EditedField.h"
#include "changes/SceneEdits.h"
#include "undo/FieldEdit.h"

#include <algorithm>

namespace scopix
{

namespace
{

using Kind = ChangeKey::Kind;

constexpr std::size_t MostParents = 256; // of a node, that are looked at

} // namespace

void SceneEdits::update()
{
    if (m_isHeld && m_isHeld())
        return;
    m_announced = nullptr;
    compareFields();
    if (std::exchange(m_isStructureStale, false)) {
        compareStructure();
        m_isListStale = true;
    }
    if (std::exchange(m_isListStale, false))
        makeList();
}

// Somebody else has changed the number of values, so that the edited part is no longer known.
bool SceneEdits::isLost(const FieldEntry& entry, const SoField& field)
{
    return entry.isElsewhere && entry.count >= 0 && entry.count != countOf(field);
}

bool SceneEdits::hasOtherSource(const FieldEntry& entry, const SoField& field)
{
    return entry.isConnected && entry.source != field.getConnectedField();
}

void SceneEdits::compareFields()
{
    for (SoField* field : std::exchange(m_stale, {})) {
        FieldEntry& entry = m_fields.at(field);
        entry.isStale = false;
        entry.version = ++m_version;
        m_isListStale |= std::exchange(entry.isNew, false);
        if (isLost(entry, *field))
            continue;
        if (entry.isElsewhere || entry.isConnected)
            entry.edit->noteOtherWrite();
        entry.edit->compare();
        if (!entry.edit->isNothing() || hasOtherSource(entry, *field))
            continue;
        m_isListStale = true;
        auto& fields = m_fieldsOf.at(field->getContainer());
        fields.erase(std::find(fields.begin(), fields.end(), field));
        if (fields.empty())
            m_fieldsOf.erase(field->getContainer());
        m_connected.erase(field);
        m_fields.erase(field);
    }
}

void SceneEdits::compareStructure()
{
    m_places.clear();
    m_isBelow.clear();
    m_wasBelow.clear();
    m_rows.clear();
    m_came.clear();
    m_gone.clear();
    m_structureVersion = ++m_version;
    for (auto at = m_names.begin(); at != m_names.end();)
        at = at->first->getName() == at->second.before ? m_names.erase(at) : std::next(at);
    std::vector<std::pair<quint64, SoGroup*>> groups;
    for (auto at = m_groups.begin(); at != m_groups.end();) {
        const bool isNothing = !at->second.edit->isLost() && at->second.edit->isNothing();
        if (!isNothing)
            groups.emplace_back(at->second.number, at->first);
        at = isNothing ? m_groups.erase(at) : std::next(at);
    }
    std::sort(groups.begin(), groups.end());
    std::vector<SoNode*> order;
    for (const auto& [number, group] : groups) {
        const ChildrenEdit& edit = *m_groups.at(group).edit;
        std::map<SoNode*, int> more;
        for (SoNode* child : edit.after())
            ++more[child];
        for (SoNode* child : edit.before())
            --more[child];
        for (const auto& [child, count] : more) {
            if (count == 0)
                continue;
            (count > 0 ? m_came : m_gone)[{child, group}] = std::abs(count);
            order.push_back(child);
        }
    }
    addRows(order, m_came, m_gone);
    for (const auto& [number, group] : groups) {
        const ChildrenEdit& edit = *m_groups.at(group).edit;
        const auto staying = [](ChildrenEdit::Children children, Links links, SoGroup* in) {
            const auto isOther = [&](SoNode* child) {
                const auto found = links.find({child, in});
                return found != links.end() && found->second-- > 0;
            };
            children.erase(std::remove_if(children.begin(), children.end(), isOther), children.end());
            return children;
        };
        if (stood(*group) && staying(edit.before(), m_gone, group) != staying(edit.after(), m_came, group))
            m_rows[{Kind::Order, group, nullptr, 0}] = {group, group, group, &m_groups.at(group)};
    }
    for (const auto& [node, entry] : m_names) {
        if (stood(*node))
            m_rows[{Kind::Rename, node, nullptr, 0}] = {node, nullptr, nullptr, nullptr};
    }
}

// What came to one group and is gone from another one was moved.
void SceneEdits::addRows(const std::vector<SoNode*>& order, const Links& came, const Links& gone)
{
    const auto groupsOfNode = [](const Links& links, const SoNode* node) {
        std::vector<SoGroup*> groups;
        for (auto at = links.lower_bound({node, nullptr}); at != links.end() && at->first.first == node; ++at)
            groups.insert(groups.end(), static_cast<std::size_t>(at->second), at->first.second);
        return groups;
    };
    std::unordered_set<const SoNode*> seen;
    for (SoNode* node : order) {
        if (!seen.insert(node).second)
            continue;
        const std::vector<SoGroup*> to = groupsOfNode(came, node);
        const std::vector<SoGroup*> from = groupsOfNode(gone, node);
        for (std::size_t i = 0; i < std::max(to.size(), from.size()); ++i) {
            StructureRow row{node, i < from.size() ? from[i] : nullptr, i < to.size() ? to[i] : nullptr,
                             nullptr};
            row.entry = &m_groups.at(row.to ? row.to : row.from);
            ChangeKey key{Kind::Move, node, row.to, static_cast<int>(i)};
            if (isShown(row, key))
                m_rows[key] = row;
        }
    }
}

bool SceneEdits::isShown(const StructureRow& row, ChangeKey& key)
{
    const bool isTo = row.to && isBelow(*row.to);
    const bool isFrom = row.from && wasBelow(*row.from);
    if (isTo && isFrom)
        return true;
    key.kind = isTo ? Kind::Insert : Kind::Remove;
    key.place = isTo ? row.to : row.from;
    return (isTo && wasBelow(*row.to)) || (isFrom && isBelow(*row.from));
}

bool SceneEdits::isBelow(const SoNode& node)
{
    return m_places.isBelowRoot(node);
}

std::vector<const SoNode*> SceneEdits::formerParents(const SoNode& node) const
{
    std::vector<const SoNode*> parents;
    std::unordered_map<const SoGroup*, int> counts;
    const std::size_t count = std::min(node.getParents().size(), MostParents);
    for (std::size_t i = 0; i < count; ++i)
        ++counts[node.getParents()[i]];
    for (const auto& [parent, places] : counts) {
        const auto came = m_came.find({&node, const_cast<SoGroup*>(parent)});
        if (came == m_came.end() || came->second < places)
            parents.push_back(parent);
    }
    for (auto at = m_gone.lower_bound({&node, nullptr}); at != m_gone.end() && at->first.first == &node; ++at)
        parents.push_back(at->first.second);
    return parents;
}

bool SceneEdits::wasBelow(const SoNode& node)
{
    if (m_came.empty() && m_gone.empty())
        return isBelow(node);
    std::vector<const SoNode*> pending{&node};
    while (!pending.empty()) {
        const SoNode* next = pending.back();
        if (m_wasBelow.count(next) > 0) {
            pending.pop_back();
            continue;
        }
        bool is = next == m_root;
        const std::size_t before = pending.size();
        for (const SoNode* parent : is ? std::vector<const SoNode*>() : formerParents(*next)) {
            const auto known = m_wasBelow.find(parent);
            if (known != m_wasBelow.end())
                is |= known->second;
            else if (std::find(pending.begin(), pending.end(), parent) == pending.end())
                pending.push_back(parent);
        }
        if (is || pending.size() == before) {
            pending.resize(before - 1);
            m_wasBelow[next] = is;
        }
    }
    return m_wasBelow.at(&node);
}

void SceneEdits::makeList()
{
    ++m_listVersion;
    m_list.clear();
    m_marked.clear();
    std::vector<std::pair<quint64, ChangeKey>> all;
    for (const auto& [field, entry] : m_fields) {
        const SoNode* node = ownerOf(*field);
        if (!stood(*node))
            continue;
        all.emplace_back(entry.number, ChangeKey{Kind::Field, field, nullptr, 0});
        m_marked.insert(node);
    }
    for (const auto& [key, row] : m_rows) {
        all.emplace_back(row.entry ? row.entry->number : m_names.at(row.node).number, key);
        m_marked.insert(key.kind == Kind::Remove ? row.from : row.node);
    }
    std::sort(all.begin(), all.end());
    for (const auto& [number, key] : all)
        m_list.push_back(key);
}

} // namespace scopix
