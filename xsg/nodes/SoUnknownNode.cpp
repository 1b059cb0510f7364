#include <xsg/nodes/SoUnknownNode.h>

#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoUnknownNode, SoSeparator>;
