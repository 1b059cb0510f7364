#include <xsg/nodes/SoMatrixTransform.h>

#include <xsg/core/SoTypedImpl.h>
#include <xsg/nodes/FieldUse.h>

template class SoTyped<SoMatrixTransform, SoTransformation>;

SbMatrix SoMatrixTransform::getMatrix() const
{
    return xsg::used(matrix, {});
}
