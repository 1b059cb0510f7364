// SPDX-License-Identifier: MIT
#include <xsg/paths/NodeLabel.h>

#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/values/Utf.h>

#include <algorithm>

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

std::string xsg::latin1Of(const std::string& label)
{
    const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(label.begin(), label.end(), isPlain))
        return {};
    std::string result;
    for (const char16_t unit : utf8ToUtf16(label)) {
        if (unit > 0xFF)
            return {};
        result += static_cast<char>(unit);
    }
    return result;
}
