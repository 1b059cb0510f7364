// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFMatrix.h>
#include <xsg/nodes/transforms/SoTransformation.h>

/// Moves what follows it by a matrix.
class XSG_API SoMatrixTransform : public SoTyped<SoMatrixTransform, SoTransformation>
{
public:
    static constexpr const char* ClassName = "MatrixTransform";

    SoSFMatrix matrix{this, "matrix"};

    SbMatrix getMatrix() const override;
};

extern template class SoTyped<SoMatrixTransform, SoTransformation>;
