#include <xsg/nodes/SoShape.h>

#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoShape, SoNode>;
