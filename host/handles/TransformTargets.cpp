// SPDX-License-Identifier: MIT
#include "handles/TransformTargets.h"

#include <xsg/nodes/base/EffectiveValue.h>

namespace scopix
{

namespace
{

SbVec3f row(const SbMatrix& m, int i)
{
    return {m[i][0], m[i][1], m[i][2]};
}

SbVec3f unit(int i)
{
    SbVec3f v;
    v[i] = 1;
    return v;
}

// What has no size grows from nothing by as much as what has the size 1.
float grown(float from, float factor)
{
    return from == 0 ? factor - 1 : from * factor;
}

} // namespace

TransformTarget::TransformTarget(SoTransform* node, const SbMatrix& toWorld)
    : HandleTarget(node, toWorld)
    , m_transform(*node)
{
    TransformTarget::begin();
}

std::vector<SoField*> TransformTarget::getFields(HandleMode mode) const
{
    switch (mode) {
    case HandleMode::Move:
        return {&m_transform.translation};
    case HandleMode::Turn:
        return {&m_transform.rotation};
    case HandleMode::Scale:
        return {&m_transform.scaleFactor};
    default:
        return {};
    }
}

SbVec3f TransformTarget::getPivot() const
{
    return xsg::effectiveValue(m_transform.center, {}) + xsg::effectiveValue(m_transform.translation, {});
}

std::array<SbVec3f, 3> TransformTarget::getOwnAxes() const
{
    const SbRotation turned =
        xsg::effectiveValue(m_transform.scaleOrientation, {}) * xsg::effectiveValue(m_transform.rotation, {});
    return {turned.multVec(unit(0)), turned.multVec(unit(1)), turned.multVec(unit(2))};
}

void TransformTarget::begin()
{
    m_translation = m_transform.translation.getValue();
    m_rotation = m_transform.rotation.getValue();
    m_scale = m_transform.scaleFactor.getValue();
}

void TransformTarget::move(const SbVec3f& by)
{
    m_transform.translation.setValue(m_translation + by);
}

void TransformTarget::turn(const SbRotation& by)
{
    m_transform.rotation.setValue(by == SbRotation() ? m_rotation : m_rotation * by);
}

void TransformTarget::scale(const SbVec3f& factors)
{
    SbVec3f size;
    for (int i = 0; i < 3; ++i)
        size[i] = grown(m_scale[i], factors[i]);
    m_transform.scaleFactor.setValue(size);
}

MatrixTarget::MatrixTarget(SoMatrixTransform* node, const SbMatrix& toWorld)
    : HandleTarget(node, toWorld)
    , m_transform(*node)
{
    MatrixTarget::begin();
}

std::vector<SoField*> MatrixTarget::getFields(HandleMode /*mode*/) const
{
    return {&m_transform.matrix};
}

SbVec3f MatrixTarget::getPivot() const
{
    return row(m_transform.matrix.getValue(), 3);
}

std::array<SbVec3f, 3> MatrixTarget::getOwnAxes() const
{
    std::array<SbVec3f, 3> axes;
    for (int i = 0; i < 3; ++i) {
        const SbVec3f along = row(m_transform.matrix.getValue(), i);
        axes[static_cast<std::size_t>(i)] = along.length() > 0 ? along.normalized() : unit(i);
    }
    return axes;
}

void MatrixTarget::begin()
{
    m_before = m_transform.matrix.getValue();
}

void MatrixTarget::move(const SbVec3f& by)
{
    SbMatrix m = m_before;
    for (int i = 0; i < 3; ++i)
        m[3][i] += by[i];
    m_transform.matrix.setValue(m);
}

void MatrixTarget::turn(const SbRotation& by)
{
    SbMatrix m = m_before;
    for (int i = 0; i < 3 && by != SbRotation(); ++i) {
        const SbVec3f turned = by.multVec(row(m_before, i));
        for (int j = 0; j < 3; ++j)
            m[i][j] = turned[j];
    }
    m_transform.matrix.setValue(m);
}

void MatrixTarget::scale(const SbVec3f& factors)
{
    SbMatrix m = m_before;
    for (int i = 0; i < 3; ++i) {
        const bool isNothing = !(row(m_before, i).length() > 0);
        for (int j = 0; j < 3; ++j)
            m[i][j] = isNothing ? (i == j ? factors[i] - 1 : 0.0F) : m_before[i][j] * factors[i];
    }
    m_transform.matrix.setValue(m);
}

} // namespace scopix
