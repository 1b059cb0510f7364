// SPDX-License-Identifier: MIT
#include <xsg/nodes/groups/SoSeparator.h>

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoSeparator, SoGroup>;
