// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a 4 by 4 matrix, row after row.
class XSG_API SoMFMatrix : public SoTyped<SoMFMatrix, SoMValue<SbMatrix>>
{
public:
    static constexpr const char* ClassName = "MFMatrix";

    SoMFMatrix() = default;
    SoMFMatrix(SoFieldContainer* owner, const char* name, std::initializer_list<SbMatrix> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbMatrix>;
extern template class SoTyped<SoMFMatrix, SoMValue<SbMatrix>>;
