// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a single-precision number.
class XSG_API SoMFFloat : public SoTyped<SoMFFloat, SoMValue<float>>
{
public:
    static constexpr const char* ClassName = "MFFloat";

    SoMFFloat() = default;
    SoMFFloat(SoFieldContainer* owner, const char* name, std::initializer_list<float> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<float>;
extern template class SoTyped<SoMFFloat, SoMValue<float>>;
