#include <xsg/nodes/SoSeparator.h>

#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoSeparator, SoGroup>;
