// SPDX-License-Identifier: MIT
// Instantiates the fields whose values are references to nodes.
#include <xsg/fields/SoValueImpl.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>

template class SoSValue<SoRef<SoNode>>;
template class SoTyped<SoSFNode, SoSValue<SoRef<SoNode>>>;
template class SoMValue<SoRef<SoNode>>;
template class SoTyped<SoMFNode, SoMValue<SoRef<SoNode>>>;
