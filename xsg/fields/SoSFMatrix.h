// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A 4 by 4 matrix, row after row.
class XSG_API SoSFMatrix : public SoTyped<SoSFMatrix, SoSValue<SbMatrix>>
{
public:
    static constexpr const char* ClassName = "SFMatrix";

    SoSFMatrix() = default;
    SoSFMatrix(SoFieldContainer* owner, const char* name, const SbMatrix& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbMatrix>;
extern template class SoTyped<SoSFMatrix, SoSValue<SbMatrix>>;
