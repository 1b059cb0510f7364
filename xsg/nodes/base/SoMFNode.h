// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>
#include <xsg/nodes/base/SoNodeText.h>

/// Any number of values, each a reference to a node, or to none. The field keeps the nodes alive.
class XSG_API SoMFNode : public SoTyped<SoMFNode, SoMValue<SoRef<SoNode>>>
{
public:
    static constexpr const char* ClassName = "MFNode";

    SoMFNode() = default;
    SoMFNode(SoFieldContainer* owner, const char* name, std::initializer_list<SoRef<SoNode>> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SoRef<SoNode>>;
extern template class SoTyped<SoMFNode, SoMValue<SoRef<SoNode>>>;
