// SPDX-License-Identifier: MIT
#include <xsg/files/BranchCopy.h>

#include <xsg/core/SoField.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>
#include <xsg/support/WorkPieces.h>

#include <unordered_map>

namespace xsg
{

namespace
{

using Copies = std::unordered_map<const SoFieldContainer*, SoNode*>;

// Each node of the branch with its copy. False where they are not alike.
bool pair(SoNode* branch, SoNode* copy, Copies& copies, WorkPieces& pieces)
{
    std::vector<std::pair<SoNode*, SoNode*>> pending{{branch, copy}};
    while (!pending.empty()) {
        const auto [node, itsCopy] = pending.back();
        pending.pop_back();
        pieces.step();
        if (!copies.emplace(node, itsCopy).second)
            continue;
        const SoGroup* group = node->asGroup();
        const SoGroup* itsGroup = itsCopy->asGroup();
        if ((group ? group->getNumChildren() : 0) != (itsGroup ? itsGroup->getNumChildren() : 0))
            return false;
        for (int i = 0; group && i < group->getNumChildren(); ++i)
            pending.emplace_back(group->getChild(i), itsGroup->getChild(i));
    }
    return true;
}

SoRef<SoNode> copyOf(const SoRef<SoNode>& node, const Copies& copies)
{
    const auto found = copies.find(node.get());
    return found == copies.end() ? node : SoRef<SoNode>(found->second);
}

void referAsBefore(const SoField& field, SoField& copy, const Copies& copies)
{
    if (const auto* single = dynamic_cast<const SoSFNode*>(&field)) {
        if (single->getNode() && !copies.count(single->getNode()))
            static_cast<SoSFNode&>(copy).setValue(single->getValue());
    } else if (const auto* list = dynamic_cast<const SoMFNode*>(&field)) {
        for (int i = 0; i < list->getNum(); ++i) {
            if ((*list)[i] && !copies.count((*list)[i].get()))
                static_cast<SoMFNode&>(copy).set1Value(i, copyOf((*list)[i], copies));
        }
    }
}

void leadOutAsBefore(SoField& field, SoField& copy, const Copies& copies)
{
    SoField* source = field.getConnectedField();
    if (!source)
        referAsBefore(field, copy, copies);
    else if (!source->getContainer() || !copies.count(source->getContainer()))
        copy.connectFrom(source);
}

// What no file holds.
void copyWithoutText(const SoNode& node, SoNode& copy)
{
    if (const auto* texture = dynamic_cast<const SoTexture2*>(&node))
        static_cast<SoTexture2&>(copy).setFolder(texture->getFolder());
    else if (const auto* drawing = dynamic_cast<const SoDrawingCallback*>(&node))
        static_cast<SoDrawingCallback&>(copy).setCallback(drawing->getCallback());
}

} // namespace

SoRef<SoNode> copyBranch(SoNode* branch)
{
    return copyBranch(branch, {});
}

SoRef<SoNode> copyBranch(SoNode* branch, const std::function<void(double)>& goOn)
{
    constexpr int Phases = 2;
    std::string error;
    const std::string text = SoSceneFile::writeText(branch, partOf(goOn, 0, Phases));
    const SoRef<SoNode> copy = SoSceneFile::readText(text, "copy", error, partOf(goOn, 1, Phases));
    Copies copies;
    WorkPieces pieces(goOn);
    if (!copy || !pair(branch, copy.get(), copies, pieces))
        return {};
    for (const auto& [node, itsCopy] : copies) {
        pieces.step();
        if (node->getTypeId() != itsCopy->getTypeId())
            return {};
        copyWithoutText(static_cast<const SoNode&>(*node), *itsCopy);
        const SoFieldData* data = node->getFieldData();
        for (SoField* field = data->getField(node, 0); field; field = data->getNext(field)) {
            if (SoField* copied = itsCopy->getField(field->getName()))
                leadOutAsBefore(*field, *copied, copies);
        }
    }
    return copy;
}

} // namespace xsg
