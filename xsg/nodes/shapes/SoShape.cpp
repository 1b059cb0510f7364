// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoShape.h>

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoShape, SoNode>;
