// SPDX-License-Identifier: MIT
#include <xsg/nodes/base/SoInfo.h>

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoInfo, SoNode>;
