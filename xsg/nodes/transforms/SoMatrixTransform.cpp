// SPDX-License-Identifier: MIT
#include <xsg/nodes/transforms/SoMatrixTransform.h>

#include <xsg/nodes/base/EffectiveValue.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoMatrixTransform, SoTransformation>;

SbMatrix SoMatrixTransform::getMatrix() const
{
    return xsg::effectiveValue(matrix, {});
}
