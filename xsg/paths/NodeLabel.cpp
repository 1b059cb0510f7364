// SPDX-License-Identifier: MIT
#include <xsg/paths/NodeLabel.h>

#include <xsg/nodes/base/SoUnknownNode.h>

SbName xsg::typeNameOf(const SoNode& node)
{
    if (node.getTypeId() == SoUnknownNode::getClassTypeId())
        return static_cast<const SoUnknownNode&>(node).getTypeName();
    return node.getTypeId().getName();
}

SbName xsg::labelOf(const SoNode& node)
{
    const SbName name = node.getName();
    return name.getLength() > 0 ? name : typeNameOf(node);
}
