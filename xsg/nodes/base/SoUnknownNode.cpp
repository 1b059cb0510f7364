// SPDX-License-Identifier: MIT
#include <xsg/nodes/base/SoUnknownNode.h>

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoUnknownNode, SoSeparator>;

SoUnknownField* SoUnknownNode::addField(SbName name)
{
    SoUnknownField*& field = m_byName[name.getString()];
    if (!field)
        field = m_added.emplace_back(std::make_unique<SoUnknownField>(this, name)).get();
    return field;
}
