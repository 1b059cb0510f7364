// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>
#include <xsg/nodes/base/SoNodeText.h>

/// A reference to a node, or to none. The field keeps the node alive; a node that refers to one of its own
/// ancestors keeps both alive for ever.
class XSG_API SoSFNode : public SoTyped<SoSFNode, SoSValue<SoRef<SoNode>>>
{
public:
    static constexpr const char* ClassName = "SFNode";

    SoSFNode() = default;
    SoSFNode(SoFieldContainer* owner, const char* name, SoNode* value = nullptr)
        : SoTyped(owner, name, SoRef<SoNode>(value))
    {
    }
    SoNode* getNode() const { return getValue().get(); }
};

extern template class SoSValue<SoRef<SoNode>>;
extern template class SoTyped<SoSFNode, SoSValue<SoRef<SoNode>>>;
