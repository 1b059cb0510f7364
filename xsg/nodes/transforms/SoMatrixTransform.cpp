#include <xsg/nodes/transforms/SoMatrixTransform.h>

#include <xsg/types/SoTypedImpl.h>
#include <xsg/nodes/base/FieldUse.h>

template class SoTyped<SoMatrixTransform, SoTransformation>;

SbMatrix SoMatrixTransform::getMatrix() const
{
    return xsg::used(matrix, {});
}
