// SPDX-License-Identifier: MIT
// Handles of transforms.
#pragma once

#include "handles/HandleTarget.h"

#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace scopix
{

class TransformTarget : public HandleTarget
{
public:
    TransformTarget(SoTransform* node, const SbMatrix& toWorld);

    bool can(HandleMode mode) const override { return mode != HandleMode::Select; }
    std::vector<SoField*> getFields(HandleMode mode) const override;
    SbVec3f getPivot() const override;
    void begin() override;
    void move(const SbVec3f& by) override;
    void turn(const SbRotation& by) override;
    void scale(const SbVec3f& factors) override;

protected:
    std::array<SbVec3f, 3> getOwnAxes() const override;

private:
    SoTransform& m_transform;
    SbVec3f m_translation;
    SbRotation m_rotation;
    SbVec3f m_scale;
};

class MatrixTarget : public HandleTarget
{
public:
    MatrixTarget(SoMatrixTransform* node, const SbMatrix& toWorld);

    bool can(HandleMode mode) const override { return mode != HandleMode::Select; }
    std::vector<SoField*> getFields(HandleMode mode) const override;
    SbVec3f getPivot() const override;
    void begin() override;
    void move(const SbVec3f& by) override;
    void turn(const SbRotation& by) override;
    void scale(const SbVec3f& factors) override;

protected:
    std::array<SbVec3f, 3> getOwnAxes() const override;

private:
    SoMatrixTransform& m_transform;
    SbMatrix m_before;
};

} // namespace scopix
