// SPDX-License-Identifier: MIT
#include "viewport/SceneParts.h"

#include "text/NodeText.h"

#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <QCoreApplication>

namespace scopix
{

namespace
{

bool hasName(const SoNode* node)
{
    return node->getName().getLength() > 0;
}

// The last material in a group that those after the group see; the path to the group grows to it.
bool findMaterialIn(SoGroup& group, SoPath& path)
{
    const SoChildRange range = group.getChosenChildren(SoState());
    for (int i = range.last - 1; i >= range.first; --i) {
        SoNode* child = group.getChild(i);
        SoPath longer = path;
        longer.append(child);
        SoGroup* below = child->asGroup();
        const bool isOpen = below && !below->isStateScope();
        if (dynamic_cast<SoMaterial*>(child) || (isOpen && findMaterialIn(*below, longer))) {
            path = longer;
            return true;
        }
    }
    return false;
}

} // namespace

bool isSamePath(const SoPath& a, const SoPath& b)
{
    if (a.getLength() != b.getLength())
        return false;
    for (int i = 0; i < a.getLength(); ++i) {
        if (a.getNode(i) != b.getNode(i))
            return false;
    }
    return true;
}

SoPath pathUpTo(const SoPath& path, int node)
{
    SoPath part;
    for (int i = 0; i <= node && i < path.getLength(); ++i)
        part.append(path.getNode(i));
    return part;
}

SoPath namedPart(const SoPath& toShape)
{
    for (int i = toShape.getLength() - 1; i > 0; --i) {
        if (hasName(toShape.getNode(i)))
            return pathUpTo(toShape, i);
    }
    return toShape;
}

SoPath materialPath(const SoPath& toShape)
{
    for (int level = toShape.getLength() - 2; level >= 0; --level) {
        SoGroup* group = toShape.getNode(level)->asGroup();
        if (!group)
            return {};
        for (int i = group->findChild(toShape.getNode(level + 1)) - 1; i >= 0; --i) {
            SoNode* before = group->getChild(i);
            SoPath path = pathUpTo(toShape, level);
            path.append(before);
            SoGroup* open = before->asGroup();
            if (dynamic_cast<SoMaterial*>(before) ||
                (open && !open->isStateScope() && findMaterialIn(*open, path)))
                return path;
        }
    }
    return {};
}

SoPath clickedPart(const SoPath& toShape, const SoPath& selected)
{
    const SoPath part = namedPart(toShape);
    if (isSamePath(selected, toShape)) {
        const SoPath material = materialPath(toShape);
        return material.isEmpty() ? part : material;
    }
    return isSamePath(selected, part) ? toShape : part;
}

SoPath partAbove(const SoPath& selected)
{
    for (int i = selected.getLength() - 2; i > 0; --i) {
        if (hasName(selected.getNode(i)))
            return pathUpTo(selected, i);
    }
    return {};
}

QString partText(const SoPath& path)
{
    if (path.isEmpty())
        return {};
    const QString own = nodeText(*path.getTail());
    const SoPath above = hasName(path.getTail()) ? SoPath() : partAbove(path);
    return above.isEmpty()
               ? own
               : QCoreApplication::translate("SceneParts", "%1 ▸ %2").arg(nodeText(*above.getTail()), own);
}

} // namespace scopix
