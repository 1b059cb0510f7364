// SPDX-License-Identifier: MIT
#include <xsg/nodes/transforms/SoTransform.h>

#include <xsg/nodes/base/EffectiveValue.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoTransform, SoTransformation>;

SbMatrix SoTransform::getMatrix() const
{
    if (!m_made.isValid || m_made.fieldChanges != getFieldChangeCount())
        m_made = {makeMatrix(), getFieldChangeCount(), true};
    return m_made.matrix;
}

SbMatrix SoTransform::makeMatrix() const
{
    const SbVec3f fixed = xsg::effectiveValue(center, {});
    const SbRotation along = xsg::effectiveValue(scaleOrientation, {});
    SbMatrix m = SbMatrix::scale(xsg::effectiveValue(scaleFactor, {1, 1, 1}));
    if (along != SbRotation())
        m = SbMatrix::rotation(along.inverse()) * m * SbMatrix::rotation(along);
    const SbRotation turn = xsg::effectiveValue(rotation, {});
    if (turn != SbRotation())
        m = m * SbMatrix::rotation(turn);
    if (fixed != SbVec3f())
        m = SbMatrix::translation(fixed * -1.0F) * m * SbMatrix::translation(fixed);
    // As the last of all movements, it only adds to the last row.
    const SbVec3f by = xsg::effectiveValue(translation, {});
    for (int i = 0; i < 3; ++i)
        m[3][i] += by[i];
    return m;
}
