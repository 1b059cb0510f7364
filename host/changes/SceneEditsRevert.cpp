// SPDX-License-Identifier: MIT
// How SceneEdits takes changes back.
#include "changes/ChangeCommand.h"
#include "changes/SceneEdits.h"
#include "undo/FieldEdit.h"

#include <xsg/core/SoMField.h>

#include <algorithm>

namespace scopix
{

namespace
{

using Kind = ChangeKey::Kind;

} // namespace

std::vector<const ChildrenEdit*> SceneEdits::groupsOf(const ChangeKeySet& keys) const
{
    std::map<quint64, const ChildrenEdit*> groups;
    for (const ChangeKey& key : keys) {
        const StructureRow* row = rowOf(key);
        for (SoGroup* group : {row ? row->from : nullptr, row ? row->to : nullptr}) {
            const auto found = m_groups.find(group);
            if (found != m_groups.end() && !found->second.edit->isLost())
                groups[found->second.number] = found->second.edit.get();
        }
    }
    std::vector<const ChildrenEdit*> all;
    for (const auto& [number, edit] : groups)
        all.push_back(edit);
    return all;
}

// The part of the group's children that was edited, without these changes.
ChildrenEdit::Children SceneEdits::childrenWithout(const ChildrenEdit& edit, const ChangeKeySet& keys) const
{
    const SoGroup* group = &edit.group();
    const ChildrenEdit::Children before = edit.before();
    ChildrenEdit::Children part = edit.after();
    std::map<SoNode*, int> back;
    bool isOrdered = false;
    for (const ChangeKey& key : keys) {
        const StructureRow* row = rowOf(key);
        if (!row)
            continue;
        isOrdered |= key.kind == Kind::Order && row->from == group;
        if (row->to == group && key.kind != Kind::Order && key.kind != Kind::Remove) {
            const auto last = std::find(part.rbegin(), part.rend(), row->node);
            if (last != part.rend())
                part.erase(std::next(last).base());
        }
        if (row->from == group && key.kind != Kind::Order && key.kind != Kind::Insert)
            ++back[row->node];
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
        const auto wanted = back.find(before[i]);
        if (wanted == back.end() || wanted->second-- <= 0)
            continue;
        auto at = part.begin(); // behind the nearest one before it that is there
        for (std::size_t j = i; j-- > 0 && at == part.begin();) {
            const auto found = std::find(part.begin(), part.end(), before[j]);
            at = found == part.end() ? at : std::next(found);
        }
        part.insert(at, before[i]);
    }
    if (!isOrdered)
        return part;
    // Each place of one that was there gets the next of those that were.
    ChildrenEdit::Children ordered;
    std::map<SoNode*, int> present;
    for (SoNode* child : part)
        ++present[child];
    for (SoNode* child : before) {
        if (present[child]-- > 0)
            ordered.push_back(child);
    }
    std::map<SoNode*, int> former;
    for (SoNode* child : ordered)
        ++former[child];
    auto next = ordered.begin();
    for (SoNode*& child : part) {
        if (former[child]-- > 0)
            child = *next++;
    }
    return part;
}

ChangeAct SceneEdits::revert(const ChangeKeySet& keys)
{
    std::vector<StructureChange> changes;
    std::vector<StructureChange> insertions;
    for (const ChildrenEdit* edit : groupsOf(keys))
        addChildrenChange(edit->group(), edit->group().getChildren(),
                          edit->withPart(childrenWithout(*edit, keys)), changes, insertions);
    changes.insert(changes.end(), insertions.begin(), insertions.end());
    std::vector<SoField*> fields;
    for (const ChangeKey& key : keys) {
        const auto* node = static_cast<const SoNode*>(key.subject);
        if (key.kind == Kind::Rename && rowOf(key))
            changes.push_back({StructureChange::Kind::Rename,
                               const_cast<SoNode*>(node),
                               0,
                               {},
                               {},
                               node->getName(),
                               m_names.at(const_cast<SoNode*>(node)).before});
        else if (SoField* field = fieldOf(key))
            fields.push_back(field);
    }
    for (const SoField* field : fields) {
        const FieldEntry& entry = m_fields.at(const_cast<SoField*>(field));
        if (isLost(entry, *field))
            return {nullptr,
                    {},
                    tr("“%1” cannot be reverted: something else than an edit has changed its "
                       "number of values; open the file again for what it holds.")
                        .arg(describe({Kind::Field, field, nullptr, 0}).path)};
    }
    FieldConnections connections;
    for (SoField* field : fields) {
        if (hasOtherSource(m_fields.at(field), *field))
            connections.add(*field, m_fields.at(field).source);
    }
    auto structure = changes.empty() ? nullptr : std::make_unique<StructureCommand>(std::move(changes));
    const auto write = [this, fields] {
        writeFormer({fields.begin(), fields.end()});
        return !fields.empty();
    };
    const QString name = keys.size() == 1 ? tr("Revert %1").arg(describe(*keys.begin()).path)
                                          : tr("Revert %1 Changes").arg(keys.size());
    return {std::make_unique<ChangeCommand>(fields, write, std::move(structure), std::move(connections)),
            name,
            {}};
}

} // namespace scopix
