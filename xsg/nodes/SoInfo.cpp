#include <xsg/nodes/SoInfo.h>

#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoInfo, SoNode>;
