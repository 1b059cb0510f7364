// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbMatrix.h>

/// Moves what follows it in its group. What kinds of movement there are, derived classes say.
class XSG_API SoTransformation : public SoTyped<SoTransformation, SoNode>
{
public:
    static constexpr const char* ClassName = "Transformation";

    /// From the coordinates of what follows to those of what precedes it.
    virtual SbMatrix getMatrix() const = 0;
    void apply(SoState& state) const override;
};

extern template class SoTyped<SoTransformation, SoNode>;
