// Moves what follows it by a matrix.
#pragma once

#include <xsg/fields/SoSFMatrix.h>
#include <xsg/nodes/transforms/SoTransformation.h>

class XSG_API SoMatrixTransform : public SoTyped<SoMatrixTransform, SoTransformation>
{
public:
    static constexpr const char* ClassName = "MatrixTransform";

    SoSFMatrix matrix{this, "matrix"};

    SbMatrix getMatrix() const override;
};

extern template class SoTyped<SoMatrixTransform, SoTransformation>;
