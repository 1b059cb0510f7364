// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoMField.h>
#include <xsg/nodes/base/SoNode.h>

namespace scopix
{

/// Null for a field that belongs to no node.
inline SoNode* ownerOf(const SoField& field)
{
    return dynamic_cast<SoNode*>(field.getContainer());
}

/// Of the values of a list; -1 for a field that is none.
inline int countOf(const SoField& field)
{
    const auto* list = dynamic_cast<const SoMField*>(&field);
    return list ? list->getNum() : -1;
}

} // namespace scopix
