// SPDX-License-Identifier: MIT
// The changes of SceneEdits as a patch.
#include "changes/SceneCopy.h"
#include "changes/SceneEdits.h"
#include "support/LongWork.h"
#include "undo/FieldEdit.h"

#include <xsg/changes/SceneDiff.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>

#include <algorithm>

namespace scopix
{

namespace
{

using Kind = ChangeKey::Kind;

bool refersToNodes(const SoField& field)
{
    return dynamic_cast<const SoSFNode*>(&field) || dynamic_cast<const SoMFNode*>(&field);
}

SoRef<SoNode> makeAlike(const SoNode& node)
{
    return SoRef<SoNode>(static_cast<SoNode*>(node.getTypeId().createInstance()));
}

void takeState(SoField& to, const SoField& from)
{
    to.copyFrom(from);
    to.setDefault(from.isDefault());
    to.setIgnored(from.isIgnored());
}

} // namespace

xsg::SceneChanges SceneEdits::makePatch(const ChangeKeySet& keys)
{
    update();
    return isPlainPatch(keys) ? patchOfFields(keys) : patchOfScenes(keys);
}

// Values alone are written without a look at the rest of the scene.
bool SceneEdits::isPlainPatch(const ChangeKeySet& keys) const
{
    const auto isPlain = [this](const ChangeKey& key) {
        const SoField* field = fieldOf(key);
        return field && !field->isConnected() && !hasOtherSource(*entryOf(key), *field) &&
               !refersToNodes(*field) &&
               field->getContainer()->getTypeId() != SoUnknownNode::getClassTypeId() &&
               field->getContainer()->getTypeId().canCreateInstance();
    };
    return m_groups.empty() && m_names.empty() && std::all_of(keys.begin(), keys.end(), isPlain);
}

// Each node alone, before and after; the lines then get its path.
xsg::SceneChanges SceneEdits::patchOfFields(const ChangeKeySet& keys) const
{
    ChangeKeys sorted(keys.begin(), keys.end());
    sortByScene(sorted);
    xsg::SceneChanges all;
    for (std::size_t i = 0; i < sorted.size();) {
        LongWork::goOn();
        const SoNode& node = *nodeOf(sorted[i]);
        const SoRef<SoNode> before = makeAlike(node);
        const SoRef<SoNode> after = makeAlike(node);
        for (; i < sorted.size() && nodeOf(sorted[i]) == &node; ++i) {
            const SoField& field = *fieldOf(sorted[i]);
            const std::unique_ptr<SoField> former = entryOf(sorted[i])->edit->makeFormer();
            takeState(*before->getField(field.getName()), *former);
            takeState(*after->getField(field.getName()), field);
        }
        for (xsg::SceneChange& change : xsg::compareScenes(before.get(), after.get())) {
            SoScenePath path = m_places.pathOf(node);
            path.setField(change.path.getField(), change.path.getIndex());
            change.path = std::move(path);
            all.push_back(std::move(change));
        }
    }
    return all;
}

xsg::SceneChanges SceneEdits::patchOfScenes(const ChangeKeySet& keys) const
{
    ChangeKeySet kept;
    for (const ChangeKey& key : m_list) {
        if (keys.count(key) == 0)
            kept.insert(key);
    }
    const SoRef<SoNode> before = copyWithout(nullptr);
    const SoRef<SoNode> after = kept.empty() ? SoRef<SoNode>(m_root) : copyWithout(&kept);
    return before && after ? xsg::compareScenes(before.get(), after.get(), LongWork::goOn)
                           : xsg::SceneChanges();
}

SoRef<SoNode> SceneEdits::makeFormerScene() const
{
    return copyWithout(nullptr);
}

// Null: without any change, those of what is not in the scene included.
SoRef<SoNode> SceneEdits::copyWithout(const ChangeKeySet* keys) const
{
    std::vector<SoNode*> removed;
    for (const auto& [link, count] : m_gone)
        removed.push_back(const_cast<SoNode*>(link.first));
    SceneCopy copy(m_root, removed);
    if (!copy.getRoot())
        return {};
    std::vector<std::pair<const SoGroup*, ChildrenEdit::Children>> lists;
    for (const auto& [group, entry] : m_groups) {
        if (entry.edit->isLost() || !copy.copyOf(group))
            continue;
        lists.emplace_back(
            group, entry.edit->withPart(keys ? childrenWithout(*entry.edit, *keys) : entry.edit->before()));
    }
    for (const auto& [group, children] : lists)
        copy.setChildren(*group, {}); // so that nothing is refused for a loop
    for (const auto& [group, children] : lists)
        copy.setChildren(*group, children);
    const auto isMeant = [keys](const SoField* field) {
        return !keys || keys->count({Kind::Field, field, nullptr, 0}) > 0;
    };
    for (const SoField* field : m_connected) {
        if (isMeant(field))
            copy.setSource(*field, nullptr);
    }
    for (const auto& [field, entry] : m_fields) {
        if (isMeant(field))
            copy.setField(*field, *entry.edit->makeFormer());
    }
    // The values once more: what followed another field may have had one of its own.
    for (const SoField* field : m_connected) {
        const FieldEntry& entry = m_fields.at(const_cast<SoField*>(field));
        if (isMeant(field) && entry.source && copy.setSource(*field, entry.source))
            copy.setField(*field, *entry.edit->makeFormer());
    }
    for (const auto& [node, entry] : m_names) {
        if (copy.copyOf(node) && (!keys || keys->count({Kind::Rename, node, nullptr, 0}) > 0))
            copy.copyOf(node)->setName(entry.before);
    }
    return SoRef<SoNode>(copy.getRoot());
}

} // namespace scopix
