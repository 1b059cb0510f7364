// SPDX-License-Identifier: MIT
#include "structure/MirroredNode.h"

#include <xsg/core/SoFieldContainer.h>

namespace scopix
{

MirroredNode* MirroredNode::of(SoFieldContainer* container)
{
    return dynamic_cast<MirroredNode*>(container);
}

const MirroredNode* MirroredNode::of(const SoFieldContainer* container)
{
    return dynamic_cast<const MirroredNode*>(container);
}

} // namespace scopix
